#pragma once

#include "controls/lists/CheckListMouse.h"

#include <QListView>
#include <QScopedValueRollback>

#include <optional>

namespace schedules {

class CheckListDelegate;
class CheckListModel;

/// A list of entries with check boxes, of which the user selects one. Each entry has a text and a number of its
/// owner's.
///
/// Rows count from 0; -1 is no row. A row that is not there has the text "", the ID 0 and no check; changing it does
/// nothing. The vertical scroll bar counts entries, so its value is the top row (of those shown).
///
/// Keyboard: Up, Down, Page Up, Page Down, Home, End and typing select, Space checks, Alt+Up and Alt+Down ask for a
/// move, Escape cancels a drag. Mouse: a press selects, a click on the check mark selects and checks, a press that is
/// moved drags the entry. While dragged, the entry under the mouse is selected, the line at its edge shows that the
/// dragged one will take its place, and the dragged one keeps a frame. Releasing inside of the list drops it there;
/// Escape, a release outside and whatever takes the list from the user's hands cancel the drag, and the dragged entry
/// is the selected one again.
class CheckList : public QListView
{
    Q_OBJECT

public:
    explicit CheckList(QWidget* parent = nullptr);

    /// Adds an entry at the end. Without a state it shows an unchecked mark that cannot be checked.
    void AddEntry(const QString& text, int id, std::optional<bool> checked);
    void Clear();

    int Count() const;
    QString Text(int row) const;
    int Id(int row) const;
    bool Checked(int row) const;

    /// The first row with that ID.
    int RowOf(int id) const;

    void SetText(int row, const QString& text);
    void SetChecked(int row, std::optional<bool> checked);

    /// The selected row.
    int CurrentRow() const;
    void SetCurrentRow(int row);

    enum class Scrolling
    {
        Yes,
        No
    };

    /// Selects an entry; a drag goes on.
    void Select(int row, Scrolling scrolling);

    /// Selects the entry and changes its mark. Returns whether that can be changed.
    bool SelectMark(int row);

    /// The row whose mark is at a point of the viewport; -1 for none.
    int MarkAt(QPoint point) const;

    /// Where an entry is in the viewport.
    QRect RectOf(int row) const;

    /// Moves an entry to another row, the list staying as it is otherwise: what was selected stays selected, and the
    /// moved entry is visible, for which the list scrolls as little as possible. Nothing when a row is not there.
    void MoveEntry(int from, int to);

    /// Selects the entry under a point of the viewport, when there is one and it is not selected yet.
    void HighlightLBItem(int x, int y);

    /// Whether the user may move entries. On at first; off in any case while the list is narrowed.
    void SetMovable(bool movable);
    bool MayMove() const { return m_movable && !IsNarrowed(); }

    /// Hides all entries whose text does not contain that one, without regard to case; also those that come later. An
    /// empty text shows all. A hidden entry stays selected.
    void ShowOnly(const QString& containing);
    bool IsNarrowed() const { return !m_containing.isEmpty(); }

    void keyboardSearch(const QString& search) override;

Q_SIGNALS:
    /// The user has selected, clicked or checked an entry: once for each key or click, when all of it is done. Not
    /// raised by what the program does. The receiver may delete the list.
    void Clicked();

    /// The user wants an entry moved to another row. The list waits for its owner to call `MoveEntry`.
    void MoveRequested(int from, int to);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

private:
    template <class Action>
    void Quietly(Action&& action)
    {
        const QScopedValueRollback quiet(m_quiet, true);
        action();
    }

    QModelIndex IndexOf(int row) const;
    void KeepVisible(int row);
    void Narrow(int first, int last);
    int NearestShown(int row, int step) const;
    void PressKeyWhileDragging(const QKeyEvent& event);
    void RequestMove(int step);
    void ToggleByKey();
    void PressOtherKey(QKeyEvent* event);

    CheckListModel* m_entries;
    CheckListDelegate* m_delegate;
    QString m_containing;
    bool m_movable = true;
    bool m_quiet = false; ///< what is selected now need not be told
    CheckListMouse m_mouse;
};

} // namespace schedules
