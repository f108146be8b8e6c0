#include "tools/schedule/edits/EditSession.h"

#include "common/Error.h"
#include "grid/ScheduleTable.h"
#include "tools/HostLink.h"
#include "tools/schedule/table/ShownTable.h"

#include <algorithm>
#include <utility>

namespace schedules {

namespace {

/// Whether two tables have the same headers at the same places.
bool HaveSameHeaders(const CellStore& one, const CellStore& other)
{
    if (one.LineCount() != other.LineCount() || one.SlotCount(0) != other.SlotCount(0))
        return false;
    for (int slot = 0; slot < one.SlotCount(0); ++slot) {
        if (one.Text(0, slot) != other.Text(0, slot))
            return false;
    }
    for (int line = 1; line < one.LineCount(); ++line) {
        if (one.Text(line, 0) != other.Text(line, 0))
            return false;
    }
    return true;
}

} // namespace

EditSession::EditSession(HostLink& host, ShownTable& table) : m_host(host), m_table(table) {}

void EditSession::HandOver(const QString& xml)
{
    m_waiting = Waiting{xml, !HasUnsaved()};
}

bool EditSession::TakeWaiting()
{
    if (!m_waiting)
        return false;
    Hold(std::exchange(m_waiting, std::nullopt)->xml);
    return true;
}

void EditSession::Hold(const QString& xml)
{
    m_waiting.reset();
    m_held.Hold(xml);
    m_onlyShown.clear();
    m_fresh.reset();
    SetTagDataDirty(false);
}

QString EditSession::Settled()
{
    FollowHost();
    m_held.Settle();
    m_onlyShown.clear();
    m_fresh.reset();
    return m_held.Text();
}

bool EditSession::HasUnsaved() const
{
    return m_dirty || !m_held.Unsaved().empty() || !m_onlyShown.empty();
}

void EditSession::FollowHost()
{
    if (!m_waiting || !m_waiting->mayFollow || HasUnsaved())
        return;
    m_waiting->mayFollow = false; // it is looked at once
    const Sheet* shown = m_table.Shown();
    if (!shown || m_table.ShowsTags() || shown->Store().Empty())
        return;
    ParsedTable parsed = ParseScheduleTable(m_waiting->xml);
    if (parsed.fault != TableFault::None || !HaveSameHeaders(parsed.table.cells, shown->Store()))
        return;
    m_held.Hold(std::exchange(m_waiting, std::nullopt)->xml);
    m_fresh = std::move(parsed.table.cells);
}

bool EditSession::MayEdit(Cell cell)
{
    if (!m_table.Shown())
        return false;
    FollowHost();
    const Sheet::TablePlace place = m_table.Shown()->TablePlaceOf(cell);
    return !m_held.HasLost(place) && (!m_fresh || m_fresh->Style(place.line, place.slot).allowEdit);
}

bool EditSession::MayGoOn(Cell cell, const QString& began)
{
    if (!m_table.Shown())
        return false;
    FollowHost();
    if (!m_fresh)
        return true;
    const Sheet::TablePlace place = m_table.Shown()->TablePlaceOf(cell);
    const QString now = QString::fromUtf8(m_fresh->Text(place.line, place.slot));
    if (now == began && MayEdit(cell))
        return true;
    m_table.Shown()->SetText(cell, now);
    return false;
}

void EditSession::Change(Cell cell, const QString& text)
{
    Sheet& sheet = *m_table.Shown();
    const Sheet::TablePlace place = sheet.TablePlaceOf(cell);
    const QString former = sheet.Text(cell);
    IgnoringErrors([&] {
        sheet.SetText(cell, text);
        SetMark(place, true);
    });
    m_table.Engine().WidenToCell(cell);
    SetTagDataDirty(true);
    bool isWritten = false;
    IgnoringErrors([&] { isWritten = m_held.SetCellText(place, text, former); });
    if (!isWritten)
        m_onlyShown.insert(place);
    const auto [tag, item] = m_table.HeadersOf(place);
    Q_EMIT ValueEdited(tag, item, former, text);
}

void EditSession::Save(const std::function<void(const QString& xml)>& send)
{
    FollowHost();
    const QString text = m_held.Text();
    const Taken taken = TakeUnsaved();
    const ToolLife::Watch watch(m_host.Life());
    try {
        send(text);
    } catch (...) {
        if (watch.IsAlive())
            PutBack(taken);
        throw;
    }
}

EditSession::Taken EditSession::TakeUnsaved()
{
    const Taken taken{m_held.Number(), m_dirty, m_held.TakeUnsaved()};
    for (const auto& [place, former] : taken.formers)
        SetMark(place, false);
    SetTagDataDirty(false);
    return taken;
}

void EditSession::PutBack(const Taken& taken)
{
    // A host that has brought another document meanwhile has taken the edits with the one before.
    if (taken.document != m_held.Number())
        return;
    m_held.PutBack(taken.formers);
    ShowMarks();
    if (taken.dirty)
        SetTagDataDirty(true);
}

void EditSession::ShowMarks()
{
    for (const auto& [place, former] : m_held.Unsaved())
        SetMark(place, true);
}

void EditSession::SetMark(Sheet::TablePlace place, bool edited)
{
    Sheet* sheet = m_table.Shown();
    if (!sheet)
        return;
    const Cell cell = sheet->CellAt(place);
    CellStyle style = sheet->Style(cell);
    style.edited = edited;
    sheet->SetStyle(cell, style);
}

void EditSession::SetTagDataDirty(bool dirty)
{
    m_table.Engine().SetTagDataDirty(dirty);
    if (std::exchange(m_dirty, dirty) != dirty)
        Q_EMIT TagDataDirtyChanged();
}

QList<ChangedCell> EditSession::ChangedCells() const
{
    QList<ChangedCell> changed;
    const Sheet* sheet = m_table.Shown();
    if (!sheet)
        return changed;
    for (const auto& [place, former] : m_held.Unsaved()) {
        const auto [tag, item] = m_table.HeadersOf(place);
        changed.append({tag, item, former, sheet->Text(sheet->CellAt(place)), m_held.AttributesOf(place)});
    }
    return changed;
}

} // namespace schedules
