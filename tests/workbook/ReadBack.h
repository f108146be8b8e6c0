#pragma once

#include "spread/Sheet.h"
#include "support/SheetDrawing.h"
#include "workbook/RecordWriter.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <string>
#include <vector>

// Workbooks as others read them: a Python library, a C library, and record by record.

namespace schedules::testing {

/// Puts texts into a sheet from column 1 and row 1 on and gives it their size.
void Fill(Sheet& sheet, const std::vector<std::vector<std::string>>& rows);

/// A cell with a text of a data type.
void Put(Sheet& sheet, Cell cell, const char* text, DataType type);

/// A sheet that is written to a workbook in a folder of its own.
struct WrittenSheet
{
    QString FileName() const { return folder.filePath(QStringLiteral("schedule.xls")); }

    /// Writes the workbook and tells what a reader makes of it; `what` is one of "cells", "looks", "texts", "book",
    /// "sizes" and "panes".
    std::string Read(const char* what);

    QTemporaryDir folder;
    Sheet sheet;
    QString name = QStringLiteral("Schedule");
};

/// What a script of this folder prints.
QByteArray Printed(const char* script, const QStringList& arguments);

/// The texts of all cells as a C library reads them, numbers as it prints them; columns parted by U+001F, rows by
/// U+001E.
std::string ReadByFreexl(const QString& fileName);

/// The same of a sheet as it stands.
std::string Joined(const Sheet& sheet);

struct ReadRecord
{
    RecordType type;
    std::uint32_t position = 0;
    std::string data;

    template <class Field>
    Field At(std::size_t offset) const
    {
        Field field;
        std::memcpy(&field, data.data() + offset, sizeof field);
        return field;
    }
};

/// The records that are written for a sheet.
std::vector<ReadRecord> RecordsOf(const Sheet& sheet, const QString& name = QStringLiteral("Schedule"));

/// Those of one type.
std::vector<ReadRecord> OfType(const std::vector<ReadRecord>& records, RecordType type);

/// A stream in memory.
class MemoryStream : public WorkbookStream
{
public:
    void Write(std::string_view added) override { bytes += added; }
    void Overwrite(std::uint32_t position, std::string_view with) override
    {
        bytes.replace(position, with.size(), with);
    }

    std::vector<ReadRecord> Records() const;

    std::string bytes;
};

} // namespace schedules::testing
