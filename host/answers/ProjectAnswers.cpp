#include "host/answers/ProjectAnswers.h"

#include "host/base/HostError.h"
#include "host/project/Names.h"
#include "host/project/Project.h"
#include "host/project/TemplateListXml.h"
#include "host/schedule/EditedCells.h"
#include "host/tools/HostRouter.h"

#include <algorithm>
#include <span>

namespace schedules::host {

namespace {

const TemplateEntry* EntryWithFile(const QList<TemplateEntry>& entries, const QString& fileName)
{
    const auto found =
        std::ranges::find_if(entries, [&](const TemplateEntry& entry) { return SameName(entry.fileName, fileName); });
    return found == entries.end() ? nullptr : &*found;
}

/// The editor names a new template without its category; its file says which it is.
void FillCategories(QList<TemplateEntry>& entries, const FileTexts& files)
{
    for (TemplateEntry& entry : entries) {
        const auto file =
            std::ranges::find_if(files, [&](const auto& text) { return SameName(text.first, entry.fileName); });
        if (entry.category.isEmpty() && file != files.end())
            entry.category = EntryOfFile(file->first, file->second).category;
    }
}

bool IsTaken(const QList<TemplateEntry>& entries, const QString& name)
{
    return std::ranges::any_of(entries, [&](const TemplateEntry& entry) {
        return SameName(entry.name, name) || SameName(entry.fileName, FileNameFor(name));
    });
}

/// A name for another client's template of the same name.
QString FreeName(const QList<TemplateEntry>& entries, const QString& name)
{
    for (int number = 2;; ++number) {
        const QString free = QStringLiteral("%1 (%2)").arg(name).arg(number);
        if (!IsTaken(entries, free))
            return free;
    }
}

/// Of the same files, as the project has them; empty where it has none.
FileTexts StoredTexts(const Project& project, const FileTexts& files)
{
    const Project::Moment moment(project);
    FileTexts stored;
    for (const auto& [fileName, text] : files)
        stored.append({fileName, project.TemplateText(fileName)});
    return stored;
}

/// Where another client has stored a text of the same file since, his becomes a template of its own. Gives the names.
QStringList KeepOthers(const FileTexts& others, const QList<TemplateEntry>& listed, QList<TemplateEntry>& wanted,
                       FileTexts& texts)
{
    QStringList names;
    for (const auto& [fileName, text] : others) {
        const TemplateEntry* entry = EntryWithFile(wanted, fileName);
        if (!entry)
            continue;
        TemplateEntry kept = *entry;
        kept.name = FreeName(wanted + listed, entry->name);
        kept.fileName = FileNameFor(kept.name);
        kept.defaultForCategory = false;
        texts.append({kept.fileName, text});
        wanted.append(kept);
        names << kept.name;
    }
    return names;
}

} // namespace

struct ProjectAnswers::Binding
{
    const char* message;
    Handler handler;
};

std::span<const ProjectAnswers::Binding> ProjectAnswers::Bindings()
{
    static constexpr Binding kBindings[]{
        {"InitializeSchedule", &ProjectAnswers::Nothing},
        {"INITIALIZESCHEDOPTIONS", &ProjectAnswers::Nothing},
        {"ProcessSubscriberEvent", &ProjectAnswers::ShowHelp},
        {"GETTEMPLATELIST", &ProjectAnswers::TemplateList},
        {"GETBUILDERPATH", &ProjectAnswers::Folder},
        {"GETTEMPLATECATEGORIES", &ProjectAnswers::CategoryList},
        {"GETCURRENTSCHEDTEMPLATE", &ProjectAnswers::CurrentTemplate},
        {"SETCURRENTSCHEDTEMPLATE", &ProjectAnswers::UseTemplate},
        {"UPDATESCHEDCONFIG", &ProjectAnswers::ReplaceList},
        {"REMOVECONFIGENTRY", &ProjectAnswers::RemoveFromList},
        {"ShowOptions", &ProjectAnswers::ShowOptions},
        {"UnloadScheduleOptions", &ProjectAnswers::EndOptions},
        {"UnloadSchedule", &ProjectAnswers::EndSchedule},
        {"ContinueButton", &ProjectAnswers::PickTags},
        {"PrintSelections", &ProjectAnswers::PrintTags},
        {"UpdateTagScheduleData", &ProjectAnswers::SaveValues},
        {"ErrorMessage", &ProjectAnswers::TellError},
    };
    return kBindings;
}

ProjectAnswers::ProjectAnswers(HostRouter& router, Project& project, LaidOutTemplates& folder,
                               ConflictQuestion conflicts)
    : m_router(router), m_project(project), m_folder(folder), m_conflicts(std::move(conflicts))
{
    for (const Binding& binding : Bindings())
        router.Answers(QString::fromLatin1(binding.message),
                       [this, &binding](const Message& message) { return (this->*binding.handler)(message); });
}

ProjectAnswers::~ProjectAnswers()
{
    for (const Binding& binding : Bindings())
        m_router.NoLongerAnswers(QString::fromLatin1(binding.message));
}

QString ProjectAnswers::TemplateList(const Message&)
{
    m_shown = m_project.Templates();
    return TemplateListXml(m_shown);
}

QString ProjectAnswers::Folder(const Message&)
{
    m_folder.LayOut();
    return m_folder.Path();
}

QString ProjectAnswers::CategoryList(const Message&)
{
    return CategoryListXml(m_project.Categories());
}

QString ProjectAnswers::CurrentTemplate(const Message&)
{
    return m_project.CurrentTemplate(m_category);
}

QString ProjectAnswers::UseTemplate(const Message& message)
{
    const QString fileName = ParameterText(message, QStringLiteral("TemplateFile"));
    m_project.SetCurrentTemplate(m_category, fileName);
    Q_EMIT TemplateChosen(ParameterText(message, QStringLiteral("TemplateXML")), fileName);
    return {};
}

QString ProjectAnswers::ReplaceList(const Message& message)
{
    QList<TemplateEntry> wanted = ReadTemplateList(ParameterText(message, QStringLiteral("ConfigXML")));
    const FileTexts changed = m_folder.Changed(FileNames(wanted));
    FillCategories(wanted, changed);
    while (!TryToStore(wanted, changed))
        continue;
    m_folder.Remember(changed);
    m_shown = m_project.Templates();
    Q_EMIT TemplatesChanged();
    return {};
}

/// False, and nothing is stored, when somebody else stores a text of one of these files at the same moment.
bool ProjectAnswers::TryToStore(QList<TemplateEntry> wanted, const FileTexts& changed)
{
    const FileTexts stored = StoredTexts(m_project, changed);
    FileTexts texts = changed;
    const QStringList kept =
        KeepOthers(m_folder.ChangedElsewhere(stored, changed), m_project.Templates(), wanted, texts);
    try {
        m_project.MergeTemplates(m_shown, wanted, texts, stored);
    } catch (const TextsChanged&) {
        return false;
    }
    for (const QString& name : kept)
        Q_EMIT TemplateKept(name);
    return true;
}

QString ProjectAnswers::RemoveFromList(const Message& message)
{
    m_project.RemoveTemplate(ParameterText(message, QStringLiteral("TemplateFile")));
    m_shown = m_project.Templates();
    Q_EMIT TemplatesChanged();
    return {};
}

QString ProjectAnswers::ShowOptions(const Message&)
{
    Q_EMIT OptionsWanted();
    return {};
}

QString ProjectAnswers::EndOptions(const Message&)
{
    Q_EMIT OptionsDone();
    return {};
}

QString ProjectAnswers::EndSchedule(const Message&)
{
    Q_EMIT ScheduleDone();
    return {};
}

QString ProjectAnswers::PickTags(const Message& message)
{
    Q_EMIT TagsPicked(SelectedTags(ParameterText(message, QStringLiteral("SelectedTags"))));
    return {};
}

QString ProjectAnswers::PrintTags(const Message& message)
{
    Q_EMIT TagsToPrint(SelectedTags(ParameterText(message, QStringLiteral("SelectedTags"))));
    return {};
}

QString ProjectAnswers::SaveValues(const Message& message)
{
    const QString xml = ParameterText(message, QStringLiteral("ScheduleXml"));
    const QList<ValueEdit> edits = EditedCells(xml, m_project.Items());
    SaveResult result = m_project.Save(edits);
    int stored = result.stored;
    bool differs = false;
    while (!result.conflicts.isEmpty()) {
        const auto insisted = m_conflicts(result.conflicts);
        if (!insisted)
            throw HostError(
                tr("%n value(s) changed by someone else were not saved.", nullptr, int(result.conflicts.size())));
        differs = differs || insisted->size() < result.conflicts.size();
        result = m_project.Save(*insisted);
        stored += result.stored;
    }
    Q_EMIT Saved(edits, stored, differs);
    return {};
}

QString ProjectAnswers::ShowHelp(const Message& message)
{
    Q_EMIT HelpWanted(ParameterText(message, QStringLiteral("ContextID")));
    return {};
}

QString ProjectAnswers::TellError(const Message& message)
{
    Q_EMIT ErrorTold(ParameterText(message, QStringLiteral("ErrorDescription")));
    return {};
}

} // namespace schedules::host
