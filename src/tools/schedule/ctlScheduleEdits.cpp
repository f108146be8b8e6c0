// What an edited value changes: the grid, the flag, the held document.

#include "tools/schedule/ctlSchedule.h"

namespace schedules {

/// Between a new document and its activation the cells on screen are those of another one, and the new one is asked: it
/// may be fresh text for the same table. A cell that stood inside of one that has been edited is gone.
bool ctlSchedule::MayEdit(Cell cell) const
{
    if (!IsScheduleView() || !m_sheet)
        return false;
    const Sheet::TablePlace place = m_sheet->TablePlaceOf(cell);
    return !m_held.HasLost(place) && (!m_xmlIsNew || m_held.AllowsEdit(place));
}

void ctlSchedule::ChangeCell(Cell cell, const QString& text)
{
    m_unloaded = false;
    IgnoringErrors([&] {
        m_sheet->SetText(cell, text);
        SetEdited(cell, true);
    });
    SetTagDataDirty(true);
    // An edit that was open when another document came may have lost its element.
    IgnoringErrors([&] {
        if (MayEdit(cell))
            m_held.SetCellText(m_sheet->TablePlaceOf(cell), text);
    });
}

void ctlSchedule::SetEdited(Cell cell, bool edited)
{
    CellStyle style = m_sheet->Style(cell);
    style.edited = edited;
    m_sheet->SetStyle(cell, style);
}

void ctlSchedule::MarkUnsaved()
{
    if (!m_sheet)
        return;
    for (const Sheet::TablePlace place : m_held.Unsaved())
        SetEdited(m_sheet->CellAt(place), true);
}

ctlSchedule::UnsavedEdits ctlSchedule::TakeUnsaved()
{
    UnsavedEdits unsaved{m_held.Number(), m_engine.TagDataDirty(), m_held.Unsaved(), {}};
    const auto isEdited = [](CellStyle style) { return style.edited; };
    for (const Cell cell : m_sheet ? m_sheet->CellsWith(isEdited) : std::vector<Cell>()) {
        unsaved.marked.push_back(m_sheet->TablePlaceOf(cell));
        SetEdited(cell, false);
    }
    m_held.SetSaved();
    SetTagDataDirty(false);
    return unsaved;
}

void ctlSchedule::PutBack(const UnsavedEdits& unsaved)
{
    // A host that has brought another document meanwhile has taken the edits with the former one.
    if (unsaved.document != m_held.Number())
        return;
    if (unsaved.dirty)
        SetTagDataDirty(true);
    m_held.AddUnsaved(unsaved.places);
    if (!m_sheet)
        return;
    for (const Sheet::TablePlace place : unsaved.marked)
        SetEdited(m_sheet->CellAt(place), true);
}

} // namespace schedules
