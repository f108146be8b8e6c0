#include "host/import/Import.h"

#include "host/base/HostError.h"
#include "host/import/Headings.h"
#include "host/import/RecordTables.h"
#include "host/import/TagRows.h"

#include <QFile>
#include <QFileInfo>

namespace schedules::host {

namespace {

QByteArray Content(const QString& fileName)
{
    QFile file(fileName);
    if (QFileInfo(fileName).isDir())
        throw HostError(QStringLiteral("cannot read %1: it is a folder").arg(fileName));
    if (!file.open(QIODevice::ReadOnly))
        throw HostError(QStringLiteral("cannot read %1: %2").arg(fileName, file.errorString()));
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw HostError(QStringLiteral("cannot read %1: %2").arg(fileName, file.errorString()));
    return bytes;
}

/// What a table holds; it is recognised by the one heading that only its kind has.
Project::Content ReadTable(const CsvTable& table, const Project& project, TableErrors& errors)
{
    if (HasHeading(table, kTagHeading))
        return ReadTagRows(table, project, errors);
    if (HasHeading(table, kLocationHeading))
        return ReadItemTable(table, project, errors);
    if (HasHeading(table, kNameHeading))
        return ReadCategoryTable(table, project, errors);
    errors.Add({},
               QStringLiteral("there is no heading tag, location or name, so that this is no table of tags, of data "
                              "items or of categories"));
    return {};
}

void CheckRows(const CsvTable& table, TableErrors& errors)
{
    if (table.Rows().isEmpty())
        errors.Add(table.Headings().front().place, QStringLiteral("there is nothing below the headings"));
}

} // namespace

ImportResult ImportTable(Project& project, const QString& fileName)
{
    TableErrors errors;
    const CsvTable table(Content(fileName), errors);
    errors.ThrowIfAny(fileName);
    const Project::Content content = ReadTable(table, project, errors);
    if (errors.IsEmpty())
        CheckRows(table, errors);
    errors.ThrowIfAny(fileName);
    project.Put(content);
    const auto count = [](const auto& list) { return static_cast<int>(list.size()); };
    return {count(content.categories), count(content.tags), count(content.items), count(content.values)};
}

} // namespace schedules::host
