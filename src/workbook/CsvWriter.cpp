#include "workbook/CsvWriter.h"

#include "common/BufferedOutput.h"
#include "spread/NumberReader.h"

namespace schedules {

namespace {

constexpr std::string_view kFormulaStarts = "=+-@\t\r\n";
constexpr std::string_view kEmptyField = "\"\"";
constexpr std::string_view kMarks = ",\"\r\n";

bool RunsAsFormula(std::string_view utf8)
{
    return !utf8.empty() && kFormulaStarts.find(utf8.front()) != kFormulaStarts.npos && !ReadsAsNumber(utf8);
}

std::string Quoted(std::string_view utf8)
{
    std::string quoted = "\"";
    for (const char byte : utf8)
        quoted.append(byte == '"' ? 2 : 1, byte);
    return quoted + '"';
}

} // namespace

std::string CsvField(std::string_view utf8)
{
    std::string text(RunsAsFormula(utf8) ? "'" : "");
    text += utf8;
    return text.find_first_of(kMarks) == text.npos ? text : Quoted(text);
}

namespace {

void AppendRow(std::string& csv, const Sheet& sheet, Row row)
{
    for (Column column{1}; column.Value() <= sheet.ColumnCount(); ++column) {
        if (column.Value() > 1)
            csv += ',';
        csv += CsvField(sheet.Utf8({column, row}));
    }
    // A line without anything on it reads as no row at all.
    if (sheet.ColumnCount() == 1 && sheet.Utf8({Column(1), row}).empty())
        csv += kEmptyField;
    csv += "\r\n";
}

} // namespace

void WriteCsv(const Sheet& sheet, const QString& fileName)
{
    ReplaceFile(fileName, [&](QFileDevice& file) {
        BufferedOutput output(file);
        const int rows = sheet.ColumnCount() > 0 ? sheet.RowCount() : 0;
        for (Row row{1}; row.Value() <= rows; ++row) {
            AppendRow(output.Text(), sheet, row);
            output.FlushWhenFull();
        }
        output.Flush();
    });
}

} // namespace schedules
