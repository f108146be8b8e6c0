#include "tools/schedule/table/RowSorting.h"

#include "controls/grid/SpreadView.h"

namespace schedules {

namespace {

RowOrder Following(RowOrder order)
{
    switch (order) {
    case RowOrder::Document:
        return RowOrder::Ascending;
    case RowOrder::Ascending:
        return RowOrder::Descending;
    case RowOrder::Descending:
        break;
    }
    return RowOrder::Document;
}

std::optional<SortMark> MarkOf(Column column, RowOrder order)
{
    if (order == RowOrder::Document)
        return std::nullopt;
    return SortMark{column, order == RowOrder::Ascending ? Qt::AscendingOrder : Qt::DescendingOrder};
}

} // namespace

RowOrder RowSorting::Next(Column column) const
{
    return Following(column == m_column ? m_order : RowOrder::Document);
}

void RowSorting::Sort(Column column, RowOrder order, const std::vector<int>& headings)
{
    Sheet& sheet = *m_grid.TheSheet();
    sheet.SetRowOrder(SortedRows(sheet, column, order, headings, m_grid.locale()));
    m_column = column;
    m_order = order;
    m_grid.ShowSortMark(MarkOf(column, order));
    m_grid.EnsureVisible(sheet.ActiveCell());
}

void RowSorting::Forget()
{
    m_order = RowOrder::Document;
    m_grid.ShowSortMark(std::nullopt);
    m_grid.TheSheet()->SetRowOrder({});
}

} // namespace schedules
