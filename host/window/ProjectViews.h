#pragma once

#include "host/project/ProjectTypes.h"
#include "host/schedule/ScheduleBuilder.h"
#include "host/tools/ViewOptions.h"
#include "host/window/Answering.h"

#include <QStackedWidget>

#include <functional>
#include <memory>
#include <optional>

class QLabel;

namespace schedules::host {

class HostedSchedule;
class Project;
class ProjectAnswers;
class Session;

/// What a project's window shows in its middle: the selector of a category, or the schedule of the tags that were
/// picked; an invitation before that. What cannot be read throws `HostError`.
class ProjectViews : public QStackedWidget
{
    Q_OBJECT

public:
    /// The session must outlive this widget.
    ProjectViews(Session& session, const Answering& answering, QWidget* parent);
    ~ProjectViews() override;

    /// What is shown from now on is of this project. Both must outlive what is shown of it.
    void ShowFrom(Project& project, ProjectAnswers& answers);

    /// What is read where there is no view.
    void Invite(const QString& text);

    void ShowSelector(const QString& category);
    void ShowSchedule(const QString& category, const QStringList& tags, const TemplateLayout& layout);

    /// The schedule of these tags of the category whose selector is shown, by its current template.
    void ShowPicked(const QStringList& tags);

    /// Ends the view, whatever is edited in it.
    void End();

    /// The view has told to unload it; what it shows needs no saving any more.
    void NoteDone() { m_isDone = true; }

    /// Ends a view that has told to unload it. A schedule leaves its place to the tags that can be picked.
    void Leave();

    /// Whether the edits of the view are saved now, or the user does not want them.
    bool MayReplace();

    /// Shows what the project says now.
    void Reload();

    /// Builds the schedule by another template.
    void UseLayout(const TemplateLayout& layout);

    /// Ends the view, does a step, and shows the same in a new view.
    void RemakeAfter(const std::function<void()>& step);

    /// After a save the view gets the new versions of its values, so that the next one knows what it showed. Gives the
    /// number of values that others have stored.
    int Freshen(const QList<ValueEdit>& edited);

    /// Shows what others have stored, unless that would come in the midst of an edit. Gives the number of such values.
    int FollowOthers();

    bool ShowsSelectorOf(const QString& category) const;
    bool ShowsScheduleOf(const QString& category) const;
    bool ShowsSchedule() const { return m_schedule.has_value(); }

    /// The tags of the schedule that is shown, and the data items that it may show; none without one.
    QStringList Tags() const { return m_schedule ? m_schedule->tags : QStringList(); }
    QList<DataItem> Items() const { return m_schedule ? m_schedule->content.items : QList<DataItem>(); }

    /// None before a category is chosen.
    HostedSchedule* View() const { return m_view.get(); }

private:
    /// What the schedule view shows, as it was read.
    struct ShownSchedule
    {
        QString category;
        QStringList tags;
        TemplateLayout layout;
        ScheduleContent content;
    };

    void Take(host::View kind, const QString& category, const QString& xml);
    ScheduleContent ContentNow() const;

    Session& m_session;
    Answering m_answering;
    QLabel* m_invitation;
    Project* m_project = nullptr;
    ProjectAnswers* m_answers = nullptr;
    std::unique_ptr<HostedSchedule> m_view;
    std::optional<ShownSchedule> m_schedule; ///< nothing while the selector is shown
    bool m_isDone = false;                   ///< the view has told to unload it
};

} // namespace schedules::host
