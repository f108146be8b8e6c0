#pragma once

#include "host/answers/LaidOutTemplates.h"
#include "host/project/ProjectTypes.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>
#include <span>

namespace schedules {
struct Message;
} // namespace schedules

namespace schedules::host {

class HostRouter;
class Project;

/// What the user wants where somebody else has stored another value since: the edits that are to be stored all the
/// same, or nothing when he cannot decide now; his values stay unsaved in the view then.
using ConflictQuestion = std::function<std::optional<QList<ValueEdit>>(const QList<Conflict>& conflicts)>;

/// Answers the tools out of a project, and does in it what they tell: docs/host-protocol.md lists it message by
/// message. What is to be seen of it on screen is told by signals, which come while the tool still waits for its reply.
///
/// A message that cannot be done fails: the tool tells its user why.
class ProjectAnswers : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive this object.
    ProjectAnswers(HostRouter& router, Project& project, LaidOutTemplates& folder, ConflictQuestion conflicts);
    ~ProjectAnswers() override;

    /// The category that is being worked on.
    const QString& Category() const { return m_category; }
    void WorkOn(const QString& category) { m_category = category; }

Q_SIGNALS:
    /// The schedule is to be built from this template.
    void TemplateChosen(const QString& xml, const QString& fileName);

    /// The list of templates is another one.
    void TemplatesChanged();

    /// Another client has changed a template as well; his is in the list now under this name.
    void TemplateKept(const QString& name);

    void OptionsWanted();
    void OptionsDone();
    void ScheduleDone();
    void TagsPicked(const QStringList& tags);
    void TagsToPrint(const QStringList& tags);

    /// Edits of the schedule were saved, by which so many values are others now; the view needs fresh text. With
    /// `differs` it shows values that were not stored, since the user has kept another one's.
    void Saved(const QList<schedules::host::ValueEdit>& edits, int stored, bool differs);

    void HelpWanted(const QString& context);
    void ErrorTold(const QString& description);

private:
    using Handler = QString (ProjectAnswers::*)(const Message&);
    struct Binding;
    static std::span<const Binding> Bindings();

    QString TemplateList(const Message&);
    QString Folder(const Message&);
    QString CategoryList(const Message&);
    QString CurrentTemplate(const Message&);
    QString UseTemplate(const Message& message);
    QString ReplaceList(const Message& message);
    QString RemoveFromList(const Message& message);
    QString ShowOptions(const Message&);
    QString EndOptions(const Message&);
    QString EndSchedule(const Message&);
    QString PickTags(const Message& message);
    QString PrintTags(const Message& message);
    QString SaveValues(const Message& message);
    QString ShowHelp(const Message& message);
    QString TellError(const Message& message);
    QString Nothing(const Message&) { return {}; }

    bool TryToStore(QList<TemplateEntry> wanted, const FileTexts& changed);

    HostRouter& m_router;
    Project& m_project;
    LaidOutTemplates& m_folder;
    ConflictQuestion m_conflicts;
    QString m_category;
    QList<TemplateEntry> m_shown; ///< the list as it was last sent
};

} // namespace schedules::host
