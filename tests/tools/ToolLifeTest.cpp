#include "tools/ToolLife.h"

#include "support/TraceLog.h"

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

/// "gone", "came back", or what else was thrown.
template <class Step>
std::string After(const Step& step)
{
    try {
        step();
        return "came back";
    } catch (const ToolGone&) {
        return "gone";
    } catch (const std::exception& error) {
        return error.what();
    }
}

} // namespace

TEST(ToolLife, AStepThatLeavesTheToolAloneReturnsWhatItReturns)
{
    const ToolLife life;
    EXPECT_EQ(life.WhileAlive([] { return 7; }), 7);
    EXPECT_EQ(life.WhileActive([] { return QStringLiteral("reply"); }), QStringLiteral("reply"));
}

TEST(ToolLife, AStepThatDeletesTheToolEndsWhatWasUnderWay)
{
    auto life = std::make_unique<ToolLife>();
    EXPECT_EQ(After([&] { life->WhileAlive([&] { life.reset(); }); }), "gone");
    life = std::make_unique<ToolLife>();
    EXPECT_EQ(After([&] { life->WhileActive([&] { return life.reset(), 1; }); }), "gone");
}

TEST(ToolLife, OnlyWhoNeedsAnActiveToolMindsADeactivation)
{
    ToolLife life;
    EXPECT_EQ(After([&] { life.WhileAlive([&] { life.Interrupt(); }); }), "came back");
    EXPECT_EQ(After([&] { life.WhileActive([&] { life.Interrupt(); }); }), "gone");
    EXPECT_EQ(After([&] { life.WhileActive([] {}); }), "came back") << "what was before is forgotten";
}

TEST(ToolLife, WhatAStepThrowsComesThrough)
{
    const ToolLife life;
    EXPECT_EQ(After([&] { life.WhileAlive([] { throw Error(5, QStringLiteral("broken")); }); }), "broken");
}

TEST(ToolLife, AWatchOutlivesTheTool)
{
    auto life = std::make_unique<ToolLife>();
    const ToolLife::Watch watch(*life);
    EXPECT_TRUE(watch.IsAlive() && watch.IsActive());
    life->Interrupt();
    EXPECT_TRUE(watch.IsAlive());
    EXPECT_FALSE(watch.IsActive());
    life.reset();
    EXPECT_FALSE(watch.IsAlive() || watch.IsActive());
}

TEST(UntilGone, EndsQuietlyWithTheToolAndTracesWhatElseIsThrown)
{
    const TraceLog trace;
    UntilGone([] { throw ToolGone(); });
    EXPECT_EQ(trace.lines, QStringList{});
    UntilGone([] { throw Error(5, QStringLiteral("broken")); });
    EXPECT_EQ(trace.lines, QStringList{QStringLiteral("Ignored: broken")});
}

} // namespace schedules::testing
