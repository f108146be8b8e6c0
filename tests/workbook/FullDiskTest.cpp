// What happens to workbooks when the disk takes no more, at any point of the way.

#include "common/Error.h"
#include "support/FileSizeLimit.h"
#include "support/FormerFile.h"
#include "workbook/CsvWriter.h"
#include "workbook/ReadBack.h"
#include "workbook/Workbook.h"
#include "workbook/XlsxWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct FullDiskTest : ::testing::TestWithParam<int>, WrittenSheet
{
    FullDiskTest()
    {
        for (int row = 1; row <= 2'000; ++row) {
            for (int column = 1; column <= 5; ++column)
                sheet.SetText(At(column, row), QStringLiteral("%1 of %2").arg(column).arg(row));
        }
        sheet.SetSize(5, 2'000);
        WriteFormerFile(FileName());
    }

    void ExpectOldFile() const { ExpectFormerFile(FileName()); }

    template <class Write>
    bool Fails(Write&& write) const
    {
        const FileSizeLimit limit(static_cast<rlim_t>(GetParam()));
        try {
            write();
            return false;
        } catch (const Error&) {
            return true;
        }
    }
};

} // namespace

TEST_P(FullDiskTest, AWorkbookFailsAndTheOldFileStays)
{
    EXPECT_TRUE(Fails([this] { WriteWorkbook(sheet, name, FileName()); }));
    ExpectOldFile();
}

TEST_P(FullDiskTest, AnXmlWorkbookFailsAndTheOldFileStays)
{
    EXPECT_TRUE(Fails([this] { WriteXlsx(sheet, name, FileName()); }));
    ExpectOldFile();
}

TEST_P(FullDiskTest, CommaSeparatedValuesFailAndTheOldFileStays)
{
    EXPECT_TRUE(Fails([this] { WriteCsv(sheet, FileName()); }));
    ExpectOldFile();
}

INSTANTIATE_TEST_SUITE_P(AtSizes, FullDiskTest, ::testing::Values(0, 100, 600, 5'000, 20'000));

/// The last bytes of a container are those of its directory and its allocation table.
TEST(FullDisk, AWorkbookFailsAtEverySectorThatIsMissing)
{
    WrittenSheet written;
    Fill(written.sheet, {{"Tag", "Flow"}, {"P-1", "12"}});
    WriteWorkbook(written.sheet, written.name, written.FileName());
    const qint64 size = QFileInfo(written.FileName()).size();
    for (qint64 missing = 1; missing < size; missing += 512) {
        const FileSizeLimit limit(static_cast<rlim_t>(size - missing));
        EXPECT_THROW(WriteWorkbook(written.sheet, written.name, written.FileName()), Error) << missing;
    }
    EXPECT_EQ(QFileInfo(written.FileName()).size(), size);
}
