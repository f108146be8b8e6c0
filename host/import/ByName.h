#pragma once

#include "host/project/NamedRows.h"

#include <QHash>
#include <QList>

namespace schedules::host {

/// Records by the keys of their names, which `name` points to.
template <typename Record>
QHash<QString, Record> ByName(const QList<Record>& records, QString Record::*name)
{
    QHash<QString, Record> found;
    for (const Record& record : records)
        found.insert(NameKey(record.*name), record);
    return found;
}

} // namespace schedules::host
