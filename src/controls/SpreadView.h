#pragma once

#include "controls/CellPainter.h"
#include "controls/SpreadDrag.h"
#include "controls/SpreadGeometry.h"
#include "controls/SpreadKeys.h"
#include "controls/SpreadSelection.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QBasicTimer>
#include <QPointer>

#include <optional>

namespace schedules {

/// A sheet on screen: header row and header column, the frozen columns and rows and what scrolls, painted as one
/// picture, with one selection and one cursor. The cursor is the sheet's active cell.
///
/// Sizes follow the screen's resolution, direction and colors follow the desktop. While the sheet does not repaint,
/// nothing of it is looked at.
class SpreadView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit SpreadView(QWidget* parent = nullptr);

    /// The caller keeps owning the sheet, which gets the font of the view. None: an empty view.
    void SetSheet(Sheet* sheet);
    Sheet* TheSheet() const { return m_sheet; }

    /// Where a cell is in the viewport; it may lie outside or beneath what is frozen. Empty for a hidden one.
    QRect CellRect(Cell cell) const;

    /// The part of it that is seen.
    QRect SeenRect(Cell cell) const;

    /// The cell at a point of the viewport, headers included.
    std::optional<Cell> CellAt(QPoint point) const;

    /// Scrolls as little as possible.
    void EnsureVisible(Cell cell);

    /// What is selected, by the first and the last column and row of the block as shown. As long as no data cell is
    /// active nothing is selected, and the range is the header corner.
    CellRange Selection() const;
    bool IsSelected(Cell cell) const;

    /// Makes a data cell the active one and selects the block up to another.
    void Select(Cell active, Cell corner);
    void SelectColumn(Column column);
    void SelectRow(Row row);
    void SelectAll();

    /// Puts what is selected into the clipboard, as text.
    void Copy() const;

    /// Tells assistive programs something about the view.
    virtual void Announce(QAccessibleEvent& event);

Q_SIGNALS:
    /// The user has moved the active cell: by a key, or by a click, whose end is waited for. Extending the selection
    /// and clicking on headers do not count, and neither does what the program does.
    void ActiveCellMoved(schedules::Cell cell);

    /// The active cell or the selected block has changed, for whatever reason.
    void SelectionChanged();

    /// The mouse was pressed and released on one data cell.
    void CellClicked(schedules::Cell cell);
    void HeaderClicked(schedules::Column column);
    void RowHeaderClicked(schedules::Row row);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    bool Shows() const { return m_sheet && m_sheet->Repainting(); }
    SpreadGeometry Geometry() const;
    CellFaces& Faces();

    void ConnectSheet();
    void FollowScreen();
    void Relayout();
    void LayOut();
    void UpdateScrollBars();
    void OnCellChanged(Cell cell);
    void OnActiveCellChanged();
    void OnSelectionChanged();

    void GoBy(Move keyMove, bool extend);
    void Activate(Cell cell);
    void ExtendTo(Cell corner);
    void ScrollBy(QPoint pixels);

    void PressCell(Place place, bool extend);
    void PressHeader(Place place);
    void DragTo(QPoint point);
    void EndDrag();
    void Click(const SpreadDrag& drag);

    QPointer<Sheet> m_sheet;
    std::optional<CellFaces> m_faces; ///< made for the sheet's font and the screen when they are needed
    SpreadSelection m_selection;
    std::optional<SpreadDrag> m_drag;
    QPoint m_dragPoint;
    QBasicTimer m_dragTimer;
};

} // namespace schedules
