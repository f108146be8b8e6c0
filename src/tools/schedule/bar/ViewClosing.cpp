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
    const QPointer<QWidget> alive(&m_link.view);
    const auto stay = qScopeGuard([&] {
        if (alive)
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
    auto answer = Answer::Cancel;
    RequireOutlived(m_link.view, [&] {
        answer = m_link.user.Show({QLatin1String(kSaveQuestion), kYesNoCancel, LoadResString(kUnsavedChangesTitle)});
    });
    if (answer != Answer::Yes || !isSavable)
        return answer != Answer::Cancel;
    RequireOutlived(m_link.view, m_save);
    return !m_edits.TagDataDirty(); // what is edited while the host saves is worth another question
}

void ViewClosing::Unload()
{
    const QPointer<QWidget> alive(&m_link.view);
    m_unloaded = true;
    try {
        m_link.event(u"UnloadSchedule", {QStringLiteral("True")});
    } catch (...) {
        if (alive)
            m_unloaded = false;
        throw;
    }
}

} // namespace schedules
