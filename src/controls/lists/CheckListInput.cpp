// What the user does with a check list: keys, clicks and drags.

#include "controls/lists/CheckList.h"
#include "controls/lists/CheckListDelegate.h"
#include "controls/lists/CheckListModel.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace schedules {

namespace {

constexpr int kScrollInterval = 60; ///< milliseconds from entry to entry

constexpr Qt::Key kKeysToFirst[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_PageUp};

Qt::KeyboardModifiers ModifiersOf(const QKeyEvent& event)
{
    return event.modifiers() & ~Qt::KeypadModifier;
}

/// -1 for the key that moves an entry up, 1 for the one that moves it down, else 0.
int MoveStepOf(const QKeyEvent& event)
{
    if (ModifiersOf(event) != Qt::AltModifier)
        return 0;
    return event.key() == Qt::Key_Up ? -1 : event.key() == Qt::Key_Down ? 1 : 0;
}

bool ChecksEntry(const QKeyEvent& event)
{
    return !ModifiersOf(event) && (event.key() == Qt::Key_Space || event.key() == Qt::Key_Select);
}

} // namespace

bool CheckList::event(QEvent* event)
{
    const bool isEscape =
        event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (!isEscape || !IsDragging())
        return QListView::event(event);
    event->accept();
    return true;
}

void CheckList::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        CancelDrag();
    QListView::changeEvent(event);
}

void CheckList::hideEvent(QHideEvent* event)
{
    CancelDrag();
    QListView::hideEvent(event);
}

void CheckList::focusOutEvent(QFocusEvent* event)
{
    CancelDrag();
    QListView::focusOutEvent(event);
}

void CheckList::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    if (IsDragging())
        return PressKeyWhileDragging(*event);
    EndDrag();
    if (const int step = MoveStepOf(*event))
        return RequestMove(step);
    return ChecksEntry(*event) ? ToggleByKey() : PressOtherKey(event);
}

void CheckList::PressKeyWhileDragging(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape)
        CancelDrag();
}

void CheckList::RequestMove(int step)
{
    const int row = CurrentRow();
    if (MayMove() && row >= 0 && m_entries->Has(row + step))
        Q_EMIT MoveRequested(row, row + step);
}

void CheckList::ToggleByKey()
{
    const int selected = CurrentRow();
    const int row = selected >= 0 ? selected : currentIndex().row();
    if (row < 0 || isRowHidden(row))
        return;
    if (SelectMark(row) || row != selected)
        Q_EMIT Clicked();
}

/// Selects the entry and changes its mark, if that can be changed.
bool CheckList::SelectMark(int row)
{
    Select(row, Scrolling::No);
    const std::optional<bool> checked = m_entries->At(row).checked;
    if (checked)
        m_entries->SetChecked(row, !*checked);
    return checked.has_value();
}

void CheckList::PressOtherKey(QKeyEvent* event)
{
    const int before = CurrentRow();
    const int focused = currentIndex().row();
    const bool goesToFirst = std::ranges::count(kKeysToFirst, event->key()) > 0;
    if (before < 0 && focused >= 0 && !isRowHidden(focused) && goesToFirst)
        Select(focused, Scrolling::Yes);
    else
        Quietly([&] { QListView::keyPressEvent(event); });
    if (CurrentRow() != before)
        Q_EMIT Clicked();
}

QModelIndex CheckList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int row = currentIndex().row();
    if (row < 0 || !isRowHidden(row))
        return QListView::moveCursor(action, modifiers);
    const bool goesUp = action == MoveUp || action == MovePrevious || action == MovePageUp || action == MoveHome;
    const int step = goesUp ? -1 : 1;
    const int next = NearestShown(row, step);
    return IndexOf(next >= 0 ? next : NearestShown(row, -step));
}

int CheckList::NearestShown(int row, int step) const
{
    while (m_entries->Has(row) && isRowHidden(row))
        row += step;
    return m_entries->Has(row) ? row : -1;
}

