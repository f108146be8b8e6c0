#include "controls/cells/CellContent.h"

#include "common/Utf8.h"
#include "spread/OneLine.h"

namespace schedules {

CellContent ContentOf(const Sheet& sheet, Cell cell)
{
    CellContent content;
    const auto [utf8, style] = sheet.Content(cell);
    content.style = style;
    content.backColor = sheet.BackColor(cell);
    content.edge = EdgeOf(sheet.HAlign(cell), style, utf8);
    content.vAlign = sheet.VAlign(cell);
    content.bold = sheet.Bold(cell);
    content.wraps = sheet.Wraps(cell);
    content.text = content.wraps ? FromUtf8(utf8) : OnOneLine(FromUtf8(utf8));
    return content;
}

} // namespace schedules
