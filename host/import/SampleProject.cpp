#include "host/import/SampleProject.h"

#include "host/base/DataFolder.h"
#include "host/base/HostError.h"
#include "host/import/Import.h"
#include "host/project/Project.h"
#include "host/project/ProjectFile.h"
#include "host/project/TemplateListXml.h"

#include <QDir>
#include <QFile>

namespace schedules::host {

namespace {

QString SamplePath(const QString& name)
{
    return QDir(DataFolder(QStringLiteral("samples"))).filePath(name);
}

QString SampleText(const QString& name)
{
    QFile file(SamplePath(name));
    if (!file.open(QIODevice::ReadOnly))
        throw HostError(QStringLiteral("cannot read %1: %2").arg(file.fileName(), file.errorString()));
    return QString::fromUtf8(file.readAll());
}

void ImportSample(Project& project, const QString& name)
{
    ImportTable(project, SamplePath(QStringLiteral("plant/%1.csv").arg(name)));
}

void AddTemplates(Project& project)
{
    const QList<TemplateEntry> entries = ReadTemplateList(SampleText(QStringLiteral("lists/template-list.xml")));
    QList<QPair<QString, QString>> texts;
    for (const TemplateEntry& entry : entries)
        texts.push_back({entry.fileName, SampleText(QStringLiteral("templates/") + entry.fileName)});
    project.MergeTemplates({}, entries, texts);
}

} // namespace

void FillWithStandards(Project& project)
{
    ImportSample(project, QStringLiteral("categories"));
    ImportSample(project, QStringLiteral("items"));
    AddTemplates(project);
}

void FillWithSample(Project& project)
{
    FillWithStandards(project);
    for (const Category& category : project.Categories())
        ImportSample(project, category.name.toLower());
}

std::unique_ptr<Project> NewProject(const QString& address, const std::function<void(Project&)>& fill)
{
    auto project = Project::Create(address);
    try {
        fill(*project);
    } catch (...) {
        const ProjectAddress made = project->Address();
        project.reset();
        if (!made.OnServer())
            RemoveProjectFile(made.File());
        throw;
    }
    return project;
}

} // namespace schedules::host
