#include "controls/lists/CheckListDrag.h"

#include <QApplication>

namespace schedules {

namespace {

constexpr int kLineWidth = 2;

} // namespace

bool CheckListDrag::ReachesTo(QPoint point) const
{
    return (point - pressed).manhattanLength() >= QApplication::startDragDistance();
}

QRect CheckListDrag::InsertionLine(int target, const QRect& place) const
{
    if (!started || target == row)
        return {};
    const int y = target < row ? place.top() : place.bottom() + 1 - kLineWidth;
    return {place.left(), y, place.width(), kLineWidth};
}

int EdgeStep(QPoint point, int height, int margin)
{
    if (point.y() < margin)
        return -1;
    return point.y() >= height - margin ? 1 : 0;
}

} // namespace schedules
