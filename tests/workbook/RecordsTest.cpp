// The records of a workbook, one by one: what readers of other makings forgive, and some programs do not.

#include "workbook/ReadBack.h"
#include "workbook/SheetPlan.h"
#include "workbook/Workbook.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

using Type = RecordType;

struct RecordsTest : ::testing::Test
{
    std::vector<ReadRecord> Records() const { return RecordsOf(sheet); }
    std::vector<ReadRecord> Records(RecordType type) const { return OfType(Records(), type); }

    void FillRows(int rows, int columns)
    {
        for (int row = 1; row <= rows; ++row) {
            for (int column = 1; column <= columns; ++column)
                sheet.SetText(At(column, row), QStringLiteral("%1/%2").arg(column).arg(row));
        }
        sheet.SetSize(columns, rows);
    }

    Sheet sheet;
};

std::vector<RecordType> TypesOf(const std::vector<ReadRecord>& records)
{
    std::vector<RecordType> types;
    for (const ReadRecord& record : records)
        types.push_back(record.type);
    return types;
}

} // namespace

TEST_F(RecordsTest, StandInTheOrderOfTheFormat)
{
    FillRows(1, 1);
    const std::vector<RecordType> expected{Type::BOF,
                                           Type::InterfaceHdr,
                                           Type::Mms,
                                           Type::InterfaceEnd,
                                           Type::WriteAccess,
                                           Type::CodePage,
                                           Type::DSF,
                                           Type::RRTabId,
                                           Type::BuiltInFnGroupCount,
                                           Type::WinProtect,
                                           Type::Protect,
                                           Type::Password,
                                           Type::Prot4Rev,
                                           Type::Prot4RevPass,
                                           Type::Window1,
                                           Type::Backup,
                                           Type::HideObj,
                                           Type::Date1904,
                                           Type::CalcPrecision,
                                           Type::RefreshAll,
                                           Type::BookBool,
                                           Type::Font,
                                           Type::Font,
                                           Type::Font,
                                           Type::Font,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::XF,
                                           Type::Style,
                                           Type::Palette,
                                           Type::UsesELFs,
                                           Type::BoundSheet8,
                                           Type::Country,
                                           Type::SST,
                                           Type::ExtSST,
                                           Type::EndOfFile,
                                           Type::BOF,
                                           Type::Index,
                                           Type::CalcMode,
                                           Type::CalcCount,
                                           Type::CalcRefMode,
                                           Type::CalcIter,
                                           Type::CalcDelta,
                                           Type::CalcSaveRecalc,
                                           Type::PrintRowCol,
                                           Type::PrintGrid,
                                           Type::GridSet,
                                           Type::Guts,
                                           Type::DefaultRowHeight,
                                           Type::WsBool,
                                           Type::Header,
                                           Type::Footer,
                                           Type::HCenter,
                                           Type::VCenter,
                                           Type::Setup,
                                           Type::DefColWidth,
                                           Type::ColInfo,
                                           Type::Dimensions,
                                           Type::RowRecord,
                                           Type::LabelSst,
                                           Type::DBCell,
                                           Type::Window2,
                                           Type::Selection,
                                           Type::EndOfFile};
    EXPECT_EQ(TypesOf(Records()), expected);
}

