#pragma once

#include "common/XmlReader.h"
#include "grid/CellAttributes.h"
#include "grid/ScheduleTable.h"
#include "spread/Sheet.h"

#include <optional>
#include <string>
#include <vector>

namespace schedules {

/// Turns a schedule document, as it is read, into a table.
///
/// Rows are the `TR` children of a `TABLE` anywhere in the document, in the order of their start tags; every child node
/// of a row is a cell. Header cells of the first row are the `TH` children of each `TR` that is the first among its
/// siblings. Tables may stand inside of cells.
class ScheduleReader : public XmlHandler
{
public:
    ScheduleReader() = default;

    void StartElement(const XmlStartTag& tag) override;
    void EndElement(std::size_t end) override;
    void Text(std::string_view text) override;
    void OtherNode() override;

    bool SawRoot() const { return m_sawRoot; }
    int RowCount() const { return m_rowCount; }
    ScheduleTable Take();

protected:
    enum class Contents
    {
        Kept,
        Dropped
    };

    /// With its contents dropped it only counts rows and cells.
    explicit ScheduleReader(Contents contents) : m_contents(contents) {}

    /// Which cell of the table the element that was opened last is; nothing when it is none.
    std::optional<Sheet::TablePlace> OpenCell() const;

private:
    /// An element that has been opened and not yet closed.
    struct Open
    {
        bool isTable = false;
        bool isRow = false;
        bool isFirstRow = false;    ///< the first `TR` of its parent, in a table or not
        bool isCell = false;        ///< a child of a row
        bool hasRow = false;        ///< a `TR` child has been seen
        bool hasHeader = false;     ///< a `TH` child has been seen
        bool isUserDefined = false; ///< of a row: a user-defined cell has been seen
        bool inText = false;        ///< of a row: the text being read has been counted as a cell
        int row = 0;                ///< of a row: its number
        int cells = 0;              ///< of a row: how many cells it has so far
        int cellRow = 0;            ///< of a cell: the number of its row
        int cellSlot = 0;           ///< of a cell: its number in the row
    };

    /// The first text of a cell, while the cell is being read.
    struct Value
    {
        std::string text;
        CellStyle style;
        bool hidden = false;
        bool ended = false;
    };

    void OpenRow(Open& element, Open& parent);
    void ReadCell(Open& element, Open& row, const XmlStartTag& tag);
    void ReadHeader(Open& row, const CellAttributes& attributes);
    void OpenValue(const CellAttributes& attributes);
    void EndTextOf(Open& element);
    void AddEmptyCell(Open& row);
    void PlaceCell(int row, int slot, std::string_view text, CellStyle style);
    RowAttributes& AttributesOf(int row);

    Contents m_contents = Contents::Kept;
    std::vector<Open> m_open{1}; ///< at the bottom the document itself
    std::vector<Value> m_values; ///< of the open cells: a cell may hold a table with cells of its own
    std::size_t m_valueCount = 0;
    CellAttributesReader m_attributes;
    ScheduleTable m_table;
    bool m_sawRoot = false;
    int m_rowCount = 0;
};

} // namespace schedules
