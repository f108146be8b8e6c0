// What the tools and the command buttons do.

#include "common/CResEnum.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/grid/SpreadView.h"
#include "tools/schedule/ctlSchedule.h"
#include "tools/schedule/edits/CellEditing.h"

#include <QPointer>
#include <QScopeGuard>

#include <array>
#include <utility>

namespace schedules {

namespace {

constexpr auto kScheduleHelp = "20";
constexpr auto kSelectorHelp = "23";

/// The wording is fixed, the same in every language.
constexpr auto kSaveQuestion = "Save Tag data?";

} // namespace

void ctlSchedule::ab_ToolClick(const QString& key)
{
    TellingUser(__func__, [&] {
        BeginCommand();
        if (const Command command = CommandOf(key))
            (this->*command)();
    });
}

/// Whatever a command works with is what the user sees, an open edit included.
void ctlSchedule::BeginCommand()
{
    m_unloaded = false;
    m_editing->CommitCellEdit();
}

ctlSchedule::Command ctlSchedule::CommandOf(const QString& key)
{
    static constexpr std::array<std::pair<const char*, Command>, 8> kCommands{{
        {"btnTranspose", &ctlSchedule::Transpose},
        {"btnSaveTag", &ctlSchedule::Save},
        {"btnPrint", &ctlSchedule::Print},
        {"btnExport", &ctlSchedule::ExportShown},
        {"mnuExportExcel", &ctlSchedule::ExportShown},
        {"mnuExportHtml", &ctlSchedule::ExportToHTML},
        {"btnCustomize", &ctlSchedule::Customize},
        {"btnHelp", &ctlSchedule::Help},
    }};
    for (const auto& [name, command] : kCommands) {
        if (key == QLatin1String(name))
            return command;
    }
    return nullptr;
}

void ctlSchedule::Transpose()
{
    const Sheet::TablePlace active = m_engine.Sched()->TablePlaceOf(m_engine.Sched()->ActiveCell());
    m_engine.SetTransposeData(!m_engine.TransposeData());
    m_engine.SetSchedOrientation(m_engine.SchedOrientation() != 1 ? 1 : 0);
    const int rows = m_rowsFrozen;
    FreezeRows(m_colsFrozen);
    FreezeColumns(rows);
    const QPointer<ctlSchedule> alive(this);
    ShowHeldXml();
    if (!alive || !m_sheet)
        return;
    // What is shown now may be another, smaller table, which the host has handed over since.
    const CellRange grid{{}, {Column(m_sheet->ColumnCount()), Row(m_sheet->RowCount())}};
    const Cell cell = m_sheet->CellAt(active);
    m_sheet->SetActiveCell(grid.Contains(cell) ? cell : Cell());
    m_spread->EnsureVisible(m_sheet->ActiveCell());
}

void ctlSchedule::Print()
{
    if (IsSelectorView())
        PrintSelections();
    else
        PrintSchedule();
}

void ctlSchedule::Customize()
{
    SendEventToOwner(Event(u"ShowOptions", {m_builderPdsg}));
}

void ctlSchedule::Help()
{
    const PointerReset reset(*this);
    Ui().SetPointer(Pointer::Hourglass);
    SendRequestToOwner(Request(
        u"ProcessSubscriberEvent",
        {QStringLiteral("cmdHelp"), QLatin1String(IsSelectorView() ? kSelectorHelp : kScheduleHelp), TypeName()}));
}

void ctlSchedule::Save()
{
    if (IsScheduleView())
        SendEdits();
}

/// Flag and marks go before the edits are sent: what is edited while the host saves is not part of it.
void ctlSchedule::SendEdits()
{
    const QPointer<ctlSchedule> alive(this);
    const UnsavedEdits unsaved = TakeUnsaved();
    try {
        UpdateTagScheduleData();
    } catch (...) {
        if (alive)
            PutBack(unsaved);
        throw;
    }
}

void ctlSchedule::UpdateTagScheduleData()
{
    SendEventToOwner(Event(u"UpdateTagScheduleData", {m_builderPdsg, m_held.Text()}));
}

void ctlSchedule::cmdCancel_Click()
{
    TellingUser(__func__, [this] {
        if (std::exchange(m_leaving, true))
            return; // the host pumps events while it saves
        const QPointer<ctlSchedule> alive(this);
        const auto stay = qScopeGuard([&] {
            if (alive)
                m_leaving = false;
        });
        BeginCommand();
        if (MayUnload() && alive)
            Unload();
    });
}

/// The host may take the view away while the question stands or while it saves.
bool ctlSchedule::MayUnload()
{
    if (!m_engine.TagDataDirty())
        return true;
    const QPointer<ctlSchedule> alive(this);
    const bool isSavable = IsScheduleView(); // as the user is asked, whatever the host sets meanwhile
    const Answer answer = Ui().Show({QLatin1String(kSaveQuestion), kYesNoCancel, LoadResString(kUnsavedChangesTitle)});
    if (!alive || answer == Answer::Cancel)
        return false;
    if (answer != Answer::Yes || !isSavable)
        return true;
    SendEdits();
    return alive && !m_engine.TagDataDirty(); // what is edited while the host saves is worth another question
}

void ctlSchedule::Unload()
{
    const QPointer<ctlSchedule> alive(this);
    m_unloaded = true;
    try {
        SendEventToOwner(Event(u"UnloadSchedule", {QStringLiteral("True")}));
    } catch (...) {
        if (alive)
            m_unloaded = false;
        throw;
    }
}

} // namespace schedules
