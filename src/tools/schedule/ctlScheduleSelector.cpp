// Check boxes, and what the user has picked with them.

#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/grid/SpreadView.h"
#include "spread/RepaintingOff.h"
#include "tools/schedule/ctlSchedule.h"
#include "tools/schedule/edits/CellEditing.h"
#include "tools/schedule/picking/TagTable.h"

#include <QKeyEvent>

namespace schedules {

void ctlSchedule::ConnectCheckBoxes()
{
    m_spread->installEventFilter(this);
    m_spread->SetSweeps([this](Cell cell) { return IsSelectorView() && Toggles(cell); });
    connect(m_spread, &SpreadView::SweepStarted, this, &ctlSchedule::StartSweep);
    connect(m_spread, &SpreadView::SweptOver, this, &ctlSchedule::Sweep);
    connect(m_spread, &SpreadView::CellClicked, this, &ctlSchedule::ToggleCheckBox);
}

bool ctlSchedule::Toggles(Cell cell) const
{
    if (!m_sheet || m_sheet->Style(cell).type != CellType::CheckBox)
        return false;
    return IsSelectorView() || m_editing->IsEditableCheckBox(cell);
}

void ctlSchedule::SetTicked(Cell cell, bool ticked)
{
    if (!Toggles(cell) || ticked == IsTicked(*m_sheet, cell))
        return;
    if (IsSelectorView())
        m_sheet->SetText(cell, CheckBoxText(ticked));
    else
        ChangeCell(cell, CheckBoxText(ticked));
}

void ctlSchedule::ToggleCheckBox(Cell cell)
{
    IgnoringErrors([&] {
        if (Toggles(cell))
            SetTicked(cell, !IsTicked(*m_sheet, cell));
    });
}

bool ctlSchedule::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_spread || event->type() != QEvent::KeyPress)
        return ToolControl::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    return key.key() == Qt::Key_Space && key.modifiers() == Qt::NoModifier && PressSpace(key.isAutoRepeat());
}

bool ctlSchedule::PressSpace(bool isHeldDown)
{
    if (!m_sheet || !Toggles(m_sheet->ActiveCell()))
        return false;
    if (!isHeldDown)
        ToggleCheckBox(m_sheet->ActiveCell());
    return true;
}

void ctlSchedule::StartSweep(Cell cell)
{
    m_sweepTicks = !IsTicked(*m_sheet, cell);
    Sweep(cell);
}

void ctlSchedule::Sweep(Cell cell)
{
    IgnoringErrors([&] { SetTicked(cell, m_sweepTicks); });
}

void ctlSchedule::TickVisible(Ticking ticking)
{
    if (!m_sheet || !IsSelectorView())
        return;
    const RepaintingOff off(*m_sheet);
    for (const Cell cell : m_sheet->CellsOfType(CellType::CheckBox)) {
        if (m_sheet->Hidden(cell.column) || m_sheet->Hidden(cell.row))
            continue;
        SetTicked(cell, ticking == Ticking::Invert ? !IsTicked(*m_sheet, cell) : ticking == Ticking::All);
    }
}

SelectedTags ctlSchedule::GetSelectedTags() const
{
    if (!IsSelectorView() || !m_sheet)
        return TickedTags(Sheet(), Tags::AreRows);
    return TickedTags(*m_sheet, m_engine.SchedOrientation() == 1 ? Tags::AreColumns : Tags::AreRows);
}

void ctlSchedule::cmdContinue_Click()
{
    TellingHost(__func__, [this] {
        BeginCommand();
        const SelectedTags selected = GetSelectedTags();
        if (selected.count != 0) {
            SendEventToOwner(Event(u"ContinueButton", {selected.xml}));
            return;
        }
        Ui().Show({LoadResString(kNoTagSelected) + QStringLiteral("\r\n\r\n") + LoadResString(kSelectTagToContinue),
                   kInformation, LoadResString(kContinueCaption)});
    });
}

void ctlSchedule::PrintSelections()
{
    TellingHost(__func__, [this] {
        const SelectedTags selected = GetSelectedTags();
        if (selected.count != 0) {
            SendEventToOwner(Event(u"PrintSelections", {selected.xml, m_builderPdsg}));
            return;
        }
        Ui().Show({LoadResString(kNothingToPrint) + QStringLiteral("\r\n\r\n") + LoadResString(kSelectTagToPrint) +
                       u' ' + LoadResString(kPrintAgain),
                   kExclamation, LoadResString(kPrintSelectionsTitle)});
    });
}

} // namespace schedules