QItemSelectionModel::SelectionFlags CheckList::selectionCommand(const QModelIndex& index, const QEvent*) const
{
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

int CheckList::MarkAt(QPoint point) const
{
    const QModelIndex index = indexAt(point);
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    return index.isValid() && m_delegate->MarkRect(option, index).contains(point) ? index.row() : -1;
}

void CheckList::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    const QPoint point = event->position().toPoint();
    const QModelIndex under = indexAt(point);
    CancelDrag();
    if (!under.isValid())
        return;
    m_drag = CheckListDrag{.row = under.row(), .pressed = point, .onMark = MarkAt(point) >= 0};
    if (m_drag->onMark)
        return;
    Select(under.row(), Scrolling::No);
    Q_EMIT Clicked();
}

void CheckList::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void CheckList::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_drag)
        return;
    if (!(event->buttons() & Qt::LeftButton))
        return CancelDrag();
    const QPoint point = event->position().toPoint();
    const bool starts = MayMove() && !m_drag->onMark && m_drag->ReachesTo(point);
    if (m_drag->started || starts)
        DragTo(point);
}

void CheckList::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    if (!m_drag)
        return;
    const QPoint point = event->position().toPoint();
    if (m_drag->started)
        DragTo(point);
    const int selected = CurrentRow();
    const CheckListDrag drag = EndDrag();
    if (drag.started)
        return Drop(drag, selected);
    if (drag.onMark && MarkAt(point) == drag.row) {
        SelectMark(drag.row);
        Q_EMIT Clicked();
    }
}

void CheckList::DragTo(QPoint point)
{
    m_drag->started = true;
    m_drag->at = point;
    const int lowest = visualRect(IndexOf(Count() - 1)).bottom();
    if (viewport()->rect().contains(point))
        HighlightLBItem(point.x(), std::min(point.y(), lowest));
    else
        Select(m_drag->row, Scrolling::No);
    ScrollNearEdges();
    viewport()->update();
}

void CheckList::ScrollNearEdges()
{
    const int margin = visualRect(IndexOf(m_drag->row)).height() / 2;
    if (EdgeStep(m_drag->at, viewport()->height(), margin) == 0)
        m_scrollTimer.stop();
    else if (!m_scrollTimer.isActive())
        m_scrollTimer.start(kScrollInterval, this);
}

void CheckList::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_scrollTimer.timerId())
        return QListView::timerEvent(event);
    const int margin = visualRect(IndexOf(m_drag->row)).height() / 2;
    QScrollBar& top = *verticalScrollBar();
    top.setValue(top.value() + EdgeStep(m_drag->at, viewport()->height(), margin));
    DragTo(m_drag->at);
}

/// Forgets the drag; what it had selected stays selected.
CheckListDrag CheckList::EndDrag()
{
    m_scrollTimer.stop();
    viewport()->update();
    return std::exchange(m_drag, std::nullopt).value_or(CheckListDrag());
}

void CheckList::CancelDrag()
{
    const CheckListDrag drag = EndDrag();
    if (drag.started)
        Select(drag.row, Scrolling::Yes);
}

void CheckList::Drop(const CheckListDrag& drag, int target)
{
    Select(drag.row, Scrolling::No);
    if (target != drag.row)
        Q_EMIT MoveRequested(drag.row, target);
}

void CheckList::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (IsDragging())
        PaintDrag();
}

void CheckList::PaintDrag()
{
    QPainter painter(viewport());
    const QRect dragged = visualRect(IndexOf(m_drag->row));
    painter.setPen(QPen(palette().color(QPalette::Highlight), 0, Qt::DashLine));
    painter.drawRect(dragged.adjusted(0, 0, -1, -1));
    const int target = CurrentRow();
    painter.fillRect(m_drag->InsertionLine(target, visualRect(IndexOf(target))), palette().color(QPalette::Text));
}

} // namespace schedules
