#include "workbook/CsvWriter.h"

#include "common/BufferedOutput.h"
#include "spread/FileLook.h"

namespace schedules {

namespace {

constexpr std::string_view kFormulaStarts = "=+-@\t\r\n";
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

void WriteCsv(const Sheet& sheet, const QString& fileName)
{
    ReplaceFile(fileName, [&](QFileDevice& file) {
        BufferedOutput output(file);
        for (Row row{1}; row.Value() <= sheet.RowCount(); ++row) {
            for (Column column{1}; column.Value() <= sheet.ColumnCount(); ++column) {
                if (column.Value() > 1)
                    output.Text() += ',';
                output.Text() += CsvField(sheet.Utf8({column, row}));
            }
            output.Text() += "\r\n";
            output.FlushWhenFull();
        }
        output.Flush();
    });
}

} // namespace schedules
