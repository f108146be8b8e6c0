#include "tools/schedule/showing/DocumentShowing.h"

#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/grid/SpreadView.h"
#include "spread/RepaintingOff.h"
#include "tools/schedule/ViewSettings.h"
#include "tools/schedule/edits/CellEditing.h"
#include "tools/schedule/edits/EditSession.h"
#include "tools/schedule/table/RowSorting.h"
#include "tools/schedule/table/ShownTable.h"

#include <QScrollBar>

namespace schedules {

namespace {

// The orientation in which a table is shown first.
constexpr int kOfSchedule = 0;
constexpr int kOfTags = 1;

} // namespace

DocumentShowing::DocumentShowing(const ViewLink& link, const ViewSettings& settings, ShownTable& table,
                                 EditSession& edits, CellEditing& editing, RowSorting& sorting)
    : m_link(link), m_settings(settings), m_table(table), m_edits(edits), m_editing(editing), m_sorting(sorting)
{
}

DocumentShowing::Kind DocumentShowing::KindOfView() const
{
    return m_settings.IsSelectorView() ? Kind::Tags : Kind::Schedule;
}

bool DocumentShowing::Activate()
{
    m_table.StartNormalLayout(m_settings.IsSelectorView() ? kOfTags : kOfSchedule);
    if (m_edits.TakeWaiting())
        StartAtTop();
    return ShowHeldOfView();
}

bool DocumentShowing::LoadScheduleData(const QString& xml)
{
    m_table.StartNormalLayout(kOfSchedule);
    return LoadText(xml, Kind::Schedule, kScheduleNotLoadable);
}

bool DocumentShowing::LoadSelectionData(const QString& xml)
{
    m_table.StartNormalLayout(kOfTags);
    return LoadText(xml, Kind::Tags, kSelectionNotLoadable);
}

bool DocumentShowing::LoadText(const QString& xml, Kind kind, int messageNumber)
{
    m_edits.Hold(xml);
    StartAtTop();
    const bool loaded = ShowHeld(kind);
    if (!loaded)
        ShowBox(messageNumber);
    return loaded;
}

void DocumentShowing::Transpose()
{
    const Sheet& sheet = *m_table.Engine().Sched();
    const Sheet::TablePlace active = sheet.TablePlaceOf(sheet.ActiveCell());
    m_table.Turn();
    RequireOutlived(m_table, [this] { ShowHeldOfView(); });
    GoTo(active);
}

/// In the new layout the place may be hidden or gone.
void DocumentShowing::GoTo(Sheet::TablePlace place)
{
    Sheet* sheet = m_table.Shown();
    if (!sheet)
        return;
    const Cell cell = sheet->CellAt(place);
    sheet->SetActiveCell(m_table.Contains(cell) ? cell : Cell());
    m_table.Grid().EnsureVisible(sheet->ActiveCell());
}

bool DocumentShowing::ShowHeldOfView()
{
    const Kind kind = KindOfView();
    const bool loaded = ShowHeld(kind);
    if (!loaded)
        ShowBox(kind == Kind::Tags ? kSelectionNotShown : kScheduleNotShown);
    return loaded;
}

bool DocumentShowing::ShowHeld(Kind kind)
{
    const RepaintingOff off(*m_table.Engine().Sched());
    m_table.Grid().ShowEditable(m_settings.IsScheduleView());
    const QString xml = m_edits.Settled();
    const bool loaded =
        kind == Kind::Tags ? m_table.LoadTags(xml, m_settings.selectAllTags) : m_table.LoadSchedule(xml);
    m_editing.ForgetTable();
    m_sorting.Forget();
    m_edits.ShowMarks();
    m_table.TellLoaded();
    return loaded;
}

/// A new document is shown from its start.
void DocumentShowing::StartAtTop()
{
    m_table.Grid().horizontalScrollBar()->setValue(0);
    m_table.Grid().verticalScrollBar()->setValue(0);
}

void DocumentShowing::ShowBox(int textNumber)
{
    RequireOutlived(m_table, [&] { m_link.user.Show({LoadResString(textNumber), kOkOnly, {}, textNumber}); });
}

} // namespace schedules
