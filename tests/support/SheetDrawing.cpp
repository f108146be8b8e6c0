#include "support/SheetDrawing.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace schedules::testing {

namespace {

/// How far beyond the size hidden rows and columns are looked for.
constexpr int kBeyond = 8;

using CellDrawing = std::function<QString(Cell)>;

std::string Trimmed(const QString& line)
{
    qsizetype end = line.size();
    while (end > 0 && line[end - 1] == u' ')
        --end;
    return line.first(end).toStdString();
}

std::string Joined(const std::vector<QString>& lines)
{
    std::string joined;
    for (const QString& line : lines)
        joined += (joined.empty() && &line == &lines.front() ? "" : "\n") + Trimmed(line);
    return joined;
}

std::string Aligned(const Sheet& sheet, const CellDrawing& draw)
{
    std::vector<QString> lines(static_cast<std::size_t>(sheet.RowCount()) + 1);
    for (int column = 0; column <= sheet.ColumnCount(); ++column) {
        std::vector<QString> texts;
        for (int row = 0; row <= sheet.RowCount(); ++row)
            texts.push_back(draw(At(column, row)));
        const qsizetype width = std::ranges::max(texts, {}, &QString::size).size();
        for (std::size_t row = 0; row < lines.size(); ++row)
            lines[row] += (column > 0 ? QStringLiteral(" | ") : QString()) + texts[row].leftJustified(width);
    }
    return Joined(lines);
}

std::string Mapped(const Sheet& sheet, const std::function<char(Cell)>& draw)
{
    std::vector<QString> lines(static_cast<std::size_t>(sheet.RowCount()) + 1);
    for (int row = 0; row <= sheet.RowCount(); ++row) {
        for (int column = 0; column <= sheet.ColumnCount(); ++column)
            lines[row] += QLatin1Char(draw(At(column, row)));
    }
    return Joined(lines);
}

template <class Position>
std::string HiddenAmong(const Sheet& sheet, int count, const std::string& name)
{
    std::string hidden;
    for (Position position; position.Value() <= count + kBeyond; ++position) {
        if (sheet.Hidden(position))
            hidden += " " + std::to_string(position.Value());
    }
    return hidden.empty() ? std::string() : name + hidden;
}

} // namespace

std::string Drawn(const Sheet& sheet)
{
    return Aligned(sheet, [&](Cell cell) { return sheet.Text(cell); });
}

std::string DrawnBold(const Sheet& sheet)
{
    return Mapped(sheet, [&](Cell cell) { return sheet.Bold(cell) ? '#' : '.'; });
}

std::string DrawnColors(const Sheet& sheet)
{
    return Aligned(sheet, [&](Cell cell) {
        const auto color = sheet.BackColor(cell);
        return color ? QString::number(*color) : QStringLiteral("-");
    });
}

std::string DrawnTypes(const Sheet& sheet)
{
    return Mapped(sheet, [&](Cell cell) { return sheet.Style(cell).type == CellType::CheckBox ? 'x' : '.'; });
}

std::string DrawnHAlign(const Sheet& sheet)
{
    return Mapped(sheet, [&](Cell cell) { return "LDC"[static_cast<int>(sheet.HAlign(cell))]; });
}

std::string DrawnVAlign(const Sheet& sheet)
{
    return Mapped(sheet, [&](Cell cell) { return "TBC"[static_cast<int>(sheet.VAlign(cell))]; });
}

std::string DrawnHidden(const Sheet& sheet)
{
    const std::string columns = HiddenAmong<Column>(sheet, sheet.ColumnCount(), "columns");
    const std::string rows = HiddenAmong<Row>(sheet, sheet.RowCount(), "rows");
    if (columns.empty() && rows.empty())
        return "none";
    return columns + (columns.empty() || rows.empty() ? "" : " ") + rows;
}

std::string DrawnWidths(const Sheet& sheet)
{
    std::string widths;
    for (Column column; column.Value() <= sheet.ColumnCount(); ++column)
        widths += (widths.empty() ? "" : " | ") + std::to_string(sheet.ColumnWidth(column));
    return widths;
}

std::string DrawnSize(const Sheet& sheet)
{
    return std::to_string(sheet.ColumnCount()) + " columns, " + std::to_string(sheet.RowCount()) + " rows";
}

} // namespace schedules::testing
