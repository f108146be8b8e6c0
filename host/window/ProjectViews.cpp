#include "host/window/ProjectViews.h"

#include "host/answers/ProjectAnswers.h"
#include "host/answers/ProjectSchedule.h"
#include "host/project/Names.h"
#include "host/project/Project.h"
#include "host/tools/HostedSchedule.h"
#include "host/tools/Session.h"

#include <QLabel>

namespace schedules::host {

namespace {

QLabel* Invitation(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("lblInvitation"));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

ProjectViews::ProjectViews(Session& session, const Answering& answering, QWidget* parent)
    : QStackedWidget(parent), m_session(session), m_answering(answering), m_invitation(Invitation(this))
{
    addWidget(m_invitation);
}

ProjectViews::~ProjectViews() = default;

void ProjectViews::ShowFrom(Project& project, ProjectAnswers& answers)
{
    m_project = &project;
    m_answers = &answers;
}

void ProjectViews::Invite(const QString& text)
{
    m_invitation->setText(text);
}

void ProjectViews::ShowSelector(const QString& category)
{
    const QString xml = SelectionOf(*m_project, category, {tr("No."), tr("Tag"), tr("Select")});
    Take(host::View::Selector, category, xml);
}

void ProjectViews::ShowPicked(const QStringList& tags)
{
    const QString category = m_answers->Category();
    ShowSchedule(category, tags, CurrentLayout(*m_project, category));
}

void ProjectViews::ShowSchedule(const QString& category, const QStringList& tags, const TemplateLayout& layout)
{
    ShownSchedule schedule{category, tags, layout, ContentOf(*m_project, category, tags, layout)};
    Take(host::View::Schedule, category, ScheduleXml(layout, schedule.content));
    m_schedule = std::move(schedule);
}

/// In place of a view whose last message is over.
void ProjectViews::Take(host::View kind, const QString& category, const QString& xml)
{
    End();
    m_answers->WorkOn(category);
    m_view = std::make_unique<HostedSchedule>(m_session.Router(), m_answering.tool, ViewOptions{.view = kind});
    m_view->SetPdsg(category);
    addWidget(&m_view->Widget());
    setCurrentWidget(&m_view->Widget());
    m_view->Load(xml);
    m_view->Widget().setFocus();
}

void ProjectViews::End()
{
    m_view.reset();
    m_schedule.reset();
    m_isDone = false;
}

void ProjectViews::Leave()
{
    const bool wasSchedule = ShowsSchedule();
    End();
    if (wasSchedule)
        ShowSelector(QString(m_answers->Category()));
}

bool ProjectViews::MayReplace()
{
    return !m_view || m_isDone || host::MayReplace(*m_view, *window(), tr("The schedule"), m_answering.unsaved);
}

ScheduleContent ProjectViews::ContentNow() const
{
    return ContentOf(*m_project, m_schedule->category, m_schedule->tags, m_schedule->layout);
}

void ProjectViews::Reload()
{
    if (m_schedule) {
        m_schedule->content = ContentNow();
        m_view->Load(ScheduleXml(m_schedule->layout, m_schedule->content));
    } else if (m_view) {
        ShowSelector(QString(m_answers->Category()));
    }
}

void ProjectViews::UseLayout(const TemplateLayout& layout)
{
    m_schedule->layout = layout;
    Reload();
}

void ProjectViews::RemakeAfter(const std::function<void()>& step)
{
    const auto schedule = m_schedule;
    const bool hadView = m_view != nullptr;
    End();
    step();
    if (schedule)
        ShowSchedule(schedule->category, schedule->tags, schedule->layout);
    else if (hadView)
        ShowSelector(QString(m_answers->Category()));
}

int ProjectViews::Freshen(const QList<ValueEdit>& edited)
{
    const ScheduleContent now = ContentNow();
    const int others = ChangedElsewhere(m_schedule->content, now, edited);
    m_schedule->content = now;
    m_view->GiveText(ScheduleXml(m_schedule->layout, now));
    return others;
}

int ProjectViews::FollowOthers()
{
    const bool isInTheWay = !m_schedule || m_isDone || m_view->Dirty() || m_view->IsEditing();
    if (isInTheWay)
        return 0;
    const int others = ChangedElsewhere(m_schedule->content, ContentNow(), {});
    if (others > 0)
        Reload();
    return others;
}

bool ProjectViews::ShowsSelectorOf(const QString& category) const
{
    return m_view && !m_schedule && SameName(category, m_answers->Category());
}

bool ProjectViews::ShowsScheduleOf(const QString& category) const
{
    return m_schedule && SameName(category, m_schedule->category);
}

} // namespace schedules::host
