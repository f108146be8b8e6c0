#include "tools/schedule/bar/ViewClosing.h"

#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "tools/schedule/ViewSettings.h"
#include "tools/schedule/edits/EditSession.h"

#include <QScopeGuard>

#include <utility>

namespace schedules {

namespace {

/// The wording is fixed, the same in every language.
constexpr auto kSaveQuestion = "Save Tag data?";

} // namespace

ViewClosing::ViewClosing(const ViewLink& link, const ViewSettings& settings, EditSession& edits,
                         std::function<void()> save)
    : m_link(link), m_settings(settings), m_edits(edits), m_save(std::move(save))
{
}

void ViewClosing::Close()
{
    if (std::exchange(m_leaving, true))
        return; // the host pumps events while it saves
    const ToolLife::Watch watch(m_link.host.Life());
    const auto stay = qScopeGuard([&] {
        if (watch.IsAlive())
            m_leaving = false;
    });
    if (MayUnload())
        Unload();
}

/// The host may take the view away while the question stands or while it saves.
bool ViewClosing::MayUnload()
{
    if (!m_edits.TagDataDirty())
        return true;
    const bool isSavable = m_settings.IsScheduleView(); // as the user is asked, whatever the host sets meanwhile
    const Answer answer = m_link.host.Life().WhileAlive([&] {
        return m_link.host.Ui().Show({QLatin1String(kSaveQuestion), kYesNoCancel, LoadResString(kUnsavedChangesTitle)});
    });
    if (answer != Answer::Yes || !isSavable)
        return answer != Answer::Cancel;
    m_link.host.Life().WhileAlive(m_save);
    return !m_edits.TagDataDirty(); // what is edited while the host saves is worth another question
}

void ViewClosing::Unload()
{
    const ToolLife::Watch watch(m_link.host.Life());
    m_unloaded = true;
    try {
        m_link.Tell(u"UnloadSchedule", {QStringLiteral("True")});
    } catch (...) {
        if (watch.IsAlive())
            m_unloaded = false;
        throw;
    }
}

} // namespace schedules
