#pragma once

#include "controls/cells/CellPainter.h"
#include "controls/grid/SpreadGeometry.h"
#include "controls/grid/SpreadMarks.h"

#include <optional>
#include <vector>

namespace schedules {

/// The user's place in a sheet, as it is painted.
struct ShownSelection
{
    ShownBlock block;
    ShownPlace active;
    bool focused = false;
};

/// Paints one frame of a sheet on screen: grounds, lines, contents, marks, the selection. Only cells that are seen are
/// looked at, and columns and rows once each.
class SpreadPainter
{
public:
    SpreadPainter(QPainter& painter, const Sheet& sheet, const SpreadGeometry& geometry, CellFaces& faces,
                  const CellLook& look, const ShownMarks& marks);

    /// Cells outside of what is exposed are left alone.
    void Paint(const std::optional<ShownSelection>& selection, const QRect& exposed);

private:
    struct Pane
    {
        QRect rect;
        std::vector<Track> columns;
        std::vector<Track> rows;
    };

    struct ShownCell
    {
        QRect rect;
        CellContent content;
        QColor ground;
    };

    std::vector<Pane> Panes(const QRect& exposed) const;
    void PaintPane(const Pane& pane);
    std::vector<ShownCell> CellsOf(const Track& row, const Pane& pane) const;
    QColor OwnGroundOf(ShownPlace place, const CellContent& content) const;
    QColor GroundOf(ShownPlace place, const CellContent& content) const;
    double SelectedShareOf(ShownPlace place) const;
    void FillGrounds(const std::vector<ShownCell>& cells);
    void DrawCorner(const QRectF& cell, const QColor& ground);
    void DrawSortArrow();
    void DrawLines(const Pane& pane);
    void DrawEdges();
    void DrawActiveFrame();

    QPainter& m_painter;
    const Sheet& m_sheet;
    const SpreadGeometry& m_geometry;
    const CellLook& m_look;
    const ShownMarks& m_marks;
    CellPainter m_cells;
    double m_thin; ///< the width of the thinnest line, in the painter's units
    SpreadMarks m_triangles;
    std::optional<ShownSelection> m_selection;
};

} // namespace schedules
