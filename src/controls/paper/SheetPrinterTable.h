#pragma once

#include "controls/cells/CellPainter.h"
#include "spread/PrintLayout.h"

#include <vector>

namespace schedules {

/// What the tables of all pages have in common.
struct PrintedTable
{
    const Sheet& sheet;
    const PrintSetup& setup;
    const CellLook& look;
    double unit = 1; ///< a twip in the units that are painted in
    int width = 0;   ///< twips, before scaling, from the left edge to the right one; the table stands at one of them
};

/// Paints the table of one page: grounds, contents, lines. The painter's origin is the corner of the room for it.
class SheetPrinterTable
{
public:
    /// All of these must outlive the object.
    SheetPrinterTable(QPainter& painter, CellFaces& faces, const PrintedTable& table, const PrintPage& page);

    void Paint();

private:
    struct ShownCell
    {
        QRect shown; ///< the part on this page
        QRect whole;
        CellContent content;
        QColor ground;
    };

    void PaintRow(const PrintTrack& row);
    ShownCell CellAt(const PrintTrack& column, const PrintTrack& row) const;
    QColor GroundOf(bool isHeader, const CellContent& content) const;
    void FillGrounds(const std::vector<ShownCell>& cells);
    void PaintCut(const ShownCell& cell);
    void DrawLines();
    void DrawGrid();
    void DrawHeaderEdges();
    void UseLine(const QColor& color, double twips);

    bool FromRightToLeft() const { return m_table.look.direction == Qt::RightToLeft; }
    int Units(int twips) const;
    QRect Rect(int left, int top, int right, int bottom) const;
    QRectF TableRect() const { return Rect(0, 0, m_page.Width(), m_page.Height()); }

    QPainter& m_painter;
    const PrintedTable& m_table;
    const PrintPage& m_page;
    CellPainter m_cells;
};

} // namespace schedules
