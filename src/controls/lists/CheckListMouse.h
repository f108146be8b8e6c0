#pragma once

#include "controls/lists/CheckListDrag.h"

#include <QBasicTimer>
#include <QObject>

#include <optional>

class QMouseEvent;

namespace schedules {

class CheckList;

/// What the mouse does on a check list: it selects entries, checks them, and drags them. The signals for all of this
/// are the list's.
class CheckListMouse : public QObject
{
public:
    /// The list must outlive the mouse.
    explicit CheckListMouse(CheckList& list) : m_list(list) {}

    bool IsDragging() const { return m_drag && m_drag->started; }

    void Press(QMouseEvent& event);
    void Move(const QMouseEvent& event);
    void Release(QMouseEvent& event);

    /// Shows the entry that is dragged, and where it would go.
    void PaintDrag() const;

    /// Ends a drag without a move: the dragged entry is the selected one again.
    void Cancel();

    /// Forgets the drag; what it had selected stays selected.
    CheckListDrag End();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void DragTo(QPoint point);
    void ScrollNearEdges();
    int EdgeStepNow() const;
    void Drop(const CheckListDrag& drag, int target);

    CheckList& m_list;
    std::optional<CheckListDrag> m_drag;
    QBasicTimer m_scrollTimer;
};

} // namespace schedules
