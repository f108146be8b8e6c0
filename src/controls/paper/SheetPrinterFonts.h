#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

namespace schedules {

/// The family that texts in `wanted` are printed in: itself when it is installed, else one of the same widths, else
/// Arial or one of its widths, else the first that there is. Throws `Error` when no font is installed at all: a page
/// would be printed without any text then.
QString PrintFamily(const QString& wanted, const QStringList& installed);

/// Among the families of this computer.
QString PrintFamily(const QString& wanted);

/// The font in which the cells of a sheet are printed: Arial, as large as the sheet's own font, or smaller by as much
/// as it is wider than that. The sheet's own font where Arial would become too small.
QFont PrintedCellFont(const QFont& sheetFont);

} // namespace schedules
