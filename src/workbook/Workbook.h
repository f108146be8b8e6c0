#pragma once

#include "spread/Sheet.h"

#include <QString>

namespace schedules {

class WorkbookStream;

/// Writes the cells of a sheet from column 1 and row 1 on, which become A1 and so forth, as an Excel 97 workbook of
/// one sheet (BIFF8 records in a compound file), with their colors, bold, alignments, widths and heights, and with
/// panes when the sheet has frozen columns or rows. The name is made legal first. Right to left, the first column
/// stands at the right, and texts at the other side of their cells.
///
/// Numbers of a numeric data type and check boxes are numbers that show the same decimals; all else is text.
///
/// Throws `Error` when the sheet exceeds the limits of the format or the file cannot be written; a file that was there
/// is then as it was.
void WriteWorkbook(const Sheet& sheet, const QString& sheetName, const QString& fileName,
                   Qt::LayoutDirection direction = Qt::LeftToRight);

/// The records alone, without the compound file around them.
void WriteRecords(const Sheet& sheet, const QString& sheetName, WorkbookStream& stream,
                  Qt::LayoutDirection direction = Qt::LeftToRight);

} // namespace schedules
