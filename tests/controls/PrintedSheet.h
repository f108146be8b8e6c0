#pragma once

#include "controls/DrawnSheet.h"
#include "controls/PrintedPdf.h"

#include <algorithm>
#include <memory>

namespace schedules::testing {

inline constexpr int kInch = 72;

/// A sheet, and how it is printed: DejaVu Sans on screen, columns an inch and rows half an inch wide.
struct Printed
{
    explicit Printed(const QString& drawing) : sheet(DrawnSheet(drawing))
    {
        sheet->SetFont(QFont(QStringLiteral("DejaVu Sans"), 9));
        for (int row = 0; row <= sheet->RowCount(); ++row)
            sheet->SetRowHeight(Row(row), 720);
        job.sheet = sheet.get();
        job.title = QStringLiteral("Pumps");
    }

    Printed& With(PrintOption option, bool print)
    {
        job.setup.options[static_cast<std::size_t>(option)] = print;
        return *this;
    }

    /// Nothing but cells.
    Printed& Bare() { return With(PrintOption::Border, false).With(PrintOption::Grid, false); }

    PrintedPdf Pdf() const { return PrintedPdf(job); }
    std::string Text(int page = 1) const { return Pdf().Text(page); }
    QImage Picture(int page = 1) const { return Pdf().Picture(page); }

    std::unique_ptr<Sheet> sheet;
    PrintJob job;
};

inline const QString kPumps = QStringLiteral("Pump|Flow|Remarks\n"
                                             "P-1|12.5|Резерв\n"
                                             "P-2|7|上海");

/// The middle of a cell of a table without header lines, in points.
inline QPoint Middle(int column, int row)
{
    return {36 + kInch / 2 + column * kInch, 36 + kInch / 4 + row * kInch / 2};
}

/// A point of a cell's ground, beside its text.
inline QColor Ground(const QImage& picture, int column, int row)
{
    return picture.pixelColor(Middle(column, row) + QPoint(30, 12));
}

inline QRect CellRect(int column, int row)
{
    return {36 + column * kInch, 36 + row * kInch / 2, kInch, kInch / 2};
}

/// How many pixels of a rectangle are dark.
inline int Ink(const QImage& picture, const QRect& rect)
{
    int ink = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            ink += qGray(picture.pixel(x, y)) < 128 ? 1 : 0;
    }
    return ink;
}

/// The darkest pixel on a line.
inline int Darkest(const QImage& picture, QPoint from, QPoint to)
{
    int darkest = 255;
    for (int x = from.x(); x <= to.x(); ++x) {
        for (int y = from.y(); y <= to.y(); ++y)
            darkest = std::min(darkest, qGray(picture.pixel(x, y)));
    }
    return darkest;
}

/// The darkest pixel across a border between two columns, or at the edge of the first.
inline int LineBefore(const QImage& picture, int column, int row)
{
    const QPoint at = CellRect(column, row).topLeft() + QPoint(0, 30);
    return Darkest(picture, at - QPoint(2, 0), at + QPoint(2, 0));
}

} // namespace schedules::testing
