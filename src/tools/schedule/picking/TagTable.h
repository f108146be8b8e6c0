#pragma once

#include "spread/Sheet.h"

#include <optional>

namespace schedules {

/// What a user has picked from a table of tags.
struct SelectedTags
{
    int count = 0;
    QString xml; ///< `Tags` with a `Tag` for each, whose `Id` is the tag's identifier
};

/// Which way a table of tags runs: one tag is a column of the sheet, or a row.
enum class Tags
{
    AreColumns,
    AreRows
};

/// Only the text "1" is a tick.
bool IsTicked(const Sheet& sheet, Cell cell);

/// The check box of the tag with that identifier.
std::optional<Cell> CheckBoxOf(const Sheet& sheet, Tags tags, const QString& identifier);

/// The ticked tags in the order of their addresses, hidden ones included; one without an identifier does not count.
/// Identifiers stand in the first line beside the headers, check boxes in the second.
SelectedTags TickedTags(const Sheet& sheet, Tags tags);

} // namespace schedules
