#pragma once

#include "host/project/ProjectTypes.h"

#include <QHash>

#include <utility>

namespace schedules::host {

class Database;

/// The values of a project's tables, within a transaction of the caller. All throw `HostError`.
class ValueStore
{
public:
    explicit ValueStore(Database& database) : m_database(database) {}

    ValueTable Values(const QStringList& tags, const QStringList& items) const;

    /// Whatever their versions are.
    void Put(const QList<ValueEdit>& values);

    /// As `Project::Save`.
    SaveResult Save(const QList<ValueEdit>& edits);

private:
    using Cell = std::pair<int, int>; ///< the ids of tag and item
    using Cells = QHash<Cell, StoredValue>;

    enum class Versions
    {
        Heeded,
        Ignored
    };

    SaveResult Change(const QList<ValueEdit>& edits, Versions versions);
    void RequireEditable(const QList<ValueEdit>& edits) const;
    Cells Block(const QList<int>& tags, const QList<int>& items) const;
    QList<Cell> CellsOf(const QList<ValueEdit>& edits) const;
    Cells Stored(const QList<Cell>& cells) const;
    void Store(const Cells& cells, const QList<Cell>& changed);

    Database& m_database;
};

} // namespace schedules::host
