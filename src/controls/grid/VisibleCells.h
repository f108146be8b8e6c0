#pragma once

#include "controls/grid/ShownPlace.h"

#include <optional>
#include <vector>

namespace schedules {

struct IndexRange
{
    int first = 0;
    int end = 0;

    int Count() const { return end - first; }
};

/// The columns or rows of an axis that are not hidden, counted from 0 in the order shown, the header among them.
class VisibleTracks
{
public:
    explicit VisibleTracks(const Axis& axis);

    int Count() const { return static_cast<int>(m_positions.size()); }
    int ItemAt(int index) const { return m_axis->ItemAt(m_positions[static_cast<std::size_t>(index)]); }

    /// -1 for a hidden item, or one that the axis does not have.
    int IndexOf(int item) const;

    /// 1 when the header is visible, and therefore comes first; else 0.
    int HeaderCount() const { return !m_positions.empty() && m_positions.front() == 0 ? 1 : 0; }
    int DataCount() const { return Count() - HeaderCount(); }

    /// Those from one item to another, both included, counted without the header.
    IndexRange Between(int firstItem, int lastItem) const;

private:
    const Axis* m_axis;
    std::vector<int> m_positions;
};

/// The cells that a user can see by scrolling, row by row: hidden ones left out, headers first.
class VisibleCells
{
public:
    /// Tells about the sheet as it is now.
    explicit VisibleCells(const Sheet& sheet) : m_columns(sheet.Columns()), m_rows(sheet.Rows()) {}

    const VisibleTracks& Columns() const { return m_columns; }
    const VisibleTracks& Rows() const { return m_rows; }

    int Count() const { return m_columns.Count() * m_rows.Count(); }
    std::optional<Cell> At(int index) const;

    /// -1 for a cell that is not among them.
    int IndexOf(Cell cell) const;

    /// The cell in a column and a row that are counted without headers.
    std::optional<Cell> DataAt(int column, int row) const;

private:
    VisibleTracks m_columns;
    VisibleTracks m_rows;
};

} // namespace schedules
