#include "StoredProject.h"
#include "host/base/HostError.h"

#include <future>

namespace schedules::host::testing {

namespace {

const QStringList kTag{"P-1"};
const QStringList kItem{"Design/Flow"};

/// Stores text after text over the value as it is shown at the time. Gives the number of those that were stored.
int Saved(const QString& address, const QString& name)
{
    constexpr int kRounds = 100;
    const auto project = Project::Open(address);
    int stored = 0;
    for (int round = 0; round < kRounds; ++round) {
        const qint64 shown = project->Values(kTag, kItem)[0][0].version;
        stored += project->Save({{"P-1", "Design/Flow", name + QString::number(round), shown}}).stored;
    }
    return stored;
}

} // namespace

using ProjectSavers = StoredProject;

INSTANTIATE_TEST_SUITE_P(In, ProjectSavers, ::testing::ValuesIn(Places()), PlaceName);

TEST_P(ProjectSavers, AtTheSameMomentCannotBothWin)
{
    Plant();
    const QString address = Address();
    std::vector<std::future<int>> savers;
    for (const char* name : {"a", "b", "c"})
        savers.push_back(std::async(std::launch::async, [=] { return Saved(address, name); }));
    int stored = 0;
    for (auto& saver : savers)
        stored += saver.get();
    EXPECT_EQ(Opened()->Values(kTag, kItem)[0][0].version, 1 + stored);
}

TEST_P(ProjectSavers, DoNotChangeWhatIsReadInOneMoment)
{
    Plant();
    const auto project = Opened();
    const auto shown = [&] { return project->Values(kTag, kItem)[0][0].text; };
    const QString before = shown();
    {
        const Project::Moment moment(*project);
        EXPECT_EQ(shown(), before);
        const Project::Moment inside(*project);
        EXPECT_EQ(Opened()->Save({{"P-1", "Design/Flow", "other", 1}}).stored, 1);
        EXPECT_EQ(shown(), before);
    }
    EXPECT_EQ(shown(), "other");
}

TEST_P(ProjectSavers, CannotSaveWhileTheyHoldAMoment)
{
    Plant();
    const auto project = Opened();
    const Project::Moment moment(*project);
    EXPECT_THROW(project->Save({{"P-1", "Design/Flow", "other", 1}}), HostError);
    EXPECT_NE(Opened()->Values(kTag, kItem)[0][0].text, "other");
}

} // namespace schedules::host::testing
