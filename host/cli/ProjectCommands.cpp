#include "host/cli/ProjectCommands.h"

#include "host/answers/ProjectSchedule.h"
#include "host/base/Console.h"
#include "host/base/HostError.h"
#include "host/base/Json.h"
#include "host/cli/ExitCodes.h"
#include "host/import/Headings.h"
#include "host/import/Import.h"
#include "host/import/SampleProject.h"
#include "host/project/Names.h"
#include "host/project/Project.h"

#include <algorithm>

namespace schedules::host {

namespace {

void PrintLine(const QString& line)
{
    PrintOut((line + u'\n').toUtf8());
}

QString Amount(int count, const char* one, const char* many)
{
    return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? one : many));
}

Tag TagOf(const Project& project, const QString& name)
{
    const QList<Tag> tags = project.Tags();
    const auto tag = std::ranges::find_if(tags, [&](const Tag& each) { return SameName(each.name, name); });
    if (tag == tags.end())
        throw HostError(QStringLiteral("there is no tag %1").arg(name));
    return *tag;
}

/// The data items of a category, as their locations say.
QList<DataItem> ItemsOf(const Project& project, const QString& category)
{
    QList<DataItem> items = project.Items();
    items.removeIf(
        [&](const DataItem& item) { return !item.location.startsWith(category + u'/', Qt::CaseInsensitive); });
    return items;
}

/// By its location, or by its name, when only one item of the tag's category has it.
DataItem ItemOf(const Project& project, const Tag& tag, const QString& text)
{
    QList<DataItem> found = project.Items();
    found.removeIf([&](const DataItem& item) { return !SameName(item.location, text); });
    if (found.isEmpty()) {
        found = ItemsOf(project, tag.category);
        found.removeIf([&](const DataItem& item) { return !SameName(item.name, text); });
    }
    if (found.isEmpty())
        throw HostError(QStringLiteral("there is no data item %1 for %2").arg(text, tag.name));
    if (found.size() > 1)
        throw HostError(QStringLiteral("several data items have the name %1: name one by its location, such as %2")
                            .arg(text, found.first().location));
    return found.first();
}

StoredValue ValueOf(const Project& project, const Tag& tag, const DataItem& item)
{
    return project.Values({tag.name}, {item.location}).first().first();
}

QByteArray JsonTexts(const QStringList& texts)
{
    QByteArrayList values;
    for (const QString& text : texts)
        values << JsonText(text);
    return JsonArray(values);
}

QByteArray TemplatesJson(const Project& project, const QString& category)
{
    const QString current = project.CurrentTemplate(category);
    QByteArrayList values;
    for (const TemplateEntry& entry : project.Templates()) {
        if (SameName(entry.category, category))
            values << JsonObject({{"name", JsonText(entry.name)},
                                  {"file", JsonText(entry.fileName)},
                                  {"current", JsonFlag(SameName(entry.fileName, current))}});
    }
    return JsonArray(values);
}

QByteArray CategoryJson(const Project& project, const Category& category)
{
    return JsonObject({{"name", JsonText(category.name)},
                       {"displayName", JsonText(category.displayName)},
                       {"templates", TemplatesJson(project, category.name)},
                       {"tags", JsonTexts(TagNames(project, category.name))}});
}

void PrintCategory(const Project& project, const Category& category)
{
    const auto tags = int(project.Tags(category.name).size());
    PrintLine(QStringLiteral("%1\t%2\t%3\t%4")
                  .arg(category.name, category.displayName, Amount(tags, "tag", "tags"),
                       project.CurrentTemplate(category.name)));
}

QByteArray ValueJson(const DataItem& item, const StoredValue& value)
{
    return JsonObject({{"item", JsonText(item.location)},
                       {"value", JsonText(value.text)},
                       {"unit", JsonText(item.unit)},
                       {"version", QByteArray::number(value.version)}});
}

