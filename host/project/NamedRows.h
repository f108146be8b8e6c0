#pragma once

#include <QHash>
#include <QStringList>
#include <QVariant>

namespace schedules::host {

class Database;

/// The form of a name by which it is known: without regard to letter case.
QString NameKey(const QString& name);

/// The ids of those rows of a table that have one of the names, by their keys.
QHash<QString, int> IdsByKey(Database& database, const QString& table, const QStringList& names);

/// A table whose rows have an id, in the order in which they were put, and a key.
struct NamedTable
{
    QString name;
    QStringList columns; ///< besides id and key
};

/// Adds rows, or changes those whose keys are there. Each is its key and then its columns; of two with one key the
/// latter counts.
void PutRows(Database& database, const NamedTable& table, const QList<QVariantList>& rows);

} // namespace schedules::host
