// Sorting, and the menus of the grid.

#include "common/modResource.h"
#include "controls/SpreadView.h"
#include "tools/schedule/ctlSchedule.h"

#include <QMenu>

namespace schedules {

namespace {

RowOrder Following(RowOrder order)
{
    switch (order) {
    case RowOrder::Document:
        return RowOrder::Ascending;
    case RowOrder::Ascending:
        return RowOrder::Descending;
    default:
        return RowOrder::Document;
    }
}

const char* NameOf(RowOrder order)
{
    switch (order) {
    case RowOrder::Ascending:
        return QT_TRANSLATE_NOOP("Schedules", "Sort Ascending");
    case RowOrder::Descending:
        return QT_TRANSLATE_NOOP("Schedules", "Sort Descending");
    default:
        return QT_TRANSLATE_NOOP("Schedules", "Document Order");
    }
}

std::optional<SortMark> MarkOf(Column column, RowOrder order)
{
    if (order == RowOrder::Document)
        return std::nullopt;
    return SortMark{column, order == RowOrder::Ascending ? Qt::AscendingOrder : Qt::DescendingOrder};
}

} // namespace

void ctlSchedule::HeaderClick(Column column)
{
    m_spread->SelectColumn(column);
}

bool ctlSchedule::Sortable() const
{
    return m_sheet && m_engine.SchedOrientation() == 0 && m_sheet->ActiveCell().column >= Column(1);
}

RowOrder ctlSchedule::NextOrder() const
{
    return Following(m_sheet->ActiveCell().column == m_sortedColumn ? m_rowOrder : RowOrder::Document);
}

void ctlSchedule::DoColSort()
{
    TellingUser(__func__, [this] {
        CommitCellEdit();
        if (Sortable())
            Sort(m_sheet->ActiveCell().column, NextOrder());
    });
}

void ctlSchedule::Sort(Column column, RowOrder order)
{
    // In the transposed layout the headings are columns.
    const std::vector<int> headings = m_engine.TransposeData() ? std::vector<int>() : m_engine.GroupHeadings();
    m_sheet->SetRowOrder(SortedRows(*m_sheet, column, order, headings, locale()));
    m_sortedColumn = column;
    m_rowOrder = order;
    m_spread->ShowSortMark(MarkOf(column, order));
    m_spread->EnsureVisible(m_sheet->ActiveCell());
}

void ctlSchedule::ForgetSorting()
{
    m_rowOrder = RowOrder::Document;
    m_spread->ShowSortMark(std::nullopt);
    m_sheet->SetRowOrder({});
}

void ctlSchedule::ShowContextMenu(QPoint point)
{
    TellingUser(__func__, [&] {
        CommitCellEdit();
        if (!m_sheet)
            return;
        auto* menu = new QMenu(this);
        menu->setObjectName(QStringLiteral("mnuGrid"));
        menu->setAttribute(Qt::WA_DeleteOnClose);
        if (IsSelectorView())
            AddTickingTo(*menu);
        if (const auto cell = m_spread->CellAt(point); cell && cell->row == Row(0))
            HeaderClick(cell->column);
        if (Sortable())
            AddSortingTo(*menu);
        if (menu->isEmpty())
            delete menu;
        else
            menu->popup(m_spread->viewport()->mapToGlobal(point));
    });
}

void ctlSchedule::AddTickingTo(QMenu& menu)
{
    const auto add = [&](const char* text, bool (*ticks)(bool)) {
        menu.addAction(ComponentText(text), this,
                       [this, ticks] { TellingUser("TickVisible", [&] { TickVisible(ticks); }); });
    };
    add(QT_TRANSLATE_NOOP("Schedules", "Select All"), [](bool) { return true; });
    add(QT_TRANSLATE_NOOP("Schedules", "Select None"), [](bool) { return false; });
    add(QT_TRANSLATE_NOOP("Schedules", "Invert Selection"), [](bool ticked) { return !ticked; });
}

void ctlSchedule::AddSortingTo(QMenu& menu)
{
    menu.addSeparator();
    menu.addAction(ComponentText(NameOf(NextOrder())), this, &ctlSchedule::DoColSort);
}

} // namespace schedules
