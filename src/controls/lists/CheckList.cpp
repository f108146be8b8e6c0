#include "controls/lists/CheckList.h"

#include "controls/lists/CheckListDelegate.h"
#include "controls/lists/CheckListModel.h"

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

} // namespace

CheckList::CheckList(QWidget* parent)
    : QListView(parent), m_entries(new CheckListModel(this)), m_delegate(new CheckListDelegate(this))
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
    EndDrag();
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
    CancelDrag();
    Select(row, Scrolling::Yes);
}

void CheckList::MoveEntry(int from, int to)
{
    if (!m_entries->Has(from) || !m_entries->Has(to))
        return;
    CancelDrag();
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
        CancelDrag();
}

void CheckList::ShowOnly(const QString& containing)
{
    CancelDrag();
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

} // namespace schedules
