#pragma once

#include "spread/Sheet.h"

namespace schedules {

/// Where a cell is shown, counted in display order: unlike a `Cell`, it changes when rows are sorted. 0 is the header.
struct ShownPlace
{
    int column = 0;
    int row = 0;

    bool operator==(const ShownPlace&) const = default;
};

/// A block of places, both corners included.
struct ShownBlock
{
    ShownPlace first;
    ShownPlace last;

    bool ContainsColumn(int column) const { return first.column <= column && column <= last.column; }
    bool ContainsRow(int row) const { return first.row <= row && row <= last.row; }
    bool Contains(ShownPlace place) const { return ContainsColumn(place.column) && ContainsRow(place.row); }
    bool operator==(const ShownBlock&) const = default;
};

inline ShownPlace PlaceOf(const Sheet& sheet, Cell cell)
{
    return {sheet.Columns().PositionOf(cell.column.Value()), sheet.Rows().PositionOf(cell.row.Value())};
}

inline Cell CellOf(const Sheet& sheet, ShownPlace place)
{
    return {Column(sheet.Columns().ItemAt(place.column)), Row(sheet.Rows().ItemAt(place.row))};
}

/// Whether there is a data cell at a place; headers are none.
inline bool HoldsData(const Sheet& sheet, ShownPlace place)
{
    return place.column >= 1 && place.column <= sheet.ColumnCount() && place.row >= 1 && place.row <= sheet.RowCount();
}

} // namespace schedules
