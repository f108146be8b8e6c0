#include "controls/cells/CellContent.h"

#include <algorithm>

namespace schedules {

namespace {

bool IsDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool IsPlaceMark(QChar character)
{
    return character == u'.' || character == u',';
}

QString OnOneLine(QString text)
{
    const auto movesOn = [](QChar character) { return character < u' ' || character == QChar::LineSeparator; };
    if (std::ranges::any_of(std::as_const(text), movesOn))
        std::ranges::replace_if(text, movesOn, QChar(u' '));
    return text;
}

} // namespace

CellContent ContentOf(const Sheet& sheet, Cell cell)
{
    CellContent content;
    content.style = sheet.Style(cell);
    content.backColor = sheet.BackColor(cell);
    content.hAlign = sheet.HAlign(cell);
    content.vAlign = sheet.VAlign(cell);
    content.bold = sheet.Bold(cell);
    content.wraps = sheet.Wraps(cell);
    content.text = content.wraps ? sheet.Text(cell) : OnOneLine(sheet.Text(cell));
    return content;
}

bool ReadsAsNumber(QStringView text)
{
    QStringView digits = text.trimmed();
    if (digits.startsWith(u'+') || digits.startsWith(u'-'))
        digits = digits.mid(1);
    return std::ranges::any_of(digits, IsDigit) &&
           std::ranges::all_of(digits, [](QChar character) { return IsDigit(character) || IsPlaceMark(character); });
}

bool IsNumber(const CellContent& content)
{
    return IsNumeric(content.style.dataType) || ReadsAsNumber(content.text);
}

} // namespace schedules
