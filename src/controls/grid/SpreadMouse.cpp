#include "controls/grid/SpreadMouse.h"

#include "controls/grid/SpreadView.h"

#include <QMouseEvent>
#include <QTimerEvent>

#include <algorithm>

namespace schedules {

namespace {

/// Milliseconds between two steps of a view that is dragged on, and pixels that a step has at most.
constexpr int kDragInterval = 30;
constexpr int kDragSpeed = 80;

} // namespace

const Sheet& SpreadMouse::TheSheet() const
{
    return *m_view.TheSheet();
}

void SpreadMouse::Press(const QMouseEvent& event)
{
    const auto place = m_view.Shows() ? m_view.Geometry().PlaceAt(event.position().toPoint()) : std::nullopt;
    if (!place)
        return;
    const bool isData = HoldsData(TheSheet(), *place);
    if (event.button() == Qt::RightButton && isData && !m_view.IsSelected(CellOf(TheSheet(), *place)))
        m_view.Activate(CellOf(TheSheet(), *place));
    if (event.button() != Qt::LeftButton)
        return;
    if (isData)
        PressCell(*place, event.modifiers() & Qt::ShiftModifier);
    else
        PressHeader(*place);
}

void SpreadMouse::PressAgain(const QMouseEvent& event)
{
    Press(event);
    if (m_drag && event.button() == Qt::LeftButton)
        m_drag->isDouble = true;
}

void SpreadMouse::PressCell(ShownPlace place, bool extend)
{
    const Cell cell = CellOf(TheSheet(), place);
    const bool extends = extend && m_selection.Block(TheSheet());
    const bool sweeps = !extend && m_sweeps && m_sweeps(cell);
    m_drag = SpreadDrag{place, cell != TheSheet().ActiveCell(), extends, sweeps};
    if (extends)
        m_view.ExtendTo(cell);
    else
        m_view.Activate(cell);
    if (sweeps)
        Q_EMIT m_view.SweepStarted(cell);
}

void SpreadMouse::PressHeader(ShownPlace place)
{
    const Cell cell = CellOf(TheSheet(), place);
    m_drag = SpreadDrag{place};
    if (place == ShownPlace{})
        m_view.SelectAll();
    else if (place.row == 0)
        m_view.SelectColumn(cell.column);
    else
        m_view.SelectRow(cell.row);
}

void SpreadMouse::MoveTo(QPoint point)
{
    if (!m_view.Shows() || !m_drag) {
        End();
        return;
    }
    m_dragPoint = point;
    const SpreadGeometry geometry = m_view.Geometry();
    if (m_drag->Overshoot(point, geometry).isNull())
        m_dragTimer.stop();
    else if (!m_dragTimer.isActive())
        m_dragTimer.start(kDragInterval, this);
    const auto place = m_drag->CornerAt(point, geometry, TheSheet());
    if (place && m_drag->sweeps)
        SweepTo(*place);
    else if (place)
        ReachTo(*place);
}

void SpreadMouse::ReachTo(ShownPlace place)
{
    if (place == PlaceOf(TheSheet(), m_selection.Corner(TheSheet())))
        return;
    m_drag->extends = true;
    m_view.ExtendTo(CellOf(TheSheet(), place));
}

void SpreadMouse::SweepTo(ShownPlace place)
{
    const std::vector<Cell> cells = m_drag->CellsTo(place, TheSheet());
    m_drag->swept = place;
    for (const Cell cell : cells)
        Q_EMIT m_view.SweptOver(cell);
}

void SpreadMouse::timerEvent(QTimerEvent*)
{
    if (!m_view.Shows() || !m_drag) {
        End();
        return;
    }
    const QPoint overshoot = m_drag->Overshoot(m_dragPoint, m_view.Geometry());
    m_view.ScrollBy(
        {std::clamp(overshoot.x(), -kDragSpeed, kDragSpeed), std::clamp(overshoot.y(), -kDragSpeed, kDragSpeed)});
    MoveTo(m_dragPoint);
}

void SpreadMouse::End()
{
    m_dragTimer.stop();
    m_drag.reset();
}

void SpreadMouse::Release()
{
    if (!m_drag)
        return;
    const SpreadDrag drag = *m_drag;
    End();
    if (m_view.Shows() && !drag.extends && !drag.HasSwept())
        TellClick(drag);
}

void SpreadMouse::TellClick(const SpreadDrag& drag)
{
    const Cell cell = CellOf(TheSheet(), drag.from);
    if (HoldsData(TheSheet(), drag.from))
        TellCellClick(cell, drag);
    else if (drag.ByColumns() && !drag.ByRows())
        Q_EMIT m_view.HeaderClicked(cell.column);
    else if (drag.ByRows() && !drag.ByColumns())
        Q_EMIT m_view.RowHeaderClicked(cell.row);
}

void SpreadMouse::TellCellClick(Cell cell, const SpreadDrag& drag)
{
    m_view.EnsureVisible(cell);
    if (drag.sweeps)
        return;
    if (drag.movedActiveCell)
        Q_EMIT m_view.ActiveCellMoved(cell);
    else if (!drag.isDouble)
        Q_EMIT m_view.ActiveCellClicked(cell);
    Q_EMIT m_view.CellClicked(cell);
    if (drag.isDouble)
        Q_EMIT m_view.CellDoubleClicked(cell);
}

void SpreadMouse::Click(ShownPlace place)
{
    PressCell(place, false);
    Release();
}

} // namespace schedules
