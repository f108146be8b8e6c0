#include "support/OwnProcess.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <exception>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace schedules::testing {

namespace {

constexpr unsigned kLongestSeconds = 60;

void Write(int handle, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = ::write(handle, text.data(), text.size());
        if (written <= 0)
            ::_exit(OwnProcess::kFailed);
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

/// How many checks of the running test have failed, here or in the process that this one is a copy of.
int FailedChecks()
{
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    return test ? test->result()->total_part_count() : 0;
}

/// What the process ends with. An exception must not leave it: the copy would go on with the tests of the other one.
int ExitCodeOf(const std::function<void()>& step) noexcept
{
    const int failedBefore = FailedChecks();
    try {
        step();
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "A process of a test threw: %s\n", exception.what());
        return OwnProcess::kFailed;
    } catch (...) {
        std::fputs("A process of a test threw.\n", stderr);
        return OwnProcess::kFailed;
    }
    return FailedChecks() == failedBefore ? 0 : OwnProcess::kFailed;
}

} // namespace

OwnProcess::OwnProcess(const std::function<void(const Tell& tell)>& step)
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        return;
    std::fflush(nullptr); // else both processes write it
    m_process = ::fork();
    if (m_process == 0) {
        ::alarm(kLongestSeconds);
        const Tell tell = [&](std::string_view text) { Write(ends[1], text); };
        ::_exit(ExitCodeOf([&] { step(tell); }));
    }
    ::close(ends[1]);
    m_words = ends[0];
}

OwnProcess::~OwnProcess()
{
    if (m_process > 0) {
        Kill();
        Await();
    }
    ::close(m_words);
}

void OwnProcess::AwaitWord()
{
    ReadSome();
}

void OwnProcess::Kill() const
{
    ::kill(m_process, SIGKILL);
}

OwnProcess::End OwnProcess::Await()
{
    while (ReadSome())
        continue;
    int status = 0;
    ::waitpid(std::exchange(m_process, 0), &status, 0);
    const int code = WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status);
    return {std::move(m_told), code};
}

bool OwnProcess::ReadSome()
{
    std::array<char, 4096> buffer;
    const ssize_t size = ::read(m_words, buffer.data(), buffer.size());
    if (size > 0)
        m_told.append(buffer.data(), static_cast<std::size_t>(size));
    return size > 0;
}

} // namespace schedules::testing
