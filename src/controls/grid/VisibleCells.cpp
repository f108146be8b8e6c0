#include "controls/grid/VisibleCells.h"

#include <algorithm>

namespace schedules {

VisibleTracks::VisibleTracks(const Axis& axis) : m_axis(&axis)
{
    for (int position = axis.VisibleFrom(0, 1); position >= 0; position = axis.VisibleFrom(position + 1, 1))
        m_positions.push_back(position);
}

int VisibleTracks::IndexOf(int item) const
{
    const auto found = std::ranges::lower_bound(m_positions, m_axis->PositionOf(item));
    const bool isVisible = found != m_positions.end() && *found == m_axis->PositionOf(item);
    return isVisible ? static_cast<int>(found - m_positions.begin()) : -1;
}

IndexRange VisibleTracks::Between(int firstItem, int lastItem) const
{
    const auto first = std::ranges::lower_bound(m_positions, m_axis->PositionOf(firstItem));
    const auto end = std::ranges::upper_bound(m_positions, m_axis->PositionOf(lastItem));
    const auto counted = [&](auto at) {
        return std::max(static_cast<int>(at - m_positions.begin()) - HeaderCount(), 0);
    };
    return {counted(first), counted(end)};
}

std::optional<Cell> VisibleCells::At(int index) const
{
    if (index < 0 || index >= Count())
        return std::nullopt;
    return Cell{Column(m_columns.ItemAt(index % m_columns.Count())), Row(m_rows.ItemAt(index / m_columns.Count()))};
}

int VisibleCells::IndexOf(Cell cell) const
{
    const int column = m_columns.IndexOf(cell.column.Value());
    const int row = m_rows.IndexOf(cell.row.Value());
    return column >= 0 && row >= 0 ? row * m_columns.Count() + column : -1;
}

std::optional<Cell> VisibleCells::DataAt(int column, int row) const
{
    if (column < 0 || column >= m_columns.DataCount() || row < 0 || row >= m_rows.DataCount())
        return std::nullopt;
    return Cell{Column(m_columns.ItemAt(column + m_columns.HeaderCount())),
                Row(m_rows.ItemAt(row + m_rows.HeaderCount()))};
}

} // namespace schedules
