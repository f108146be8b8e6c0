#include "tools/schedule/bar/ViewCommands.h"

#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "tools/schedule/ScheduleRooms.h"
#include "tools/schedule/ViewSettings.h"
#include "tools/schedule/bar/ViewTools.h"

#include <algorithm>

namespace schedules {

namespace {

constexpr auto kScheduleHelp = "20";
constexpr auto kSelectorHelp = "23";

const QString kTwoLines = QStringLiteral("\r\n\r\n");

} // namespace

ViewCommands::ViewCommands(const ViewLink& link, const ViewSettings& settings, ScheduleRooms& rooms)
    : m_link(link),
      m_settings(settings),
      m_rooms(rooms),
      m_closing(link, settings, rooms.edits, [this] { SendEdits(); })
{
}

void ViewCommands::Begin()
{
    m_closing.SetInUse();
    m_rooms.editing.CommitCellEdit();
}

bool ViewCommands::Has(ViewCommand command) const
{
    if (command == ViewCommand::Close)
        return true;
    if (command == ViewCommand::Continue)
        return m_settings.IsSelectorView();
    return std::ranges::count(ViewToolsOf(m_settings), command, &ViewTool::command) != 0;
}

void ViewCommands::Do(ViewCommand command)
{
    switch (command) {
    case ViewCommand::Transpose:
        return m_rooms.showing.Transpose();
    case ViewCommand::Save:
        return Save();
    case ViewCommand::Print:
        return Print();
    case ViewCommand::Export:
        return m_rooms.exports.ExportToExcel();
    case ViewCommand::Customize:
        return m_link.Tell(u"ShowOptions", {m_settings.builderPdsg});
    case ViewCommand::Help:
        return Help();
    case ViewCommand::Continue:
        return Continue();
    case ViewCommand::Close:
        return m_closing.Close();
    }
}

void ViewCommands::Print()
{
    if (m_settings.IsSelectorView())
        m_link.host.TellingHost("PrintSelections", [this] { PrintSelections(); });
    else
        m_rooms.printing.Print();
}

void ViewCommands::Help()
{
    const PointerReset reset(m_link.host);
    m_link.host.Ui().SetPointer(Pointer::Hourglass);
    m_link.host.SendRequestToOwner(HostLink::Request(
        u"ProcessSubscriberEvent",
        {QStringLiteral("cmdHelp"), QLatin1String(m_settings.IsSelectorView() ? kSelectorHelp : kScheduleHelp),
         m_link.host.TypeName()}));
}

void ViewCommands::Save()
{
    if (m_settings.IsScheduleView())
        SendEdits();
}

void ViewCommands::SendEdits()
{
    m_rooms.edits.Save([this](const QString& xml) {
        m_link.Tell(u"UpdateTagScheduleData", {m_settings.builderPdsg, xml});
    });
}

void ViewCommands::Continue()
{
    const SelectedTags selected = m_rooms.picking.GetSelectedTags();
    if (selected.count != 0)
        return m_link.Tell(u"ContinueButton", {selected.xml});
    m_link.host.Ui().Show({LoadResString(kNoTagSelected) + kTwoLines + LoadResString(kSelectTagToContinue),
                           kInformation, LoadResString(kContinueCaption)});
}

void ViewCommands::PrintSelections()
{
    const SelectedTags selected = m_rooms.picking.GetSelectedTags();
    if (selected.count != 0)
        return m_link.Tell(u"PrintSelections", {selected.xml, m_settings.builderPdsg});
    m_link.host.Ui().Show({LoadResString(kNothingToPrint) + kTwoLines + LoadResString(kSelectTagToPrint) + u' ' +
                               LoadResString(kPrintAgain),
                           kExclamation, LoadResString(kPrintSelectionsTitle)});
}

Entry ViewCommands::EnterText(Cell cell, const QString& text)
{
    if (!m_rooms.table.Contains(cell))
        return Entry::NoSuchCell;
    Sheet& sheet = *m_rooms.table.Shown();
    if (sheet.Hidden(cell.column) || sheet.Hidden(cell.row))
        return Entry::Hidden;
    sheet.SetActiveCell(cell);
    if (KindOf(sheet.Style(cell)).Toggles())
        return EnterTick(cell, text);
    switch (m_rooms.editing.Type(cell, text)) {
    case CellEditing::Typed::Taken:
        return Entry::Taken;
    case CellEditing::Typed::Refused:
        return Entry::Refused;
    case CellEditing::Typed::NotEditable:
        break;
    }
    return Entry::NotEditable;
}

Entry ViewCommands::EnterTick(Cell cell, const QString& text)
{
    if (!m_rooms.picking.Toggles(cell))
        return Entry::NotEditable;
    const bool isTick = text == StateText(true);
    if (!isTick && text != StateText(false))
        return Entry::NotABoxText;
    m_rooms.picking.SetTicked(cell, isTick);
    return Entry::Taken;
}

bool ViewCommands::Sortable() const
{
    const Sheet* sheet = m_rooms.table.Shown();
    return sheet && m_rooms.table.Engine().SchedOrientation() == 0 && sheet->ActiveCell().column >= Column(1);
}

void ViewCommands::DoColSort()
{
    if (Sortable())
        SortActiveColumn(m_rooms.sorting.Next(m_rooms.table.Shown()->ActiveCell().column));
}

bool ViewCommands::SortBy(Column column, RowOrder order)
{
    const Cell first{column, Row(1)};
    if (!m_rooms.table.Contains(first))
        return false;
    m_rooms.table.Shown()->SetActiveCell(first);
    if (!Sortable())
        return false;
    SortActiveColumn(order);
    return true;
}

void ViewCommands::SortActiveColumn(RowOrder order)
{
    // In the transposed layout the headings are columns.
    const CSchedule& engine = m_rooms.table.Engine();
    const std::vector<int> headings = engine.TransposeData() ? std::vector<int>() : engine.GroupHeadings();
    m_rooms.sorting.Sort(m_rooms.table.Shown()->ActiveCell().column, order, headings);
}

} // namespace schedules
