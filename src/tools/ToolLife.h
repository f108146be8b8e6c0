#pragma once

#include "common/Error.h"

#include <concepts>
#include <functional>
#include <memory>
#include <type_traits>

namespace schedules {

/// Ends whatever was under way in a tool that the host has deleted, or deactivated, meanwhile. It is no failure, so
/// nobody hears of it.
struct ToolGone
{
};

/// Whether a tool is still there. A host may delete or deactivate it whenever it gets a message, a signal or a box to
/// show. Whoever lets it act does so within `WhileAlive` or `WhileActive`, or asks a `Watch` afterwards.
class ToolLife
{
    struct State
    {
        bool isOver = false;
        int interruptions = 0;
    };

public:
    ToolLife() = default;
    ~ToolLife() { m_state->isOver = true; }
    Q_DISABLE_COPY_MOVE(ToolLife)

    /// The tool has been deactivated.
    void Interrupt() { ++m_state->interruptions; }

    /// What a procedure knows of the tool; it may outlive the tool.
    class Watch
    {
    public:
        explicit Watch(const ToolLife& life) : m_state(life.m_state), m_interruptions(m_state->interruptions) {}

        bool IsAlive() const { return !m_state->isOver; }

        /// Whether the tool lives and has not been deactivated since the watch began.
        bool IsActive() const { return IsAlive() && m_state->interruptions == m_interruptions; }

    private:
        std::shared_ptr<const State> m_state;
        int m_interruptions;
    };

    /// Runs a step in which the host or the user may act. Throws `ToolGone` when the tool is then no more.
    template <std::invocable Step>
    std::invoke_result_t<Step> WhileAlive(Step&& step) const
    {
        return Checked(step, &Watch::IsAlive);
    }

    /// The same, but throws also when the tool has been deactivated meanwhile.
    template <std::invocable Step>
    std::invoke_result_t<Step> WhileActive(Step&& step) const
    {
        return Checked(step, &Watch::IsActive);
    }

private:
    template <class Step>
    std::invoke_result_t<Step> Checked(Step& step, bool (Watch::*goesOn)() const) const
    {
        const Watch watch(*this);
        const auto check = [&] {
            if (!(watch.*goesOn)())
                throw ToolGone();
        };
        if constexpr (std::is_void_v<std::invoke_result_t<Step>>) {
            std::invoke(step);
            check();
        } else {
            auto result = std::invoke(step);
            check();
            return result;
        }
    }

    std::shared_ptr<State> m_state = std::make_shared<State>();
};

/// Where the toolkit, the user or the host enters a tool: runs what they want, and ends quietly when the tool goes.
template <std::invocable Body>
void UntilGone(Body&& body) noexcept
{
    IgnoringErrors([&] {
        try {
            std::invoke(body);
        } catch (const ToolGone&) {
            return;
        }
    });
}

} // namespace schedules
