#pragma once

#include "controls/cells/CellContent.h"
#include "controls/cells/CellFaces.h"
#include "controls/cells/CellLook.h"

#include <QPainter>

namespace schedules {

/// Paints what kinds of cells show beside their text or in place of it.
class CellSymbols
{
public:
    /// All of these must outlive the object.
    CellSymbols(QPainter& painter, const CellFaces& faces, const CellLook& look)
        : m_painter(painter), m_faces(faces), m_look(look)
    {
    }

    /// In a color that is legible on the ground.
    void Paint(const CellContent& content, const QRect& cell, const QColor& ground, const QColor& ink);

private:
    void PaintCheckBox(bool ticked, const QRect& cell, const QColor& ground, const QColor& ink);
    void PaintPaperBox(bool ticked, const QRect& cell, const QColor& ink);
    QPalette IndicatorPalette(const QColor& ground, const QColor& ink) const;

    QPainter& m_painter;
    const CellFaces& m_faces;
    const CellLook& m_look;
};

} // namespace schedules
