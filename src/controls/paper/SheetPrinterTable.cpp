#include "controls/paper/SheetPrinterTable.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace schedules {

namespace {

constexpr double kGridLine = 5;
constexpr double kEdgeLine = 12;
constexpr QColor kGridColor(0xA8, 0xAE, 0xB4);
constexpr QColor kEdgeColor(0x30, 0x34, 0x38);
constexpr std::uint32_t kSystemColorBit = 0x80000000;

bool HasColorOfItsOwn(const CellContent& content)
{
    return content.backColor && !(*content.backColor & kSystemColorBit);
}

} // namespace

SheetPrinterTable::SheetPrinterTable(QPainter& painter, CellFaces& faces, const PrintedTable& table,
                                     const PrintPage& page)
    : m_painter(painter), m_table(table), m_page(page), m_cells(painter, faces, table.look)
{
}

void SheetPrinterTable::Paint()
{
    if (m_page.columns.empty() || m_page.rows.empty())
        return;
    for (const PrintTrack& row : m_page.rows)
        PaintRow(row);
    DrawLines();
}

void SheetPrinterTable::PaintRow(const PrintTrack& row)
{
    std::vector<ShownCell> cells;
    cells.reserve(m_page.columns.size());
    for (const PrintTrack& column : m_page.columns)
        cells.push_back(CellAt(column, row));
    FillGrounds(cells);
    for (const ShownCell& cell : cells) {
        if (cell.shown == cell.whole)
            m_cells.Paint(cell.content, cell.whole, cell.ground);
        else
            PaintCut(cell);
    }
    m_cells.Finish();
}

SheetPrinterTable::ShownCell SheetPrinterTable::CellAt(const PrintTrack& column, const PrintTrack& row) const
{
    const int left = column.start - column.skipped;
    const int top = row.start - row.skipped;
    CellContent content = ContentOf(m_table.sheet, {Column(column.item), Row(row.item)});
    const QColor ground = GroundOf(column.item == 0 || row.item == 0, content);
    return {Rect(column.start, row.start, column.End(), row.End()),
            Rect(left, top, left + column.whole, top + row.whole), std::move(content), ground};
}

QColor SheetPrinterTable::GroundOf(bool isHeader, const CellContent& content) const
{
    if (!isHeader)
        return m_cells.GroundOf(content, m_table.look.palette.color(QPalette::Base));
    if (m_table.setup.Prints(PrintOption::Shading) || HasColorOfItsOwn(content))
        return m_cells.GroundOf(content, m_table.look.palette.color(QPalette::Button));
    return m_table.look.palette.color(QPalette::Base);
}

void SheetPrinterTable::FillGrounds(const std::vector<ShownCell>& cells)
{
    for (auto run = cells.begin(); run != cells.end();) {
        const auto end =
            std::find_if(run, cells.end(), [&](const ShownCell& cell) { return cell.ground != run->ground; });
        if (run->ground != Qt::white)
            m_painter.fillRect(run->shown.united(std::prev(end)->shown), run->ground);
        run = end;
    }
}

void SheetPrinterTable::PaintCut(const ShownCell& cell)
{
    m_cells.Finish();
    m_painter.save();
    m_painter.setClipRect(cell.shown);
    m_cells.Paint(cell.content, cell.whole, cell.ground);
    m_cells.Finish();
    m_painter.restore();
}

void SheetPrinterTable::DrawLines()
{
    if (m_table.setup.Prints(PrintOption::Grid)) {
        DrawGrid();
        DrawHeaderEdges();
    }
    if (m_table.setup.Prints(PrintOption::Border)) {
        UseLine(kEdgeColor, kEdgeLine);
        m_painter.drawRect(TableRect());
    }
}

void SheetPrinterTable::DrawGrid()
{
    const QRectF table = TableRect();
    QList<QLineF> lines;
    for (const PrintTrack& column : m_page.columns) {
        const QRectF cell = Rect(column.start, 0, column.End(), 0);
        const double x = FromRightToLeft() ? cell.left() : cell.right();
        lines.append({x, table.top(), x, table.bottom()});
    }
    for (const PrintTrack& row : m_page.rows) {
        const double y = Units(row.End());
        lines.append({table.left(), y, table.right(), y});
    }
    UseLine(kGridColor, kGridLine);
    m_painter.drawLines(lines);
}

void SheetPrinterTable::DrawHeaderEdges()
{
    const PrintTrack& column = m_page.columns.front();
    const PrintTrack& row = m_page.rows.front();
    const QRectF table = TableRect();
    const QRectF corner = Rect(0, 0, column.End(), row.End());
    const double x = FromRightToLeft() ? corner.left() : corner.right();
    UseLine(kEdgeColor, kEdgeLine);
    if (row.item == 0)
        m_painter.drawLine(QLineF(table.left(), corner.bottom(), table.right(), corner.bottom()));
    if (column.item == 0)
        m_painter.drawLine(QLineF(x, table.top(), x, table.bottom()));
}

void SheetPrinterTable::UseLine(const QColor& color, double twips)
{
    m_painter.setPen(QPen(color, twips * m_table.unit, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    m_painter.setBrush(Qt::NoBrush);
}

int SheetPrinterTable::Units(int twips) const
{
    return static_cast<int>(std::lround(twips * m_table.unit));
}

/// Edges are rounded each, so that neighbours share them.
QRect SheetPrinterTable::Rect(int left, int top, int right, int bottom) const
{
    const int start = FromRightToLeft() ? m_table.width - right : left;
    const int end = FromRightToLeft() ? m_table.width - left : right;
    return {QPoint(Units(start), Units(top)), QSize(Units(end) - Units(start), Units(bottom) - Units(top))};
}

} // namespace schedules
