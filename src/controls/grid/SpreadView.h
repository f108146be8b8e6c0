#pragma once

#include "controls/cells/CellPainter.h"
#include "controls/grid/SpreadKeyboard.h"
#include "controls/grid/SpreadMarks.h"
#include "controls/grid/SpreadMouse.h"
#include "controls/grid/SpreadSelection.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QPointer>

#include <functional>
#include <optional>

namespace schedules {

/// A sheet on screen: header row and header column, the frozen columns and rows and what scrolls, painted as one
/// picture, with one selection and one cursor. The cursor is the sheet's active cell.
///
/// Sizes follow the screen's resolution, direction and colors follow the desktop. While the sheet does not repaint,
/// nothing of it is looked at. Cells that the user has changed and not yet saved bear a mark in their far top corner.
///
/// A cell or header that cuts its text off has a tool tip with the whole text.
///
/// With a context menu policy of its own, a menu is asked for at a point of the viewport, by the keyboard in the middle
/// of the active cell.
class SpreadView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit SpreadView(QWidget* parent = nullptr);

    /// The caller keeps owning the sheet, which gets the font of the view. None: an empty view.
    void SetSheet(Sheet* sheet);
    Sheet* TheSheet() const { return m_sheet; }

    /// Whether there is a sheet, and may be looked at.
    bool Shows() const { return m_sheet && m_sheet->Repainting(); }

    /// Where everything is in the viewport. To be asked only with a sheet, for as long as it does not change.
    SpreadGeometry Geometry() const;

    /// Where a cell is in the viewport; it may lie outside or beneath what is frozen. Empty for a hidden one.
    QRect CellRect(Cell cell) const;

    /// The part of it that is seen.
    QRect SeenRect(Cell cell) const;

    /// The cell at a point of the viewport, headers included.
    std::optional<Cell> CellAt(QPoint point) const;

    /// Scrolls as little as possible.
    void EnsureVisible(Cell cell);

    void ScrollBy(QPoint pixels);

    /// Does what a key that moves the active cell does, without modifiers.
    void PressMoveKey(Qt::Key key) { m_keyboard.PressMoveKey(key); }

    /// Gives the focus to the next widget of the window, or the one before.
    void PassFocusOn(bool forward) { focusNextPrevChild(forward); }

    /// What is selected, by the first and the last column and row of the block as shown. As long as no data cell is
    /// active nothing is selected, and the range is the header corner.
    CellRange Selection() const;
    bool IsSelected(Cell cell) const;

    /// Makes a cell the active one and selects nothing but it.
    void Activate(Cell cell);

    /// Selects the block from the active cell to another.
    void ExtendTo(Cell corner);

    /// Makes a data cell the active one and selects the block up to another.
    void Select(Cell active, Cell corner);
    void SelectColumn(Column column);
    void SelectRow(Row row);
    void SelectAll();

    /// Puts what is selected into the clipboard, as text.
    void Copy() const;

    /// Whether data cells that may be edited are told apart, on screen and to assistive programs. Off at first.
    void ShowEditable(bool on);
    bool ShowsEditable() const { return m_marks.editable; }

    /// An arrow in the header of the column by which rows are sorted, or none.
    void ShowSortMark(std::optional<SortMark> mark);

    /// Asked about a data cell whenever the left button is pressed on it without Shift. If it says yes, the mouse
    /// sweeps over cells until the button is released, instead of selecting them.
    void SetSweeps(std::function<bool(Cell)> sweeps) { m_mouse.SetSweeps(std::move(sweeps)); }

    /// Does what pressing and releasing the left button on a data cell does; nothing for a hidden one.
    void Click(Cell cell);

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

    /// Tells assistive programs something about the view.
    virtual void Announce(QAccessibleEvent& event);

Q_SIGNALS:
    /// The user has moved the active cell: by a key, or by a click, whose end is waited for. Extending the selection
    /// and clicking on headers do not count, and neither does what the program does.
    void ActiveCellMoved(schedules::Cell cell);

    /// The active cell, which was the active one before, has been clicked. The second click of a double click does not
    /// count, and a sweep is no click.
    void ActiveCellClicked(schedules::Cell cell);

    /// The active cell or the selected block has changed, for whatever reason.
    void SelectionChanged();

    /// The mouse was pressed and released on one data cell. A sweep is no click.
    void CellClicked(schedules::Cell cell);

    /// The second click of a double click has ended, and was told as a click.
    void CellDoubleClicked(schedules::Cell cell);

    /// The mouse was pressed on a cell that sweeps, which is the active one now.
    void SweepStarted(schedules::Cell cell);

    /// The mouse has come to another cell, held down since the sweep started: each visible data cell of the block
    /// between its last place and the new one, of which only the last place is not told again.
    void SweptOver(schedules::Cell cell);
    void HeaderClicked(schedules::Column column);
    void RowHeaderClicked(schedules::Row row);

    /// Cells may be seen at another place than before, or no longer.
    void CellsMoved();

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    CellFaces& Faces();

    void ConnectSheet();
    void FollowScreen();
    void Relayout();
    void LayOut();
    void UpdateScrollBars();
    void OnCellChanged(Cell cell);
    void OnActiveCellChanged();
    void OnSelectionChanged();

    QPointer<Sheet> m_sheet;
    std::optional<CellFaces> m_faces; ///< made for the sheet's font and the screen when they are needed
    SpreadSelection m_selection;
    ShownMarks m_marks;
    SpreadMouse m_mouse;
    SpreadKeyboard m_keyboard;
};

} // namespace schedules
