#pragma once

#include "spread/Sheet.h"

#include <string>

// A sheet drawn as text, so that a test compares the whole of it with what it should be. All drawings go line by line
// from row 0, columns from column 0, headers included; no line ends in blanks.

namespace schedules::testing {

constexpr Cell At(int column, int row)
{
    return {Column(column), Row(row)};
}

/// The texts, columns aligned: "Tag | Flow\nP-1 | 12".
std::string Drawn(const Sheet& sheet);

/// "#" for each bold cell.
std::string DrawnBold(const Sheet& sheet);

/// The colour numbers, columns aligned, "-" for none.
std::string DrawnColors(const Sheet& sheet);

/// "x" for each check box.
std::string DrawnTypes(const Sheet& sheet);

/// "L", "D" or "C" for each cell.
std::string DrawnHAlign(const Sheet& sheet);

/// "T", "B" or "C" for each cell.
std::string DrawnVAlign(const Sheet& sheet);

/// The hidden ones, in the sheet or beyond its size: "columns 1 2 rows 3"; "none" when all are visible.
std::string DrawnHidden(const Sheet& sheet);

/// The column widths in twips: "1440 | 360".
std::string DrawnWidths(const Sheet& sheet);

/// "2 columns, 1 rows".
std::string DrawnSize(const Sheet& sheet);

} // namespace schedules::testing
