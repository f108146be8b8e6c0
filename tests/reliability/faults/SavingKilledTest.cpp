// Everything that the program saves, while it is killed: what was there before is there still, or the new one is
// complete.

#include "TriedSaving.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <thread>

namespace schedules::host::testing {

using schedules::testing::FileFault;
using schedules::testing::FileOperation;

namespace {

using Clock = std::chrono::steady_clock;
using Moment = std::chrono::microseconds;

constexpr int kKills = 200; ///< that come while the program is saving
constexpr int kMostTries = 5 * kKills;

std::string NameOf(const ::testing::TestParamInfo<SavingKind>& info)
{
    return info.param.name;
}

/// From the word that it begins to the word that it has ended: the end of the process takes time, too.
Moment MeasuredDuration(TriedSaving& saving)
{
    const auto process = saving.Begin();
    process->AwaitWord();
    const auto begin = Clock::now();
    process->AwaitWord();
    const auto duration = std::chrono::duration_cast<Moment>(Clock::now() - begin);
    process->Await();
    saving.ExpectFormerOrNew(TriedSaving::Leftovers::None);
    return duration;
}

/// How long a saving takes, on a machine that may be busy with other things now and then.
Moment Duration(TriedSaving& saving)
{
    std::array<Moment, 5> durations;
    std::ranges::generate(durations, [&] { return MeasuredDuration(saving); });
    std::ranges::sort(durations);
    return durations[durations.size() / 2];
}

/// Whether the saving was killed before it had ended.
bool KilledAfter(Moment moment, TriedSaving& saving)
{
    const auto process = saving.Begin();
    process->AwaitWord();
    // Nothing can be waited for: any moment is the right one.
    std::this_thread::sleep_for(moment);
    process->Kill();
    return saving.ExpectSurvivesDeath(*process);
}

std::vector<SavingKind> SavingsToKill()
{
    return {SavingNamed("Template"), SavingNamed("xls"), SavingNamed("html"), SavingNamed("Values")};
}

using SavingKilledBeforeEachOperation = ::testing::TestWithParam<SavingKind>;
using SavingKilledAtRandom = ::testing::TestWithParam<SavingKind>;

} // namespace

INSTANTIATE_TEST_SUITE_P(Of, SavingKilledBeforeEachOperation, ::testing::ValuesIn(AllSavings()), NameOf);
INSTANTIATE_TEST_SUITE_P(Of, SavingKilledAtRandom, ::testing::ValuesIn(SavingsToKill()), NameOf);

TEST_P(SavingKilledBeforeEachOperation, LeavesWhatWasThereOrWhatIsNew)
{
    TriedSaving saving(GetParam());
    for (int index = 0; index < saving.Counts().back(); ++index) {
        SCOPED_TRACE(index);
        const auto process = saving.Begin(FileFault{FileOperation::Any, index, 0, FileFault::Kind::Killed});
        EXPECT_TRUE(saving.ExpectSurvivesDeath(*process)) << "it was not killed";
    }
    RecordProperty("kills", saving.Counts().back());
    std::cout << saving.Counts().back() << " kills\n";
}

TEST_P(SavingKilledAtRandom, LeavesWhatWasThereOrWhatIsNew)
{
    const auto seed = std::random_device()();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    TriedSaving saving(GetParam());
    std::uniform_int_distribution<Moment::rep> moments(0, Duration(saving).count());
    int kills = 0;
    int tries = 0;
    for (; kills < kKills && tries < kMostTries; ++tries) {
        SCOPED_TRACE(tries);
        kills += KilledAfter(Moment(moments(random)), saving) ? 1 : 0;
    }
    EXPECT_EQ(kills, kKills) << "the others came too late";
    RecordProperty("kills", kills);
    RecordProperty("tries", tries);
    std::cout << kills << " kills in " << tries << " tries\n";
}

} // namespace schedules::host::testing
