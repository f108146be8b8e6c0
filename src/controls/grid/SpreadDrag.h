#pragma once

#include "controls/grid/SpreadGeometry.h"

#include <vector>

namespace schedules {

/// The mouse held down on a sheet, from the press on. Pressed on a header, it goes for whole columns or rows. It
/// extends the selection, or sweeps over cells, each of which is told.
struct SpreadDrag
{
    ShownPlace from;
    bool movedActiveCell = false;
    bool extends = false; ///< the selection reaches further than the press
    bool sweeps = false;
    bool isDouble = false;   ///< it began with the second press of a double click
    ShownPlace swept = from; ///< how far it has swept

    bool HasSwept() const { return swept != from; }
    bool ByColumns() const { return from.row == 0; }
    bool ByRows() const { return from.column == 0; }

    /// The data cell up to which the selection reaches with the mouse at a point, inside of the view or not.
    std::optional<ShownPlace> CornerAt(QPoint point, const SpreadGeometry& geometry, const Sheet& sheet) const;

    /// The visible data cells of the block from where it has swept to a place, without the former.
    std::vector<Cell> CellsTo(ShownPlace place, const Sheet& sheet) const;

    /// How far the point is outside of what scrolls: so far the view is to scroll, as scroll values count.
    QPoint Overshoot(QPoint point, const SpreadGeometry& geometry) const;
};

} // namespace schedules
