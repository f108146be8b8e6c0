#pragma once

#include "host/import/TableErrors.h"

#include <QByteArrayView>
#include <QList>
#include <QString>

namespace schedules::host {

/// A field, and where in its file it begins.
struct CsvField
{
    QString text;
    TablePlace place;
};

using CsvRow = QList<CsvField>;

/// A table of comma-separated values as RFC 4180 has it: fields in quotes may hold separators, line breaks, and quotes
/// that are doubled. It is UTF-8, with or without a byte-order mark; lines end in CR, LF or both, and empty ones do not
/// count. Commas, semicolons or tabs separate, whichever the first line has most of.
///
/// What is wrong goes to the errors with its place; a table with errors is not to be used: fields and rows may be
/// missing.
class CsvTable
{
public:
    CsvTable(QByteArrayView bytes, TableErrors& errors);

    /// The fields of the first line, the headings; empty when there is none.
    const CsvRow& Headings() const { return m_headings; }

    /// The further lines, each with as many fields as there are headings.
    const QList<CsvRow>& Rows() const { return m_rows; }

private:
    void AddRow(const CsvRow& row, TableErrors& errors);

    CsvRow m_headings;
    QList<CsvRow> m_rows;
};

} // namespace schedules::host