TEST_F(RecordsTest, AreNeverLongerThanTheFormatAllows)
{
    FillRows(65'536, 1);
    sheet.SetText(At(1, 1), QString(32'767, u'я'));
    for (const ReadRecord& record : Records())
        EXPECT_LE(record.data.size(), 8'224u);
}

TEST_F(RecordsTest, FontsAreFourAndNoFormatNamesTheFifth)
{
    FillRows(2, 2);
    sheet.SetBold({{kAllColumns, Row(1)}, {kAllColumns, Row(1)}}, true);
    sheet.SetBackColor({{Column(1), kAllRows}, {Column(1), kAllRows}}, 0);
    EXPECT_EQ(Records(Type::Font).size(), 4u);
    std::vector<int> fonts;
    for (const ReadRecord& format : Records(Type::XF))
        fonts.push_back(format.At<Word>(0));
    EXPECT_THAT(std::vector(fonts.begin() + 16, fonts.end()), ::testing::ElementsAre(3, 1, 2, 0));
}

TEST_F(RecordsTest, FifteenStyleFormatsStandBeforeTheFirstCellFormat)
{
    FillRows(1, 1);
    const auto formats = Records(Type::XF);
    ASSERT_GT(formats.size(), 15u);
    for (std::size_t number = 0; number < formats.size(); ++number) {
        EXPECT_EQ(formats[number].data.size(), 20u);
        EXPECT_EQ((formats[number].At<Word>(4) & 4) != 0, number < 15) << number;
    }
    EXPECT_EQ(Records(Type::Style).size(), 1u);
}

TEST_F(RecordsTest, CellFormatsOfAllCellsExist)
{
    FillRows(5, 3);
    sheet.SetBackColor(CellRange::Of(Column(1), Row(2)), 77);
    const std::size_t count = Records(Type::XF).size();
    for (const ReadRecord& cell : Records(Type::LabelSst)) {
        EXPECT_GE(cell.At<Word>(4), 16);
        EXPECT_LT(cell.At<Word>(4), count);
    }
}

TEST_F(RecordsTest, TheCodePageIsUnicode)
{
    EXPECT_EQ(Records(Type::CodePage).at(0).At<Word>(0), 1200);
}

TEST_F(RecordsTest, TheSheetsOffsetIsWhereItBegins)
{
    FillRows(3, 3);
    const auto begins = Records(Type::BOF);
    ASSERT_EQ(begins.size(), 2u);
    EXPECT_EQ(Records(Type::BoundSheet8).at(0).At<DWord>(0), begins[1].position);
}

TEST_F(RecordsTest, RowsStandBeforeTheirCellsInBlocksOfThirtyTwo)
{
    FillRows(70, 1);
    std::string order;
    for (const ReadRecord& record : Records()) {
        if (record.type == Type::RowRecord)
            order += 'r';
        else if (record.type == Type::LabelSst)
            order += 'c';
        else if (record.type == Type::DBCell)
            order += '|';
    }
    const auto block = [](std::size_t rows) { return std::string(rows, 'r') + std::string(rows, 'c') + '|'; };
    EXPECT_EQ(order, block(32) + block(32) + block(6));
}

TEST_F(RecordsTest, EachBlockTellsWhereItsRowsAndCellsAre)
{
    FillRows(40, 2);
    const auto records = Records();
    const auto rows = OfType(records, Type::RowRecord);
    const auto cells = OfType(records, Type::LabelSst);
    std::size_t row = 0;
    for (const ReadRecord& block : OfType(records, Type::DBCell)) {
        EXPECT_EQ(block.position - block.At<DWord>(0), rows[row].position);
        std::uint32_t at = rows[row + 1].position;
        for (std::size_t offset = 4; offset < block.data.size(); offset += 2, ++row) {
            at += block.At<Word>(offset);
            EXPECT_EQ(at, cells[row * 2].position);
        }
    }
    EXPECT_EQ(row, 40u);
}

TEST_F(RecordsTest, TheIndexTellsWhereTheBlocksEnd)
{
    FillRows(70, 1);
    const auto records = Records();
    const ReadRecord index = OfType(records, Type::Index).at(0);
    EXPECT_EQ(index.At<DWord>(8), 70u);
    EXPECT_EQ(index.At<DWord>(12), OfType(records, Type::DefColWidth).at(0).position);
    const auto ends = OfType(records, Type::DBCell);
    ASSERT_EQ(index.data.size(), 16 + 4 * ends.size());
    for (std::size_t block = 0; block < ends.size(); ++block)
        EXPECT_EQ(index.At<DWord>(16 + 4 * block), ends[block].position);
}

TEST_F(RecordsTest, TheDimensionsAreThoseOfTheSheet)
{
    FillRows(7, 3);
    const ReadRecord dimensions = Records(Type::Dimensions).at(0);
    EXPECT_EQ(dimensions.At<DWord>(4), 7u);
    EXPECT_EQ(dimensions.At<Word>(10), 3);
}

TEST_F(RecordsTest, TheWindowShowsTheOneSheet)
{
    const ReadRecord window = Records(Type::Window2).at(0);
    EXPECT_EQ(window.data.size(), 18u);
    EXPECT_EQ(window.At<Word>(0) & 0x0600, 0x0600) << "selected and shown";
    EXPECT_EQ(Records(Type::Window1).at(0).data.size(), 18u);
}

TEST_F(RecordsTest, RightToLeftTheWindowIsMirroredAndSidesAreExchanged)
{
    FillRows(1, 3);
    sheet.SetText(At(2, 1), QStringLiteral("12"));
    sheet.SetHAlign({{Column(2), kAllRows}, {Column(2), kAllRows}}, HorizontalAlignment::Data);
    sheet.SetHAlign({{Column(3), kAllRows}, {Column(3), kAllRows}}, HorizontalAlignment::Center);
    const auto told = [this](Qt::LayoutDirection direction) {
        MemoryStream stream;
        WriteRecords(sheet, QStringLiteral("Schedule"), stream, direction);
        const auto records = stream.Records();
        std::vector<int> sides{OfType(records, Type::Window2).at(0).At<Word>(0) & 0x0040};
        const auto formats = OfType(records, Type::XF);
        for (const ReadRecord& cell : OfType(records, Type::LabelSst))
            sides.push_back(formats.at(cell.At<Word>(4)).At<Byte>(6) & 0x07);
        return sides;
    };
    constexpr int kLeft = 1, kCenter = 2, kRight = 3;
    EXPECT_THAT(told(Qt::LeftToRight), ::testing::ElementsAre(0, kLeft, kRight, kCenter));
    EXPECT_THAT(told(Qt::RightToLeft), ::testing::ElementsAre(0x0040, kRight, kLeft, kCenter));
}

TEST_F(RecordsTest, FrozenPanesHaveBothFlagsAndASelectionEach)
{
    FillRows(3, 3);
    EXPECT_EQ(Records(Type::Window2).at(0).At<Word>(0) & 0x0108, 0);
    EXPECT_EQ(Records(Type::Pane).size(), 0u);
    EXPECT_EQ(Records(Type::Selection).size(), 1u);
    sheet.SetFrozenColumns(1);
    sheet.SetFrozenRows(2);
    EXPECT_EQ(Records(Type::Window2).at(0).At<Word>(0) & 0x0108, 0x0108);
    EXPECT_EQ(Records(Type::Selection).size(), 4u);
    const ReadRecord pane = Records(Type::Pane).at(0);
    EXPECT_EQ(pane.data.size(), 10u);
    EXPECT_EQ(pane.At<Word>(0), 1);
    EXPECT_EQ(pane.At<Word>(2), 2);
    EXPECT_EQ(pane.At<Byte>(8), 0) << "the lower right one is active";
}

TEST_F(RecordsTest, EachDifferentTextIsSharedOnce)
{
    sheet.SetText(At(1, 1), QStringLiteral("same"));
    sheet.SetText(At(2, 1), QStringLiteral("other"));
    sheet.SetText(At(3, 1), QStringLiteral("same"));
    sheet.SetSize(3, 1);
    const ReadRecord table = Records(Type::SST).at(0);
    EXPECT_EQ(table.At<DWord>(0), 3u) << "uses";
    EXPECT_EQ(table.At<DWord>(4), 2u) << "different ones";
    std::vector<DWord> numbers;
    for (const ReadRecord& cell : Records(Type::LabelSst))
        numbers.push_back(cell.At<DWord>(6));
    EXPECT_THAT(numbers, ::testing::ElementsAre(0, 1, 0));
}
