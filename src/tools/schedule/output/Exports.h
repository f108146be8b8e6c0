#pragma once

#include "spread/Sheet.h"
#include "tools/schedule/ViewLink.h"
#include "tools/schedule/output/ExportFormats.h"

namespace schedules {

class ShownTable;

/// Writes what the grid shows into files.
class Exports
{
public:
    /// Both must outlive the exports.
    Exports(const ViewLink& link, ShownTable& table);

    /// Asks for a name and writes the shown grid as an Excel 97 workbook. Its result is not told to the user.
    void ExportToExcel();

    /// Asks for a name and writes the shown grid as a web page.
    void ExportToHTML();

    /// What the entry of Export's menu does; nothing for any other name.
    void ExportBy(const QString& entry);

    /// Returns what went wrong, an empty text when it is done.
    QString WriteFile(const QString& format, const QString& fileName);

private:
    void Export(const ExportFormat& format);
    QString FailureOfWriting(const ExportFormat& format, const QString& fileName);
    void TellResult(const QString& fileName, const QString& failure);

    const ViewLink& m_link;
    ShownTable& m_table;
    Sheet* m_copy; ///< `vaSpread2`: what of the grid goes into a workbook
};

} // namespace schedules
