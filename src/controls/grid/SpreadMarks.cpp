#include "controls/grid/SpreadMarks.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace schedules {

namespace {

// Parts of the font's ascent; an arrow is not higher than what the ascent leaves free above capital letters.
constexpr double kCornerShare = 0.6;
constexpr double kArrowWidthShare = 0.65;
constexpr double kArrowHeightShare = 0.35;

} // namespace

void SpreadMarks::PaintCorner(const QRectF& cell, const QColor& color)
{
    const double side = std::round(std::min({m_ascent * kCornerShare, cell.width() / 2, cell.height() / 2}));
    const QPointF corner = CornerOf(cell);
    Fill({corner, corner + QPointF(Inwards() * side, 0), corner + QPointF(0, side)}, color);
}

void SpreadMarks::PaintArrow(const QRectF& cell, Qt::SortOrder order, const QColor& color)
{
    const double width = std::round(m_ascent * kArrowWidthShare);
    const double height = std::round(m_ascent * kArrowHeightShare);
    const QPointF outer = CornerOf(cell) + QPointF(Inwards() * m_line, m_line);
    const QPointF down(0, height);
    const QPointF point = outer + QPointF(Inwards() * width / 2, 0);
    const QPointF inner = outer + QPointF(Inwards() * width, 0);
    if (order == Qt::AscendingOrder)
        Fill({point, inner + down, outer + down}, color);
    else
        Fill({point + down, inner, outer}, color);
}

QPointF SpreadMarks::CornerOf(const QRectF& cell) const
{
    return m_direction == Qt::LeftToRight ? QPointF(cell.right() - m_line, cell.top())
                                          : QPointF(cell.left() + m_line, cell.top());
}

void SpreadMarks::Fill(const QPointF (&triangle)[3], const QColor& color)
{
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.drawConvexPolygon(triangle, 3);
    m_painter.restore();
}

} // namespace schedules
