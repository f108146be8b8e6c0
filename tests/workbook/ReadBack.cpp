#include "workbook/ReadBack.h"

#include "workbook/Workbook.h"

#include <QProcess>

#include <algorithm>
#include <freexl.h>
#include <gtest/gtest.h>
#include <iterator>

namespace schedules::testing {

namespace {

std::string TextOf(const FreeXL_CellValue& value)
{
    switch (value.type) {
    case FREEXL_CELL_INT:
        return std::to_string(value.value.int_value);
    case FREEXL_CELL_DOUBLE:
        return QString::number(value.value.double_value, 'g', 15).toStdString();
    case FREEXL_CELL_TEXT:
    case FREEXL_CELL_SST_TEXT:
        return value.value.text_value;
    default:
        return {};
    }
}

std::string RowOf(const void* book, unsigned row, unsigned short columns)
{
    std::string line;
    for (unsigned short column = 0; column < columns; ++column) {
        FreeXL_CellValue value{};
        EXPECT_EQ(freexl_get_cell_value(book, row, column, &value), FREEXL_OK);
        line += (column > 0 ? "\x1f" : "") + TextOf(value);
    }
    return line;
}

} // namespace

void Fill(Sheet& sheet, const std::vector<std::vector<std::string>>& rows)
{
    std::size_t columns = 0;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        columns = std::max(columns, rows[row].size());
        for (std::size_t column = 0; column < rows[row].size(); ++column) {
            sheet.SetText(At(static_cast<int>(column) + 1, static_cast<int>(row) + 1),
                          QString::fromStdString(rows[row][column]));
        }
    }
    sheet.SetSize(static_cast<int>(columns), static_cast<int>(rows.size()));
}

void Put(Sheet& sheet, Cell cell, const char* text, DataType type)
{
    sheet.SetText(cell, QString::fromUtf8(text));
    sheet.SetStyle(cell, {.dataType = type});
    sheet.SetSize(std::max(sheet.ColumnCount(), cell.column.Value()), std::max(sheet.RowCount(), cell.row.Value()));
}

std::string WrittenSheet::Read(const char* what)
{
    WriteWorkbook(sheet, name, FileName());
    return Printed("workbook/read_workbook.py", {QString::fromLatin1(what), FileName()}).toStdString();
}

QByteArray Printed(const char* script, const QStringList& arguments)
{
    QProcess process;
    const QString path = QStringLiteral(SCHEDULES_SOURCE_DIR "/tests/") + QString::fromLatin1(script);
    process.start(QStringLiteral("/usr/bin/python3"), QStringList{path} + arguments);
    EXPECT_TRUE(process.waitForFinished(240'000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    QByteArray printed = process.readAllStandardOutput();
    while (printed.endsWith('\n'))
        printed.chop(1);
    return printed;
}

std::string ReadByFreexl(const QString& fileName)
{
    const void* book = nullptr;
    EXPECT_EQ(freexl_open(fileName.toUtf8().constData(), &book), FREEXL_OK);
    EXPECT_EQ(freexl_select_active_worksheet(book, 0), FREEXL_OK);
    unsigned rows = 0;
    unsigned short columns = 0;
    EXPECT_EQ(freexl_worksheet_dimensions(book, &rows, &columns), FREEXL_OK);
    std::string texts;
    for (unsigned row = 0; row < rows; ++row)
        texts += (row > 0 ? "\x1e" : "") + RowOf(book, row, columns);
    freexl_close(book);
    return texts;
}

std::string Joined(const Sheet& sheet)
{
    std::string texts;
    for (Row row{1}; row.Value() <= sheet.RowCount(); ++row) {
        texts += row.Value() > 1 ? "\x1e" : "";
        for (Column column{1}; column.Value() <= sheet.ColumnCount(); ++column)
            (texts += column.Value() > 1 ? "\x1f" : "") += sheet.Utf8({column, row});
    }
    return texts;
}

std::vector<ReadRecord> MemoryStream::Records() const
{
    std::vector<ReadRecord> records;
    for (std::size_t at = 0; at < bytes.size();) {
        Word header[2];
        std::memcpy(header, bytes.data() + at, sizeof header);
        records.push_back({static_cast<RecordType>(header[0]), static_cast<std::uint32_t>(at),
                           bytes.substr(at + sizeof header, header[1])});
        at += sizeof header + header[1];
    }
    return records;
}

std::vector<ReadRecord> RecordsOf(const Sheet& sheet, const QString& name)
{
    MemoryStream stream;
    WriteRecords(sheet, name, stream);
    return stream.Records();
}

std::vector<ReadRecord> OfType(const std::vector<ReadRecord>& records, RecordType type)
{
    std::vector<ReadRecord> found;
    std::ranges::copy_if(records, std::back_inserter(found),
                         [type](const auto& record) { return record.type == type; });
    return found;
}

} // namespace schedules::testing
