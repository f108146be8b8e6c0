// What an edited value changes: the grid, the flag, the held document.

#include "tools/schedule/ctlSchedule.h"

namespace schedules {

/// Between a new document and its activation the cells on screen are those of another one.
bool ctlSchedule::MayEdit() const
{
    return IsScheduleView() && m_sheet && !m_xmlIsNew;
}

void ctlSchedule::ChangeCell(Cell cell, const QString& text)
{
    m_unloaded = false;
    IgnoringErrors([&] {
        m_sheet->SetText(cell, text);
        SetEdited(cell, true);
    });
    SetTagDataDirty(true);
    // An edit that was open when another document came has lost its element.
    IgnoringErrors([&] {
        if (!m_xmlIsNew)
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
    for (const Sheet::TablePlace place : m_held.Unsaved())
        SetEdited(m_sheet->CellAt(place), true);
}

ctlSchedule::UnsavedEdits ctlSchedule::TakeUnsaved()
{
    UnsavedEdits unsaved{m_engine.TagDataDirty(), m_held.Unsaved(), {}};
    if (m_sheet)
        unsaved.marked = m_sheet->CellsWith([](CellStyle style) { return style.edited; });
    for (const Cell cell : unsaved.marked)
        SetEdited(cell, false);
    m_held.SetSaved();
    SetTagDataDirty(false);
    return unsaved;
}

void ctlSchedule::PutBack(const UnsavedEdits& unsaved)
{
    if (unsaved.dirty)
        SetTagDataDirty(true);
    m_held.AddUnsaved(unsaved.places);
    if (!m_sheet)
        return;
    for (const Cell cell : unsaved.marked)
        SetEdited(cell, true);
}

} // namespace schedules
