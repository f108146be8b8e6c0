#pragma once

#include "WindowUser.h"
#include "host/tools/Session.h"
#include "host/window/ProjectWindow.h"

#include <memory>

namespace schedules::host::testing {

/// The program's window on a project, as after its start, and somebody who works in it. Nobody else answers its
/// questions.
class OpenWindow
{
public:
    explicit OpenWindow(const QString& address) : m_window(m_session), m_user(m_window) { m_window.Open(address); }

    ProjectWindow& Window() { return m_window; }
    WindowUser& User() { return m_user; }
    Session& Host() { return m_session; }

private:
    Session m_session{SessionOptions()};
    ProjectWindow m_window;
    WindowUser m_user;
};

} // namespace schedules::host::testing
