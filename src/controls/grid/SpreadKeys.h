#pragma once

#include "controls/grid/SpreadGeometry.h"

#include <QKeyEvent>

namespace schedules {

/// From where a key moves the active cell, or the corner of the selection.
struct Standpoint
{
    const Sheet& sheet;
    const SpreadGeometry& geometry;
    ShownPlace place;
};

/// A key that moves. Where there is nothing to move to, a move stays where it is; hidden columns and rows are skipped,
/// and headers are never reached.
using Move = ShownPlace (*)(const Standpoint&);

/// The move that a key stands for, Shift left aside; none for other keys. Left and right are meant as seen, so they
/// change their parts where the sheet runs from right to left.
Move MoveOf(const QKeyEvent& key, bool mirrored);

/// Whether a move goes by pages, which scroll as far as they move.
bool IsPageMove(Move move);

/// The first data cell that is visible; the header corner when there is none.
ShownPlace FirstPlace(const Sheet& sheet);

/// The last one.
ShownPlace LastPlace(const Sheet& sheet);

} // namespace schedules
