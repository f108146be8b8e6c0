#pragma once

#include "controls/cells/CellRoom.h"
#include "controls/cells/CellSymbols.h"

#include <array>

class QTextLayout;

namespace schedules {

/// Paints what stands in a cell, on screen or on paper: text or check box, on a ground that the caller has painted.
///
/// Sizes follow the resolution of what is painted on. Texts keep their linear widths at any resolution, so what fits
/// the measured width of a column is never cut off; other texts end in an ellipsis. Drawn as text, they are narrowed to
/// their cell first, down to half their width: paper cannot be scrolled or widened.
class CellPainter
{
public:
    /// All of these must outlive the cell painter. Faces serve any number of pictures at their resolution.
    CellPainter(QPainter& painter, CellFaces& faces, const CellLook& look);

    /// The color of the ground without a selection: that of the cell, or the other one when it has none.
    QColor GroundOf(const CellContent& content, const QColor& otherwise) const;

    /// The text is black or white where the palette's color would be hard to read on the ground.
    void Paint(const CellContent& content, const QRect& cell, const QColor& ground);

    /// Draws what is still kept back. To be called after the last cell, and before the painter's pen or clipping
    /// changes.
    void Finish();

private:
    struct Ink
    {
        QRgb ground = 0;
        QColor color;
    };

    void PaintText(const CellContent& content, const QRect& cell);
    void PaintLine(const CellContent& content, const QRect& room);
    bool PaintGlyphs(const CellContent& content, const QRect& room);
    void DrawGlyphs(bool bold);
    void PaintLines(const CellContent& content, const QRect& room);
    double NarrowingOf(double width, double room) const;
    void DrawIn(const QRect& room, const QTextLayout& layout, QPointF topLeft, double height, double narrowing = 1);
    void UseInkFor(const QColor& ground);

    bool NearIsLeft(CellEdge edge) const;
    double LeftOf(double width, const QRect& room, CellEdge edge) const;
    double BaselineOf(const CellContent& content, const QRect& room) const;
    double TopOf(const CellContent& content, const QRect& room, double height) const;

    QPainter& m_painter;
    CellFaces& m_faces;
    const CellLook& m_look;
    CellRoom m_room;
    CellSymbols m_symbols;
    Ink m_ink;
    std::array<GlyphRow, 2> m_glyphs; ///< kept back, to be drawn together: regular, bold
};

} // namespace schedules
