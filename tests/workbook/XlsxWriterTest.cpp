#include "workbook/XlsxWriter.h"

#include "common/Error.h"
#include "workbook/ReadBack.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct XlsxWriterTest : ::testing::Test, WrittenSheet
{
    std::string ReadXlsx(const char* script = "workbook/read_xlsx.py")
    {
        const QString file = folder.filePath(QStringLiteral("schedule.xlsx"));
        WriteXlsx(sheet, name, file, direction);
        return Printed(script, {file}).toStdString();
    }

    Qt::LayoutDirection direction = Qt::LeftToRight;
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
    EXPECT_EQ(ReadXlsx(), "Pumps_ all A2 left to right\n"
                          "13.7109375 35.0\n"
                          "s 'Tag' l c b - | s 'Flow' l t b -\n"
                          "s '=P' l c . 112233 | s '007' r c . -\n"
                          "blank l c . - | 12.5 (0.00) r c . -");
}

TEST_F(XlsxWriterTest, RightToLeftTheSidesAreExchanged)
{
    Fill(sheet, {{"Tag", "12", "x"}});
    sheet.SetHAlign({{Column(2), kAllRows}, {Column(2), kAllRows}}, HorizontalAlignment::Data);
    sheet.SetHAlign({{Column(3), kAllRows}, {Column(3), kAllRows}}, HorizontalAlignment::Center);
    sheet.SetRowHeight(Row(1), 700);
    sheet.SetColumnWidth(Column(1), 1440);
    direction = Qt::RightToLeft;
    EXPECT_EQ(ReadXlsx(), "Schedule None right to left\n"
                          "13.7109375 35.0\n"
                          "s 'Tag' r t . - | s '12' l t . - | s 'x' c t . -");
}

TEST_F(XlsxWriterTest, RowsAreAsHighAsInTheOtherWorkbook)
{
    Fill(sheet, {{"a"}});
    sheet.SetRowHeight(Row(1), 100'000);
    sheet.SetColumnWidth(Column(1), 1440);
    EXPECT_EQ(ReadXlsx(), "Schedule None left to right\n"
                          "13.7109375 409.5\n"
                          "s 'a' l t . -");
}

TEST_F(XlsxWriterTest, WhatOnlyLooksLikeACodeComesBackAsItIs)
{
    Fill(sheet, {{"_x0041_", "a_x000a_b", "_x5F_ _x00G1_", "_x005F_x0041_", "_x0041_x0042_", "tab\t"}});
    EXPECT_EQ(ReadXlsx("workbook/read_xlsx_texts.py"), "'_x0041_'\n"
                                                       "'a_x000a_b'\n"
                                                       "'_x5F_ _x00G1_'\n"
                                                       "'_x005F_x0041_'\n"
                                                       "'_x0041_x0042_'\n"
                                                       "'tab\\t'");
}

TEST_F(XlsxWriterTest, ASheetWithoutCellsIsAWorkbook)
{
    EXPECT_THAT(ReadXlsx(), ::testing::StartsWith("Schedule None left to right\n"));
    sheet.SetSize(0, 3);
    EXPECT_THAT(ReadXlsx(), ::testing::StartsWith("Schedule None left to right\n")) << "rows without columns";
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
