#pragma once

#include "spread/Sheet.h"

#include <QString>

#include <string>

namespace schedules {

/// Writes the cells of a sheet from column 1 and row 1 on as comma-separated values (RFC 4180) in UTF-8. A text that a
/// spreadsheet would run as a formula gets an apostrophe in front.
///
/// Throws `Error` when the file cannot be written; a file that was there is then as it was.
void WriteCsv(const Sheet& sheet, const QString& fileName);

/// A text as a field of such a file.
std::string CsvField(std::string_view utf8);

} // namespace schedules
