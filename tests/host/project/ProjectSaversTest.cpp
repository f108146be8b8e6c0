#include "StoredProject.h"

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

} // namespace schedules::host::testing
