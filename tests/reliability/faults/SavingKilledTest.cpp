// Everything that the program saves, while it is killed: what was there before is there still, or the new one is
// complete.

#include "TriedSaving.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <thread>

namespace schedules::host::testing {

using schedules::testing::FileFault;
using schedules::testing::FileOperation;

namespace {

using Moment = std::chrono::microseconds;

constexpr int kKills = 200; ///< that come while the program is saving
constexpr int kMostTries = 5 * kKills;

std::string NameOf(const ::testing::TestParamInfo<SavingKind>& info)
{
    return info.param.name;
}

/// Moments from now on among which most come while a program saves, however busy the machine is: each that comes too
/// late draws the others nearer.
class Moments
{
public:
    explicit Moments(unsigned seed) : m_random(seed) {}

    Moment Next() { return Moment(static_cast<Moment::rep>(m_latest * m_share(m_random))); }
    void Learn(bool cameInTime) { m_latest = std::max(1.0, m_latest * (cameInTime ? 1.05 : 0.9)); }

private:
    std::mt19937 m_random;
    std::uniform_real_distribution<> m_share{0, 1};
    double m_latest = 5000;
};

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
    Moments moments(seed);
    TriedSaving saving(GetParam());
    int kills = 0;
    int tries = 0;
    for (; kills < kKills && tries < kMostTries; ++tries) {
        SCOPED_TRACE(tries);
        const bool cameInTime = KilledAfter(moments.Next(), saving);
        moments.Learn(cameInTime);
        kills += cameInTime ? 1 : 0;
    }
    EXPECT_EQ(kills, kKills) << "the others came too late";
    RecordProperty("kills", kills);
    RecordProperty("tries", tries);
    std::cout << kills << " kills in " << tries << " tries\n";
}

} // namespace schedules::host::testing
