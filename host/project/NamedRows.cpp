#include "host/project/NamedRows.h"

#include "host/project/Database.h"

namespace schedules::host {

namespace {

/// A statement that changes one row twice is refused by servers.
QList<QVariantList> WithoutRepeats(const QList<QVariantList>& rows)
{
    QHash<QString, qsizetype> places;
    QList<QVariantList> kept;
    for (const QVariantList& row : rows) {
        const auto place = places.constFind(row.front().toString());
        if (place != places.cend()) {
            kept[*place] = row;
            continue;
        }
        places.insert(row.front().toString(), kept.size());
        kept.append(row);
    }
    return kept;
}

QString PutStatement(const NamedTable& table, qsizetype rows)
{
    QStringList changes;
    for (const QString& column : table.columns)
        changes.append(QStringLiteral("%1 = excluded.%1").arg(column));
    const QString row = '(' + Listed(QStringLiteral("?"), table.columns.size() + 2) + ')';
    return QStringLiteral("INSERT INTO %1 (id, key, %2) VALUES %3 ON CONFLICT (key) DO UPDATE SET %4")
        .arg(table.name, table.columns.join(QStringLiteral(", ")), Listed(row, rows),
             changes.join(QStringLiteral(", ")));
}

int LastId(Database& database, const QString& table)
{
    return database.Text(QStringLiteral("SELECT MAX(id) FROM %1").arg(table)).toInt();
}

} // namespace

QString NameKey(const QString& name)
{
    return name.toCaseFolded();
}

QHash<QString, int> IdsByKey(Database& database, const QString& table, const QStringList& names)
{
    QHash<QString, int> ids;
    InParts(names, [&](const QStringList& part) {
        QVariantList keys;
        for (const QString& name : part)
            keys.append(NameKey(name));
        database.Run(QStringLiteral("SELECT key, id FROM %1 WHERE key IN (%2)")
                         .arg(table, Listed(QStringLiteral("?"), part.size())),
                     keys, [&](const QSqlQuery& row) { ids.insert(row.value(0).toString(), row.value(1).toInt()); });
    });
    return ids;
}

void PutRows(Database& database, const NamedTable& table, const QList<QVariantList>& rows)
{
    int id = LastId(database, table.name);
    InParts(WithoutRepeats(rows), [&](const QList<QVariantList>& part) {
        QVariantList values;
        for (const QVariantList& row : part)
            values += QVariantList{++id} + row;
        database.Run(PutStatement(table, part.size()), values);
    });
}

} // namespace schedules::host
