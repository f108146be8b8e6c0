#include "controls/lists/CheckList.h"

#include "controls/lists/CheckListDelegate.h"
#include "controls/lists/CheckListModel.h"

#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace schedules {

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr int kNotVisibleTwips = 60; ///< of the list's height

/// How much of the list's height entries may take to be called visible.
int VisibleHeight(const CheckList& list)
{
    const int less = kNotVisibleTwips * list.logicalDpiY() / kTwipsPerInch;
    return std::min(list.height() - less, list.viewport()->height());
}

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

CheckList::CheckList(QWidget* parent)
    : QListView(parent), m_entries(new CheckListModel(this)), m_delegate(new CheckListDelegate(this)), m_mouse(*this)
{
    setModel(m_entries);
    setItemDelegate(m_delegate);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setMouseTracking(true); // tells a drag whose release went elsewhere that it is over
    // Assistive programs select too, and are the user.
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_quiet && CurrentRow() >= 0)
            Q_EMIT Clicked();
    });
}

void CheckList::AddEntry(const QString& text, int id, std::optional<bool> checked)
{
    m_entries->Add({text, id, checked});
    if (IsNarrowed())
        Narrow(Count() - 1, Count() - 1);
}

void CheckList::Clear()
{
    m_mouse.End();
    Quietly([&] { m_entries->Clear(); });
}

int CheckList::Count() const
{
    return m_entries->Count();
}

QString CheckList::Text(int row) const
{
    return m_entries->Has(row) ? m_entries->At(row).text : QString();
}

int CheckList::Id(int row) const
{
    return m_entries->Has(row) ? m_entries->At(row).id : 0;
}

bool CheckList::Checked(int row) const
{
    return m_entries->Has(row) && m_entries->At(row).checked.value_or(false);
}

int CheckList::RowOf(int id) const
{
    return m_entries->RowOf(id);
}

void CheckList::SetText(int row, const QString& text)
{
    if (m_entries->Has(row))
        m_entries->SetText(row, text);
}

void CheckList::SetChecked(int row, std::optional<bool> checked)
{
    if (m_entries->Has(row))
        m_entries->SetChecked(row, checked);
}

int CheckList::CurrentRow() const
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.front().row();
}

void CheckList::SetCurrentRow(int row)
{
    m_mouse.Cancel();
    Select(row, Scrolling::Yes);
}

void CheckList::MoveEntry(int from, int to)
{
    if (!m_entries->Has(from) || !m_entries->Has(to))
        return;
    m_mouse.Cancel();
    const int selected = CurrentRow();
    m_entries->Move(from, to);
    // A hidden list scrolls to what is selected when it is shown.
    if (selected >= 0)
        Select(RowAfterMove(selected, from, to), isVisible() ? Scrolling::No : Scrolling::Yes);
    KeepVisible(to);
}

void CheckList::HighlightLBItem(int x, int y)
{
    const QModelIndex under = indexAt({x, y});
    if (under.isValid() && under.row() != CurrentRow())
        Select(under.row(), Scrolling::No);
}

void CheckList::SetMovable(bool movable)
{
    m_movable = movable;
    if (!movable)
        m_mouse.Cancel();
}

void CheckList::ShowOnly(const QString& containing)
{
    m_mouse.Cancel();
    m_containing = containing;
    Narrow(0, Count() - 1);
    if (!IsNarrowed() && CurrentRow() >= 0)
        scrollTo(IndexOf(CurrentRow()));
}

void CheckList::Narrow(int first, int last)
{
    for (int row = first; row <= last; ++row)
        setRowHidden(row, !Text(row).contains(m_containing, Qt::CaseInsensitive));
}

/// It would also find what is hidden.
void CheckList::keyboardSearch(const QString& search)
{
    if (!IsNarrowed())
        QListView::keyboardSearch(search);
}

/// All entries are equally high and wide, so that what they hold changes nothing of the layout.
void CheckList::dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles)
{
    QAbstractItemView::dataChanged(first, last, roles);
    if (IsNarrowed())
        Narrow(first.row(), last.row());
}

QModelIndex CheckList::IndexOf(int row) const
{
    return m_entries->index(row);
}

void CheckList::Select(int row, Scrolling scrolling)
{
    Quietly([&] {
        const bool scrolled = hasAutoScroll();
        setAutoScroll(scrolling == Scrolling::Yes);
        selectionModel()->setCurrentIndex(IndexOf(row), QItemSelectionModel::ClearAndSelect);
        setAutoScroll(scrolled);
    });
}

void CheckList::KeepVisible(int row)
{
    executeDelayedItemsLayout();
    const int height = visualRect(IndexOf(row)).height();
    if (IsNarrowed() || height <= 0)
        return scrollTo(IndexOf(row));
    const int shown = std::max(VisibleHeight(*this) / height, 1);
    QScrollBar& top = *verticalScrollBar();
    top.setValue(std::clamp(top.value(), row - shown + 1, row));
}

bool CheckList::event(QEvent* event)
{
    const bool isEscape =
        event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (!isEscape || !m_mouse.IsDragging())
        return QListView::event(event);
    event->accept();
    return true;
}

void CheckList::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        m_mouse.Cancel();
    QListView::changeEvent(event);
}

void CheckList::hideEvent(QHideEvent* event)
{
    m_mouse.Cancel();
    QListView::hideEvent(event);
}

void CheckList::focusOutEvent(QFocusEvent* event)
{
    m_mouse.Cancel();
    QListView::focusOutEvent(event);
}

void CheckList::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    if (m_mouse.IsDragging())
        return PressKeyWhileDragging(*event);
    m_mouse.End();
    if (const int step = MoveStepOf(*event))
        return RequestMove(step);
    return ChecksEntry(*event) ? ToggleByKey() : PressOtherKey(event);
}

void CheckList::PressKeyWhileDragging(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape)
        m_mouse.Cancel();
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

QRect CheckList::RectOf(int row) const
{
    return visualRect(IndexOf(row));
}

void CheckList::mousePressEvent(QMouseEvent* event)
{
    m_mouse.Press(*event);
}

void CheckList::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_mouse.Press(*event);
}

void CheckList::mouseMoveEvent(QMouseEvent* event)
{
    m_mouse.Move(*event);
}

void CheckList::mouseReleaseEvent(QMouseEvent* event)
{
    m_mouse.Release(*event);
}

void CheckList::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    m_mouse.PaintDrag();
}

} // namespace schedules
