#pragma once

#include <QPalette>

class QWidget;

namespace schedules {

/// How texts are drawn: as glyphs where that is possible, which is faster, or always as texts, which paper needs for
/// its text to be found and copied.
enum class TextDrawing
{
    Fast,
    AsText
};

/// What all cells of a picture have in common.
struct CellLook
{
    QPalette palette;
    TextDrawing drawing = TextDrawing::Fast;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    const QWidget* widget = nullptr; ///< whose style draws check boxes; none on paper, where they are drawn in lines
};

} // namespace schedules
