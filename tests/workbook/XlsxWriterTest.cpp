#include "workbook/XlsxWriter.h"

#include "common/Error.h"
#include "workbook/ReadBack.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct XlsxWriterTest : ::testing::Test, WrittenSheet
{
    std::string ReadXlsx()
    {
        const QString file = folder.filePath(QStringLiteral("schedule.xlsx"));
        WriteXlsx(sheet, name, file);
        return Printed("workbook/read_xlsx.py", {file}).toStdString();
    }
};

} // namespace

TEST_F(XlsxWriterTest, HasTheContentAndTheLooksOfTheOtherWorkbook)
{
    Fill(sheet, {{"Tag", "Flow"}, {"=P", "007"}, {"", ""}});
    Put(sheet, At(2, 3), "12.50", DataType::Double);
    sheet.SetBold({{kAllColumns, Row(1)}, {kAllColumns, Row(1)}}, true);
    sheet.SetBackColor(CellRange::Of(Column(1), Row(2)), 0x332211);
    sheet.SetHAlign({{Column(2), kAllRows}, {Column(2), kAllRows}}, HorizontalAlignment::Data);
    sheet.SetVAlign(CellRange::Of(Column(1), Row(1)), VerticalAlignment::Center);
    sheet.SetRowHeight(Row(1), 700);
    sheet.SetColumnWidth(Column(1), 1440);
    sheet.SetFrozenRows(1);
    name = QStringLiteral("Pumps: all");
    EXPECT_EQ(ReadXlsx(), "Pumps_ all A2\n"
                          "13.7109375 35.0\n"
                          "s 'Tag' l c b - | s 'Flow' l t b -\n"
                          "s '=P' l t . 112233 | s '007' r t . -\n"
                          "blank l t . - | 12.5 (0.00) r t . -");
}

TEST_F(XlsxWriterTest, TakesNoLongerTextThanTheFormat)
{
    Fill(sheet, {{std::string(32'768, 'x')}});
    EXPECT_THROW(ReadXlsx(), Error);
}

TEST_F(XlsxWriterTest, AFolderThatIsGoneIsAnError)
{
    EXPECT_THROW(WriteXlsx(sheet, name, folder.filePath(QStringLiteral("gone/a.xlsx"))), Error);
}
