#include "controls/cells/CellSymbols.h"

#include "controls/cells/SheetColors.h"

#include <QStyle>
#include <QStyleOptionButton>
#include <QWidget>

#include <algorithm>
#include <array>

namespace schedules {

namespace {

constexpr double kOutlineShare = 0.5;

} // namespace

void CellSymbols::Paint(const CellContent& content, const QRect& cell, const QColor& ground, const QColor& ink)
{
    switch (content.style.type) {
    case CellType::CheckBox:
        return m_look.widget ? PaintCheckBox(content.Ticked(), cell, ground, ink)
                             : PaintPaperBox(content.Ticked(), cell, ink);
    case CellType::StaticText:
        break;
    }
}

void CellSymbols::PaintCheckBox(bool ticked, const QRect& cell, const QColor& ground, const QColor& ink)
{
    const QStyle* style = m_look.widget->style();
    QStyleOptionButton option;
    option.initFrom(m_look.widget);
    option.palette = IndicatorPalette(ground, ink);
    option.state = QStyle::State_Enabled | (ticked ? QStyle::State_On : QStyle::State_Off);
    option.rect = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                      QSize(style->pixelMetric(QStyle::PM_IndicatorWidth, &option, m_look.widget),
                                            style->pixelMetric(QStyle::PM_IndicatorHeight, &option, m_look.widget)),
                                      cell.adjusted(0, 0, -1, -1));
    m_painter.save();
    style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &m_painter, m_look.widget);
    m_painter.restore();
}

/// Styles take the box from these colors; those of the window may be invisible on a colored cell or in a dark palette.
QPalette CellSymbols::IndicatorPalette(const QColor& ground, const QColor& ink) const
{
    QPalette palette(m_look.palette);
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::Window, Blend(ground, ink, kOutlineShare));
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::WindowText, ink);
    return palette;
}

void CellSymbols::PaintPaperBox(bool ticked, const QRect& cell, const QColor& ink)
{
    const double side = std::min<double>(m_faces.Ascent(false), std::min(cell.width(), cell.height()) - 2);
    const double thin = side / 12;
    QRectF box(0, 0, side, side);
    box.moveCenter(QRectF(cell).center());
    m_painter.save();
    m_painter.setPen(QPen(ink, thin));
    m_painter.drawRect(box);
    if (ticked) {
        m_painter.setPen(QPen(ink, 2 * thin));
        const auto at = [&](double x, double y) { return box.topLeft() + QPointF(x, y) * side; };
        const std::array tick{at(0.2, 0.5), at(0.42, 0.75), at(0.8, 0.25)};
        m_painter.drawPolyline(tick.data(), static_cast<int>(tick.size()));
    }
    m_painter.restore();
}

} // namespace schedules
