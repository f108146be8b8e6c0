#include "host/GridJson.h"

#include "spread/Sheet.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace schedules::host {

namespace {

QByteArray Quoted(const QString& text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

QByteArray Flag(bool value)
{
    return value ? "true" : "false";
}

QByteArray Widths(const Sheet& sheet)
{
    QByteArrayList widths;
    for (int column = 0; column <= sheet.ColumnCount(); ++column)
        widths.append(QByteArray::number(sheet.ColumnWidth(Column(column))));
    return '[' + widths.join(',') + ']';
}

template <class Index>
QByteArray Hidden(const Sheet& sheet, int last)
{
    QByteArrayList hidden;
    for (int index = 0; index <= last; ++index) {
        if (sheet.Hidden(Index(index)))
            hidden.append(QByteArray::number(index));
    }
    return '[' + hidden.join(',') + ']';
}

/// The rows from top to bottom, when they are shown in an order of their own.
QByteArray RowOrderJson(const Axis& rows)
{
    if (!rows.Ordered())
        return {};
    QByteArrayList order;
    for (int position = 1; position <= rows.Count(); ++position)
        order.append(QByteArray::number(rows.ItemAt(position)));
    return ",\n\"rowOrder\":[" + order.join(',') + ']';
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
    return "{\"column\":" + QByteArray::number(cell.column.Value()) +
           ",\"row\":" + QByteArray::number(cell.row.Value()) + ",\"text\":" + Quoted(text) +
           ",\"type\":" + (checkBox ? "\"checkbox\"" : "\"text\"") + ",\"bold\":" + Flag(bold) +
           ",\"backColor\":" + (color ? QByteArray::number(*color) : QByteArray("null")) + '}';
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
    return cells.isEmpty() ? QByteArray("[]") : "[\n" + cells.join(",\n") + "\n]";
}

} // namespace

QByteArray GridJson(const Sheet& sheet, int orientation, bool transposed)
{
    return "{\"columns\":" + QByteArray::number(sheet.ColumnCount()) +
           ",\"rows\":" + QByteArray::number(sheet.RowCount()) + ",\"orientation\":" + QByteArray::number(orientation) +
           ",\"transposed\":" + Flag(transposed) + ",\n\"columnWidths\":" + Widths(sheet) +
           ",\n\"hiddenColumns\":" + Hidden<Column>(sheet, sheet.ColumnCount()) +
           ",\n\"hiddenRows\":" + Hidden<Row>(sheet, sheet.RowCount()) + RowOrderJson(sheet.Rows()) +
           ",\n\"cells\":" + Cells(sheet) + "}\n";
}

} // namespace schedules::host
