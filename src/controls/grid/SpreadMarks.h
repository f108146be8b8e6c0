#pragma once

#include "spread/Address.h"

#include <QRectF>

#include <optional>

class QColor;
class QPainter;

namespace schedules {

/// By which column the rows are sorted, told by an arrow in its header.
struct SortMark
{
    Column column;
    Qt::SortOrder order = Qt::AscendingOrder;

    bool operator==(const SortMark&) const = default;
};

/// What a sheet shows on screen beside its cells and the selection; paper shows nothing of it.
struct ShownMarks
{
    bool editable = false; ///< cells that may be edited are tinted
    std::optional<SortMark> sort;
};

/// Paints small filled triangles into the far top corners of cells, above and beside their texts. Sizes are in the
/// painter's units.
class SpreadMarks
{
public:
    /// The ascent of the font gives the size of the marks. `line` is the width of the line along the far edge, which
    /// they leave free.
    SpreadMarks(QPainter& painter, double ascent, double line, Qt::LayoutDirection direction)
        : m_painter(painter), m_ascent(ascent), m_line(line), m_direction(direction)
    {
    }

    /// Fills the corner itself.
    void PaintCorner(const QRectF& cell, const QColor& color);

    /// Points up for what ascends.
    void PaintArrow(const QRectF& cell, Qt::SortOrder order, const QColor& color);

private:
    QPointF CornerOf(const QRectF& cell) const;
    double Inwards() const { return m_direction == Qt::LeftToRight ? -1 : 1; }
    void Fill(const QPointF (&triangle)[3], const QColor& color);

    QPainter& m_painter;
    double m_ascent;
    double m_line;
    Qt::LayoutDirection m_direction;
};

} // namespace schedules
