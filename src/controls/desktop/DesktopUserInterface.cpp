#include "controls/desktop/DesktopUserInterface.h"

#include "controls/desktop/MessageDialog.h"
#include "controls/desktop/SaveFileDialog.h"

#include <QApplication>

namespace schedules {

namespace {

/// Shows the ordinary pointer over whatever is shown instead of it. Each pointer that is set takes one away in the end,
/// whichever goes first, so a dialog may be the end of whoever shows the hourglass.
class OrdinaryPointer
{
public:
    OrdinaryPointer()
    {
        if (m_isHidden)
            QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~OrdinaryPointer()
    {
        if (m_isHidden)
            QApplication::restoreOverrideCursor();
    }
    Q_DISABLE_COPY_MOVE(OrdinaryPointer)

private:
    bool m_isHidden = QApplication::overrideCursor() != nullptr;
};

} // namespace

DesktopUserInterface::DesktopUserInterface(QWidget* parent) : m_parent(parent) {}

DesktopUserInterface::~DesktopUserInterface()
{
    SetPointer(Pointer::Default);
}

QWidget* DesktopUserInterface::Window() const
{
    return m_parent ? m_parent->window() : nullptr;
}

Answer DesktopUserInterface::Show(const MessageBox& box)
{
    const OrdinaryPointer pointer;
    return AskOver(Window(), box);
}

void DesktopUserInterface::SetPointer(Pointer pointer)
{
    const bool showHourglass = pointer == Pointer::Hourglass;
    if (showHourglass == m_showsHourglass)
        return;
    m_showsHourglass = showHourglass;
    if (showHourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void DesktopUserInterface::Beep()
{
    QApplication::beep();
}

QString DesktopUserInterface::AskSaveFileName(const FileQuestion& question)
{
    const OrdinaryPointer pointer;
    return SaveFileDialog::Ask(question, Window());
}

} // namespace schedules
