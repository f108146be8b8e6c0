#include "host/answers/ProjectSchedule.h"

#include "host/HostError.h"
#include "host/project/Project.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace schedules::host {

namespace {

constexpr int kSelectionItems = 4;

bool Same(const QString& one, const QString& other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

void RequireCategory(const Project& project, const QString& category)
{
    if (!std::ranges::any_of(project.Categories(), [&](const Category& each) { return Same(each.name, category); }))
        throw HostError(QStringLiteral("there is no category %1").arg(category));
}

QStringList Names(const QList<Tag>& tags)
{
    QStringList names;
    for (const Tag& tag : tags)
        names << tag.name;
    return names;
}

QStringList Locations(const QList<DataItem>& items)
{
    QStringList locations;
    for (const DataItem& item : items)
        locations << item.location;
    return locations;
}

QList<Tag> Named(const Project& project, const QString& category, const QStringList& names)
{
    QHash<QString, Tag> known;
    for (const Tag& tag : project.Tags(category))
        known.insert(tag.name.toCaseFolded(), tag);
    QList<Tag> named;
    for (const QString& name : names) {
        const auto tag = known.constFind(name.toCaseFolded());
        if (tag == known.constEnd())
            throw HostError(QStringLiteral("there is no tag %1 in the category %2").arg(name, category));
        named.append(*tag);
    }
    return named;
}

QList<DataItem> Located(const Project& project, const QStringList& locations)
{
    QSet<QString> wanted;
    for (const QString& location : locations)
        wanted.insert(location.toCaseFolded());
    QList<DataItem> items = project.Items();
    items.removeIf([&](const DataItem& item) { return !wanted.contains(item.location.toCaseFolded()); });
    return items;
}

ScheduleContent ContentOf(const Project& project, const QList<Tag>& tags, const QStringList& locations)
{
    const QList<DataItem> items = Located(project, locations);
    return {tags, items, project.Values(Names(tags), Locations(items))};
}

} // namespace

QStringList TagNames(const Project& project, const QString& category)
{
    RequireCategory(project, category);
    return Names(project.Tags(category));
}

TemplateLayout CurrentLayout(const Project& project, const QString& category)
{
    RequireCategory(project, category);
    const QString text = project.TemplateText(project.CurrentTemplate(category));
    if (text.isEmpty())
        throw HostError(QStringLiteral("the category %1 has no template").arg(category));
    return ReadTemplateLayout(text);
}

QString ScheduleOf(const Project& project, const QString& category, const QStringList& tags,
                   const TemplateLayout& layout)
{
    RequireCategory(project, category);
    return ScheduleXml(layout, ContentOf(project, Named(project, category, tags), LocationsShown(layout)));
}

QString SelectionOf(const Project& project, const QString& category, const SelectionCaptions& captions)
{
    RequireCategory(project, category);
    const QString text = project.TemplateText(project.CurrentTemplate(category));
    const QStringList shown = text.isEmpty() ? QStringList() : LocationsShown(ReadTemplateLayout(text));
    return SelectionXml(captions, ContentOf(project, project.Tags(category), shown.mid(0, kSelectionItems)));
}

} // namespace schedules::host
