#pragma once

#include "spread/CellStore.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace schedules {

/// What the first header cell of a table row says about the whole row.
struct RowAttributes
{
    int row = 0;
    bool hidden = false;
    bool bold = false;
    bool userDefined = false; ///< one of the row's data cells holds a user-defined item
    std::optional<std::uint32_t> backColor;
};

/// What a header cell of the first row says about its column.
struct HeaderAttributes
{
    bool hidden = false;
    bool bold = false;
    std::optional<std::uint32_t> backColor;
};

/// A schedule table as its XML tells it: the cells in lines (a line is a `TR`), and the attributes that concern whole
/// rows and columns. Rows that set nothing are left out.
struct ScheduleTable
{
    CellStore cells;
    std::vector<RowAttributes> rows;
    std::vector<HeaderAttributes> headers;
};

enum class TableFault
{
    None,
    NotWellFormed,
    Empty,
    NoRows
};

struct ParsedTable
{
    TableFault fault = TableFault::None;
    ScheduleTable table;
};

/// Reads a schedule table in one pass. See docs/schedule-xml.md for the format.
ParsedTable ParseScheduleTable(const QString& xml);

} // namespace schedules
