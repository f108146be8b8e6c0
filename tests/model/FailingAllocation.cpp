#include "model/FailingAllocation.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constexpr int kNever = -1;
thread_local int g_successes = kNever;

bool Fails()
{
    return g_successes != kNever && g_successes-- == 0;
}

} // namespace

namespace schedules::testing {

FailingAllocation::FailingAllocation(int successes)
{
    g_successes = successes;
}

FailingAllocation::~FailingAllocation()
{
    g_successes = kNever;
}

bool FailingAllocation::HasFailed() const
{
    return g_successes == kNever;
}

int WithEachFailing(const std::function<void()>& step, const std::function<void()>& look)
{
    int failures = -1;
    for (bool hasFailed = true; hasFailed; ++failures) {
        {
            const FailingAllocation failing(failures + 1);
            step();
            hasFailed = failing.HasFailed();
        }
        look();
    }
    return failures;
}

} // namespace schedules::testing

void* operator new(std::size_t size)
{
    void* memory = Fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
