#pragma once

#include "spread/Sheet.h"

#include <QString>

namespace schedules {

struct PageInfo
{
    QString title;    ///< of the page and the table; the file's name when empty
    QString language; ///< a language tag such as "de" or "pt-BR"; left out when empty

    // What an assistive technology reads for check boxes, in that language.
    QString ticked = QStringLiteral("yes");
    QString unticked = QStringLiteral("no");

    Qt::LayoutDirection direction = Qt::LeftToRight; ///< decides on which side the first column and numbers stand
};

/// Writes what a sheet shows as a web page: one file that needs no other. Hidden columns and rows are left out, rows
/// stand in the order in which they are shown. On paper, columns that do not fit side by side follow below, group by
/// group.
///
/// Throws `Error` when the file cannot be written; a file that was there is then as it was.
void WriteWebPage(const Sheet& sheet, const PageInfo& page, const QString& fileName);

} // namespace schedules
