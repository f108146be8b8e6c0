#pragma once

#include "host/import/CsvTable.h"
#include "host/project/Project.h"

namespace schedules::host {

/// The tags and values of a table with the columns tag and category, and a column for each of any data items, headed by
/// the item's location. A unit in brackets after that says that the column's values are in it; they are converted to
/// the unit of the item.
///
/// The category may be left empty for a tag that there is; a tag cannot be moved to another one.
Project::Content ReadTagRows(const CsvTable& table, const Project& project, TableErrors& errors);

} // namespace schedules::host
