#include "host/project/EquipmentStore.h"

#include "host/base/HostError.h"
#include "host/project/Database.h"
#include "host/project/NamedRows.h"

namespace schedules::host {

namespace {

const QString& Named(const QString& name, QLatin1String kind)
{
    if (name.isEmpty())
        throw HostError(QStringLiteral("a %1 has no name").arg(kind));
    return name;
}

} // namespace

QList<Category> EquipmentStore::Categories() const
{
    QList<Category> categories;
    m_database.Run(QStringLiteral("SELECT name, display_name, pdsg FROM category ORDER BY id"), {},
                   [&](const QSqlQuery& row) {
                       categories.append({row.value(0).toString(), row.value(1).toString(), row.value(2).toString()});
                   });
    return categories;
}

QList<Tag> EquipmentStore::Tags(const QString& category) const
{
    const QString select = QStringLiteral("SELECT tag.name, category.name FROM tag"
                                          " JOIN category ON category.id = tag.category_id %1 ORDER BY tag.id");
    QList<Tag> tags;
    const auto add = [&](const QSqlQuery& row) { tags.append({row.value(0).toString(), row.value(1).toString()}); };
    if (category.isEmpty())
        m_database.Run(select.arg(QString()), {}, add);
    else
        m_database.Run(select.arg(QStringLiteral("WHERE category.key = ?")), {NameKey(category)}, add);
    return tags;
}

QList<DataItem> EquipmentStore::Items() const
{
    QList<DataItem> items;
    m_database.Run(
        QStringLiteral("SELECT location, name, item_group, data_type, unit, editable, user_defined"
                       " FROM item ORDER BY id"),
        {}, [&](const QSqlQuery& row) {
            const auto text = [&](int column) { return row.value(column).toString(); };
            items.append({text(0), text(1), text(2), text(3), text(4), row.value(5).toBool(), row.value(6).toBool()});
        });
    return items;
}

void EquipmentStore::PutCategories(const QList<Category>& categories)
{
    QList<QVariantList> rows;
    for (const Category& category : categories) {
        const QString key = NameKey(Named(category.name, QLatin1String("category")));
        rows.append({key, category.name, category.displayName, category.pdsg});
    }
    const QStringList columns{QStringLiteral("name"), QStringLiteral("display_name"), QStringLiteral("pdsg")};
    PutRows(m_database, {QStringLiteral("category"), columns}, rows);
}

void EquipmentStore::PutTags(const QList<Tag>& tags)
{
    QStringList names;
    for (const Tag& tag : tags)
        names.append(tag.category);
    const QHash<QString, int> categories = IdsByKey(m_database, QStringLiteral("category"), names);
    QList<QVariantList> rows;
    for (const Tag& tag : tags) {
        const QString key = NameKey(Named(tag.name, QLatin1String("tag")));
        const int category = categories.value(NameKey(tag.category));
        if (category == 0)
            throw HostError(QStringLiteral("the tag %1 is of no known category: %2").arg(tag.name, tag.category));
        rows.append({key, tag.name, category});
    }
    PutRows(m_database, {QStringLiteral("tag"), {QStringLiteral("name"), QStringLiteral("category_id")}}, rows);
}

void EquipmentStore::PutItems(const QList<DataItem>& items)
{
    QList<QVariantList> rows;
    for (const DataItem& item : items) {
        const QString key = NameKey(Named(item.location, QLatin1String("data item")));
        rows.append({key, item.location, item.name, item.group, item.dataType, item.unit, int(item.editable),
                     int(item.userDefined)});
    }
    const QStringList columns{QStringLiteral("location"),    QStringLiteral("name"), QStringLiteral("item_group"),
                              QStringLiteral("data_type"),   QStringLiteral("unit"), QStringLiteral("editable"),
                              QStringLiteral("user_defined")};
    PutRows(m_database, {QStringLiteral("item"), columns}, rows);
}

} // namespace schedules::host
