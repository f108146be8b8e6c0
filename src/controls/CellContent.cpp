#include "controls/CellContent.h"

#include <algorithm>

namespace schedules {

namespace {

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
    const auto [utf8, style] = sheet.Content(cell);
    content.style = style;
    content.backColor = sheet.BackColor(cell);
    content.hAlign = sheet.HAlign(cell);
    content.edge = EdgeOf(content.hAlign, style, utf8);
    content.vAlign = sheet.VAlign(cell);
    content.bold = sheet.Bold(cell);
    content.wraps = sheet.Wraps(cell);
    content.text = content.wraps ? sheet.Text(cell) : OnOneLine(sheet.Text(cell));
    return content;
}

} // namespace schedules
