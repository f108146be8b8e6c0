#include "controls/grid/SpreadSelection.h"

#include <QStringList>

#include <algorithm>
#include <vector>

namespace schedules {

namespace {

std::vector<int> VisibleItems(const Axis& axis, int first, int last)
{
    std::vector<int> items;
    for (int position = axis.VisibleFrom(first, 1); position >= 0 && position <= last;
         position = axis.VisibleFrom(position + 1, 1))
        items.push_back(axis.ItemAt(position));
    return items;
}

QString Quoted(QString text)
{
    const auto parts = [](QChar character) {
        return character == u'\t' || character == u'\n' || character == u'\r' || character == u'"';
    };
    if (std::ranges::none_of(std::as_const(text), parts))
        return text;
    return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

} // namespace

std::optional<ShownBlock> SpreadSelection::Block(const Sheet& sheet) const
{
    const ShownPlace active = PlaceOf(sheet, sheet.ActiveCell());
    const ShownPlace corner = PlaceOf(sheet, Corner(sheet));
    if (!HoldsData(sheet, active))
        return std::nullopt;
    if (!HoldsData(sheet, corner))
        return ShownBlock{active, active};
    return ShownBlock{{std::min(active.column, corner.column), std::min(active.row, corner.row)},
                      {std::max(active.column, corner.column), std::max(active.row, corner.row)}};
}

QString SpreadSelection::Text(const Sheet& sheet) const
{
    const auto block = Block(sheet);
    if (!block)
        return {};
    QString text;
    const std::vector<int> columns = VisibleItems(sheet.Columns(), block->first.column, block->last.column);
    for (const int row : VisibleItems(sheet.Rows(), block->first.row, block->last.row)) {
        QStringList cells;
        for (const int column : columns)
            cells.append(Quoted(sheet.Text({Column(column), Row(row)})));
        text += cells.join(u'\t') + u'\n';
    }
    return text;
}

} // namespace schedules
