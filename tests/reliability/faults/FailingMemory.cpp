#include "FailingMemory.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <dlfcn.h>
#include <execinfo.h>
#include <new>
#include <span>
#include <string_view>

// The allocator below ours. The sanitizers have one of their own.
extern "C" {
#ifdef __SANITIZE_ADDRESS__
void* __interceptor_malloc(std::size_t size);
void* __interceptor_calloc(std::size_t count, std::size_t size);
void* __interceptor_realloc(void* memory, std::size_t size);
constexpr auto kAllocate = __interceptor_malloc;
constexpr auto kAllocateZeros = __interceptor_calloc;
constexpr auto kReallocate = __interceptor_realloc;
#else
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
constexpr auto kAllocate = __libc_malloc;
constexpr auto kAllocateZeros = __libc_calloc;
constexpr auto kReallocate = __libc_realloc;
#endif
}

namespace {

using schedules::testing::FailingMemory;

struct State
{
    bool watches = false;
    int allocations = 0;
    int successes = 0;
    FailingMemory::Lasting lasting = FailingMemory::Lasting::Once;
    bool hasFailed = false;
    std::vector<int>* ours = nullptr; ///< where they are gathered; then none fails
};
thread_local State g_state;

using Frames = std::array<void*, 64>;

/// Whose code an address is: empty for a file that cannot be told.
std::string_view FileOf(const void* address)
{
    Dl_info file;
    return ::dladdr(address, &file) != 0 ? file.dli_fname : std::string_view();
}

/// Those who allocate for others.
bool ServesOthers(std::string_view file)
{
    constexpr std::array kServants{"/libc.",    "/libstdc++.", "/libQt6Core.",      "/libxml2.",
                                   "/libasan.", "/libubsan.",  "/tests_reliability"};
    return std::ranges::any_of(kServants, [&](const char* name) { return file.find(name) != file.npos; });
}

/// Whether an allocation is for the component or its host, not for what windows and fonts do for themselves.
bool IsOurs()
{
    Frames frames;
    const int depth = ::backtrace(frames.data(), static_cast<int>(frames.size()));
    const std::span callers(frames.data(), static_cast<std::size_t>(depth));
    const auto caller = std::ranges::find_if_not(callers, ServesOthers, FileOf);
    return caller == callers.end() || FileOf(*caller).find("/libSchedules.") != std::string_view::npos;
}

/// Whether the allocation at a place is to fail, if it is ours.
bool IsMeant(int place)
{
    return place == g_state.successes ||
           (g_state.lasting == FailingMemory::Lasting::FromThenOn && place > g_state.successes);
}

/// Runs while nothing is watched: to look at the callers may need memory, too.
bool FailsAt(int place)
{
    if (!g_state.ours)
        return IsMeant(place) && IsOurs();
    if (IsOurs())
        g_state.ours->push_back(place);
    return false;
}

/// Runs while the sanitizer starts, too, when it cannot look at memory yet.
[[gnu::no_sanitize_address]] bool Fails()
{
    if (!g_state.watches)
        return false;
    g_state.watches = false;
    const bool fails = FailsAt(g_state.allocations++);
    g_state.watches = true;
    g_state.hasFailed |= fails;
    if (fails)
        errno = ENOMEM;
    return fails;
}

} // namespace

namespace schedules::testing {

FailingMemory::FailingMemory(int successes, Lasting lasting)
{
    g_state = {.watches = true, .successes = successes, .lasting = lasting};
}

FailingMemory::~FailingMemory()
{
    g_state.watches = false;
}

bool FailingMemory::HasFailed() const
{
    return g_state.hasFailed;
}

std::vector<int> OurAllocations(const std::function<void()>& step)
{
    std::vector<int> ours;
    g_state = {.watches = true, .ours = &ours};
    step();
    g_state = {};
    return ours;
}

} // namespace schedules::testing

extern "C" {

// The libraries leave memory behind where they run out of it, and the leak checker takes every caller for this file.
const char* __asan_default_options()
{
    return "detect_leaks=0";
}

void* malloc(std::size_t size)
{
    return Fails() ? nullptr : kAllocate(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    return Fails() ? nullptr : kAllocateZeros(count, size);
}

void* realloc(void* memory, std::size_t size)
{
    return Fails() ? nullptr : kReallocate(memory, size);
}
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return malloc(size == 0 ? 1 : size);
}

void* operator new(std::size_t size)
{
    void* memory = operator new(size, std::nothrow);
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
