// What the tools and the command buttons do.

#include "common/CResEnum.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/SpreadView.h"
#include "tools/schedule/ctlSchedule.h"

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
        CommitCellEdit();
        if (const Command command = CommandOf(key))
            (this->*command)();
    });
}

ctlSchedule::Command ctlSchedule::CommandOf(const QString& key)
{
    static constexpr std::array<std::pair<const char*, Command>, 5> kCommands{{
        {"btnTranspose", &ctlSchedule::Transpose},
        {"btnSaveTag", &ctlSchedule::Save},
        {"btnPrint", &ctlSchedule::Print},
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
    ShowHeldXml();
    m_sheet->SetActiveCell(m_sheet->CellAt(active));
    m_spread->EnsureVisible(m_sheet->ActiveCell());
}

void ctlSchedule::Print()
{
    if (IsSelectorView())
        PrintSelections();
}

void ctlSchedule::Customize()
{
    SendEventToOwner(Event(u"ShowOptions", {m_builderPdsg}));
}

void ctlSchedule::Help()
{
    Ui().SetPointer(Pointer::Hourglass);
    SendRequestToOwner(Request(
        u"ProcessSubscriberEvent",
        {QStringLiteral("cmdHelp"), QLatin1String(IsSelectorView() ? kSelectorHelp : kScheduleHelp), TypeName()}));
    Ui().SetPointer(Pointer::Default);
}

void ctlSchedule::Save()
{
    if (!IsScheduleView())
        return;
    const bool wasDirty = m_engine.TagDataDirty();
    SetTagDataDirty(false);
    try {
        UpdateTagScheduleData();
    } catch (...) {
        SetTagDataDirty(wasDirty);
        throw;
    }
    ForgetUnsaved();
}

void ctlSchedule::UpdateTagScheduleData()
{
    SendEventToOwner(Event(u"UpdateTagScheduleData", {m_builderPdsg, m_held.Text()}));
}

void ctlSchedule::cmdCancel_Click()
{
    TellingUser(__func__, [this] {
        CommitCellEdit();
        if (MayUnload())
            Unload();
    });
}

void ctlSchedule::Unload()
{
    m_unloaded = true;
    try {
        SendEventToOwner(Event(u"UnloadSchedule", {QStringLiteral("True")}));
    } catch (...) {
        m_unloaded = false;
        throw;
    }
}

bool ctlSchedule::MayUnload()
{
    if (!m_engine.TagDataDirty())
        return true;
    switch (Ui().Show({QLatin1String(kSaveQuestion), kYesNoCancel, LoadResString(kUnsavedChangesTitle)})) {
    case Answer::Yes:
        SaveBeforeUnloading();
        return true;
    case Answer::No:
        return true;
    default:
        return false;
    }
}

void ctlSchedule::SaveBeforeUnloading()
{
    if (!IsScheduleView())
        return;
    UpdateTagScheduleData();
    SetTagDataDirty(false);
    ForgetUnsaved();
}

} // namespace schedules
