#pragma once

#include <functional>
#include <vector>

namespace schedules::testing {

/// While it lives, one of the allocations of this process fails, or all from one on, whether our own code asks for it
/// or Qt's core, the C++ library or libxml2 for our code: these are ours. What Qt's windows and fonts ask for does not
/// fail: they do not look whether they get it.
class FailingMemory
{
public:
    enum class Lasting
    {
        Once,
        FromThenOn
    };

    /// `successes` is how many allocations succeed before.
    explicit FailingMemory(int successes, Lasting lasting = Lasting::Once);
    ~FailingMemory();

    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;

    /// Whether one has failed.
    bool HasFailed() const;
};

/// How many allocations come before each of ours, while `step` runs with enough memory.
std::vector<int> OurAllocations(const std::function<void()>& step);

} // namespace schedules::testing
