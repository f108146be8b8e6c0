#include "controls/grid/SpreadView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>

namespace schedules {

namespace {

/// Milliseconds between two steps of a view that is dragged on, and pixels that a step has at most.
constexpr int kDragInterval = 30;
constexpr int kDragSpeed = 80;

} // namespace

bool SpreadView::event(QEvent* event)
{
    // Else a menu with the same shortcut would take the key.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll))
            event->accept();
    }
    return QAbstractScrollArea::event(event);
}

void SpreadView::keyPressEvent(QKeyEvent* event)
{
    if (!Shows())
        event->ignore();
    else if (const Move keyMove = MoveOf(*event, isRightToLeft()))
        GoBy(keyMove, event->modifiers() & Qt::ShiftModifier);
    else if (event->matches(QKeySequence::Copy))
        Copy();
    else if (event->matches(QKeySequence::SelectAll))
        SelectAll();
    else
        event->ignore();
}

void SpreadView::PressMoveKey(Qt::Key key)
{
    const QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    const Move keyMove = Shows() ? MoveOf(press, isRightToLeft()) : nullptr;
    if (keyMove)
        GoBy(keyMove, false);
}

void SpreadView::GoBy(Move keyMove, bool extend)
{
    const SpreadGeometry geometry = Geometry();
    const bool anywhere = m_selection.Block(*m_sheet).has_value();
    const Place from = PlaceOf(*m_sheet, extend ? m_selection.Corner(*m_sheet) : m_sheet->ActiveCell());
    const Place to = anywhere ? keyMove({*m_sheet, geometry, from}) : FirstPlace(*m_sheet);
    if (!HoldsData(*m_sheet, to))
        return;
    if (anywhere && IsPageMove(keyMove))
        ScrollBy({0, geometry.Rows().Distance(from.row, to.row)});
    const Cell cell = CellOf(*m_sheet, to);
    const bool extends = extend && anywhere;
    const bool moves = cell != m_sheet->ActiveCell() && !extends;
    if (extends)
        ExtendTo(cell);
    else
        Activate(cell);
    EnsureVisible(cell);
    if (moves)
        Q_EMIT ActiveCellMoved(cell);
}

void SpreadView::wheelEvent(QWheelEvent* event)
{
    const QPoint pixels = event->pixelDelta();
    if (pixels.isNull()) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    ScrollBy({isRightToLeft() ? pixels.x() : -pixels.x(), -pixels.y()});
    event->accept();
}

void SpreadView::mousePressEvent(QMouseEvent* event)
{
    const auto place = Shows() ? Geometry().PlaceAt(event->position().toPoint()) : std::nullopt;
    if (!place)
        return;
    if (event->button() == Qt::RightButton && HoldsData(*m_sheet, *place) && !IsSelected(CellOf(*m_sheet, *place)))
        Activate(CellOf(*m_sheet, *place));
    if (event->button() != Qt::LeftButton)
        return;
    if (HoldsData(*m_sheet, *place))
        PressCell(*place, event->modifiers() & Qt::ShiftModifier);
    else
        PressHeader(*place);
}

void SpreadView::PressCell(Place place, bool extend)
{
    const Cell cell = CellOf(*m_sheet, place);
    const bool extends = extend && m_selection.Block(*m_sheet);
    const bool sweeps = !extend && m_sweeps && m_sweeps(cell);
    m_drag = SpreadDrag{place, cell != m_sheet->ActiveCell(), extends, sweeps};
    if (extends)
        ExtendTo(cell);
    else
        Activate(cell);
    if (sweeps)
        Q_EMIT SweepStarted(cell);
}

void SpreadView::PressHeader(Place place)
{
    const Cell cell = CellOf(*m_sheet, place);
    m_drag = SpreadDrag{place};
    if (place == Place{})
        SelectAll();
    else if (place.row == 0)
        SelectColumn(cell.column);
    else
        SelectRow(cell.row);
}

void SpreadView::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
    if (m_drag && event->button() == Qt::LeftButton)
        m_drag->isDouble = true;
}

void SpreadView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_drag)
        DragTo(event->position().toPoint());
}

void SpreadView::DragTo(QPoint point)
{
    if (!Shows() || !m_drag) {
        EndDrag();
        return;
    }
    m_dragPoint = point;
    const SpreadGeometry geometry = Geometry();
    if (m_drag->Overshoot(point, geometry).isNull())
        m_dragTimer.stop();
    else if (!m_dragTimer.isActive())
        m_dragTimer.start(kDragInterval, this);
    const auto place = m_drag->CornerAt(point, geometry, *m_sheet);
    if (place && m_drag->sweeps)
        SweepTo(*place);
    else if (place)
        ReachTo(*place);
}

void SpreadView::ReachTo(Place place)
{
    if (place == PlaceOf(*m_sheet, m_selection.Corner(*m_sheet)))
        return;
    m_drag->extends = true;
    ExtendTo(CellOf(*m_sheet, place));
}

void SpreadView::SweepTo(Place place)
{
    const std::vector<Cell> cells = m_drag->CellsTo(place, *m_sheet);
    m_drag->swept = place;
    for (const Cell cell : cells)
        Q_EMIT SweptOver(cell);
}

void SpreadView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_dragTimer.timerId()) {
        QAbstractScrollArea::timerEvent(event);
        return;
    }
    if (!Shows() || !m_drag) {
        EndDrag();
        return;
    }
    const QPoint overshoot = m_drag->Overshoot(m_dragPoint, Geometry());
    ScrollBy({std::clamp(overshoot.x(), -kDragSpeed, kDragSpeed), std::clamp(overshoot.y(), -kDragSpeed, kDragSpeed)});
    DragTo(m_dragPoint);
}

void SpreadView::EndDrag()
{
    m_dragTimer.stop();
    m_drag.reset();
}

void SpreadView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        Release();
}

void SpreadView::Release()
{
    if (!m_drag)
        return;
    const SpreadDrag drag = *m_drag;
    EndDrag();
    if (Shows() && !drag.extends && !drag.HasSwept())
        TellClick(drag);
}

void SpreadView::TellClick(const SpreadDrag& drag)
{
    const Cell cell = CellOf(*m_sheet, drag.from);
    if (HoldsData(*m_sheet, drag.from))
        TellCellClick(cell, drag);
    else if (drag.ByColumns() && !drag.ByRows())
        Q_EMIT HeaderClicked(cell.column);
    else if (drag.ByRows() && !drag.ByColumns())
        Q_EMIT RowHeaderClicked(cell.row);
}

void SpreadView::TellCellClick(Cell cell, const SpreadDrag& drag)
{
    EnsureVisible(cell);
    if (drag.sweeps)
        return;
    if (drag.movedActiveCell)
        Q_EMIT ActiveCellMoved(cell);
    Q_EMIT CellClicked(cell);
    if (drag.isDouble)
        Q_EMIT CellDoubleClicked(cell);
}

void SpreadView::Click(Cell cell)
{
    if (!Shows() || CellRect(cell).isEmpty() || !HoldsData(*m_sheet, PlaceOf(*m_sheet, cell)))
        return;
    setFocus(Qt::MouseFocusReason);
    PressCell(PlaceOf(*m_sheet, cell), false);
    Release();
}

} // namespace schedules
