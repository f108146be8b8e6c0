#include "tools/schedule/picking/TagPicking.h"

#include "common/Error.h"
#include "controls/grid/SpreadView.h"
#include "spread/RepaintingOff.h"
#include "tools/schedule/ViewSettings.h"
#include "tools/schedule/edits/CellEditing.h"
#include "tools/schedule/edits/EditSession.h"
#include "tools/schedule/table/ShownTable.h"

#include <QKeyEvent>

namespace schedules {

TagPicking::TagPicking(ShownTable& table, CellEditing& editing, EditSession& edits, const ViewSettings& settings)
    : m_table(table), m_editing(editing), m_edits(edits), m_settings(settings)
{
    SpreadView& grid = m_table.Grid();
    grid.installEventFilter(this);
    grid.SetSweeps([this](Cell cell) { return m_settings.IsSelectorView() && Toggles(cell); });
    connect(&grid, &SpreadView::SweepStarted, this, &TagPicking::StartSweep);
    connect(&grid, &SpreadView::SweptOver, this, &TagPicking::Sweep);
    connect(&grid, &SpreadView::CellClicked, this, &TagPicking::Toggle);
}

bool TagPicking::Toggles(Cell cell) const
{
    const Sheet* sheet = m_table.Shown();
    if (!sheet || !KindOf(sheet->Style(cell)).Toggles())
        return false;
    return m_settings.IsSelectorView() || m_editing.IsToggledCell(cell);
}

void TagPicking::SetTicked(Cell cell, bool ticked)
{
    if (!Toggles(cell) || ticked == IsTicked(*m_table.Shown(), cell))
        return;
    if (m_settings.IsSelectorView())
        m_table.Shown()->SetText(cell, StateText(ticked));
    else
        m_edits.Change(cell, StateText(ticked));
}

void TagPicking::Toggle(Cell cell)
{
    IgnoringErrors([&] {
        if (Toggles(cell))
            SetTicked(cell, !IsTicked(*m_table.Shown(), cell));
    });
}

bool TagPicking::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    return key.key() == Qt::Key_Space && key.modifiers() == Qt::NoModifier && PressSpace(key.isAutoRepeat());
}

bool TagPicking::PressSpace(bool isHeldDown)
{
    const Sheet* sheet = m_table.Shown();
    if (!sheet || !Toggles(sheet->ActiveCell()))
        return false;
    if (!isHeldDown)
        Toggle(sheet->ActiveCell());
    return true;
}

void TagPicking::StartSweep(Cell cell)
{
    m_sweepTicks = !IsTicked(*m_table.Shown(), cell);
    Sweep(cell);
}

void TagPicking::Sweep(Cell cell)
{
    IgnoringErrors([&] { SetTicked(cell, m_sweepTicks); });
}

void TagPicking::TickVisible(Ticking ticking)
{
    Sheet* sheet = m_table.Shown();
    if (!sheet || !m_settings.IsSelectorView())
        return;
    const RepaintingOff off(*sheet);
    for (const Cell cell : sheet->CellsOfType(CellType::CheckBox)) {
        if (sheet->Hidden(cell.column) || sheet->Hidden(cell.row))
            continue;
        SetTicked(cell, ticking == Ticking::Invert ? !IsTicked(*sheet, cell) : ticking == Ticking::All);
    }
}

Tags TagPicking::TagsRun() const
{
    return m_table.Engine().SchedOrientation() == 1 ? Tags::AreColumns : Tags::AreRows;
}

bool TagPicking::TickTag(const QString& identifier)
{
    const Sheet* sheet = m_table.Shown();
    if (!sheet || !m_settings.IsSelectorView())
        return false;
    const auto checkBox = CheckBoxOf(*sheet, TagsRun(), identifier);
    if (checkBox)
        SetTicked(*checkBox, true);
    return checkBox.has_value();
}

SelectedTags TagPicking::GetSelectedTags() const
{
    if (!m_table.Shown() || !m_settings.IsSelectorView())
        return TickedTags(Sheet(), Tags::AreRows);
    return TickedTags(*m_table.Shown(), TagsRun());
}

} // namespace schedules
