#pragma once

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

} // namespace schedules::testing
