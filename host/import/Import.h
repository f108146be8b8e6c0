#pragma once

#include <QString>

namespace schedules::host {

class Project;

/// How many of each a table had. Of values those that were not empty.
struct ImportResult
{
    int categories = 0;
    int tags = 0;
    int items = 0;
    int values = 0;

    bool operator==(const ImportResult&) const = default;
};

/// Reads a table of categories, of data items, or of tags and their values into a project (docs/import.md), and tells
/// by its headings which it is. What is new is added, what is there is changed, and an empty field leaves alone what is
/// there. All of the table is imported, or nothing: then it throws `HostError`, whose text has a line for each mistake.
ImportResult ImportTable(Project& project, const QString& fileName);

} // namespace schedules::host
