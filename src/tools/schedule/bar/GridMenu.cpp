#include "tools/schedule/bar/GridMenu.h"

#include "common/modResource.h"
#include "controls/grid/SpreadView.h"
#include "tools/schedule/ViewSettings.h"
#include "tools/schedule/bar/ViewCommands.h"
#include "tools/schedule/picking/TagPicking.h"
#include "tools/schedule/table/RowSorting.h"
#include "tools/schedule/table/ShownTable.h"

#include <QMenu>

namespace schedules {

namespace {

const char* NameOf(RowOrder order)
{
    switch (order) {
    case RowOrder::Ascending:
        return QT_TRANSLATE_NOOP("Schedules", "Sort Ascending");
    case RowOrder::Descending:
        return QT_TRANSLATE_NOOP("Schedules", "Sort Descending");
    case RowOrder::Document:
        break;
    }
    return QT_TRANSLATE_NOOP("Schedules", "Document Order");
}

} // namespace

GridMenu::GridMenu(const ViewLink& link, const ViewSettings& settings, ShownTable& table, TagPicking& picking,
                   RowSorting& sorting, ViewCommands& commands)
    : m_link(link), m_settings(settings), m_table(table), m_picking(picking), m_sorting(sorting), m_commands(commands)
{
}

void GridMenu::Open(QPoint point)
{
    SpreadView& grid = m_table.Grid();
    if (const auto cell = grid.CellAt(point); cell && cell->row == Row(0))
        grid.SelectColumn(cell->column);
    auto* menu = new QMenu(&m_link.view);
    menu->setObjectName(QStringLiteral("mnuGrid"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    AddTicking(*menu);
    AddSorting(*menu);
    if (menu->isEmpty())
        delete menu;
    else
        menu->popup(grid.viewport()->mapToGlobal(point));
}

void GridMenu::AddTicking(QMenu& menu)
{
    if (!m_table.Shown() || !m_settings.IsSelectorView())
        return;
    const auto add = [&](const char* text, TagPicking::Ticking ticking) {
        menu.addAction(ComponentText(text), &m_link.view,
                       [this, ticking] { m_link.tellingUser("TickVisible", [&] { m_picking.TickVisible(ticking); }); });
    };
    add(QT_TRANSLATE_NOOP("Schedules", "Select All"), TagPicking::Ticking::All);
    add(QT_TRANSLATE_NOOP("Schedules", "Select None"), TagPicking::Ticking::None);
    add(QT_TRANSLATE_NOOP("Schedules", "Invert Selection"), TagPicking::Ticking::Invert);
    menu.addSeparator();
}

void GridMenu::AddSorting(QMenu& menu)
{
    if (!m_commands.Sortable())
        return;
    const RowOrder next = m_sorting.Next(m_table.Shown()->ActiveCell().column);
    menu.addAction(ComponentText(NameOf(next)), &m_link.view, [this] {
        m_link.tellingUser("DoColSort", [this] {
            m_commands.Begin();
            m_commands.DoColSort();
        });
    });
}

} // namespace schedules
