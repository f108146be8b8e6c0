#pragma once

#include "controls/grid/SpreadKeys.h"

namespace schedules {

class SpreadSelection;
class SpreadView;

/// What keys do on a spread view: they move the active cell or the selection's corner, select all, and copy.
class SpreadKeyboard
{
public:
    /// Both must outlive the keyboard.
    SpreadKeyboard(SpreadView& view, const SpreadSelection& selection) : m_view(view), m_selection(selection) {}

    /// Whether the key stands for something that the view does although a menu may have it for a shortcut.
    static bool Claims(const QKeyEvent& event);

    /// Returns whether the key did something.
    bool Press(const QKeyEvent& event);

    /// See `SpreadView::PressMoveKey`.
    void PressMoveKey(Qt::Key key);

private:
    void GoBy(Move keyMove, bool extend);

    SpreadView& m_view;
    const SpreadSelection& m_selection;
};

} // namespace schedules
