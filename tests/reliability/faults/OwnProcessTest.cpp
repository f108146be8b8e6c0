#include "support/OwnProcess.h"

#include <csignal>
#include <gtest/gtest.h>
#include <stdexcept>
#include <unistd.h>

namespace schedules::testing {

namespace {

/// The checks that fail here are meant to: nobody should read of them.
void BeQuiet()
{
    ::close(STDOUT_FILENO);
    ::close(STDERR_FILENO);
}

int FailureOf(const std::function<void()>& step)
{
    OwnProcess process([&](const OwnProcess::Tell&) {
        BeQuiet();
        step();
    });
    return process.Await().failure;
}

} // namespace

TEST(OwnProcess, TellsAndEnds)
{
    OwnProcess process([](const OwnProcess::Tell& tell) {
        tell("one ");
        tell("two");
    });
    const auto [told, failure] = process.Await();
    EXPECT_EQ(told, "one two");
    EXPECT_EQ(failure, 0);
}

TEST(OwnProcess, FailsWhenACheckFailsInIt)
{
    EXPECT_EQ(FailureOf([] { EXPECT_EQ(1, 2); }), OwnProcess::kFailed);
    EXPECT_EQ(FailureOf([] { ASSERT_TRUE(false); }), OwnProcess::kFailed);
    EXPECT_EQ(FailureOf([] { EXPECT_EQ(1, 1); }), 0);
}

TEST(OwnProcess, FailsWhenItThrows)
{
    EXPECT_EQ(FailureOf([] { throw std::runtime_error("on purpose"); }), OwnProcess::kFailed);
    EXPECT_EQ(FailureOf([] { throw 1; }), OwnProcess::kFailed);
}

TEST(OwnProcess, TellsTheSignalThatItEndedBy)
{
    EXPECT_EQ(FailureOf([] { ::kill(::getpid(), SIGKILL); }), SIGKILL);
}

} // namespace schedules::testing
