#pragma once

#include "controls/grid/SpreadDrag.h"

#include <QBasicTimer>
#include <QObject>

#include <functional>
#include <optional>

class QMouseEvent;

namespace schedules {

class SpreadSelection;
class SpreadView;

/// What the mouse does on a spread view: it selects cells, columns and rows, sweeps over cells, scrolls when it is
/// dragged beyond an edge, and clicks. The signals for all of this are the view's.
class SpreadMouse : public QObject
{
public:
    /// Both must outlive the mouse.
    SpreadMouse(SpreadView& view, const SpreadSelection& selection) : m_view(view), m_selection(selection) {}

    /// See `SpreadView::SetSweeps`.
    void SetSweeps(std::function<bool(Cell)> sweeps) { m_sweeps = std::move(sweeps); }

    void Press(const QMouseEvent& event);
    void PressAgain(const QMouseEvent& event);
    void MoveTo(QPoint point);
    void Release();

    /// A press and a release on a data cell.
    void Click(ShownPlace place);

    /// Lets go of what is pressed, without a click.
    void End();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    const Sheet& TheSheet() const;

    void PressCell(ShownPlace place, bool extend);
    void PressHeader(ShownPlace place);
    void ReachTo(ShownPlace place);
    void SweepTo(ShownPlace place);
    void TellClick(const SpreadDrag& drag);
    void TellCellClick(Cell cell, const SpreadDrag& drag);

    SpreadView& m_view;
    const SpreadSelection& m_selection;
    std::function<bool(Cell)> m_sweeps;
    std::optional<SpreadDrag> m_drag;
    QPoint m_dragPoint;
    QBasicTimer m_dragTimer;
};

} // namespace schedules
