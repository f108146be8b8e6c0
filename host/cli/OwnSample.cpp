#include "host/cli/OwnSample.h"

#include "host/base/DataFolder.h"
#include "host/base/HostError.h"
#include "host/files/XmlFile.h"
#include "host/import/SampleProject.h"
#include "host/project/Project.h"
#include "host/project/ProjectFile.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>

namespace schedules::host {

namespace {

const QString kTemplates = QStringLiteral("templates");
const QString kTemplateList = QStringLiteral("lists/template-list.xml");
const QString kCategoryList = QStringLiteral("lists/category-list.xml");
const QString kCurrentTemplate = QStringLiteral("CurrentTemplate");

QDir Samples()
{
    return QDir(DataFolder(QStringLiteral("samples")));
}

QString OwnPath(const QString& sample)
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).filePath(sample);
}

void MakeFolder(const QString& folder)
{
    if (!QDir().mkpath(folder))
        throw HostError(QStringLiteral("cannot make the folder %1").arg(folder));
}

/// The user's copy of a sample, which is named from the folder of samples on.
QString OwnCopy(const QString& sample)
{
    const QString own = OwnPath(sample);
    if (QFileInfo::exists(own))
        return own;
    MakeFolder(QFileInfo(own).path());
    WriteXmlFile(own, ReadXmlFile(Samples().filePath(sample)));
    return own;
}

class Settings : public QSettings
{
public:
    Settings() : QSettings(IniFormat, UserScope, QStringLiteral("schedhost"), QStringLiteral("options")) {}
};

} // namespace

QString OwnProject()
{
    const QString own = OwnPath(QStringLiteral("sample.schedules"));
    if (QFileInfo::exists(own))
        return own;
    MakeFolder(QFileInfo(own).path());
    QLockFile onlyOne(own + QStringLiteral(".lock"));
    onlyOne.lock(); // where that fails the project cannot be made either, which is told
    if (QFileInfo::exists(own))
        return own;
    // It gets its name when it is complete, so that a start that was cut short leaves none.
    const QString unfinished = OwnPath(QStringLiteral("unfinished.schedules"));
    RemoveProjectFile(unfinished);
    NewProject(unfinished, FillWithSample);
    RenameProjectFile(unfinished, own);
    return own;
}

TemplatePlaces OwnTemplates()
{
    // The list comes last, and so tells that all of them have been copied.
    if (!QFileInfo::exists(OwnPath(kTemplateList))) {
        for (const QString& name : QDir(Samples().filePath(kTemplates)).entryList(QDir::Files))
            OwnCopy(kTemplates + u'/' + name);
    }
    const QString categories = OwnCopy(kCategoryList);
    const QString current = Settings().value(kCurrentTemplate, QStringLiteral("PumpSchedule.xml")).toString();
    return {
        .folder = OwnPath(kTemplates), .list = OwnCopy(kTemplateList), .categories = categories, .current = current};
}

void KeepOwnCurrentTemplate(const QString& fileName)
{
    Settings settings;
    settings.setValue(kCurrentTemplate, fileName);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        throw HostError(QStringLiteral("cannot write %1").arg(settings.fileName()));
}

} // namespace schedules::host
