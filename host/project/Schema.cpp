#include "host/project/Schema.h"

#include "host/base/HostError.h"
#include "host/project/ProjectFile.h"
#include "host/project/Transaction.h"

#include <QStringList>
#include <QUuid>

#include <algorithm>

namespace schedules::host {

namespace {

/// What makes each version out of the one before it, in the words of both databases. `key` is a name by which a row is
/// known, its letter case folded.
QList<QStringList> Steps()
{
    const QStringList first{
        QStringLiteral("CREATE TABLE meta (name TEXT PRIMARY KEY, value TEXT NOT NULL)"),
        QStringLiteral("CREATE TABLE category (id INTEGER PRIMARY KEY, key TEXT NOT NULL UNIQUE, name TEXT NOT NULL,"
                       " display_name TEXT NOT NULL, pdsg TEXT NOT NULL)"),
        QStringLiteral("CREATE TABLE tag (id INTEGER PRIMARY KEY, key TEXT NOT NULL UNIQUE, name TEXT NOT NULL,"
                       " category_id INTEGER NOT NULL REFERENCES category (id))"),
        QStringLiteral("CREATE TABLE item (id INTEGER PRIMARY KEY, key TEXT NOT NULL UNIQUE, location TEXT NOT NULL,"
                       " name TEXT NOT NULL, item_group TEXT NOT NULL, data_type TEXT NOT NULL, unit TEXT NOT NULL,"
                       " editable INTEGER NOT NULL, user_defined INTEGER NOT NULL)"),
        QStringLiteral("CREATE TABLE value (tag_id INTEGER NOT NULL REFERENCES tag (id),"
                       " item_id INTEGER NOT NULL REFERENCES item (id), text TEXT NOT NULL, version BIGINT NOT NULL,"
                       " PRIMARY KEY (tag_id, item_id))"),
        QStringLiteral("CREATE TABLE template (id INTEGER PRIMARY KEY, key TEXT NOT NULL UNIQUE,"
                       " file_name TEXT NOT NULL, name_key TEXT NOT NULL UNIQUE, name TEXT NOT NULL,"
                       " pdsg TEXT NOT NULL, read_only INTEGER NOT NULL, category_key TEXT NOT NULL,"
                       " category TEXT NOT NULL, is_default INTEGER NOT NULL, text TEXT NOT NULL DEFAULT '')"),
        QStringLiteral("CREATE TABLE current_template (category_key TEXT PRIMARY KEY,"
                       " template_id INTEGER NOT NULL REFERENCES template (id) ON DELETE CASCADE)"),
    };
    const QStringList second{
        QStringLiteral("ALTER TABLE template ADD COLUMN others TEXT NOT NULL DEFAULT '[]'"),
        QStringLiteral("INSERT INTO meta (name, value) VALUES ('language', 'en')"),
    };
    return {first, second};
}

void GoFrom(Database& database, int stored, int version)
{
    for (const QStringList& step : Steps().sliced(stored, version - stored)) {
        for (const QString& statement : step)
            database.Run(statement);
    }
    database.Run(QStringLiteral("UPDATE meta SET value = ? WHERE name = 'schema'"), {QString::number(version)});
}

void Make(Database& database, int version)
{
    GoFrom(database, 0, version);
    database.Run(QStringLiteral("INSERT INTO meta (name, value) VALUES ('schema', ?), ('id', ?)"),
                 {QString::number(version), QUuid::createUuid().toString(QUuid::WithoutBraces)});
}

QStringList TablesOnServer(Database& database)
{
    QStringList tables;
    database.Run(QStringLiteral("SELECT tablename FROM pg_tables WHERE schemaname = current_schema()"), {},
                 [&](const QSqlQuery& row) { tables.append(row.value(0).toString()); });
    return tables;
}

bool HoldProject(const QStringList& tables)
{
    const QStringList own{QStringLiteral("meta"),
                          QStringLiteral("category"),
                          QStringLiteral("tag"),
                          QStringLiteral("item"),
                          QStringLiteral("value"),
                          QStringLiteral("template"),
                          QStringLiteral("current_template")};
    return std::ranges::all_of(own, [&](const QString& table) { return tables.contains(table); });
}

void RequireEmptyDatabase(Database& database)
{
    const QStringList tables = TablesOnServer(database);
    const QString name = database.Address().Text();
    if (HoldProject(tables))
        throw HostError(QStringLiteral("there is a project %1 already").arg(name));
    if (!tables.isEmpty())
        throw HostError(QStringLiteral("%1 holds tables that are no project's").arg(name));
}

void RequireProject(Database& database)
{
    const QString name = database.Address().Text();
    if (database.Address().OnServer()) {
        if (!HoldProject(TablesOnServer(database)))
            throw HostError(QStringLiteral("there is no project in %1").arg(name));
    } else if (database.Text(QStringLiteral("PRAGMA quick_check(1)")) != QLatin1String("ok")) {
        throw HostError(QStringLiteral("%1 is damaged").arg(name));
    }
}

int StoredVersion(Database& database)
{
    const int version = database.Text(QStringLiteral("SELECT value FROM meta WHERE name = 'schema'")).toInt();
    if (version > kSchemaVersion)
        throw HostError(QStringLiteral("%1 was made by a newer program").arg(database.Address().Text()));
    if (version < 1)
        throw HostError(QStringLiteral("%1 is damaged").arg(database.Address().Text()));
    return version;
}

} // namespace

void MakeSchema(Database& database, int version)
{
    const bool onServer = database.Address().OnServer();
    Writing(database, [&] {
        if (onServer)
            RequireEmptyDatabase(database);
        else
            database.Run(QStringLiteral("PRAGMA application_id = %1").arg(kProjectFileMark));
        Make(database, version);
    });
    // Not before: the mark has to be in the file itself.
    if (!onServer)
        database.Run(QStringLiteral("PRAGMA journal_mode = WAL"));
}

void UpdateSchema(Database& database)
{
    const bool isCurrent = Reading(database, [&] {
        RequireProject(database);
        return StoredVersion(database) == kSchemaVersion;
    });
    if (isCurrent)
        return; // others go on saving while a large file is checked
    Writing(database, [&] { GoFrom(database, StoredVersion(database), kSchemaVersion); });
}

} // namespace schedules::host
