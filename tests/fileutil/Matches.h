#pragma once

#include "fileutil/CFileUtility.h"

#include <QStringList>

namespace schedules::testing {

/// The names of all matches, in their order.
inline QStringList Names(const QString& pattern)
{
    QStringList names;
    CFileUtility file;
    for (bool found = file.FindFile(pattern); found; found = file.FindNextFile())
        names << file.GetFileName();
    return names;
}

/// The same without "." and "..".
inline QStringList NamesWithoutDots(const QString& pattern)
{
    QStringList names = Names(pattern);
    names.removeAll(".");
    names.removeAll("..");
    return names;
}

} // namespace schedules::testing
