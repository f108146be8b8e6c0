#pragma once

#include "host/tools/HostedEditor.h"
#include "host/window/Answering.h"

#include <QMainWindow>

namespace schedules::host {

class HostRouter;
class MessageDock;
struct Crossing;

/// A window around the options editor, with the messages that it exchanges with this host.
///
/// Closing the window asks about edits that are not saved, then presses the editor's Cancel. The window closes as well
/// when the editor has told to unload it.
class OptionsWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The router must outlive the window; its answers decide what is shown. `folder` is for the title.
    OptionsWindow(HostRouter& router, const QString& folder, const Answering& answering = {});

    /// Loads the templates; on a window that is shown, since message boxes may come with them.
    void Open() { m_tool.Open(); }

    HostedEditor& Tool() { return m_tool; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildMenus();
    void OnCrossed(const Crossing& crossing);

    HostRouter& m_router;
    Answering m_answering;
    bool m_unloaded = false; ///< the editor has told to unload it
    MessageDock* m_messages;
    HostedEditor m_tool;
};

} // namespace schedules::host
