#pragma once

#include "spread/RowSort.h"

namespace schedules {

class SpreadView;

/// In which order the rows of a grid are shown now, and what comes next.
class RowSorting
{
public:
    explicit RowSorting(SpreadView& grid) : m_grid(grid) {}

    /// What sorting by that column would lead to: upwards, then downwards, then the document's order again.
    RowOrder Next(Column column) const;

    /// Shows the rows in that order. `headings` are the rows that head groups, see `SortedRows`.
    void Sort(Column column, RowOrder order, const std::vector<int>& headings);

    /// Back to the document's order.
    void Forget();

private:
    SpreadView& m_grid;
    Column m_column;
    RowOrder m_order = RowOrder::Document;
};

} // namespace schedules
