#pragma once

#include "host/window/Answering.h"

#include <QDockWidget>

#include <memory>

class QMainWindow;

namespace schedules::host {

class HostedEditor;
class Session;

/// The place beside the schedule where the options editor is while it is open.
class EditorDock : public QDockWidget
{
    Q_OBJECT

public:
    /// The session must outlive the dock.
    EditorDock(Session& session, const Answering& answering, QMainWindow& window);
    ~EditorDock() override;

    /// Opens an editor, in place of the one that is open unless the user would not drop its edits.
    void Open();

    /// Ends the editor, whatever is edited in it.
    void End();

    /// Whether the edits of the open template are saved now, or the user does not want them.
    bool MayDrop();

    /// None while it is not open.
    HostedEditor* Editor() const { return m_editor.get(); }

private:
    Session& m_session;
    Answering m_answering;
    QMainWindow& m_window;
    std::unique_ptr<HostedEditor> m_editor;
};

} // namespace schedules::host
