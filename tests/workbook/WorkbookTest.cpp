// Workbooks as two readers of another making see them.

#include "workbook/Workbook.h"

#include "common/FileReplacement.h"
#include "spread/VisibleCopy.h"
#include "workbook/ReadBack.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct WorkbookTest : ::testing::Test, WrittenSheet
{
    void ExpectBothReadersAgree()
    {
        const std::string expected = Joined(sheet);
        EXPECT_TRUE(Read("texts") == expected);
        EXPECT_TRUE(ReadByFreexl(FileName()) == expected);
    }

    std::string Failure()
    {
        try {
            WriteWorkbook(sheet, name, FileName());
            return {};
        } catch (const Error& error) {
            return error.what();
        }
    }

    QByteArray FileContent() const
    {
        QFile file(FileName());
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace

TEST_F(WorkbookTest, HoldsTheTextsFromTheFirstColumnAndRowOn)
{
    Fill(sheet, {{"Tag", "Flow"}, {"P-1", "насос"}, {"P-2", "Ölpumpe"}, {"P-3", "备用 𝄞"}});
    sheet.SetText(At(0, 0), QStringLiteral("not in it"));
    EXPECT_EQ(Read("cells"), "'Tag' | 'Flow'\n"
                             "'P-1' | 'насос'\n"
                             "'P-2' | 'Ölpumpe'\n"
                             "'P-3' | '备用 𝄞'");
    ExpectBothReadersAgree();
}

TEST_F(WorkbookTest, HoldsWhatTheSheetShows)
{
    Sheet shown;
    for (int column = 0; column <= 3; ++column) {
        for (int row = 0; row <= 3; ++row)
            shown.SetText(At(column, row), QStringLiteral("%1/%2").arg(column).arg(row));
    }
    shown.SetSize(3, 3);
    shown.SetHidden(Column(2), true);
    shown.SetHidden(Row(1), true);
    shown.SetRowOrder({3, 1, 2});
    CopyVisible(shown, sheet);
    EXPECT_EQ(Read("cells"), "'0/0' | '1/0' | '3/0'\n"
                             "'0/3' | '1/3' | '3/3'\n"
                             "'0/2' | '1/2' | '3/2'");
}

TEST_F(WorkbookTest, NumbersOfNumericTypesAreNumbersThatShowTheSameDecimals)
{
    Put(sheet, At(1, 1), "12.50", DataType::Double);
    Put(sheet, At(2, 1), "-7", DataType::Long);
    Put(sheet, At(3, 1), "0.125", DataType::Single);
    Put(sheet, At(4, 1), "3", DataType::Integer);
    Put(sheet, At(5, 1), "9.9", DataType::Currency);
    EXPECT_EQ(Read("cells"), "12.5 (0.00) | -7.0 (0) | 0.125 (0.000) | 3.0 (0) | 9.9 (0.0)");
}

TEST_F(WorkbookTest, ANumberWithADecimalCommaIsTextAsShown)
{
    Put(sheet, At(1, 1), "12,5", DataType::Number);
    EXPECT_EQ(Read("cells"), "'12,5'");
}

TEST_F(WorkbookTest, EverythingElseIsTextAsItStands)
{
    Put(sheet, At(1, 1), "007", DataType::Long);
    Put(sheet, At(2, 1), "=1+1", DataType::Double);
    Put(sheet, At(3, 1), "12.5", DataType::Text);
    Put(sheet, At(4, 1), "12 m", DataType::Double);
    Put(sheet, At(5, 1), " 12", DataType::Double);
    Put(sheet, At(6, 1), "two\nlines", DataType::Text);
    EXPECT_EQ(Read("cells"), "'007' | '=1+1' | '12.5' | '12 m' | ' 12' | 'two\\nlines'");
}

TEST_F(WorkbookTest, CheckBoxesAreOneOrZero)
{
    for (const auto& [column, text] : {std::pair(1, "1"), std::pair(2, "0"), std::pair(3, "")}) {
        sheet.SetText(At(column, 1), QString::fromUtf8(text));
        sheet.SetStyle(At(column, 1), {.type = CellType::CheckBox, .dataType = DataType::CheckBox});
    }
    sheet.SetSize(3, 1);
    EXPECT_EQ(Read("cells"), "1.0 (0) | 0.0 (0) | blank");
    EXPECT_EQ(Read("looks"), "c m . . - - | c m . . - - | c m . . - -");
}

TEST_F(WorkbookTest, EmptyTextsAreBlankCells)
{
    Fill(sheet, {{"a", ""}, {"", "d"}});
    EXPECT_EQ(Read("cells"), "'a' | blank\nblank | 'd'");
}

TEST_F(WorkbookTest, ASheetWithoutCellsIsAWorkbook)
{
    EXPECT_EQ(Read("cells"), "");
    EXPECT_EQ(Read("book"), "sheets ['Schedule'], code page 1200, fonts [0, 1, 2, 3], style formats 15");
    EXPECT_EQ(ReadByFreexl(FileName()), "");
    sheet.SetSize(0, 3);
    EXPECT_THAT(Read("book"), ::testing::StartsWith("sheets ['Schedule'],")) << "rows without columns";
}

TEST_F(WorkbookTest, BoldColorsAndAlignmentsGoAlong)
{
    Fill(sheet, {{"Tag", "Flow", "Note"}, {"P-1", "12", "x"}});
    sheet.SetBold({{kAllColumns, Row(1)}, {kAllColumns, Row(1)}}, true);
    sheet.SetBackColor(CellRange::Of(Column(1), Row(2)), 0x332211);
    sheet.SetBackColor(CellRange::Of(Column(2), Row(2)), 0xCCFFFF);
    sheet.SetHAlign({{Column(2), kAllRows}, {Column(2), kAllRows}}, HorizontalAlignment::Data);
    sheet.SetHAlign(CellRange::Of(Column(3), Row(1)), HorizontalAlignment::Center);
    for (const int row : {1, 2})
        sheet.SetRowHeight(Row(row), 1440); // rows of one line are centred whatever their alignment
    sheet.SetVAlign(CellRange::Of(Column(3), Row(1)), VerticalAlignment::Center);
    sheet.SetVAlign(CellRange::Of(Column(3), Row(2)), VerticalAlignment::Bottom);
    sheet.SetWraps(CellRange::Of(Column(3), Row(2)), true);
    EXPECT_EQ(Read("looks"), "l t . b - - | l t . b - - | c m . b - -\n"
                             "l t . . 112233 ffffff | r t . . ffffcc - | l b w . - -");
}

TEST_F(WorkbookTest, ASystemColorIsItsCustomaryOne)
{
    Fill(sheet, {{"Tag"}});
    sheet.SetBackColor(CellRange::Of(Column(1), Row(1)), 0x8000000F);
    EXPECT_EQ(Read("looks"), "l m . . f0f0f0 -");
}

TEST_F(WorkbookTest, ThePaletteTakesFiftyFourColorsAsTheyAreAndTheNearestForMore)
{
    const auto color = [](int number) { return 0x010203u * static_cast<std::uint32_t>(number); };
    for (int row = 1; row <= 60; ++row)
        sheet.SetBackColor({{kAllColumns, Row(row)}, {kAllColumns, Row(row)}}, color(row));
    sheet.SetSize(1, 60);
    const QStringList looks = QString::fromStdString(Read("looks")).split('\n');
    for (int row : {1, 30, 54})
        EXPECT_THAT(looks[row - 1].toStdString(), ::testing::HasSubstr(QStringLiteral("%1%2%3")
                                                                           .arg(row * 3, 2, 16, QLatin1Char('0'))
                                                                           .arg(row * 2, 2, 16, QLatin1Char('0'))
                                                                           .arg(row, 2, 16, QLatin1Char('0'))
                                                                           .toStdString()));
    EXPECT_THAT(looks[59].toStdString(), ::testing::HasSubstr("a26c36")) << "the nearest one is number 54";
}

TEST_F(WorkbookTest, WidthsAndHeightsGoAlong)
{
    sheet.SetFont(QFont(QStringLiteral("Liberation Sans"), 10));
    Fill(sheet, {{"a", "b"}, {"c", "d"}});
    sheet.SetColumnWidth(Column(1), 1440);
    sheet.SetColumnWidth(Column(2), 70 * 1440);
    sheet.SetRowHeight(Row(1), 700);
    sheet.SetRowHeight(Row(2), 100'000);
    EXPECT_EQ(Read("sizes"), "widths [3511, 65280]\nheights [700, 8190]")
        << "an inch is 96 pixels, a digit 7; both have a largest size";
}

TEST_F(WorkbookTest, FrozenColumnsAndRowsAreFrozenPanes)
{
    Fill(sheet, {{"a", "b", "c"}, {"d", "e", "f"}});
    EXPECT_EQ(Read("panes"), "frozen 0, without split 0, columns 0, rows 0");
    sheet.SetFrozenRows(1);
    EXPECT_EQ(Read("panes"), "frozen 1, without split 1, columns 0, rows 1");
    sheet.SetFrozenColumns(2);
    EXPECT_EQ(Read("panes"), "frozen 1, without split 1, columns 2, rows 1");
    sheet.SetFrozenRows(0);
    EXPECT_EQ(Read("panes"), "frozen 1, without split 1, columns 2, rows 0");
}

TEST_F(WorkbookTest, TheSheetsNameIsMadeLegal)
{
    name = QStringLiteral("Pumps: north/süd?");
    EXPECT_THAT(Read("book"), ::testing::StartsWith("sheets ['Pumps_ north_süd_'],"));
    name = QStringLiteral("насосы");
    EXPECT_THAT(Read("book"), ::testing::StartsWith("sheets ['насосы'],"));
}

TEST_F(WorkbookTest, AWorkbookSmallerThanTheSmallestStreamIsRead)
{
    Fill(sheet, {{"a"}});
    ExpectBothReadersAgree();
    EXPECT_LT(QFileInfo(FileName()).size(), 8192);
}

/// Streams change their kind at 4,096 bytes, sectors have 512.
TEST_F(WorkbookTest, WorkbooksOfSizesAroundTheSmallestStreamAreRead)
{
    for (int length = 900; length <= 2'600; length += 37) {
        Fill(sheet, {{std::string(static_cast<std::size_t>(length), 'x')}});
        WriteWorkbook(sheet, name, FileName());
        EXPECT_TRUE(ReadByFreexl(FileName()) == Joined(sheet)) << length;
    }
    ExpectBothReadersAgree();
}

TEST_F(WorkbookTest, AHundredThousandDifferentStringsAreRead)
{
    std::vector<std::vector<std::string>> rows(10'000);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < 10; ++column)
            rows[row].push_back((column % 2 ? "насос " : "pump ") + std::to_string(row * 10 + column));
    }
    Fill(sheet, rows);
    ExpectBothReadersAgree();
}

TEST_F(WorkbookTest, AContainerThatNeedsMoreThanItsHeadersAllocationSectorsIsRead)
{
    std::vector<std::vector<std::string>> rows(65'536);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < 12; ++column)
            rows[row].push_back(column == 0 ? "P-" + std::to_string(row) : "remark " + std::to_string(row % 7));
    }
    Fill(sheet, rows);
    ExpectBothReadersAgree();
    EXPECT_GT(QFileInfo(FileName()).size(), 7'143'936);
}

TEST_F(WorkbookTest, TakesAllColumnsOfTheFormatAndNoMore)
{
    Fill(sheet, {std::vector<std::string>(256, "x")});
    ExpectBothReadersAgree();
    const QByteArray before = FileContent();
    sheet.SetSize(257, 1);
    EXPECT_EQ(Failure(), "A workbook of this format holds 65536 rows and 256 columns, not 1 and 257.");
    EXPECT_EQ(FileContent(), before) << "the file that was there stays";
}

TEST_F(WorkbookTest, TakesNoMoreRowsThanTheFormat)
{
    sheet.SetSize(1, 65'537);
    EXPECT_EQ(Failure(), "A workbook of this format holds 65536 rows and 256 columns, not 65537 and 1.");
    EXPECT_FALSE(QFileInfo::exists(FileName()));
    sheet.SetSize(1, 65'536);
    EXPECT_EQ(Failure(), "");
}

TEST_F(WorkbookTest, TakesTheLongestTextOfTheFormatAndNoLonger)
{
    std::string longest;
    for (int count = 0; count < 32'767; ++count)
        longest += "я";
    Fill(sheet, {{longest}, {std::string(32'767, 'x')}, {"end"}});
    EXPECT_TRUE(Read("texts") == Joined(sheet)) << "the other reader knows no text that is continued twice";
    sheet.SetText(At(1, 2), QString(32'768, u'x'));
    EXPECT_EQ(Failure(), "A cell of a workbook holds 32767 characters; that in column 1, row 2 has 32768.");
}

TEST_F(WorkbookTest, TakesNoMoreLooksThanTheFormat)
{
    sheet.SetSize(1, 4'001);
    for (int row = 1; row <= 4'001; ++row) {
        const CellRange whole{{kAllColumns, Row(row)}, {kAllColumns, Row(row)}};
        sheet.SetBackColor(whole, static_cast<std::uint32_t>(row));
    }
    EXPECT_EQ(Failure(), "A workbook of this format holds 4,000 different looks of cells.");
}

TEST_F(WorkbookTest, AFolderThatIsGoneIsAnError)
{
    Fill(sheet, {{"a"}});
    EXPECT_THROW(WriteWorkbook(sheet, name, folder.filePath(QStringLiteral("gone/schedule.xls"))), Error);
}

TEST_F(WorkbookTest, NothingIsLeftBesideTheWorkbook)
{
    Fill(sheet, {{"a"}});
    WriteWorkbook(sheet, name, FileName());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"schedule.xls"});
}
