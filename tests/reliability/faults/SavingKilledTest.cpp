// Everything that the program saves, while it is killed: what was there before is there still, or the new one is
// complete.

#include "TriedSaving.h"

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

constexpr int kSaves = 200;

std::string NameOf(const ::testing::TestParamInfo<SavingKind>& info)
{
    return info.param.name;
}

/// How long a saving takes.
Moment Duration(TriedSaving& saving)
{
    const auto process = saving.Begin();
    process->AwaitWord();
    const auto begin = Clock::now();
    process->Await();
    const auto duration = std::chrono::duration_cast<Moment>(Clock::now() - begin);
    saving.ExpectFormerOrNew(TriedSaving::Leftovers::None);
    return duration;
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
        saving.ExpectSurvivesDeath(*process);
    }
    std::cout << saving.Counts().back() << " kills\n";
}

TEST_P(SavingKilledAtRandom, LeavesWhatWasThereOrWhatIsNew)
{
    const auto seed = std::random_device()();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    TriedSaving saving(GetParam());
    std::uniform_int_distribution<Moment::rep> moments(0, Duration(saving).count());
    for (int save = 0; save < kSaves; ++save) {
        SCOPED_TRACE(save);
        const auto process = saving.Begin();
        process->AwaitWord();
        // Nothing can be waited for: any moment is the right one.
        std::this_thread::sleep_for(Moment(moments(random)));
        process->Kill();
        saving.ExpectSurvivesDeath(*process);
    }
}

} // namespace schedules::host::testing
