// The program killed while somebody works with it: whatever it had told to be saved is there.

#include "OpenWindow.h"
#include "PumpProject.h"
#include "UserFiles.h"
#include "WindowClient.h"

#include <QElapsedTimer>

#include <sys/stat.h>

namespace schedules::host::testing {

namespace {

using Orders = QList<QStringList>;

/// What somebody does on a day; with the last order of each step something has been saved.
const QList<Orders> kSteps{
    {{"edit", "P-1", "Flow", "21"}, {"save"}},
    {{"rename", "Design", "Head", "Head A"}, {"apply"}},
    {{"edit", "P-2", "Head A", "50"}, {"edit", "P-1", "Flow", "22"}, {"save"}},
    {{"save as", "Night"}},
    {{"edit", "P-1", "Flow", "23"}, {"save"}},
    {{"rename", "Design", "Head A", "Head B"}, {"apply"}},
    {{"edit", "P-1", "Head B", "60"}, {"save"}},
    {{"save as", "Day"}},
};

/// What is stored after each number of steps, from none on.
const QList<std::string> kStored{
    "P-1: 12, 48\nP-2: 13, 49\nBoth.xml: Flow, Head",
    "P-1: 21, 48\nP-2: 13, 49\nBoth.xml: Flow, Head",
    "P-1: 21, 48\nP-2: 13, 49\nBoth.xml: Flow, Head A",
    "P-1: 22, 48\nP-2: 13, 50\nBoth.xml: Flow, Head A",
    "P-1: 22, 48\nP-2: 13, 50\nBoth.xml: Flow, Head A\nNight.xml: Flow, Head A",
    "P-1: 23, 48\nP-2: 13, 50\nBoth.xml: Flow, Head A\nNight.xml: Flow, Head A",
    "P-1: 23, 48\nP-2: 13, 50\nBoth.xml: Flow, Head A\nNight.xml: Flow, Head B",
    "P-1: 23, 60\nP-2: 13, 50\nBoth.xml: Flow, Head A\nNight.xml: Flow, Head B",
    "P-1: 23, 60\nP-2: 13, 50\nBoth.xml: Flow, Head A\nNight.xml: Flow, Head B\nDay.xml: Flow, Head B",
};

qsizetype OrdersOf(const QList<Orders>& steps)
{
    qsizetype count = 0;
    for (const Orders& step : steps)
        count += step.size();
    return count;
}

/// How many steps are complete when so many orders have been answered.
qsizetype StepsIn(qsizetype orders)
{
    qsizetype steps = 0;
    while (steps < kSteps.size() && OrdersOf(kSteps.first(steps + 1)) <= orders)
        ++steps;
    return steps;
}

/// A text that is another one once the file, or what is in the folder, has changed.
std::string StateOf(const QString& path)
{
    struct ::stat state = {};
    ::stat(qPrintable(path), &state);
    return std::to_string(state.st_size) + ' ' + std::to_string(state.st_mtim.tv_sec) + ' ' +
           std::to_string(state.st_mtim.tv_nsec);
}

void AwaitChange(const QString& path, const std::string& before)
{
    QElapsedTimer time;
    time.start();
    while (StateOf(path) == before)
        ASSERT_LT(time.elapsed(), 60'000) << qPrintable(path) << " did not change";
}

/// Somebody at work on a project of his own, until his program is killed.
class Day
{
public:
    Day()
    {
        const auto project = Project::Create(Address());
        FillWithPumps(*project);
        m_files.BeAt(m_files.Home("data"));
        m_templates = OwnTemplateFolder(*project);
        m_client.emplace(m_files.Home("data"));
        EXPECT_EQ(m_client->Done({"open", Address()}), "opened");
        EXPECT_EQ(m_client->Done({"pick", "P-1", "P-2"}), "picked");
    }

    QString Address() const { return m_files.Path("pumps.schedules"); }
    const QString& Templates() const { return m_templates; }
    WindowClient& Client() { return *m_client; }

    void OrderSteps(qsizetype first, qsizetype end)
    {
        for (const Orders& step : kSteps.sliced(first, end - first)) {
            for (const QStringList& order : step)
                m_client->Order(order);
        }
    }

    void AwaitSteps(qsizetype count)
    {
        for (; m_answers < OrdersOf(kSteps.first(count)); ++m_answers)
            ASSERT_NE(m_client->Answer(), "");
    }

    /// Everything that was told is there, and of what was not told at most one step, as a whole.
    void ExpectNothingLost()
    {
        for (const QString& word : m_client->LastWords()) {
            EXPECT_FALSE(word.startsWith("failed")) << word.toStdString();
            ++m_answers;
        }
        const qsizetype told = StepsIn(m_answers);
        const std::string stored = Drawn(*Project::Open(Address()));
        const bool hasNext = told < kSteps.size() && stored == kStored[told + 1];
        EXPECT_TRUE(hasNext || stored == kStored[told]) << told << " steps were told\n" << stored;
    }

    /// What is in the folder and in no list is offered, and can be added.
    void ExpectOrphansOffered()
    {
        OpenWindow window(Address());
        const auto project = Project::Open(Address());
        const LaidOutTemplates folder(*project, m_templates);
        const QStringList orphans = folder.Orphans();
        const QString offer = "Templates that are in no list were found: " + orphans.join(", ");
        EXPECT_EQ(window.User().Told(), orphans.isEmpty() ? "" : offer.toStdString());
        if (!orphans.isEmpty())
            ClickButton(window.Window(), "cmdOffer");
        EXPECT_EQ(folder.Orphans(), QStringList());
        DrawnTemplates(*project); // each can be used
    }

private:
    UserFiles m_files;
    QString m_templates;
    std::optional<WindowClient> m_client;
    qsizetype m_answers = 0;
};

} // namespace

TEST(JourneyKilled, TheDayLeavesWhatItIsMeantToWhenNothingHappens)
{
    Day day;
    EXPECT_EQ(Drawn(*Project::Open(day.Address())), kStored[0]);
    for (qsizetype step = 0; step < kSteps.size(); ++step) {
        day.OrderSteps(step, step + 1);
        day.AwaitSteps(step + 1);
        EXPECT_EQ(Drawn(*Project::Open(day.Address())), kStored[step + 1]) << step;
    }
    day.Client().Kill();
    day.ExpectNothingLost();
    day.ExpectOrphansOffered();
}

TEST(JourneyKilled, WhileItGoesOnAfterEachStepLosesNothing)
{
    for (qsizetype told = 0; told < kSteps.size(); ++told) {
        SCOPED_TRACE(told);
        Day day;
        day.OrderSteps(0, kSteps.size());
        day.AwaitSteps(told);
        day.Client().Kill();
        day.ExpectNothingLost();
        day.ExpectOrphansOffered();
    }
}

TEST(JourneyKilled, WhileTheDatabaseIsWrittenLosesNothing)
{
    for (qsizetype told = 0; told < kSteps.size(); ++told) {
        SCOPED_TRACE(told);
        Day day;
        day.OrderSteps(0, told);
        day.AwaitSteps(told);
        const QString journal = day.Address() + "-wal";
        const std::string before = StateOf(journal);
        day.OrderSteps(told, kSteps.size());
        AwaitChange(journal, before);
        day.Client().Kill();
        day.ExpectNothingLost();
        day.ExpectOrphansOffered();
    }
}

TEST(JourneyKilled, WhileATemplateIsWrittenLosesNothing)
{
    for (qsizetype told = 0; told < kSteps.size(); ++told) {
        SCOPED_TRACE(told);
        Day day;
        day.OrderSteps(0, told);
        day.AwaitSteps(told);
        const std::string before = StateOf(day.Templates());
        day.OrderSteps(told, kSteps.size());
        AwaitChange(day.Templates(), before);
        day.Client().Kill();
        day.ExpectNothingLost();
        day.ExpectOrphansOffered();
    }
}

TEST(JourneyKilled, BeforeOrAfterTheHostHasDoneWhatAMessageWantsLosesNothing)
{
    for (const char* message :
         {"UpdateTagScheduleData", "GETTEMPLATELIST", "GETBUILDERPATH", "UPDATESCHEDCONFIG", "SETCURRENTSCHEDTEMPLATE"})
    {
        for (const char* moment : {"before", "after"}) {
            SCOPED_TRACE(std::string(moment) + ' ' + message);
            Day day;
            ASSERT_EQ(day.Client().Done({"die", message, moment}), "understood");
            day.OrderSteps(0, kSteps.size());
            day.ExpectNothingLost();
            day.ExpectOrphansOffered();
        }
    }
}

TEST(JourneyKilled, BetweenTheFileOfATemplateAndItsListOffersWhatWasInTheFile)
{
    Day day;
    day.OrderSteps(0, 1);
    day.AwaitSteps(1);
    ASSERT_EQ(day.Client().Done({"die", "UPDATESCHEDCONFIG", "before"}), "understood");
    day.OrderSteps(1, 2);
    day.ExpectNothingLost();
    EXPECT_EQ(Drawn(*Project::Open(day.Address())), kStored[1]);
    day.ExpectOrphansOffered();
    EXPECT_EQ(Drawn(*Project::Open(day.Address())), kStored[1] + "\nBoth (recovered).xml: Flow, Head A");
}

TEST(JourneyKilled, BetweenTheFileOfANewTemplateAndItsListOffersIt)
{
    Day day;
    day.OrderSteps(0, 3);
    day.AwaitSteps(3);
    ASSERT_EQ(day.Client().Done({"die", "UPDATESCHEDCONFIG", "before"}), "understood");
    day.OrderSteps(3, 4);
    day.ExpectNothingLost();
    EXPECT_EQ(Drawn(*Project::Open(day.Address())), kStored[3]);
    day.ExpectOrphansOffered();
    EXPECT_EQ(Drawn(*Project::Open(day.Address())), kStored[4]);
}

} // namespace schedules::host::testing
