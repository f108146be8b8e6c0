#pragma once

#include "spread/Sheet.h"

#include <vector>

// How the columns of a page come to paper, where nobody can scroll.

namespace schedules {

/// Columns that stand side by side on paper.
struct ColumnGroup
{
    std::vector<Column> columns;
    std::vector<double> widths; ///< of each column, in points
    double width = 0;           ///< of all of them
};

struct PaperColumns
{
    double points = 0; ///< the size of the texts
    std::vector<ColumnGroup> groups;
};

/// The columns that a sheet shows, in their order.
std::vector<Column> ShownColumns(const Sheet& sheet);

/// Columns that fit on a sheet of paper across, with texts made smaller as long as they can be read, are one group.
/// More columns are several groups, each with the column of row headers, if that is shown, in front.
PaperColumns PaperColumnsOf(const Sheet& sheet);

} // namespace schedules
