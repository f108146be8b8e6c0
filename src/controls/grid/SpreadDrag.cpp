#include "controls/grid/SpreadDrag.h"

#include "controls/grid/SpreadKeys.h"

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

std::vector<int> VisibleBetween(const Axis& axis, int one, int other)
{
    std::vector<int> positions;
    const auto [first, last] = std::minmax(one, other);
    for (int position = axis.VisibleFrom(first, 1); position >= 0 && position <= last;
         position = axis.VisibleFrom(position + 1, 1))
        positions.push_back(position);
    return positions;
}

} // namespace

std::optional<ShownPlace> SpreadDrag::CornerAt(QPoint point, const SpreadGeometry& geometry, const Sheet& sheet) const
{
    const ShownPlace first = FirstPlace(sheet);
    const ShownPlace last = LastPlace(sheet);
    const int column = PositionNear(geometry.Columns(), from.column, geometry.FromStart(point.x()));
    const int row = PositionNear(geometry.Rows(), from.row, point.y());
    const ShownPlace corner{ByRows() ? last.column : std::max(column, first.column),
                            ByColumns() ? last.row : std::max(row, first.row)};
    return HoldsData(sheet, corner) ? std::optional(corner) : std::nullopt;
}

std::vector<Cell> SpreadDrag::CellsTo(ShownPlace place, const Sheet& sheet) const
{
    std::vector<Cell> cells;
    const std::vector<int> columns = VisibleBetween(sheet.Columns(), swept.column, place.column);
    for (const int row : VisibleBetween(sheet.Rows(), swept.row, place.row)) {
        for (const int column : columns) {
            if (ShownPlace{column, row} != swept)
                cells.push_back(CellOf(sheet, {column, row}));
        }
    }
    return cells;
}

QPoint SpreadDrag::Overshoot(QPoint point, const SpreadGeometry& geometry) const
{
    const int x = OvershootOf(geometry.Columns(), from.column, geometry.FromStart(point.x()));
    const int y = OvershootOf(geometry.Rows(), from.row, point.y());
    return {ByRows() ? 0 : x, ByColumns() ? 0 : y};
}

} // namespace schedules
