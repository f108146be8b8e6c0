#pragma once

#include "tools/options/ctlSchedOptions.h"

#include <QPointer>

#include <type_traits>

namespace schedules {

template <std::invocable Body>
void ctlSchedOptions::Entered(Body&& body) noexcept
{
    const QPointer<QWidget> alive(this);
    try {
        std::invoke(body);
        if (alive)
            EnableControls();
    } catch (...) {
        return; // the editor is gone, or every procedure that can fail has told so
    }
}

template <class Result, std::invocable Body>
Result ctlSchedOptions::Guarded(const char* procedure, Result otherwise, Body&& body)
{
    const QPointer<QWidget> alive(this);
    try {
        return std::invoke(body);
    } catch (const ToolGone&) {
        throw;
    } catch (...) {
        RequireAlive(alive);
        TellingHost(procedure, [] { throw; });
        RequireAlive(alive);
        return otherwise;
    }
}

template <std::invocable Body>
void ctlSchedOptions::Guarded(const char* procedure, Body&& body)
{
    Guarded(procedure, false, [&] { return std::invoke(body), true; });
}

template <std::invocable Question>
auto ctlSchedOptions::WhileActive(Question&& question)
{
    const QPointer<QWidget> alive(this);
    const bool isActive = m_templates != nullptr;
    auto answer = std::invoke(question);
    RequireAlive(alive);
    if (isActive && !m_templates)
        throw ToolGone();
    return answer;
}

} // namespace schedules
