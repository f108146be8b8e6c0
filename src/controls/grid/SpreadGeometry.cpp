#include "controls/grid/SpreadGeometry.h"

namespace schedules {

SpreadGeometry::SpreadGeometry(const Sheet& sheet, const SheetWindow& window)
    : m_columns(sheet.Columns(), {window.dpiX, window.size.width(), sheet.FrozenColumns(), window.scroll.x()}),
      m_rows(sheet.Rows(), {window.dpiY, window.size.height(), sheet.FrozenRows(), window.scroll.y()}),
      m_direction(window.direction)
{
}

QRect SpreadGeometry::RectOf(ShownPlace place) const
{
    return Rect(m_columns.SpanOf(place.column), m_rows.SpanOf(place.row));
}

QRect SpreadGeometry::SeenRectOf(ShownPlace place) const
{
    return Rect(m_columns.SeenSpanOf(place.column), m_rows.SeenSpanOf(place.row));
}

std::optional<ShownPlace> SpreadGeometry::PlaceAt(QPoint point) const
{
    const ShownPlace place{m_columns.PositionAt(FromStart(point.x())), m_rows.PositionAt(point.y())};
    return place.column >= 0 && place.row >= 0 ? std::optional(place) : std::nullopt;
}

std::optional<ShownPlace> SpreadGeometry::PlaceNearestTo(QPoint point) const
{
    const ShownPlace place{m_columns.NearestTo(FromStart(point.x())), m_rows.NearestTo(point.y())};
    return place.column >= 0 && place.row >= 0 ? std::optional(place) : std::nullopt;
}

std::array<QRect, 4> SpreadGeometry::Panes() const
{
    const std::array columns{Span{0, m_columns.FixedEnd()}, Span{m_columns.FixedEnd(), m_columns.ShownEnd()}};
    const std::array rows{Span{0, m_rows.FixedEnd()}, Span{m_rows.FixedEnd(), m_rows.ShownEnd()}};
    return {Rect(columns[0], rows[0]), Rect(columns[1], rows[0]), Rect(columns[0], rows[1]), Rect(columns[1], rows[1])};
}

QRect SpreadGeometry::Rect(Span horizontal, Span vertical) const
{
    const int left = Mirrored() ? m_columns.Extent() - horizontal.end : horizontal.start;
    return {left, vertical.start, horizontal.Length(), vertical.Length()};
}

} // namespace schedules
