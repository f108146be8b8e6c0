#pragma once

#include "common/UserInterface.h"

#include <QPointer>
#include <QWidget>

namespace schedules {

/// Speaks to the user of a desktop, in dialogs over the window of a widget. When that window is deleted while a dialog
/// is open, the dialog counts as cancelled; this object may be gone with it. A dialog has the ordinary pointer, also
/// while the hourglass is shown, which comes back afterwards.
class DesktopUserInterface : public UserInterface
{
public:
    /// Without a parent, or after its end, dialogs stand alone.
    explicit DesktopUserInterface(QWidget* parent);
    ~DesktopUserInterface() override;
    Q_DISABLE_COPY_MOVE(DesktopUserInterface)

    /// Without a title of its own a box bears the application's name.
    Answer Show(const MessageBox& box) override;

    /// The hourglass counts once, however often it is set; the default pointer takes away no one else's.
    void SetPointer(Pointer pointer) override;
    void Beep() override;

    /// See `SaveFileDialog`.
    QString AskSaveFileName(const FileQuestion& question) override;

private:
    QWidget* Window() const;

    QPointer<QWidget> m_parent;
    bool m_showsHourglass = false;
};

} // namespace schedules
