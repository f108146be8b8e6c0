#include "host/cli/LoadedTool.h"

#include "host/base/HostError.h"
#include "host/files/XmlFile.h"

namespace schedules::host {

LoadedTool::LoadedTool(const CommandLine& commandLine, const QString& xml)
    : m_session(commandLine.session), m_tool(m_session.Router(), &m_user, commandLine.view)
{
    m_session.Router().Answers(QStringLiteral("UpdateTagScheduleData"), [this](const Message& message) {
        m_handedOver = ParameterText(message, QStringLiteral("ScheduleXml"));
        return QString();
    });
    m_tool.Load(xml);
    ThrowFailure();
    if (commandLine.view.transpose)
        m_tool.Transpose();
    ThrowFailure();
    if (commandLine.actions != UserActions())
        Perform(commandLine.actions);
}

void LoadedTool::Perform(const UserActions& actions)
{
    for (const CellText& edit : actions.edits)
        m_tool.Enter(edit);
    for (const QString& tag : actions.ticks)
        m_tool.Tick(tag);
    if (actions.sort)
        m_tool.Sort(*actions.sort);
    if (actions.pressContinue)
        m_tool.Continue();
    if (!actions.save.isEmpty())
        m_tool.Save();
    ThrowFailure();
    if (m_handedOver)
        WriteXmlFile(actions.save, *m_handedOver);
}

void LoadedTool::ThrowFailure()
{
    if (const auto failure = m_user.TakeFailure())
        throw HostError(*failure);
    m_session.RequireCompleteMessages();
}

} // namespace schedules::host
