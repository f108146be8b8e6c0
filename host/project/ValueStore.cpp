#include "host/project/ValueStore.h"

#include "host/base/HostError.h"
#include "host/project/Database.h"
#include "host/project/NamedRows.h"

#include <QHash>
#include <QSet>

namespace schedules::host {

namespace {

const QString kTags = QStringLiteral("tag");
const QString kItems = QStringLiteral("item");

StoredValue ValueOf(const QSqlQuery& row)
{
    return {row.value(2).toString(), row.value(3).toLongLong()};
}

std::pair<int, int> CellOf(const QSqlQuery& row)
{
    return {row.value(0).toInt(), row.value(1).toInt()};
}

QVariantList AsValues(const QList<int>& numbers)
{
    return {numbers.begin(), numbers.end()};
}

/// 0 for a name that is not there.
QList<int> IdsOf(const QStringList& names, const QHash<QString, int>& ids)
{
    QList<int> found;
    for (const QString& name : names)
        found << ids.value(NameKey(name));
    return found;
}

int Required(const QHash<QString, int>& ids, const QString& name, QLatin1String kind)
{
    const int id = ids.value(NameKey(name));
    if (id == 0)
        throw HostError(QStringLiteral("there is no %1 %2").arg(kind, name));
    return id;
}

} // namespace

ValueTable ValueStore::Values(const QStringList& tags, const QStringList& items) const
{
    const QHash<QString, int> tagIds = IdsByKey(m_database, kTags, tags);
    const QHash<QString, int> itemIds = IdsByKey(m_database, kItems, items);
    const Cells block = Block(tagIds.values(), itemIds.values());
    const QList<int> columns = IdsOf(tags, tagIds);
    ValueTable table;
    for (const int item : IdsOf(items, itemIds)) {
        QList<StoredValue>& line = table.emplace_back();
        for (const int tag : columns)
            line.append(block.value({tag, item}));
    }
    return table;
}

ValueStore::Cells ValueStore::Block(const QList<int>& tags, const QList<int>& items) const
{
    const QString select =
        QStringLiteral("SELECT tag_id, item_id, text, version FROM value WHERE tag_id IN (%1) AND item_id IN (%2)");
    const QString mark = QStringLiteral("?");
    Cells block;
    InParts(tags, [&](const QList<int>& someTags) {
        InParts(items, [&](const QList<int>& someItems) {
            m_database.Run(select.arg(Listed(mark, someTags.size()), Listed(mark, someItems.size())),
                           AsValues(someTags) + AsValues(someItems),
                           [&](const QSqlQuery& row) { block.insert(CellOf(row), ValueOf(row)); });
        });
    });
    return block;
}

void ValueStore::Put(const QList<ValueEdit>& values)
{
    Change(values, Versions::Ignored);
}

SaveResult ValueStore::Save(const QList<ValueEdit>& edits)
{
    RequireEditable(edits);
    return Change(edits, Versions::Heeded);
}

void ValueStore::RequireEditable(const QList<ValueEdit>& edits) const
{
    QSet<QString> fixed;
    m_database.Run(QStringLiteral("SELECT key FROM item WHERE editable = 0"), {},
                   [&](const QSqlQuery& row) { fixed.insert(row.value(0).toString()); });
    for (const ValueEdit& edit : edits) {
        if (fixed.contains(NameKey(edit.item)))
            throw HostError(QStringLiteral("%1 may not be edited").arg(edit.item));
    }
}

SaveResult ValueStore::Change(const QList<ValueEdit>& edits, Versions versions)
{
    const QList<Cell> cells = CellsOf(edits);
    Cells stored = Stored(cells);
    QSet<Cell> changed;
    SaveResult result;
    for (qsizetype index = 0; index < edits.size(); ++index) {
        const ValueEdit& edit = edits[index];
        StoredValue& value = stored[cells[index]];
        if (value.text == edit.text)
            continue;
        if (versions == Versions::Heeded && value.version != edit.version) {
            result.conflicts.append({edit, value});
            continue;
        }
        value = {edit.text, value.version + 1};
        changed.insert(cells[index]);
    }
    Store(stored, changed.values());
    result.stored = int(changed.size());
    return result;
}

QList<ValueStore::Cell> ValueStore::CellsOf(const QList<ValueEdit>& edits) const
{
    QSet<QString> tags;
    QSet<QString> items;
    for (const ValueEdit& edit : edits) {
        tags.insert(edit.tag);
        items.insert(edit.item);
    }
    const QHash<QString, int> tagIds = IdsByKey(m_database, kTags, tags.values());
    const QHash<QString, int> itemIds = IdsByKey(m_database, kItems, items.values());
    QList<Cell> cells;
    for (const ValueEdit& edit : edits)
        cells.append({Required(tagIds, edit.tag, QLatin1String("tag")),
                      Required(itemIds, edit.item, QLatin1String("data item"))});
    return cells;
}

ValueStore::Cells ValueStore::Stored(const QList<Cell>& cells) const
{
    // Servers take the marks of such a list for texts unless told otherwise.
    const QString mark = QStringLiteral("(CAST(? AS INTEGER), CAST(? AS INTEGER))");
    const QString select =
        QStringLiteral("SELECT tag_id, item_id, text, version FROM value WHERE (tag_id, item_id) IN (VALUES %1)");
    Cells stored;
    InParts(cells, [&](const QList<Cell>& part) {
        QVariantList ids;
        for (const Cell& cell : part)
            ids << cell.first << cell.second;
        m_database.Run(select.arg(Listed(mark, part.size())), ids,
                       [&](const QSqlQuery& row) { stored.insert(CellOf(row), ValueOf(row)); });
    });
    return stored;
}

void ValueStore::Store(const Cells& cells, const QList<Cell>& changed)
{
    const QString insert =
        QStringLiteral("INSERT INTO value (tag_id, item_id, text, version) VALUES %1 ON CONFLICT (tag_id, item_id)"
                       " DO UPDATE SET text = excluded.text, version = excluded.version");
    InParts(changed, [&](const QList<Cell>& part) {
        QVariantList values;
        for (const Cell& cell : part) {
            const StoredValue value = cells.value(cell);
            values << cell.first << cell.second << value.text << value.version;
        }
        m_database.Run(insert.arg(Listed(QStringLiteral("(?, ?, ?, ?)"), part.size())), values);
    });
}

} // namespace schedules::host
