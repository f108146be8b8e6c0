#include "host/window/EditorDock.h"

#include "host/tools/HostedEditor.h"
#include "host/tools/Session.h"

#include <QMainWindow>

namespace schedules::host {

EditorDock::EditorDock(Session& session, const Answering& answering, QMainWindow& window)
    : QDockWidget(&window), m_session(session), m_answering(answering), m_window(window)
{
    setObjectName(QStringLiteral("dockOptions"));
    setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    hide();
}

EditorDock::~EditorDock() = default;

bool EditorDock::MayDrop()
{
    return !m_editor || MayReplace(*m_editor, m_window, m_answering.unsaved);
}

void EditorDock::Open()
{
    if (!MayDrop())
        return m_editor->Widget().setFocus();
    End();
    m_editor = std::make_unique<HostedEditor>(m_session.Router(), m_answering.tool);
    setWidget(&m_editor->Widget());
    show();
    // The schedule keeps the room that the editor does not need.
    m_window.resizeDocks({this}, {m_editor->Widget().minimumSizeHint().width()}, Qt::Horizontal);
    m_editor->Open();
    m_editor->Widget().setFocus();
}

void EditorDock::End()
{
    m_editor.reset();
    hide();
}

} // namespace schedules::host
