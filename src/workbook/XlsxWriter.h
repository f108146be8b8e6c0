#pragma once

#include "spread/Sheet.h"

#include <QString>

namespace schedules {

/// Writes the cells of a sheet from column 1 and row 1 on as an Office Open XML workbook (.xlsx) of one sheet, with the
/// same content and looks as `WriteWorkbook`. The name is made legal first. Right to left, the first
/// column stands at the right, and texts at the other side of their cells.
///
/// Throws `Error` when the sheet exceeds the limits of the format or the file cannot be written; a file that was there
/// is then as it was.
void WriteXlsx(const Sheet& sheet, const QString& sheetName, const QString& fileName,
               Qt::LayoutDirection direction = Qt::LeftToRight);

} // namespace schedules
