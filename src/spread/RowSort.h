#pragma once

#include "spread/Sheet.h"

#include <QLocale>

#include <vector>

namespace schedules {

enum class RowOrder
{
    Document,
    Ascending,
    Descending
};

/// The rows of a sheet in the order of one of its columns, as `Sheet::SetRowOrder` takes them: the row that each
/// position from 1 on shows, hidden ones included; empty for the document's order.
///
/// Numbers come before texts when ascending and after them when descending, blanks last either way, and rows whose
/// cells are alike stay in the document's order. A number is what `NumberReader` takes for one, exponents only where
/// the cell is of a numeric type. Texts follow the locale's collation, digits in them by value: "P-2" before "P-10".
///
/// Frozen rows stay where they are, and so do `headings`: row numbers, ascending, which need not lie in the sheet. The
/// rows between two of them are sorted by themselves.
std::vector<int> SortedRows(const Sheet& sheet, Column column, RowOrder order, const std::vector<int>& headings,
                            const QLocale& locale);

} // namespace schedules
