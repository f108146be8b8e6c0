#pragma once

#include "host/project/ProjectTypes.h"

namespace schedules::host {

class Database;

/// Categories, tags and data items in the tables of a project, within a transaction of the caller. All throw
/// `HostError`.
class EquipmentStore
{
public:
    explicit EquipmentStore(Database& database) : m_database(database) {}

    QList<Category> Categories() const;
    QList<Tag> Tags(const QString& category) const;
    QList<DataItem> Items() const;

    void PutCategories(const QList<Category>& categories);

    /// Their categories must be there.
    void PutTags(const QList<Tag>& tags);
    void PutItems(const QList<DataItem>& items);

private:
    Database& m_database;
};

} // namespace schedules::host
