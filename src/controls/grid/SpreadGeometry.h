#pragma once

#include "controls/grid/AxisLayout.h"
#include "controls/grid/ShownPlace.h"

#include <QPoint>
#include <QRect>
#include <QSize>

#include <array>
#include <optional>

namespace schedules {

/// Through what a sheet is looked at: pixels, and dots per inch in both directions.
struct SheetWindow
{
    QSize size;
    QPoint scroll;
    double dpiX = 96;
    double dpiY = 96;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// Where the cells of a sheet stand on screen. From right to left everything is mirrored: column 0 is then at the
/// right.
class SpreadGeometry
{
public:
    /// The sheet must outlive the geometry, and must not change meanwhile.
    SpreadGeometry(const Sheet& sheet, const SheetWindow& window);

    const AxisLayout& Columns() const { return m_columns; }
    const AxisLayout& Rows() const { return m_rows; }
    bool Mirrored() const { return m_direction == Qt::RightToLeft; }

    /// The whole rectangle of a cell, which may lie outside of the window; empty for a hidden one.
    QRect RectOf(ShownPlace place) const;

    /// The part of it that is seen.
    QRect SeenRectOf(ShownPlace place) const;

    std::optional<ShownPlace> PlaceAt(QPoint point) const;

    /// The visible place nearest to a point; nothing when there is none.
    std::optional<ShownPlace> PlaceNearestTo(QPoint point) const;

    /// The four panes: what stays in place, what scrolls in one direction each, and what scrolls in both.
    std::array<QRect, 4> Panes() const;

    /// The rectangle of two stretches, the horizontal one counted from the edge where column 0 is.
    QRect Rect(Span horizontal, Span vertical) const;

    /// The distance of a point from the edge where column 0 is.
    int FromStart(int x) const { return Mirrored() ? m_columns.Extent() - 1 - x : x; }

private:
    AxisLayout m_columns;
    AxisLayout m_rows;
    Qt::LayoutDirection m_direction;
};

} // namespace schedules