/// What is stored for a tag: a line, or an object, for each value that there is.
void PrintValues(const Project& project, const Tag& tag, bool asJson)
{
    const QList<DataItem> items = ItemsOf(project, tag.category);
    const ValueTable values = project.Values({tag.name}, Locations(items));
    QByteArrayList objects;
    for (qsizetype index = 0; index < items.size(); ++index) {
        const DataItem& item = items[index];
        const StoredValue& value = values[index].first();
        if (value.version == 0)
            continue;
        if (asJson)
            objects << ValueJson(item, value);
        else
            PrintLine(QStringLiteral("%1\t%2\t%3").arg(item.location, value.text, item.unit));
    }
    if (asJson)
        PrintOut(JsonLines(objects) + '\n');
}

void PrintTags(const QStringList& tags, bool asJson)
{
    if (asJson)
        return PrintOut(JsonTexts(tags) + '\n');
    for (const QString& tag : tags)
        PrintLine(tag);
}

void PrintCategories(const Project& project, bool asJson)
{
    QByteArrayList objects;
    for (const Category& category : project.Categories()) {
        if (asJson)
            objects << CategoryJson(project, category);
        else
            PrintCategory(project, category);
    }
    if (asJson)
        PrintOut(JsonLines(objects) + '\n');
}

} // namespace

int RunNew(const CommandLine& commandLine)
{
    const auto project = NewProject(commandLine.files.first(), [&](Project& made) {
        if (commandLine.project.sample)
            FillWithSample(made);
        else if (!commandLine.project.empty)
            FillWithStandards(made);
    });
    PrintLine(project->Address().Text());
    return kDone;
}

int RunImport(const CommandLine& commandLine)
{
    const auto project = Project::Open(commandLine.files.first());
    ProgressLine progress;
    for (const QString& file : commandLine.files.sliced(1)) {
        progress.Show(QStringLiteral("importing %1").arg(file));
        const ImportResult result = ImportTable(*project, file);
        progress.Clear();
        PrintLine(QStringLiteral("%1: %2, %3, %4, %5")
                      .arg(file, Amount(result.categories, "category", "categories"),
                           Amount(result.items, "data item", "data items"), Amount(result.tags, "tag", "tags"),
                           Amount(result.values, "value", "values")));
    }
    return kDone;
}

int RunList(const CommandLine& commandLine)
{
    const auto project = Project::Open(commandLine.files.first());
    const Project::Moment moment(*project);
    const ProjectOptions& options = commandLine.project;
    if (options.category.isEmpty())
        PrintCategories(*project, options.asJson);
    else
        PrintTags(TagNames(*project, options.category), options.asJson);
    return kDone;
}

int RunGet(const CommandLine& commandLine)
{
    const auto project = Project::Open(commandLine.files[0]);
    const Project::Moment moment(*project);
    const Tag tag = TagOf(*project, commandLine.files[1]);
    if (commandLine.files.size() < 3) {
        PrintValues(*project, tag, commandLine.project.asJson);
        return kDone;
    }
    const DataItem item = ItemOf(*project, tag, commandLine.files[2]);
    const StoredValue value = ValueOf(*project, tag, item);
    PrintOut(commandLine.project.asJson ? ValueJson(item, value) + '\n' : (value.text + u'\n').toUtf8());
    return kDone;
}

/// What is stored for a text: a check box knows 1 and 0 alone.
QString Storable(const DataItem& item, const QString& text)
{
    if (item.dataType != QLatin1String("CHECKBOX"))
        return text;
    const auto flag = FlagIn(text);
    if (!flag)
        throw HostError(QStringLiteral("%1 is a check box, which takes 1 or 0, not '%2'").arg(item.location, text));
    return *flag ? QStringLiteral("1") : QStringLiteral("0");
}

int RunSet(const CommandLine& commandLine)
{
    const auto project = Project::Open(commandLine.files[0]);
    const Tag tag = TagOf(*project, commandLine.files[1]);
    const DataItem item = ItemOf(*project, tag, commandLine.files[2]);
    return StoreValue(*project, {tag.name, item.location, Storable(item, commandLine.files[3]),
                                 ValueOf(*project, tag, item).version});
}

int StoreValue(Project& project, const ValueEdit& edit)
{
    const SaveResult result = project.Save({edit});
    if (result.conflicts.isEmpty())
        return kDone;
    PrintError(QStringLiteral("somebody else has stored '%1' at the same moment; nothing was changed")
                   .arg(result.conflicts.first().stored.text));
    return kInConflict;
}

} // namespace schedules::host
