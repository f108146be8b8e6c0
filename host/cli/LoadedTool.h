#pragma once

#include "host/cli/CommandLine.h"
#include "host/tools/ConsoleUserInterface.h"
#include "host/tools/HostedSchedule.h"
#include "host/tools/Session.h"

#include <optional>

namespace schedules::host {

/// A schedule view that has loaded a table, with the command line's actions done, and has nobody to talk to.
class LoadedTool
{
public:
    /// Throws `HostError`, also for what an action writes and cannot.
    LoadedTool(const CommandLine& commandLine, const QString& xml);

    HostedSchedule& Tool() { return m_tool; }

    /// What the view has told the user since it was loaded, or since the last call.
    std::optional<QString> TakeFailure() { return m_user.TakeFailure(); }

private:
    void Perform(const UserActions& actions);
    void ThrowFailure();

    ConsoleUserInterface m_user;
    std::optional<QString> m_handedOver; ///< by a press on Save
    Session m_session;
    HostedSchedule m_tool;
};

} // namespace schedules::host
