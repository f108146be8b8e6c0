#include "host/answers/ProjectSchedule.h"

#include "host/base/HostError.h"
#include "host/project/Names.h"
#include "host/project/Project.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace schedules::host {

namespace {

constexpr int kSelectionItems = 4;

/// Where a category has an item for the tag's own name.
const QString kTagItself = QStringLiteral("/Tag");

void RequireCategory(const Project& project, const QString& category)
{
    if (!std::ranges::any_of(project.Categories(), [&](const Category& each) { return SameName(each.name, category); }))
        throw HostError(QStringLiteral("there is no category %1").arg(category));
}

QList<Tag> Named(const Project& project, const QString& category, const QStringList& names)
{
    QHash<QString, Tag> known;
    for (const Tag& tag : project.Tags(category))
        known.insert(FoldedName(tag.name), tag);
    QList<Tag> named;
    for (const QString& name : names) {
        const auto tag = known.constFind(FoldedName(name));
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
        wanted.insert(FoldedName(location));
    QList<DataItem> items = project.Items();
    items.removeIf([&](const DataItem& item) { return !wanted.contains(FoldedName(item.location)); });
    return items;
}

ScheduleContent Known(const Project& project, const QList<Tag>& tags, const QStringList& locations)
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
    const Project::Moment moment(project);
    RequireCategory(project, category);
    const QString fileName = project.CurrentTemplate(category);
    if (fileName.isEmpty())
        throw HostError(QStringLiteral("the category %1 has no template").arg(category));
    return LayoutOf(project, fileName);
}

TemplateLayout LayoutOf(const Project& project, const QString& fileName)
{
    const QString text = project.TemplateText(fileName);
    if (text.isEmpty())
        throw HostError(QStringLiteral("there is no template %1").arg(fileName));
    return ReadTemplateLayout(text);
}

ScheduleContent ContentOf(const Project& project, const QString& category, const QStringList& tags,
                          const TemplateLayout& layout)
{
    const Project::Moment moment(project);
    RequireCategory(project, category);
    return Known(project, Named(project, category, tags), LocationsShown(layout));
}

int ChangedElsewhere(const ScheduleContent& shown, const ScheduleContent& now, const QList<ValueEdit>& edited)
{
    if (shown.tags != now.tags || shown.items != now.items)
        return int(std::max(now.tags.size(), qsizetype(1)));
    QSet<std::pair<QString, QString>> own;
    for (const ValueEdit& edit : edited)
        own.insert({FoldedName(edit.tag), FoldedName(edit.item)});
    int changed = 0;
    for (qsizetype item = 0; item < now.items.size(); ++item) {
        for (qsizetype tag = 0; tag < now.tags.size(); ++tag) {
            const bool same = now.values[item][tag].version == shown.values[item][tag].version;
            if (!same && !own.contains({FoldedName(now.tags[tag].name), FoldedName(now.items[item].location)}))
                ++changed;
        }
    }
    return changed;
}

QString SelectionOf(const Project& project, const QString& category, const SelectionCaptions& captions)
{
    const Project::Moment moment(project);
    RequireCategory(project, category);
    const QString fileName = project.CurrentTemplate(category);
    QStringList shown = fileName.isEmpty() ? QStringList() : LocationsShown(LayoutOf(project, fileName));
    shown.removeIf([](const QString& location) { return location.endsWith(kTagItself, Qt::CaseInsensitive); });
    return SelectionXml(captions, Known(project, project.Tags(category), shown.mid(0, kSelectionItems)));
}

} // namespace schedules::host
