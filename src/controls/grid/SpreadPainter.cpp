#include "controls/grid/SpreadPainter.h"

#include "controls/cells/SheetColors.h"

#include <QPainterPath>
#include <QVarLengthArray>

#include <algorithm>
#include <iterator>

namespace schedules {

namespace {

constexpr double kGridLineShare = 0.16;
constexpr double kEdgeLineShare = 0.45;
constexpr double kSelectedShare = 0.22;
constexpr double kSelectedHeaderShare = 0.30;
constexpr double kEditableShare = 0.07;

QColor LineColor(const QPalette& palette, double share)
{
    return Blend(palette.color(QPalette::Base), palette.color(QPalette::Text), share);
}

struct Halves
{
    std::vector<Track> fixed;
    std::vector<Track> scrolling;
};

Halves Halved(std::vector<Track> tracks, const AxisLayout& axis)
{
    const auto cut =
        std::ranges::find_if(tracks, [&](const Track& track) { return track.position >= axis.FixedCount(); });
    return {{tracks.begin(), cut}, {cut, tracks.end()}};
}

} // namespace

SpreadPainter::SpreadPainter(QPainter& painter, const Sheet& sheet, const SpreadGeometry& geometry, CellFaces& faces,
                             const CellLook& look, const ShownMarks& marks)
    : m_painter(painter),
      m_sheet(sheet),
      m_geometry(geometry),
      m_look(look),
      m_marks(marks),
      m_cells(painter, faces, look),
      m_thin(1 / painter.device()->devicePixelRatioF()),
      m_triangles(painter, faces.Ascent(false), m_thin, look.direction)
{
}

void SpreadPainter::Paint(const std::optional<ShownSelection>& selection, const QRect& exposed)
{
    m_selection = selection;
    for (const Pane& pane : Panes(exposed))
        PaintPane(pane);
    DrawSortArrow();
    m_painter.setClipping(false);
    DrawEdges();
    if (m_selection)
        DrawActiveFrame();
}

std::vector<SpreadPainter::Pane> SpreadPainter::Panes(const QRect& exposed) const
{
    std::vector<Track> columns = m_geometry.Columns().Tracks();
    std::vector<Track> rows = m_geometry.Rows().Tracks();
    std::erase_if(columns, [&](const Track& column) {
        const QRect rect = m_geometry.Rect(column.span, {});
        return rect.x() + rect.width() <= exposed.left() || rect.x() > exposed.right();
    });
    std::erase_if(rows,
                  [&](const Track& row) { return row.span.end <= exposed.top() || row.span.start > exposed.bottom(); });
    const Halves columnHalves = Halved(std::move(columns), m_geometry.Columns());
    const Halves rowHalves = Halved(std::move(rows), m_geometry.Rows());
    const std::array rects = m_geometry.Panes();
    return {{rects[0], columnHalves.fixed, rowHalves.fixed},
            {rects[1], columnHalves.scrolling, rowHalves.fixed},
            {rects[2], columnHalves.fixed, rowHalves.scrolling},
            {rects[3], columnHalves.scrolling, rowHalves.scrolling}};
}

void SpreadPainter::PaintPane(const Pane& pane)
{
    if (pane.rect.isEmpty())
        return;
    std::vector<ShownCell> edited;
    m_painter.setClipRect(pane.rect);
    for (const Track& row : pane.rows) {
        const std::vector<ShownCell> cells = CellsOf(row, pane);
        FillGrounds(cells);
        for (const ShownCell& cell : cells)
            m_cells.Paint(cell.content, cell.rect, cell.ground);
        std::ranges::copy_if(cells, std::back_inserter(edited),
                             [](const ShownCell& cell) { return cell.content.style.edited; });
    }
    m_cells.Finish();
    for (const ShownCell& cell : edited)
        DrawCorner(cell.rect, cell.ground);
    DrawLines(pane);
}

std::vector<SpreadPainter::ShownCell> SpreadPainter::CellsOf(const Track& row, const Pane& pane) const
{
    std::vector<ShownCell> cells;
    cells.reserve(pane.columns.size());
    for (const Track& column : pane.columns) {
        CellContent content = ContentOf(m_sheet, {Column(column.item), Row(row.item)});
        const QColor ground = GroundOf({column.position, row.position}, content);
        cells.push_back({m_geometry.Rect(column.span, row.span), std::move(content), ground});
    }
    return cells;
}

QColor SpreadPainter::OwnGroundOf(ShownPlace place, const CellContent& content) const
{
    const bool isHeader = place.column == 0 || place.row == 0;
    const QColor plain = m_cells.GroundOf(content, m_look.palette.color(isHeader ? QPalette::Button : QPalette::Base));
    const bool isTinted = m_marks.editable && content.style.allowEdit && !isHeader;
    return isTinted ? Blend(plain, m_look.palette.color(QPalette::Highlight), kEditableShare) : plain;
}

QColor SpreadPainter::GroundOf(ShownPlace place, const CellContent& content) const
{
    const QColor own = OwnGroundOf(place, content);
    const double share = SelectedShareOf(place);
    return share > 0 ? Blend(own, m_look.palette.color(QPalette::Highlight), share) : own;
}

double SpreadPainter::SelectedShareOf(ShownPlace place) const
{
    if (!m_selection || place == m_selection->active)
        return 0;
    const ShownBlock& block = m_selection->block;
    if (block.Contains(place))
        return kSelectedShare;
    const bool headsSelection =
        (place.row == 0 && block.ContainsColumn(place.column)) || (place.column == 0 && block.ContainsRow(place.row));
    return headsSelection ? kSelectedHeaderShare : 0;
}

void SpreadPainter::FillGrounds(const std::vector<ShownCell>& cells)
{
    for (auto run = cells.begin(); run != cells.end();) {
        const auto end =
            std::find_if(run, cells.end(), [&](const ShownCell& cell) { return cell.ground != run->ground; });
        m_painter.fillRect(run->rect.united(std::prev(end)->rect), run->ground);
        run = end;
    }
}

void SpreadPainter::DrawCorner(const QRectF& cell, const QColor& ground)
{
    m_triangles.PaintCorner(cell, LegibleOn(ground, m_look.palette.color(QPalette::Highlight), kMarkContrast));
}

void SpreadPainter::DrawSortArrow()
{
    if (!m_marks.sort || m_marks.sort->column > Column(m_sheet.ColumnCount()))
        return;
    const Cell header{m_marks.sort->column, Row(0)};
    const ShownPlace place = PlaceOf(m_sheet, header);
    const QColor ground = GroundOf(place, ContentOf(m_sheet, header));
    m_painter.setClipRect(m_geometry.SeenRectOf(place));
    m_triangles.PaintArrow(m_geometry.RectOf(place), m_marks.sort->order,
                           LegibleOn(ground, m_look.palette.color(QPalette::Text)));
}

void SpreadPainter::DrawLines(const Pane& pane)
{
    QVarLengthArray<QLineF, 256> lines;
    const QRectF rect(pane.rect);
    for (const Track& column : pane.columns) {
        const QRectF cell(m_geometry.Rect(column.span, {}));
        const double x = m_geometry.Mirrored() ? cell.left() + m_thin / 2 : cell.right() - m_thin / 2;
        lines.append({x, rect.top(), x, rect.bottom()});
    }
    for (const Track& row : pane.rows) {
        const double y = row.span.end - m_thin / 2;
        lines.append({rect.left(), y, rect.right(), y});
    }
    m_painter.setPen(QPen(LineColor(m_look.palette, kGridLineShare), 0));
    m_painter.drawLines(lines.constData(), static_cast<int>(lines.size()));
}

void SpreadPainter::DrawEdges()
{
    const AxisLayout& columns = m_geometry.Columns();
    const AxisLayout& rows = m_geometry.Rows();
    const QColor color = LineColor(m_look.palette, kEdgeLineShare);
    const auto fillBefore = [&](int columnEnd, int rowEnd) {
        const QRectF down(m_geometry.Rect({0, columnEnd}, {0, rows.ShownEnd()}));
        const QRectF across(m_geometry.Rect({0, columns.ShownEnd()}, {0, rowEnd}));
        const double x = m_geometry.Mirrored() ? down.left() : down.right() - m_thin;
        if (columnEnd > 0)
            m_painter.fillRect(QRectF(x, down.top(), m_thin, down.height()), color);
        if (rowEnd > 0)
            m_painter.fillRect(QRectF(across.left(), across.bottom() - m_thin, across.width(), m_thin), color);
    };
    fillBefore(columns.FixedEnd(), rows.FixedEnd());
    if (columns.FixedCount() > 0 && rows.FixedCount() > 0)
        fillBefore(columns.SpanOf(0).end, rows.SpanOf(0).end);
}

void SpreadPainter::DrawActiveFrame()
{
    const QRectF seen(m_geometry.SeenRectOf(m_selection->active));
    if (seen.isEmpty())
        return;
    const QColor frame = m_look.palette.color(QPalette::Highlight);
    const double width = m_selection->focused ? 2 : 1;
    // The frame covers the lines of the neighbours before and above, so that it is even on all sides.
    const int before = m_geometry.Mirrored() ? 0 : 1;
    const QMarginsF line(before, 1, 1 - before, 0);
    const QRectF whole = QRectF(m_geometry.RectOf(m_selection->active)).marginsAdded(line);
    m_painter.setClipRect(seen.marginsAdded(line));
    const auto outline = [&](double inset, double thickness, const QColor& color) {
        const QRectF outer = whole.adjusted(inset, inset, -inset, -inset);
        QPainterPath path;
        path.addRect(outer);
        path.addRect(outer.adjusted(thickness, thickness, -thickness, -thickness));
        m_painter.fillPath(path, color);
    };
    outline(0, width, frame);
    outline(width, m_thin, m_look.palette.color(QPalette::Base));
    const CellContent content = ContentOf(m_sheet, CellOf(m_sheet, m_selection->active));
    if (content.style.edited)
        DrawCorner(whole.adjusted(width, width, -width, -width), GroundOf(m_selection->active, content));
    m_painter.setClipping(false);
}

} // namespace schedules
