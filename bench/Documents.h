#pragma once

#include <QString>

namespace schedules::bench {

/// The size of a table without its headers.
struct TableSize
{
    int rows;
    int columns;
};

/// A schedule as a host sends it: numbers, tags, short remarks, some of them Cyrillic, Greek or Chinese; four cells in
/// ten have one or two attributes. The same size always gives the same document.
QString ScheduleDocument(TableSize size);

} // namespace schedules::bench
