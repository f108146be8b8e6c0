#include "controls/SpreadDrag.h"

#include "controls/SpreadKeys.h"

#include <algorithm>

namespace schedules {

namespace {

/// Where what the drag scrolls begins: the frozen part counts as long as it was pressed there, or nothing is scrolled.
int StartOf(const AxisLayout& axis, int from)
{
    return from < axis.FixedCount() || axis.Scroll() == 0 ? 0 : axis.FixedEnd();
}

int OvershootOf(const AxisLayout& axis, int from, int at)
{
    const int start = StartOf(axis, from);
    return at < start ? at - start : std::max(at - axis.Extent() + 1, 0);
}

int PositionNear(const AxisLayout& axis, int from, int at)
{
    const int start = StartOf(axis, from);
    return axis.NearestTo(std::clamp(at, start, std::max(axis.Extent() - 1, start)));
}

} // namespace

std::optional<Place> SpreadDrag::CornerAt(QPoint point, const SpreadGeometry& geometry, const Sheet& sheet) const
{
    const Place first = FirstPlace(sheet);
    const Place last = LastPlace(sheet);
    const int column = PositionNear(geometry.Columns(), from.column, geometry.FromStart(point.x()));
    const int row = PositionNear(geometry.Rows(), from.row, point.y());
    const Place corner{ByRows() ? last.column : std::max(column, first.column),
                       ByColumns() ? last.row : std::max(row, first.row)};
    return HoldsData(sheet, corner) ? std::optional(corner) : std::nullopt;
}

QPoint SpreadDrag::Overshoot(QPoint point, const SpreadGeometry& geometry) const
{
    const int x = OvershootOf(geometry.Columns(), from.column, geometry.FromStart(point.x()));
    const int y = OvershootOf(geometry.Rows(), from.row, point.y());
    return {ByRows() ? 0 : x, ByColumns() ? 0 : y};
}

} // namespace schedules
