#include "host/project/Project.h"

#include "host/base/HostError.h"
#include "host/project/EquipmentStore.h"
#include "host/project/ProjectFile.h"
#include "host/project/Schema.h"
#include "host/project/TemplateStore.h"
#include "host/project/Transaction.h"
#include "host/project/ValueStore.h"

#include <optional>

namespace schedules::host {

namespace {

QString Meta(Database& database, QLatin1String name)
{
    return Reading(database, [&] {
        return database.Text(QStringLiteral("SELECT value FROM meta WHERE name = ?"), {QString(name)});
    });
}

} // namespace

Project::Project(const ProjectAddress& address) : m_address(address), m_database(std::make_unique<Database>(address)) {}

Project::~Project() = default;

std::unique_ptr<Project> Project::Open(const QString& text)
{
    const ProjectAddress address(text);
    if (!address.OnServer())
        RequireProjectFile(address.File());
    std::unique_ptr<Project> project(new Project(address));
    UpdateSchema(*project->m_database);
    return project;
}

std::unique_ptr<Project> Project::Create(const QString& text)
{
    const ProjectAddress address(text);
    std::optional<NewFile> file;
    if (!address.OnServer())
        file.emplace(address.File());
    std::unique_ptr<Project> project(new Project(address));
    MakeSchema(*project->m_database);
    if (file)
        file->Keep();
    return project;
}

Project::Moment::Moment(const Project& project)
{
    if (!project.m_database->InTransaction())
        m_transaction = std::make_unique<Transaction>(*project.m_database, Transaction::Purpose::Reading);
}

Project::Moment::~Moment() = default;

QString Project::Id() const
{
    return Meta(*m_database, QLatin1String("id"));
}

QString Project::Language() const
{
    return Meta(*m_database, QLatin1String("language"));
}

void Project::SetLanguage(const QString& language)
{
    Writing(*m_database,
            [&] { m_database->Run(QStringLiteral("UPDATE meta SET value = ? WHERE name = 'language'"), {language}); });
}

QList<Category> Project::Categories() const
{
    return Reading(*m_database, [&] { return EquipmentStore(*m_database).Categories(); });
}

QList<Tag> Project::Tags(const QString& category) const
{
    return Reading(*m_database, [&] { return EquipmentStore(*m_database).Tags(category); });
}

QList<DataItem> Project::Items() const
{
    return Reading(*m_database, [&] { return EquipmentStore(*m_database).Items(); });
}

void Project::Put(const Content& content)
{
    Writing(*m_database, [&] {
        EquipmentStore equipment(*m_database);
        equipment.PutCategories(content.categories);
        equipment.PutTags(content.tags);
        equipment.PutItems(content.items);
        ValueStore(*m_database).Put(content.values);
    });
}

ValueTable Project::Values(const QStringList& tags, const QStringList& items) const
{
    return Reading(*m_database, [&] { return ValueStore(*m_database).Values(tags, items); });
}

SaveResult Project::Save(const QList<ValueEdit>& edits)
{
    return Writing(*m_database, [&] { return ValueStore(*m_database).Save(edits); });
}

QList<TemplateEntry> Project::Templates() const
{
    return Reading(*m_database, [&] { return TemplateStore(*m_database).Templates(); });
}

QString Project::TemplateText(const QString& fileName) const
{
    return Reading(*m_database, [&] { return TemplateStore(*m_database).Text(fileName); });
}

void Project::MergeTemplates(const QList<TemplateEntry>& shown, const QList<TemplateEntry>& wanted,
                             const QList<QPair<QString, QString>>& texts, const QList<QPair<QString, QString>>& known)
{
    Writing(*m_database, [&] { TemplateStore(*m_database).Merge(shown, wanted, texts, known); });
}

void Project::RemoveTemplate(const QString& fileName)
{
    Writing(*m_database, [&] { TemplateStore(*m_database).Remove(fileName); });
}

QString Project::CurrentTemplate(const QString& category) const
{
    return Reading(*m_database, [&] { return TemplateStore(*m_database).Current(category); });
}

void Project::SetCurrentTemplate(const QString& category, const QString& fileName)
{
    Writing(*m_database, [&] { TemplateStore(*m_database).SetCurrent(category, fileName); });
}

} // namespace schedules::host
