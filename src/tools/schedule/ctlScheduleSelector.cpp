// Check boxes: ticking them, and what the ticked tags are.

#include "common/Module1.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/SpreadView.h"
#include "framework/Message.h"
#include "spread/RepaintingOff.h"
#include "tools/schedule/ctlSchedule.h"

namespace schedules {

namespace {

constexpr auto kTicked = "1";
constexpr auto kNotTicked = "0";

QString BoxText(bool ticked)
{
    return QLatin1String(ticked ? kTicked : kNotTicked);
}

bool IsTicked(const Sheet& sheet, Cell cell)
{
    return sheet.Utf8(cell) == kTicked;
}

/// Where a table of tags has them: one after the other along its rows or its columns.
struct TagTable
{
    const Sheet& sheet;
    bool tagsAreColumns;

    int Count() const { return tagsAreColumns ? sheet.ColumnCount() : sheet.RowCount(); }
    Cell Identifier(int tag) const { return At(tag, 1); }
    Cell CheckBox(int tag) const { return At(tag, 2); }

private:
    Cell At(int tag, int field) const
    {
        return tagsAreColumns ? Cell{Column(tag), Row(field)} : Cell{Column(field), Row(tag)};
    }
};

QString TagElement(const QString& identifier)
{
    return ElementText(QStringLiteral("Tag"), ElementText(QStringLiteral("Id"), EscapedXml(identifier)));
}

} // namespace

void ctlSchedule::ConnectCheckBoxes()
{
    m_spread->SetSweeps([this](Cell cell) { return IsSelectorView() && Toggles(cell); });
    connect(m_spread, &SpreadView::SweepStarted, this, &ctlSchedule::StartSweep);
    connect(m_spread, &SpreadView::SweptOver, this, &ctlSchedule::Sweep);
    connect(m_spread, &SpreadView::CellClicked, this, &ctlSchedule::ClickCheckBox);
}

bool ctlSchedule::Toggles(Cell cell) const
{
    if (!m_sheet || m_sheet->Style(cell).type != CellType::CheckBox)
        return false;
    return IsSelectorView() || IsEditableCheckBox(cell);
}

void ctlSchedule::SetTicked(Cell cell, bool ticked)
{
    if (ticked == IsTicked(*m_sheet, cell))
        return;
    if (IsSelectorView()) {
        m_sheet->SetText(cell, BoxText(ticked));
        return;
    }
    ChangeCell(cell, BoxText(ticked));
    FollowTagDataDirty();
}

void ctlSchedule::ToggleCheckBox(Cell cell)
{
    IgnoringErrors([&] { SetTicked(cell, !IsTicked(*m_sheet, cell)); });
}

void ctlSchedule::ClickCheckBox(Cell cell)
{
    if (Toggles(cell))
        ToggleCheckBox(cell);
}

void ctlSchedule::StartSweep(Cell cell)
{
    m_sweepTicks = !IsTicked(*m_sheet, cell);
    Sweep(cell);
}

void ctlSchedule::Sweep(Cell cell)
{
    IgnoringErrors([&] {
        if (Toggles(cell))
            SetTicked(cell, m_sweepTicks);
    });
}

void ctlSchedule::TickVisible(bool (*ticks)(bool ticked))
{
    const RepaintingOff off(*m_sheet);
    for (const Cell cell : m_sheet->CellsOfType(CellType::CheckBox)) {
        if (!m_sheet->Hidden(cell.column) && !m_sheet->Hidden(cell.row))
            SetTicked(cell, ticks(IsTicked(*m_sheet, cell)));
    }
}

std::pair<int, QString> ctlSchedule::GetSelectedTags() const
{
    int count = 0;
    QString tags;
    if (IsSelectorView() && m_sheet) {
        const TagTable table{*m_sheet, m_engine.SchedOrientation() == 1};
        for (int tag = 1; tag <= table.Count(); ++tag) {
            const QString identifier = m_sheet->Text(table.Identifier(tag));
            if (identifier.isEmpty() || !IsTicked(*m_sheet, table.CheckBox(tag)))
                continue;
            tags += TagElement(identifier);
            ++count;
        }
    }
    return {count, ElementText(QStringLiteral("Tags"), tags)};
}

void ctlSchedule::cmdContinue_Click()
{
    TellingHost(__func__, [this] {
        CommitCellEdit();
        const auto [count, tags] = GetSelectedTags();
        if (count != 0) {
            SendEventToOwner(Event(u"ContinueButton", {tags}));
            return;
        }
        Ui().Show({LoadResString(kNoTagSelected) + QStringLiteral("\r\n\r\n") + LoadResString(kSelectTagToContinue),
                   kInformation, LoadResString(kContinueCaption)});
    });
}

void ctlSchedule::PrintSelections()
{
    TellingHost(__func__, [this] {
        const auto [count, tags] = GetSelectedTags();
        if (count != 0) {
            SendEventToOwner(Event(u"PrintSelections", {tags, m_builderPdsg}));
            return;
        }
        Ui().Show({LoadResString(kNothingToPrint) + QStringLiteral("\r\n\r\n") + LoadResString(kSelectTagToPrint) +
                       u' ' + LoadResString(kPrintAgain),
                   kExclamation, LoadResString(kPrintSelectionsTitle)});
    });
}

} // namespace schedules
