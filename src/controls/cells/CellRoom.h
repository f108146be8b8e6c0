#pragma once

#include "controls/cells/CellContent.h"
#include "controls/cells/CellFaces.h"

#include <QRect>
#include <QTextOption>

class QTextLayout;

namespace schedules {

/// Cell edges are rounded to pixels, so a text may have up to a pixel less than it measures; the padding has that room.
inline constexpr double kRounding = 1;

/// The room that cells leave their texts on a device, in its units.
struct CellRoom
{
    explicit CellRoom(const QPaintDevice& device);

    QRect Within(const QRect& cell) const
    {
        return cell.adjusted(padding, verticalPadding, -padding, -verticalPadding);
    }
    QRect CellAround(const QRect& room) const
    {
        return room.adjusted(-padding, -verticalPadding, padding, verticalPadding);
    }

    int padding;
    int verticalPadding;
};

/// How texts are laid out: each runs its own way.
QTextOption PlainTextOption(QTextOption::WrapMode wrapMode);

/// A text as a layout breaks it: line feeds become line separators.
QString InLines(QString text);

/// Sets the text of a layout in one line.
void LayOutOnOneLine(QTextLayout& layout);

/// Breaks it into lines of a width. Returns the height of all of them.
double LayOutInWidth(QTextLayout& layout, double width);

/// Whether a text does not show as a whole in a cell of a screen: it ends in an ellipsis there, or, wrapped, is cut
/// off.
bool IsCutOff(const CellContent& content, const QSize& cell, const CellFaces& faces, const QPaintDevice& device);

} // namespace schedules
