#pragma once

#include <functional>

namespace schedules::testing {

/// While it lives, one of the next allocations fails: the first for 0, the second for 1 and so on. Those after it
/// succeed.
class FailingAllocation
{
public:
    explicit FailingAllocation(int successes);
    ~FailingAllocation();

    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;

    /// Whether it came to that.
    bool HasFailed() const;
};

/// Runs a step again and again: with its first allocation failing, with its second one and so on, at last with none.
/// Has a look after each, with enough memory. How many times it failed.
int WithEachFailing(const std::function<void()>& step, const std::function<void()>& look);

} // namespace schedules::testing
