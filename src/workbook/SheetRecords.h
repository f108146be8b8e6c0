#pragma once

#include "workbook/SheetPlan.h"

namespace schedules {

/// Writes the records of the sheet, from its beginning to its end.
class SheetRecords
{
public:
    SheetRecords(RecordWriter& records, const SheetPlan& plan);

    void Write();

private:
    static constexpr int kRowsInBlock = 32;

    int BlockCount() const { return (m_rows + kRowsInBlock - 1) / kRowsInBlock; }

    void WriteBeginning();
    void WriteCalculation();
    void WritePage();
    void WriteColumns();
    void WriteBlocks();
    void WriteRow(Row row);
    void WriteCells(Row row);
    void WriteCell(Cell cell);
    void WriteBlockEnd(std::uint32_t start, const std::vector<std::uint32_t>& rowStarts);
    void WriteWindow();
    void WritePane();
    void WriteSelection(Byte pane);
    void WriteIndex();

    RecordWriter& m_records;
    const SheetPlan& m_plan;
    const Sheet& m_sheet;
    int m_columns;
    int m_rows;
    std::size_t m_nextCell = 0;
    std::size_t m_nextString = 0;
    std::uint32_t m_indexPosition = 0;
    std::uint32_t m_widthsPosition = 0;
    std::vector<std::uint32_t> m_blockEnds;
};

} // namespace schedules
