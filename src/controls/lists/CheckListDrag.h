#pragma once

#include <QPoint>
#include <QRect>

namespace schedules {

/// The mouse held down on an entry of a check list, from the press on. Points are of the list's viewport.
struct CheckListDrag
{
    int row = -1; ///< of the pressed entry
    QPoint pressed;
    bool onMark = false;  ///< it was pressed on the check mark, which is clicked and never dragged
    bool started = false; ///< the entry is being dragged
    QPoint at = pressed;  ///< where the mouse was last

    /// Whether the mouse at that point is far enough from the press for the entry to be dragged.
    bool ReachesTo(QPoint point) const;

    /// The line between the entries where the dragged one would land if it took the place of the entry at `place` in
    /// row `target`; empty when that is the dragged one's own.
    QRect InsertionLine(int target, const QRect& place) const;
};

/// By how many entries a list scrolls when the mouse of a drag is there: one up or down within `margin` of its upper
/// and lower edges and beyond them.
int EdgeStep(QPoint point, int height, int margin);

} // namespace schedules
