#pragma once

#include "host/project/ProjectTypes.h"

#include <QStringList>

namespace schedules::host {

/// What names that differ in letter case alone have in common. Every name of a project is known by it.
inline QString FoldedName(const QString& name)
{
    return name.toCaseFolded();
}

inline bool SameName(const QString& one, const QString& other)
{
    return FoldedName(one) == FoldedName(other);
}

QStringList Names(const QList<Tag>& tags);
QStringList Locations(const QList<DataItem>& items);
QStringList FileNames(const QList<TemplateEntry>& entries);

} // namespace schedules::host
