#include "host/cli/GridJson.h"

#include "host/base/Json.h"
#include "spread/Sheet.h"

namespace schedules::host {

namespace {

QByteArray Widths(const Sheet& sheet)
{
    QByteArrayList widths;
    for (int column = 0; column <= sheet.ColumnCount(); ++column)
        widths.append(QByteArray::number(sheet.ColumnWidth(Column(column))));
    return JsonArray(widths);
}

template <class Index>
QByteArray Hidden(const Sheet& sheet, int last)
{
    QByteArrayList hidden;
    for (int index = 0; index <= last; ++index) {
        if (sheet.Hidden(Index(index)))
            hidden.append(QByteArray::number(index));
    }
    return JsonArray(hidden);
}

/// The rows from top to bottom, when they are shown in an order of their own.
QByteArray RowOrderJson(const Axis& rows)
{
    if (!rows.Ordered())
        return {};
    QByteArrayList order;
    for (int position = 1; position <= rows.Count(); ++position)
        order.append(QByteArray::number(rows.ItemAt(position)));
    return ",\n\"rowOrder\":" + JsonArray(order);
}

/// Nothing for a cell that is empty and looks like any other.
QByteArray CellJson(const Sheet& sheet, Cell cell)
{
    const QString text = sheet.Text(cell);
    const bool checkBox = sheet.Style(cell).type == CellType::CheckBox;
    const bool bold = sheet.Bold(cell);
    const auto color = sheet.BackColor(cell);
    if (text.isEmpty() && !checkBox && !bold && !color)
        return {};
    return JsonObject({{"column", QByteArray::number(cell.column.Value())},
                       {"row", QByteArray::number(cell.row.Value())},
                       {"text", JsonText(text)},
                       {"type", checkBox ? "\"checkbox\"" : "\"text\""},
                       {"bold", JsonFlag(bold)},
                       {"backColor", color ? QByteArray::number(*color) : QByteArray("null")}});
}

QByteArray Cells(const Sheet& sheet)
{
    QByteArrayList cells;
    for (int row = 0; row <= sheet.RowCount(); ++row) {
        for (int column = 0; column <= sheet.ColumnCount(); ++column) {
            const QByteArray cell = CellJson(sheet, {Column(column), Row(row)});
            if (!cell.isEmpty())
                cells.append(cell);
        }
    }
    return JsonLines(cells);
}

} // namespace

QByteArray GridJson(const Sheet& sheet, int orientation, bool transposed)
{
    return "{\"columns\":" + QByteArray::number(sheet.ColumnCount()) +
           ",\"rows\":" + QByteArray::number(sheet.RowCount()) + ",\"orientation\":" + QByteArray::number(orientation) +
           ",\"transposed\":" + JsonFlag(transposed) + ",\n\"columnWidths\":" + Widths(sheet) +
           ",\n\"hiddenColumns\":" + Hidden<Column>(sheet, sheet.ColumnCount()) +
           ",\n\"hiddenRows\":" + Hidden<Row>(sheet, sheet.RowCount()) + RowOrderJson(sheet.Rows()) +
           ",\n\"cells\":" + Cells(sheet) + "}\n";
}

} // namespace schedules::host
