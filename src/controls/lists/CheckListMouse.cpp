#include "controls/lists/CheckListMouse.h"

#include "controls/lists/CheckList.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace schedules {

namespace {

constexpr int kScrollInterval = 60; ///< milliseconds from entry to entry

} // namespace

void CheckListMouse::Press(QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return event.ignore();
    const QPoint point = event.position().toPoint();
    const QModelIndex under = m_list.indexAt(point);
    Cancel();
    if (!under.isValid())
        return;
    m_drag = CheckListDrag{.row = under.row(), .pressed = point, .onMark = m_list.MarkAt(point) >= 0};
    if (m_drag->onMark)
        return;
    m_list.Select(under.row(), CheckList::Scrolling::No);
    Q_EMIT m_list.Clicked();
}

void CheckListMouse::Move(const QMouseEvent& event)
{
    if (!m_drag)
        return;
    if (!(event.buttons() & Qt::LeftButton))
        return Cancel();
    const QPoint point = event.position().toPoint();
    const bool starts = m_list.MayMove() && !m_drag->onMark && m_drag->ReachesTo(point);
    if (m_drag->started || starts)
        DragTo(point);
}

void CheckListMouse::Release(QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return event.ignore();
    if (!m_drag)
        return;
    const QPoint point = event.position().toPoint();
    if (m_drag->started)
        DragTo(point);
    const int selected = m_list.CurrentRow();
    const CheckListDrag drag = End();
    if (drag.started)
        return Drop(drag, selected);
    if (drag.onMark && m_list.MarkAt(point) == drag.row) {
        m_list.SelectMark(drag.row);
        Q_EMIT m_list.Clicked();
    }
}

void CheckListMouse::DragTo(QPoint point)
{
    m_drag->started = true;
    m_drag->at = point;
    const int lowest = m_list.RectOf(m_list.Count() - 1).bottom();
    if (m_list.viewport()->rect().contains(point))
        m_list.HighlightLBItem(point.x(), std::min(point.y(), lowest));
    else
        m_list.Select(m_drag->row, CheckList::Scrolling::No);
    ScrollNearEdges();
    m_list.viewport()->update();
}

void CheckListMouse::ScrollNearEdges()
{
    if (EdgeStepNow() == 0)
        m_scrollTimer.stop();
    else if (!m_scrollTimer.isActive())
        m_scrollTimer.start(kScrollInterval, this);
}

int CheckListMouse::EdgeStepNow() const
{
    const int margin = m_list.RectOf(m_drag->row).height() / 2;
    return EdgeStep(m_drag->at, m_list.viewport()->height(), margin);
}

void CheckListMouse::timerEvent(QTimerEvent*)
{
    QScrollBar& top = *m_list.verticalScrollBar();
    top.setValue(top.value() + EdgeStepNow());
    DragTo(m_drag->at);
}

CheckListDrag CheckListMouse::End()
{
    m_scrollTimer.stop();
    m_list.viewport()->update();
    return std::exchange(m_drag, std::nullopt).value_or(CheckListDrag());
}

void CheckListMouse::Cancel()
{
    const CheckListDrag drag = End();
    if (drag.started)
        m_list.Select(drag.row, CheckList::Scrolling::Yes);
}

void CheckListMouse::Drop(const CheckListDrag& drag, int target)
{
    m_list.Select(drag.row, CheckList::Scrolling::No);
    if (target != drag.row)
        Q_EMIT m_list.MoveRequested(drag.row, target);
}

void CheckListMouse::PaintDrag() const
{
    if (!IsDragging())
        return;
    QPainter painter(m_list.viewport());
    painter.setPen(QPen(m_list.palette().color(QPalette::Highlight), 0, Qt::DashLine));
    painter.drawRect(m_list.RectOf(m_drag->row).adjusted(0, 0, -1, -1));
    const int target = m_list.CurrentRow();
    painter.fillRect(m_drag->InsertionLine(target, m_list.RectOf(target)), m_list.palette().color(QPalette::Text));
}

} // namespace schedules
