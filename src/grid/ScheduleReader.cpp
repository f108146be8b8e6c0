#include "grid/ScheduleReader.h"

#include "common/Blanks.h"

#include <algorithm>
#include <utility>

namespace schedules {

void ScheduleReader::StartElement(const XmlStartTag& tag)
{
    m_sawRoot = true;
    Open& parent = m_open.back();
    EndTextOf(parent);
    Open element;
    element.isTable = tag.Is("TABLE");
    if (parent.isRow || parent.isFirstRow)
        ReadCell(element, parent, tag);
    if (tag.Is("TR"))
        OpenRow(element, parent);
    m_open.push_back(element);
}

std::optional<Sheet::TablePlace> ScheduleReader::OpenCell() const
{
    const Open& element = m_open.back();
    return element.isCell ? std::optional(Sheet::TablePlace{element.cellRow, element.cellSlot}) : std::nullopt;
}

void ScheduleReader::OpenRow(Open& element, Open& parent)
{
    element.isFirstRow = !std::exchange(parent.hasRow, true);
    element.isRow = parent.isTable;
    if (!element.isRow)
        return;
    element.row = m_rowCount++;
    m_table.cells.AddLine(element.row);
}

void ScheduleReader::ReadCell(Open& element, Open& row, const XmlStartTag& tag)
{
    const CellAttributes& attributes = m_attributes.Read(tag, tag.Is("TD") ? CellElement::Data : CellElement::Header);
    if (tag.Is("TH"))
        ReadHeader(row, attributes);
    if (!row.isRow)
        return;
    if (tag.Is("TD") && attributes.style.userDefined && !std::exchange(row.isUserDefined, true))
        AttributesOf(row.row).userDefined = true;
    element.isCell = true;
    element.cellRow = row.row;
    element.cellSlot = row.cells++;
    OpenValue(attributes);
}

void ScheduleReader::ReadHeader(Open& row, const CellAttributes& attributes)
{
    if (row.isFirstRow)
        m_table.headers.push_back({attributes.hidden, attributes.bold, attributes.backColor});
    const bool isFirst = !std::exchange(row.hasHeader, true);
    if (!isFirst || !row.isRow || !(attributes.hidden || attributes.bold || attributes.backColor))
        return;
    RowAttributes& whole = AttributesOf(row.row);
    whole.hidden = attributes.hidden;
    whole.bold = attributes.bold;
    whole.backColor = attributes.backColor;
}

RowAttributes& ScheduleReader::AttributesOf(int row)
{
    // Asked for twice a row at the most; only tables inside of cells make it another than the last one.
    const auto found = std::find_if(m_table.rows.rbegin(), m_table.rows.rend(),
                                    [row](const RowAttributes& known) { return known.row <= row; });
    if (found != m_table.rows.rend() && found->row == row)
        return *found;
    return *m_table.rows.insert(found.base(), RowAttributes{row});
}

void ScheduleReader::OpenValue(const CellAttributes& attributes)
{
    if (m_valueCount == m_values.size())
        m_values.emplace_back();
    Value& value = m_values[m_valueCount++];
    value.text.clear();
    value.ended = false;
    value.hidden = attributes.hidesValue;
    value.style = attributes.style;
}

void ScheduleReader::Text(std::string_view text)
{
    Open& element = m_open.back();
    if (element.isCell && !m_values[m_valueCount - 1].ended)
        m_values[m_valueCount - 1].text += text;
    if (element.isRow && !element.inText && !IsWhiteSpaceAlone(text)) {
        element.inText = true;
        AddEmptyCell(element);
    }
}

void ScheduleReader::OtherNode()
{
    Open& element = m_open.back();
    EndTextOf(element);
    if (element.isRow)
        AddEmptyCell(element);
}

void ScheduleReader::EndTextOf(Open& element)
{
    element.inText = false;
    if (!element.isCell)
        return;
    // White space alone is no text, and another one may follow it.
    Value& value = m_values[m_valueCount - 1];
    if (!value.ended && IsWhiteSpaceAlone(value.text))
        value.text.clear();
    else
        value.ended = true;
}

void ScheduleReader::AddEmptyCell(Open& row)
{
    PlaceCell(row.row, row.cells++, {}, {});
}

void ScheduleReader::PlaceCell(int row, int slot, std::string_view text, CellStyle style)
{
    if (m_contents == Contents::Kept)
        m_table.cells.Place(row, slot, text, style);
}

void ScheduleReader::EndElement([[maybe_unused]] std::size_t end)
{
    Open& element = m_open.back();
    if (element.isCell) {
        EndTextOf(element);
        const Value& value = m_values[--m_valueCount];
        PlaceCell(element.cellRow, element.cellSlot, value.hidden ? std::string_view() : value.text, value.style);
    }
    m_open.pop_back();
}

ScheduleTable ScheduleReader::Take()
{
    m_table.cells.Squeeze();
    return std::move(m_table);
}

} // namespace schedules
