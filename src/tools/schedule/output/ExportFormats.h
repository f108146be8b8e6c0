#pragma once

#include "common/UserInterface.h"
#include "spread/Sheet.h"

#include <QLocale>
#include <QString>

#include <span>

namespace schedules {

/// What is written, and what its file says about it.
struct ExportSource
{
    const Sheet& shown;
    Sheet& copy; ///< takes the part of it that can be seen; emptied by whoever owns it
    QString title;
    QLocale locale;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// A kind of file that a schedule is written into.
struct ExportFormat
{
    const char* name; ///< as `WriteFile` takes it

    /// Throws `Error` when the file cannot be written; a file that was there is then as it was.
    void (*write)(const ExportSource& source, const QString& fileName);

    // Of the entry in Export's menu, and of the dialog that it opens.
    const char* entry = nullptr; ///< its name; null for a format that the menu does not offer
    int caption = 0;             ///< number of the localised text
    int title = 0;               ///< likewise
    const char* proposed = nullptr;
    const char* suffix = nullptr;
    const char* filter = nullptr;
    int flags = 0;
    bool tellsResult = false; ///< whether the user is told how it went

    FileQuestion Question() const;
};

std::span<const ExportFormat> ExportFormats();

/// Null when there is none of that name.
const ExportFormat* FormatOfName(const QString& name);
const ExportFormat* FormatOfEntry(const QString& entry);

} // namespace schedules
