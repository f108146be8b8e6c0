// What the window shows in its middle and beside it.

#include "host/answers/ProjectSchedule.h"
#include "host/base/HostError.h"
#include "host/project/Names.h"
#include "host/tools/HostedEditor.h"
#include "host/tools/HostedSchedule.h"
#include "host/tools/Session.h"
#include "host/window/CategoryDock.h"
#include "host/window/MessageBar.h"
#include "host/window/ProjectWindow.h"

#include <QApplication>
#include <QStackedWidget>
#include <QStatusBar>

namespace schedules::host {

namespace {

constexpr int kStatusTime = 15'000; // milliseconds

} // namespace

void ProjectWindow::ChooseCategory(const QString& category)
{
    const bool isShown = m_view && !m_schedule && SameName(category, m_open.answers->Category());
    if (isShown)
        return;
    Guarded([&] {
        if (MayClose()) {
            EndOptions(); // it edits the template of the former category
            ShowSelector(category);
        }
    });
    Guarded([this] { ListCategories(); });
}

void ProjectWindow::ChooseTemplate(const QString& category, const QString& fileName)
{
    Guarded([&] {
        if (!MayClose())
            return;
        const TemplateLayout layout = LayoutOf(*m_open.project, fileName);
        EndOptions();
        m_open.project->SetCurrentTemplate(category, fileName);
        if (m_schedule && SameName(category, m_schedule->category))
            ShowSchedule(category, QStringList(m_schedule->tags), layout);
        else
            ShowSelector(category);
    });
    Guarded([this] { ListCategories(); });
}

void ProjectWindow::ShowSelector(const QString& category)
{
    const QString xml = SelectionOf(*m_open.project, category, {tr("No."), tr("Tag"), tr("Select")});
    TakeView(host::View::Selector, category, xml);
}

void ProjectWindow::ShowPicked(const QStringList& tags)
{
    const QString category = m_open.answers->Category();
    ShowSchedule(category, tags, CurrentLayout(*m_open.project, category));
}

void ProjectWindow::ShowSchedule(const QString& category, const QStringList& tags, const TemplateLayout& layout)
{
    ShownSchedule schedule{category, tags, layout, ContentOf(*m_open.project, category, tags, layout)};
    const QString xml = ScheduleXml(layout, schedule.content);
    TakeView(host::View::Schedule, category, xml);
    m_schedule = std::move(schedule);
}

/// In place of a view whose last message is over.
void ProjectWindow::TakeView(host::View kind, const QString& category, const QString& xml)
{
    EndView();
    m_open.answers->WorkOn(category);
    m_view = std::make_unique<HostedSchedule>(m_session.Router(), m_answering.tool, ViewOptions{.view = kind});
    m_view->SetPdsg(category);
    m_place->addWidget(&m_view->Widget());
    m_place->setCurrentWidget(&m_view->Widget());
    m_view->Load(xml);
    m_view->Widget().setFocus();
}

void ProjectWindow::EndView()
{
    m_view.reset();
    m_schedule.reset();
    m_viewDone = false;
}

/// The view has told to unload it. A schedule leaves its place to the tags that can be picked.
void ProjectWindow::LeaveView()
{
    m_viewDone = true;
    Later([this] {
        const bool wasSchedule = m_schedule.has_value();
        EndView();
        if (wasSchedule)
            ShowSelector(QString(m_open.answers->Category()));
    });
}

/// A template was applied in the editor. It is built at once, unless the user would lose values.
void ProjectWindow::UseTemplate(const QString& xml)
{
    ListCategories();
    if (!m_schedule)
        return;
    if (!MayReplaceView())
        return m_bar->Tell(tr("The schedule shows the former template until its values are saved or discarded."));
    m_schedule->layout = ReadTemplateLayout(xml);
    Reload();
}

/// What other clients have stored is shown.
void ProjectWindow::Refresh()
{
    if (!m_open.project)
        return;
    Guarded([this] {
        if (MayReplaceView())
            Reload();
    });
    Guarded([this] { ListCategories(); });
}

void ProjectWindow::Reload()
{
    if (m_schedule) {
        m_schedule->content = ContentOf(*m_open.project, m_schedule->category, m_schedule->tags, m_schedule->layout);
        m_view->Load(ScheduleXml(m_schedule->layout, m_schedule->content));
    } else if (m_view) {
        ShowSelector(QString(m_open.answers->Category()));
    }
}

/// The view gets the new versions of its values, so that the next save knows what it showed. It shows these values
/// already, unless somebody else has stored others: then it shows them before anything is edited on top of them.
void ProjectWindow::Freshen(const QList<ValueEdit>& edited, int stored, bool differs)
{
    statusBar()->showMessage(tr("%n value(s) saved", nullptr, stored), kStatusTime);
    m_bar->hide();
    if (!m_schedule)
        return;
    Guarded([&] {
        const ScheduleContent now =
            ContentOf(*m_open.project, m_schedule->category, m_schedule->tags, m_schedule->layout);
        const int others = ChangedElsewhere(m_schedule->content, now, edited);
        m_schedule->content = now;
        m_view->GiveText(ScheduleXml(m_schedule->layout, now));
        if (others > 0)
            m_bar->Tell(tr("%n value(s) were changed by someone else and are shown now.", nullptr, others));
        if (others > 0 || differs)
            Later([this] { Reload(); });
    });
}

/// When the user comes back to the window, he sees what others have stored meanwhile; never in the midst of his work.
void ProjectWindow::FollowOthers()
{
    if (!m_schedule || m_viewDone || QApplication::activeModalWidget())
        return;
    const bool isEditing = m_view->Dirty() || m_view->IsEditing();
    if (isEditing)
        return;
    const ScheduleContent now = ContentOf(*m_open.project, m_schedule->category, m_schedule->tags, m_schedule->layout);
    const int others = ChangedElsewhere(m_schedule->content, now, {});
    if (others == 0)
        return;
    Reload();
    m_bar->Tell(tr("%n value(s) were changed by someone else and are shown now.", nullptr, others));
}

void ProjectWindow::ShowOptions()
{
    if (!MayDropTemplate())
        return m_options->Widget().setFocus();
    EndOptions();
    m_options = std::make_unique<HostedEditor>(m_session.Router(), m_answering.tool);
    m_optionsDock->setWidget(&m_options->Widget());
    m_optionsDock->show();
    // The schedule keeps the room that the editor does not need.
    resizeDocks({m_optionsDock}, {m_options->Widget().minimumSizeHint().width()}, Qt::Horizontal);
    m_options->Open();
    m_options->Widget().setFocus();
}

void ProjectWindow::EndOptions()
{
    m_options.reset();
    m_optionsDock->hide();
}

} // namespace schedules::host
