#pragma once

#include "spread/Sheet.h"

#include <QStringList>

#include <memory>

namespace schedules::testing {

inline Cell At(int column, int row)
{
    return {Column(column), Row(row)};
}

inline CellRange Block(int firstColumn, int firstRow, int lastColumn, int lastRow)
{
    return {At(firstColumn, firstRow), At(lastColumn, lastRow)};
}

inline CellRange WholeRow(int row)
{
    return {{kAllColumns, Row(row)}, {kAllColumns, Row(row)}};
}

inline CellRange WholeColumn(int column)
{
    return {{Column(column), kAllRows}, {Column(column), kAllRows}};
}

inline CellStyle CheckBoxStyle()
{
    CellStyle style;
    style.type = CellType::CheckBox;
    return style;
}

/// The first line is the header row, the first column the header column; [x] and [ ] are check boxes.
inline std::unique_ptr<Sheet> DrawnSheet(const QString& drawing)
{
    auto sheet = std::make_unique<Sheet>();
    const QStringList lines = drawing.split(u'\n');
    sheet->SetSize(static_cast<int>(lines.front().count(u'|')), static_cast<int>(lines.size()) - 1);
    for (int row = 0; row < lines.size(); ++row) {
        const QStringList cells = lines[row].split(u'|');
        for (int column = 0; column < cells.size(); ++column) {
            const QString text = cells[column].trimmed();
            const bool isBox = text == u"[x]" || text == u"[ ]";
            sheet->SetText(At(column, row), isBox ? QString::number(text == u"[x]") : text);
            if (isBox)
                sheet->SetStyle(At(column, row), CheckBoxStyle());
        }
    }
    return sheet;
}

/// A sheet of a size whose cells name their places: "c2r3".
inline std::unique_ptr<Sheet> NumberedSheet(int columns, int rows)
{
    auto sheet = std::make_unique<Sheet>();
    sheet->SetSize(columns, rows);
    for (int row = 0; row <= rows; ++row) {
        for (int column = 0; column <= columns; ++column)
            sheet->SetText(At(column, row), QStringLiteral("c%1r%2").arg(column).arg(row));
    }
    return sheet;
}

} // namespace schedules::testing
