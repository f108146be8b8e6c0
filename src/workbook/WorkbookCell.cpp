#include "workbook/WorkbookCell.h"

#include <algorithm>

namespace schedules {

WorkbookCell WorkbookCellOf(const Sheet& sheet, Cell cell)
{
    const auto [text, style] = sheet.Content(cell);
    WorkbookCell content;
    content.text = text;
    if (text.empty())
        return content;
    content.kind = WorkbookCell::Kind::Text;
    if (!IsNumeric(style.dataType) && !KindOf(style).holdsNumber)
        return content;
    if (const auto number = PlainNumberIn(text)) {
        content.kind = WorkbookCell::Kind::Number;
        content.number = *number;
    }
    return content;
}

WorkbookLook WorkbookLookOf(const Sheet& sheet, Cell cell, const WorkbookCell& content)
{
    WorkbookLook look;
    if (const auto color = sheet.BackColor(cell))
        look.fill = FixedColor(*color);
    look.bold = sheet.Bold(cell);
    look.edge = EdgeOf(sheet.HAlign(cell), sheet.Style(cell), content.text);
    // As on screen: in a row of one line, different alignments would only show as ragged baselines.
    const bool isOneLine = sheet.RowHeight(cell.row) <= sheet.Rows().DefaultSize();
    look.vAlign = isOneLine ? VerticalAlignment::Center : sheet.VAlign(cell);
    look.wraps = sheet.Wraps(cell);
    if (content.kind == WorkbookCell::Kind::Number)
        look.decimals = static_cast<std::int8_t>(content.number.decimals);
    return look;
}

CellSide SideOf(CellEdge edge, Qt::LayoutDirection direction)
{
    if (edge == CellEdge::Center)
        return CellSide::Center;
    const bool isLeft = (edge == CellEdge::Near) == (direction == Qt::LeftToRight);
    return isLeft ? CellSide::Left : CellSide::Right;
}

int RowHeightOf(const Sheet& sheet, Row row)
{
    constexpr int kLowest = 2;
    constexpr int kHighest = 8190;
    return std::clamp(sheet.RowHeight(row), kLowest, kHighest);
}

std::string NumberFormat(int decimals)
{
    return decimals > 0 ? "0." + std::string(static_cast<std::size_t>(decimals), '0') : "0";
}

} // namespace schedules
