#include "tools/schedule/layout/Legend.h"

#include "tools/schedule/table/ShownTable.h"

namespace schedules {

namespace {

constexpr auto kOfRows = "Note: the first data row contains selection requirements only.";
constexpr auto kOfColumns = "Note: the first data column contains selection requirements only.";

} // namespace

Legend::Legend(QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("lblLegend"));
    setWordWrap(true);
    hide();
}

void Legend::Follow(const ShownTable& table)
{
    const bool hasRows = table.RowsFrozen() != 0;
    const bool hasColumns = table.ColsFrozen() != 0;
    if (table.ShowsTags() && (hasRows || hasColumns))
        setText(QLatin1String(hasRows ? kOfRows : kOfColumns));
    setVisible(table.ShowsTags() && (hasRows || hasColumns));
}

} // namespace schedules
