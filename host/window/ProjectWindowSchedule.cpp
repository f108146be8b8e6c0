#include "host/OptionsTool.h"
#include "host/ScheduleTool.h"
#include "host/Session.h"
#include "host/answers/ProjectSchedule.h"
#include "host/window/CategoryDock.h"
#include "host/window/MessageBar.h"
#include "host/window/ProjectWindow.h"

#include <QStackedWidget>
#include <QStatusBar>

namespace schedules::host {

void ProjectWindow::ChooseCategory(const QString& category)
{
    if (!MayReplaceView())
        return;
    Guarded([&] {
        m_open.answers->WorkOn(category);
        ListCategories();
        ShowSelector();
    });
}

void ProjectWindow::ChooseTemplate(const QString& category, const QString& fileName)
{
    if (!MayReplaceView())
        return;
    Guarded([&] {
        const bool same = m_open.answers->Category().compare(category, Qt::CaseInsensitive) == 0;
        const QStringList tags = same && m_schedule ? m_schedule->tags : QStringList();
        m_open.project->SetCurrentTemplate(category, fileName);
        m_open.answers->WorkOn(category);
        ListCategories();
        tags.isEmpty() ? ShowSelector() : ShowSchedule(tags);
    });
}

void ProjectWindow::ShowSelector()
{
    const QString xml = SelectionOf(*m_open.project, m_open.answers->Category(), {tr("No."), tr("Tag"), tr("Select")});
    m_schedule.reset();
    TakeView(std::make_unique<ScheduleTool>(m_session.Router(), m_answering.tool,
                                            ViewOptions{.view = host::View::Selector}));
    m_view->Load(xml);
}

void ProjectWindow::ShowSchedule(const QStringList& tags)
{
    m_schedule = ShownSchedule{tags, CurrentLayout(*m_open.project, m_open.answers->Category())};
    const QString xml = ScheduleText();
    TakeView(std::make_unique<ScheduleTool>(m_session.Router(), m_answering.tool, ViewOptions()));
    m_view->Load(xml);
}

QString ProjectWindow::ScheduleText() const
{
    return ScheduleOf(*m_open.project, m_open.answers->Category(), m_schedule->tags, m_schedule->layout);
}

/// A template was applied in the editor. It is built at once, unless the user would lose values.
void ProjectWindow::UseTemplate(const QString& xml)
{
    ListCategories();
    if (!m_schedule || !MayReplaceView())
        return;
    m_schedule->layout = ReadTemplateLayout(xml);
    m_view->Load(ScheduleText());
}

/// A former view, which may still be at work, has had its last message by now.
void ProjectWindow::TakeView(std::unique_ptr<ScheduleTool> view)
{
    EndView();
    m_view = std::move(view);
    m_view->SetPdsg(m_open.answers->Category());
    m_place->addWidget(&m_view->Widget());
    m_place->setCurrentWidget(&m_view->Widget());
    m_view->Widget().setFocus();
}

void ProjectWindow::EndView()
{
    m_view.reset();
    m_viewDone = false;
}

/// What other clients have stored is shown.
void ProjectWindow::Refresh()
{
    if (!m_open.project || !MayReplaceView())
        return;
    Guarded([this] {
        ListCategories();
        if (m_schedule)
            ShowSchedule(QStringList(m_schedule->tags));
        else if (m_view)
            ShowSelector();
    });
}

/// The view gets the new versions of its values; what it shows already is the same, unless somebody else's was kept.
void ProjectWindow::FreshenView(int stored, bool differs)
{
    statusBar()->showMessage(stored == 1 ? tr("Saved 1 value") : tr("Saved %1 values").arg(stored));
    if (!m_schedule)
        return;
    m_view->GiveText(ScheduleText());
    if (differs)
        Later([this] {
            if (m_schedule && m_view)
                m_view->Load(ScheduleText());
        });
}

void ProjectWindow::ShowOptions()
{
    if (m_options)
        return m_optionsDock->raise();
    m_options = std::make_unique<OptionsTool>(m_session.Router(), m_answering.tool);
    m_optionsDock->setWidget(&m_options->Widget());
    m_optionsDock->show();
    // The schedule keeps the room that the editor does not need.
    resizeDocks({m_optionsDock}, {m_options->Widget().minimumSizeHint().width()}, Qt::Horizontal);
    m_options->Open();
}

void ProjectWindow::EndOptions()
{
    m_options.reset();
    m_optionsDock->hide();
}

} // namespace schedules::host
