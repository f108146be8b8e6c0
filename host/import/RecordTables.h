#pragma once

#include "host/import/CsvTable.h"
#include "host/project/Project.h"

namespace schedules::host {

/// The categories of a table with the columns name, displayname and pdsg. What it leaves empty is as in the project; of
/// a new category the display name is its name.
Project::Content ReadCategoryTable(const CsvTable& table, const Project& project, TableErrors& errors);

/// The data items of a table with the columns location, name, group, datatype, unit, editable and userdefined. What it
/// leaves empty is as in the project; a new item is a text that may be edited, in no group, and has the last part of
/// its location for a name.
Project::Content ReadItemTable(const CsvTable& table, const Project& project, TableErrors& errors);

} // namespace schedules::host
