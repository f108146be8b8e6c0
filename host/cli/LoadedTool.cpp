#include "host/cli/LoadedTool.h"

#include "host/base/HostError.h"
#include "host/files/XmlFile.h"
#include "host/tools/ScheduleUser.h"

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
    ScheduleUser user(m_tool);
    for (const CellText& edit : actions.edits)
        user.Edit(edit);
    for (const QString& tag : actions.ticks)
        user.Tick(tag);
    if (actions.sort)
        user.Sort(*actions.sort);
    if (actions.pressContinue)
        user.PressContinue();
    if (!actions.save.isEmpty())
        user.PressSave();
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
