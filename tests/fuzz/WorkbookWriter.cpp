// The writer of workbooks: another library reads back what was in the cells.
//
// The input is the workbook's name, then a line for each row, cells parted by tabs. What a cell begins with tells what
// it is: "#" a number, "^" a check box, "*" bold on red; anything else is text.

#include "common/Error.h"
#include "fuzz/Input.h"
#include "workbook/ReadBack.h"
#include "workbook/Workbook.h"

#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// In longer ones that go on over more than two records the library loses its way.
constexpr qsizetype kLongestText = 4000;

/// Texts come out of XML, so they hold what XML can hold.
QString OnlyXml(QString text)
{
    text.truncate(kLongestText);
    for (QChar& character : text) {
        if (character < u' ' || character.isSurrogate() || character > QChar(0xFFFD))
            character = u'?';
    }
    return text;
}

CellStyle StyleOf(QChar mark)
{
    if (mark == u'#')
        return {.dataType = DataType::Double};
    if (mark == u'^')
        return {.type = CellType::CheckBox, .dataType = DataType::CheckBox};
    return {};
}

void Put(Sheet& sheet, Cell cell, const QString& written)
{
    const QChar mark = written.isEmpty() ? QChar() : written.front();
    const bool isMarked = mark == u'#' || mark == u'^' || mark == u'*';
    sheet.SetText(cell, OnlyXml(isMarked ? written.mid(1) : written));
    sheet.SetStyle(cell, StyleOf(mark));
    if (mark != u'*')
        return;
    sheet.SetBold({cell, cell}, true);
    sheet.SetBackColor({cell, cell}, 255);
}

void Fill(Sheet& sheet, const QStringList& rows)
{
    qsizetype columns = 0;
    for (int row = 0; row < rows.size(); ++row) {
        const QStringList cells = rows[row].split(u'\t');
        columns = std::max(columns, cells.size());
        for (int column = 0; column < cells.size(); ++column)
            Put(sheet, At(column + 1, row + 1), cells[column]);
    }
    sheet.SetSize(static_cast<int>(columns), static_cast<int>(rows.size()));
}

bool IsNumber(const QString& text)
{
    static const QRegularExpression plain(QStringLiteral(R"re(\A-?(0|[1-9][0-9]*)(\.[0-9]+)?\z)re"));
    static const QRegularExpression digit(QStringLiteral("[0-9]"));
    const bool isMinusZero = text.startsWith(u'-') && text.toDouble() == 0;
    return plain.match(text).hasMatch() && text.count(digit) <= 15 && !isMinusZero;
}

/// As `ReadByFreexl` prints it.
QString Expected(const Sheet& sheet, Cell cell)
{
    const QString text = sheet.Text(cell);
    const bool isNumeric = sheet.Style(cell).dataType != DataType::Text;
    return isNumeric && IsNumber(text) ? QString::number(text.toDouble(), 'g', 15) : text;
}

std::string Expected(const Sheet& sheet)
{
    QStringList rows;
    for (Row row{1}; row.Value() <= sheet.RowCount(); ++row) {
        QStringList cells;
        for (Column column{1}; column.Value() <= sheet.ColumnCount(); ++column)
            cells += Expected(sheet, {column, row});
        rows += cells.join(QChar(0x1F));
    }
    return rows.join(QChar(0x1E)).toStdString();
}

bool IsWritten(const WrittenSheet& written)
{
    try {
        WriteWorkbook(written.sheet, written.name, written.FileName());
        return true;
    } catch (const Error&) {
        return false;
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr int kMostColumns = 256;
    const Input input(data, size);
    QStringList lines = input.Text().split(u'\n');
    WrittenSheet written;
    written.name = lines.takeFirst();
    Fill(written.sheet, lines);
    written.sheet.SetFrozenColumns(static_cast<int>(input.choice % 3));
    written.sheet.SetFrozenRows(static_cast<int>(input.choice / 3 % 3));
    const bool isWritten = IsWritten(written);
    EXPECT_EQ(isWritten, written.sheet.ColumnCount() <= kMostColumns);
    if (isWritten)
        EXPECT_EQ(ReadByFreexl(written.FileName()), Expected(written.sheet));
    return 0;
}
