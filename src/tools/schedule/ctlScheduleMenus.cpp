// The grid's menu, and sorting, which it offers.

#include "common/modResource.h"
#include "controls/grid/SpreadView.h"
#include "tools/schedule/RowSorting.h"
#include "tools/schedule/ctlSchedule.h"

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

bool ctlSchedule::Sortable() const
{
    return m_sheet && m_engine.SchedOrientation() == 0 && m_sheet->ActiveCell().column >= Column(1);
}

void ctlSchedule::DoColSort()
{
    TellingUser(__func__, [this] {
        BeginCommand();
        if (!Sortable())
            return;
        // In the transposed layout the headings are columns.
        const std::vector<int> headings = m_engine.TransposeData() ? std::vector<int>() : m_engine.GroupHeadings();
        m_sorting->Sort(m_sheet->ActiveCell().column, headings);
    });
}

void ctlSchedule::ShowContextMenu(QPoint point)
{
    TellingUser(__func__, [&] {
        BeginCommand();
        if (const auto cell = m_spread->CellAt(point); cell && cell->row == Row(0))
            m_spread->SelectColumn(cell->column);
        auto* menu = new QMenu(this);
        menu->setObjectName(QStringLiteral("mnuGrid"));
        menu->setAttribute(Qt::WA_DeleteOnClose);
        FillContextMenu(*menu);
        if (menu->isEmpty())
            delete menu;
        else
            menu->popup(m_spread->viewport()->mapToGlobal(point));
    });
}

void ctlSchedule::FillContextMenu(QMenu& menu)
{
    const auto addTicking = [&](const char* text, Ticking ticking) {
        menu.addAction(ComponentText(text), this,
                       [this, ticking] { TellingUser("TickVisible", [&] { TickVisible(ticking); }); });
    };
    if (m_sheet && IsSelectorView()) {
        addTicking(QT_TRANSLATE_NOOP("Schedules", "Select All"), Ticking::All);
        addTicking(QT_TRANSLATE_NOOP("Schedules", "Select None"), Ticking::None);
        addTicking(QT_TRANSLATE_NOOP("Schedules", "Invert Selection"), Ticking::Invert);
        menu.addSeparator();
    }
    if (Sortable())
        menu.addAction(ComponentText(NameOf(m_sorting->Next(m_sheet->ActiveCell().column))), this,
                       &ctlSchedule::DoColSort);
}

} // namespace schedules
