#include "spread/VisibleCopy.h"

#include "spread/RepaintingOff.h"

namespace schedules {

namespace {

std::vector<int> VisibleItems(const Axis& axis)
{
    std::vector<int> items;
    for (int position = 0; position <= axis.Count(); ++position) {
        if (const int item = axis.ItemAt(position); !axis.Hidden(item))
            items.push_back(item);
    }
    return items;
}

CellStore CopiedCells(const Sheet& source, const std::vector<int>& columns, const std::vector<int>& rows)
{
    CellStore cells;
    for (int row = 0; row < std::ssize(rows); ++row) {
        for (int column = 0; column < std::ssize(columns); ++column) {
            const Cell cell{Column(columns[column]), Row(rows[row])};
            const auto [text, style] = source.Content(cell);
            if (!text.empty() || style != CellStyle{})
                cells.Place(row + 1, column + 1, text, style);
        }
    }
    return cells;
}

void CopySizes(const Sheet& source, const std::vector<int>& columns, const std::vector<int>& rows, Sheet& target)
{
    target.SetDefaultColumnWidth(source.Columns().DefaultSize());
    for (int column = 0; column < std::ssize(columns); ++column)
        target.SetColumnWidth(Column(column + 1), source.ColumnWidth(Column(columns[column])));
    for (int row = 0; row < std::ssize(rows); ++row)
        target.SetRowHeight(Row(row + 1), source.RowHeight(Row(rows[row])));
}

} // namespace

void CopyVisible(const Sheet& source, Sheet& target)
{
    const RepaintingOff off(target);
    const std::vector<int> columns = VisibleItems(source.Columns());
    const std::vector<int> rows = VisibleItems(source.Rows());
    target.Reset();
    target.SetFrozenColumns(0);
    target.SetFrozenRows(0);
    target.SetFont(source.Font());
    target.SetSize(static_cast<int>(columns.size()), static_cast<int>(rows.size()));
    CopySizes(source, columns, rows, target);
    target.AdoptLooks(source, columns, rows);
    target.Adopt(CopiedCells(source, columns, rows), Lines::AreRows);
}

} // namespace schedules
