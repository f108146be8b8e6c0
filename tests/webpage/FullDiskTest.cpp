// What happens to pages when the disk takes no more, or when the writing is broken off.

#include "common/Error.h"
#include "support/FileSizeLimit.h"
#include "support/FormerFile.h"
#include "webpage/WrittenPage.h"

#include <QDir>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct PageOnFullDiskTest : ::testing::TestWithParam<int>, WrittenPage
{
    PageOnFullDiskTest()
    {
        for (int row = 0; row <= 2'000; ++row) {
            for (int column = 0; column <= 5; ++column)
                sheet.SetText(At(column, row), QStringLiteral("%1 of %2").arg(column).arg(row));
        }
        sheet.SetSize(5, 2'000);
        WriteFormerFile(FileName());
    }

    void ExpectOldFile() const { ExpectFormerFile(FileName()); }
};

} // namespace

TEST_P(PageOnFullDiskTest, APageFailsAndTheOldFileStays)
{
    {
        const FileSizeLimit limit(static_cast<rlim_t>(GetParam()));
        EXPECT_THROW(WriteWebPage(sheet, info, FileName()), Error);
    }
    ExpectOldFile();
}

INSTANTIATE_TEST_SUITE_P(AtSizes, PageOnFullDiskTest, ::testing::Values(0, 100, 600, 5'000, 20'000, 200'000));
