#include "common/Error.h"

#include "support/ScriptedUserInterface.h"
#include "support/TraceLog.h"

#include <gtest/gtest.h>
#include <new>
#include <stdexcept>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr SourceName kSource("CSchedule");

/// What the exception of a body becomes: "number description".
template <class Body>
std::string Became(Body&& body)
{
    try {
        body();
    } catch (...) {
        const Error error = CurrentError();
        return std::to_string(error.Number()) + " " + error.Description().toStdString();
    }
    return "nothing";
}

/// What the user saw, a line each: "style|title|text".
std::string Seen(const ScriptedUserInterface& user)
{
    std::string seen;
    for (const MessageBox& box : user.boxes)
        seen += QStringLiteral("%1|%2|%3\n").arg(QString::number(box.style), box.title, box.text).toStdString();
    return seen;
}

} // namespace

TEST(Error, KeepsWhatItIsGiven)
{
    const Error error(70, QStringLiteral("Zugriff für Ж verweigert"), QStringLiteral("Schedules.CFile.Open"), 13);
    EXPECT_EQ(error.Number(), 70);
    EXPECT_EQ(error.Description(), QStringLiteral("Zugriff für Ж verweigert"));
    EXPECT_EQ(error.Source(), QStringLiteral("Schedules.CFile.Open"));
    EXPECT_EQ(error.SystemCode(), 13);
    EXPECT_STREQ(error.what(), "Zugriff für Ж verweigert");
}

TEST(SourceName, IsComponentTypeAndProcedure)
{
    EXPECT_EQ(kSource.In("LoadScheduleData"), QStringLiteral("Schedules.CSchedule.LoadScheduleData"));
}

TEST(CurrentError, IsWhateverWasThrown)
{
    EXPECT_EQ(Became([] { throw Error(70, QStringLiteral("no")); }), "70 no");
    EXPECT_EQ(Became([] { throw std::bad_alloc(); }), "7 Out of memory");
    EXPECT_EQ(Became([] { throw std::runtime_error("Ж"); }), "51 Ж");
    EXPECT_EQ(Became([] { throw 5; }), "51 Unexpected error");
}

TEST(Reported, ReturnsWhatTheBodyReturns)
{
    ScriptedUserInterface user;
    EXPECT_EQ(Reported(user, kSource.In("A"), 0, [] { return 7; }), 7);
    EXPECT_EQ(Seen(user), "");
    EXPECT_TRUE(user.pointers.empty());
}

TEST(Reported, TellsAFailureOnceAndReturnsTheFallback)
{
    ScriptedUserInterface user;
    const TraceLog trace;
    EXPECT_FALSE(Reported(user, kSource.In("A"), false, []() -> bool { throw std::runtime_error("broken"); }));
    EXPECT_EQ(Seen(user), "48|Schedules.CSchedule.A|broken\n");
    EXPECT_EQ(user.pointers, std::vector{Pointer::Default});
    EXPECT_EQ(trace.lines, QStringList{QStringLiteral("Schedules.CSchedule.A: broken")});
}

TEST(Reported, TakesBodiesWithoutAResult)
{
    ScriptedUserInterface user;
    bool ran = false;
    Reported(user, kSource.In("A"), [&] { ran = true; });
    Reported(user, kSource.In("B"), [] { throw 1; });
    EXPECT_TRUE(ran);
    EXPECT_EQ(Seen(user), "48|Schedules.CSchedule.B|Unexpected error\n");
}

TEST(Reported, AFailureInsideOfAReportedOneIsToldOnce)
{
    ScriptedUserInterface user;
    Reported(user, kSource.In("Outer"), [&] { Reported(user, kSource.In("Inner"), [] { throw 1; }); });
    EXPECT_EQ(Seen(user), "48|Schedules.CSchedule.Inner|Unexpected error\n");
}

TEST(ReportMessage, ShowsTheBoxAsItIsAfterTheDefaultPointerAndATraceLine)
{
    ScriptedUserInterface user;
    const TraceLog trace;
    ReportMessage(user, {QStringLiteral("Worse"), kCritical, QStringLiteral("S"), 3023});
    EXPECT_EQ(Seen(user), "16|S|Worse\n");
    EXPECT_EQ(user.boxes.front().number, 3023);
    EXPECT_EQ(user.pointers, std::vector{Pointer::Default});
    EXPECT_EQ(trace.lines, QStringList{QStringLiteral("S: Worse")});
}

TEST(ReportError, NeverThrows)
{
    struct Broken : ScriptedUserInterface
    {
        Answer Show(const MessageBox&) override { throw std::runtime_error("no screen"); }
    };
    Broken user;
    EXPECT_NO_THROW(Reported(user, kSource.In("A"), [] { throw 1; }));
    EXPECT_EQ(user.pointers, std::vector{Pointer::Default});
}

TEST(IgnoringErrors, RunsTheBodyAndLetsNothingOut)
{
    int steps = 0;
    IgnoringErrors([&] {
        ++steps;
        throw std::runtime_error("ignored");
    });
    IgnoringErrors([&] { ++steps; });
    EXPECT_EQ(steps, 2);
}

TEST(IgnoringErrors, LeavesATraceLineOfWhatItIgnored)
{
    const TraceLog trace;
    IgnoringErrors([] { throw Error(5, QStringLiteral("lost")); });
    IgnoringErrors([] { throw 5; });
    IgnoringErrors([] {});
    EXPECT_EQ(trace.lines, (QStringList{QStringLiteral("Ignored: lost"), QStringLiteral("Ignored: Unexpected error")}));
}

TEST(Trace, IsSilentUnlessAskedFor)
{
    EXPECT_FALSE(kTrace().isDebugEnabled());
}
