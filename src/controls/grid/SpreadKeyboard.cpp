#include "controls/grid/SpreadKeyboard.h"

#include "controls/grid/SpreadView.h"

namespace schedules {

bool SpreadKeyboard::Claims(const QKeyEvent& event)
{
    return event.matches(QKeySequence::Copy) || event.matches(QKeySequence::SelectAll);
}

bool SpreadKeyboard::Press(const QKeyEvent& event)
{
    if (!m_view.Shows())
        return false;
    if (const Move keyMove = MoveOf(event, m_view.isRightToLeft()))
        GoBy(keyMove, event.modifiers() & Qt::ShiftModifier);
    else if (event.matches(QKeySequence::Copy))
        m_view.Copy();
    else if (event.matches(QKeySequence::SelectAll))
        m_view.SelectAll();
    else
        return false;
    return true;
}

void SpreadKeyboard::PressMoveKey(Qt::Key key)
{
    const QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    const Move keyMove = m_view.Shows() ? MoveOf(press, m_view.isRightToLeft()) : nullptr;
    if (keyMove)
        GoBy(keyMove, false);
}

void SpreadKeyboard::GoBy(Move keyMove, bool extend)
{
    const Sheet& sheet = *m_view.TheSheet();
    const SpreadGeometry geometry = m_view.Geometry();
    const bool anywhere = m_selection.Block(sheet).has_value();
    const ShownPlace from = PlaceOf(sheet, extend ? m_selection.Corner(sheet) : sheet.ActiveCell());
    const ShownPlace to = anywhere ? keyMove({sheet, geometry, from}) : FirstPlace(sheet);
    if (!HoldsData(sheet, to))
        return;
    if (anywhere && IsPageMove(keyMove))
        m_view.ScrollBy({0, geometry.Rows().Distance(from.row, to.row)});
    const Cell cell = CellOf(sheet, to);
    const bool extends = extend && anywhere;
    const bool moves = cell != sheet.ActiveCell() && !extends;
    if (extends)
        m_view.ExtendTo(cell);
    else
        m_view.Activate(cell);
    m_view.EnsureVisible(cell);
    if (moves)
        Q_EMIT m_view.ActiveCellMoved(cell);
}

} // namespace schedules
