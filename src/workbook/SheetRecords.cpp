#include "workbook/SheetRecords.h"

#include <algorithm>
#include <cmath>

namespace schedules {

namespace {

constexpr Word kVersion = 0x0600;
constexpr Word kWorksheet = 0x0010;
constexpr Word kBuild = 0x0DBB;
constexpr Word kBuildYear = 1996;
constexpr DWord kLowestVersion = 6;

constexpr Word kDefaultWidth = 8; ///< digits
constexpr Word kDefaultHeight = 255;
constexpr long kWidestColumn = 255 * 256;
constexpr Word kOwnHeight = 0x0140;
constexpr Word kOwnWidth = 0x0002;

constexpr Word kShowsGridHeadersZerosAndOutline = 0x06B6; ///< default colors; the sheet that is selected and shown
constexpr Word kFrozen = 0x0008;
constexpr Word kRightToLeft = 0x0040;
constexpr Word kFrozenWithoutSplit = 0x0100;
constexpr Word kAutomaticGridColor = 64;

enum Pane : Byte
{
    kLowerRight = 0,
    kUpperRight = 1,
    kLowerLeft = 2,
    kUpperLeft = 3
};

constexpr std::size_t kRowRecordSize = 20;
constexpr std::size_t kIndexHeader = 16;

constexpr Word InWord(int number)
{
    return static_cast<Word>(number);
}

} // namespace

SheetRecords::SheetRecords(RecordWriter& records, const SheetPlan& plan)
    : m_records(records),
      m_plan(plan),
      m_sheet(plan.Source()),
      m_columns(m_sheet.ColumnCount()),
      m_rows(m_sheet.RowCount())
{
}

void SheetRecords::Write()
{
    WriteBeginning();
    WriteCalculation();
    WritePage();
    WriteColumns();
    m_records.Write(RecordType::Dimensions, DWord{0}, static_cast<DWord>(m_rows), Word{0}, InWord(m_columns), Word{0});
    WriteBlocks();
    WriteWindow();
    m_records.Write(RecordType::EndOfFile);
    WriteIndex();
}

void SheetRecords::WriteBeginning()
{
    m_records.Write(RecordType::BOF, kVersion, kWorksheet, kBuild, kBuildYear, DWord{1}, kLowestVersion);
    m_indexPosition = m_records.Position() + RecordWriter::kHeaderSize;
    m_records.WriteData(RecordType::Index, std::string(kIndexHeader + BlockCount() * sizeof(DWord), '\0'));
}

void SheetRecords::WriteCalculation()
{
    m_records.Write(RecordType::CalcMode, Word{1});
    m_records.Write(RecordType::CalcCount, Word{100});
    m_records.Write(RecordType::CalcRefMode, Word{1});
    m_records.Write(RecordType::CalcIter, Word{0});
    m_records.Write(RecordType::CalcDelta, 0.001);
    m_records.Write(RecordType::CalcSaveRecalc, Word{1});
}

void SheetRecords::WritePage()
{
    constexpr Word kFullScale = 100;
    constexpr Word kAcross = 0;
    constexpr Word kDotsPerInch = 600;
    constexpr double kHeaderMargin = 0.5; // inches
    m_records.Write(RecordType::PrintRowCol, Word{0});
    m_records.Write(RecordType::PrintGrid, Word{0});
    m_records.Write(RecordType::GridSet, Word{1});
    m_records.Write(RecordType::Guts, Word{0}, Word{0}, Word{0}, Word{0});
    m_records.Write(RecordType::DefaultRowHeight, Word{0}, kDefaultHeight);
    m_records.Write(RecordType::WsBool, Word{0x04C1});
    m_records.Write(RecordType::Header);
    m_records.Write(RecordType::Footer);
    m_records.Write(RecordType::HCenter, Word{0});
    m_records.Write(RecordType::VCenter, Word{0});
    m_records.Write(RecordType::Setup, Word{9}, kFullScale, Word{1}, Word{1}, Word{1}, kAcross, kDotsPerInch,
                    kDotsPerInch, kHeaderMargin, kHeaderMargin, Word{1});
}

void SheetRecords::WriteColumns()
{
    m_widthsPosition = m_records.Position();
    m_records.Write(RecordType::DefColWidth, kDefaultWidth);
    const double widthOfTwip = m_plan.Formats().WidthOfPixel() / kTwipsPerPixel;
    for (Column column{1}; column.Value() <= m_columns; ++column) {
        const long width = std::lround(std::ceil(m_sheet.ColumnWidth(column) * widthOfTwip));
        const Word number = InWord(column.Value() - 1);
        m_records.Write(RecordType::ColInfo, number, number, static_cast<Word>(std::min(width, kWidestColumn)),
                        kDefaultCellFormat, kOwnWidth, Word{0});
    }
}

void SheetRecords::WriteBlocks()
{
    std::vector<std::uint32_t> rowStarts;
    for (int first = 1; first <= m_rows; first += kRowsInBlock) {
        const Row end{std::min(first + kRowsInBlock, m_rows + 1)};
        const std::uint32_t start = m_records.Position();
        for (Row row{first}; row < end; ++row)
            WriteRow(row);
        rowStarts.clear();
        for (Row row{first}; row < end; ++row) {
            rowStarts.push_back(m_records.Position());
            WriteCells(row);
        }
        WriteBlockEnd(start, rowStarts);
    }
}

void SheetRecords::WriteRow(Row row)
{
    m_records.Write(RecordType::RowRecord, InWord(row.Value() - 1), Word{0}, InWord(m_columns),
                    InWord(RowHeightOf(m_sheet, row)), Word{0}, Word{0}, kOwnHeight, kDefaultCellFormat);
}

void SheetRecords::WriteCells(Row row)
{
    for (Column column{1}; column.Value() <= m_columns; ++column)
        WriteCell({column, row});
}

void SheetRecords::WriteCell(Cell cell)
{
    const Word row = InWord(cell.row.Value() - 1);
    const Word column = InWord(cell.column.Value() - 1);
    const Word format = m_plan.FormatAt(m_nextCell++);
    const WorkbookCell content = WorkbookCellOf(m_sheet, cell);
    switch (content.kind) {
    case WorkbookCell::Kind::Blank:
        return m_records.Write(RecordType::Blank, row, column, format);
    case WorkbookCell::Kind::Number:
        return m_records.Write(RecordType::Number, row, column, format, content.number.value);
    case WorkbookCell::Kind::Text:
        return m_records.Write(RecordType::LabelSst, row, column, format, m_plan.StringNumbers()[m_nextString++]);
    }
}

/// How far back the block's first row record lies; then, for each row, how far its cells lie behind those of the row
/// before, the first one's behind the second row record.
void SheetRecords::WriteBlockEnd(std::uint32_t start, const std::vector<std::uint32_t>& rowStarts)
{
    m_blockEnds.push_back(m_records.Position());
    std::string data;
    Append(data, m_records.Position() - start);
    auto before = static_cast<std::uint32_t>(start + kRowRecordSize);
    for (const std::uint32_t rowStart : rowStarts) {
        Append(data, static_cast<Word>(rowStart - before));
        before = rowStart;
    }
    m_records.WriteData(RecordType::DBCell, data);
}

void SheetRecords::WriteWindow()
{
    const bool isFrozen = m_sheet.FrozenColumns() > 0 || m_sheet.FrozenRows() > 0;
    const Word frozen = isFrozen ? kFrozen | kFrozenWithoutSplit : 0;
    const Word leftwards = m_plan.Direction() == Qt::RightToLeft ? kRightToLeft : 0;
    m_records.Write(RecordType::Window2, static_cast<Word>(kShowsGridHeadersZerosAndOutline | frozen | leftwards),
                    Word{0}, Word{0}, kAutomaticGridColor, Word{0}, Word{0}, Word{0}, DWord{0});
    if (isFrozen)
        WritePane();
    else
        WriteSelection(kUpperLeft);
}

void SheetRecords::WritePane()
{
    const int columns = std::min(m_sheet.FrozenColumns(), SheetPlan::kMostColumns - 1);
    const int rows = std::min(m_sheet.FrozenRows(), SheetPlan::kMostRows - 1);
    const Byte active = columns == 0 ? kLowerLeft : rows == 0 ? kUpperRight : kLowerRight;
    m_records.Write(RecordType::Pane, InWord(columns), InWord(rows), InWord(rows), InWord(columns), active, Byte{0});
    WriteSelection(kUpperLeft);
    if (columns > 0)
        WriteSelection(kUpperRight);
    if (rows > 0)
        WriteSelection(kLowerLeft);
    if (columns > 0 && rows > 0)
        WriteSelection(kLowerRight);
}

void SheetRecords::WriteSelection(Byte pane)
{
    m_records.Write(RecordType::Selection, pane, Word{0}, Word{0}, Word{0}, Word{1}, Word{0}, Word{0}, Byte{0},
                    Byte{0});
}

void SheetRecords::WriteIndex()
{
    std::string data;
    Append(data, DWord{0}, DWord{0}, static_cast<DWord>(m_rows), m_widthsPosition);
    for (const std::uint32_t position : m_blockEnds)
        Append(data, position);
    m_records.Patch(m_indexPosition, data);
}

} // namespace schedules
