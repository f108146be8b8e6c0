#include "controls/cells/CellPainter.h"

#include "controls/cells/SheetColors.h"

#include <QGlyphRun>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace schedules {

namespace {

/// Less than this share of a line's height cannot be seen as an alignment.
constexpr double kOneLineShare = 0.1;

/// How far a text on paper may be narrowed.
constexpr double kNarrowest = 0.5;

} // namespace

CellPainter::CellPainter(QPainter& painter, CellFaces& faces, const CellLook& look)
    : m_painter(painter), m_faces(faces), m_look(look), m_room(*painter.device()), m_symbols(painter, faces, look)
{
}

void CellPainter::Finish()
{
    DrawGlyphs(false);
    DrawGlyphs(true);
    m_ink = {};
}

void CellPainter::DrawGlyphs(bool bold)
{
    GlyphRow& row = m_glyphs[bold];
    if (row.glyphs.empty())
        return;
    QGlyphRun run;
    run.setRawFont(m_faces.Glyphs(bold).Font());
    run.setRawData(row.glyphs.data(), row.positions.data(), static_cast<int>(row.glyphs.size()));
    const QTransform unscaled = m_painter.transform();
    m_painter.scale(m_faces.Scale(), m_faces.Scale());
    m_painter.drawGlyphRun({}, run);
    m_painter.setTransform(unscaled);
    row.Clear();
}

QColor CellPainter::GroundOf(const CellContent& content, const QColor& otherwise) const
{
    return content.backColor ? ColorOf(*content.backColor, m_look.palette) : otherwise;
}

void CellPainter::Paint(const CellContent& content, const QRect& cell, const QColor& ground)
{
    const CellKind& kind = content.Kind();
    const bool showsText = kind.showsText && !content.text.isEmpty();
    if (!showsText && !kind.hasSymbol)
        return;
    UseInkFor(ground);
    if (showsText)
        PaintText(content, cell);
    if (kind.hasSymbol)
        m_symbols.Paint(content, cell, ground, m_ink.color);
}

void CellPainter::UseInkFor(const QColor& ground)
{
    if (m_ink.color.isValid() && m_ink.ground == ground.rgb())
        return;
    const QColor color = LegibleOn(ground, m_look.palette.color(QPalette::Text));
    if (color != m_ink.color) {
        Finish();
        m_painter.setPen(color);
    }
    m_ink = {ground.rgb(), color};
}

void CellPainter::PaintText(const CellContent& content, const QRect& cell)
{
    const QRect room = m_room.Within(cell);
    if (room.width() <= 0)
        return;
    if (content.wraps)
        PaintLines(content, room);
    else if (!PaintGlyphs(content, room))
        PaintLine(content, room);
}

bool CellPainter::PaintGlyphs(const CellContent& content, const QRect& room)
{
    const bool isTooHigh = m_faces.Height(content.bold) > m_room.CellAround(room).height();
    if (isTooHigh || m_look.drawing == TextDrawing::AsText)
        return false;
    GlyphFace& face = m_faces.Glyphs(content.bold);
    const auto faceWidth = face.WidthOf(content.text);
    if (!faceWidth || *faceWidth * m_faces.Scale() > room.width() + kRounding)
        return false;
    const double left = LeftOf(*faceWidth * m_faces.Scale(), room, content.edge);
    const QPointF start(left, BaselineOf(content, room));
    face.Append(m_glyphs[content.bold], content.text, start / m_faces.Scale());
    return true;
}

void CellPainter::PaintLine(const CellContent& content, const QRect& room)
{
    QTextLayout layout(content.text, m_faces.Font(content.bold));
    layout.setTextOption(PlainTextOption(QTextOption::NoWrap));
    LayOutOnOneLine(layout);
    const auto width = [&] { return layout.lineAt(0).naturalTextWidth() * m_faces.Scale(); };
    const double narrowing = NarrowingOf(width(), room.width() + kRounding);
    if (width() * narrowing > room.width() + kRounding) {
        layout.setText(m_faces.Elided(content.text, content.bold, room.width()));
        LayOutOnOneLine(layout);
    }
    const double top = BaselineOf(content, room) - layout.lineAt(0).ascent() * m_faces.Scale();
    const double left = LeftOf(width() * narrowing, room, content.edge);
    DrawIn(room, layout, {left, top}, m_faces.Height(content.bold), narrowing);
}

double CellPainter::NarrowingOf(double width, double room) const
{
    const bool stays = width <= room || m_look.drawing == TextDrawing::Fast || room < kNarrowest * width;
    return stays ? 1 : room / width;
}

double CellPainter::BaselineOf(const CellContent& content, const QRect& room) const
{
    return std::round(TopOf(content, room, m_faces.Height(content.bold)) + m_faces.Ascent(content.bold));
}

void CellPainter::PaintLines(const CellContent& content, const QRect& room)
{
    QTextLayout layout(InLines(content.text), m_faces.Font(content.bold));
    QTextOption option = PlainTextOption(QTextOption::WrapAtWordBoundaryOrAnywhere);
    const auto side = Qt::AlignAbsolute | (NearIsLeft(content.edge) ? Qt::AlignLeft : Qt::AlignRight);
    option.setAlignment(content.edge == CellEdge::Center ? Qt::AlignHCenter : side);
    layout.setTextOption(option);
    const double height = LayOutInWidth(layout, (room.width() + kRounding) / m_faces.Scale()) * m_faces.Scale();
    DrawIn(room, layout, {static_cast<double>(room.left()), std::round(TopOf(content, room, height))}, height);
}

void CellPainter::DrawIn(const QRect& room, const QTextLayout& layout, QPointF topLeft, double height, double narrowing)
{
    const QRect cell = m_room.CellAround(room);
    if (height <= cell.height() && m_faces.Scale() * narrowing == 1) {
        layout.draw(&m_painter, topLeft);
        return;
    }
    m_painter.save();
    if (height > cell.height())
        m_painter.setClipRect(cell, Qt::IntersectClip);
    m_painter.translate(topLeft);
    m_painter.scale(m_faces.Scale() * narrowing, m_faces.Scale());
    layout.draw(&m_painter, {});
    m_painter.restore();
}

bool CellPainter::NearIsLeft(CellEdge edge) const
{
    return (edge == CellEdge::Near) == (m_look.direction == Qt::LeftToRight);
}

double CellPainter::LeftOf(double width, const QRect& room, CellEdge edge) const
{
    const double spare = room.width() - width;
    if (edge == CellEdge::Center)
        return room.left() + spare / 2;
    return room.left() + (NearIsLeft(edge) ? 0 : spare);
}

double CellPainter::TopOf(const CellContent& content, const QRect& room, double height) const
{
    const double spare = room.height() - height;
    // Rows of one line have a little to spare, by rounding or on paper, where the face may be lower than on screen;
    // without this, alignments would show as ragged baselines.
    const bool isOneLineRow = spare < std::max(2 * kRounding, kOneLineShare * height);
    if (isOneLineRow || content.vAlign == VerticalAlignment::Center)
        return room.top() + std::max(spare, 0.0) / 2;
    return room.top() + (content.vAlign == VerticalAlignment::Bottom ? spare : 0);
}

} // namespace schedules
