// Everything that the program saves, with each of its file operations failing in each way: what was there before is
// there still, or the new one is complete, and the user is told unless it is.

#include "TriedSaving.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <iostream>

namespace schedules::host::testing {

using schedules::testing::FileCounts;
using schedules::testing::FileFault;
using schedules::testing::FileOperation;

namespace {

struct Cause
{
    FileOperation operation;
    int code;
    FileFault::Kind kind = FileFault::Kind::Once;
};

const std::vector<Cause> kCauses{
    {FileOperation::Open, EACCES},   {FileOperation::Open, ENOSPC},
    {FileOperation::Open, EMFILE},   {FileOperation::List, EMFILE},
    {FileOperation::Read, EIO},      {FileOperation::Write, ENOSPC},
    {FileOperation::Write, EIO},     {FileOperation::Write, ENOSPC, FileFault::Kind::FromThenOn}, // as a disk fills up
    {FileOperation::Flush, EIO},     {FileOperation::Flush, ENOSPC},
    {FileOperation::Rename, EACCES}, {FileOperation::Rename, EIO},
    {FileOperation::Delete, EACCES}, {FileOperation::Delete, EIO},
    {FileOperation::Truncate, EIO},  {FileOperation::Truncate, ENOSPC},
    {FileOperation::Close, EIO},     {FileOperation::Any, EIO, FileFault::Kind::FromThenOn}, // as a disk goes away
};

std::vector<FileFault> FaultsIn(const FileCounts& counts)
{
    std::vector<FileFault> faults;
    for (const auto& [operation, code, kind] : kCauses) {
        for (int index = 0; index < counts[static_cast<std::size_t>(operation)]; ++index)
            faults.push_back({operation, index, code, kind});
    }
    return faults;
}

std::string NameOf(const ::testing::TestParamInfo<SavingKind>& info)
{
    return info.param.name;
}

using SavingFaults = ::testing::TestWithParam<SavingKind>;

} // namespace

INSTANTIATE_TEST_SUITE_P(Of, SavingFaults, ::testing::ValuesIn(AllSavings()), NameOf);

TEST_P(SavingFaults, LeaveWhatWasThereOrWhatIsNew)
{
    TriedSaving saving(GetParam());
    const auto faults = FaultsIn(saving.Counts());
    ASSERT_GT(saving.Counts().back(), 3);
    for (const FileFault& fault : faults)
        saving.ExpectSurvives(fault);
    RecordProperty("operations", saving.Counts().back());
    RecordProperty("faults", static_cast<int>(faults.size()));
    std::cout << saving.Counts().back() << " operations, " << faults.size() << " faults\n";
}

} // namespace schedules::host::testing
