#pragma once

#include "spread/Sheet.h"

#include <QObject>

#include <functional>
#include <optional>
#include <vector>

class QKeyEvent;

namespace schedules {

class CellEditBox;
class CSchedule;
class SpreadView;

/// Editing the cells of a schedule: a box that lies over one cell at a time, and the keys and clicks that open it, go
/// on with it and close it. Idle, or open at one cell; committing, whatever its cause, makes it idle.
///
/// Editing reports no errors: what fails is left out.
class CellEditing : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the editing, whose box (`txtEditCell`) is a child of the grid. `isAllowed` is asked whether
    /// a cell may be edited now; without a yes no edit starts.
    CellEditing(SpreadView& grid, CSchedule& engine, std::function<bool(Cell)> isAllowed);
    ~CellEditing() override;

    /// Whether the table lets the user change the cell at that place, now. Headers never.
    bool CellEditable(Sheet::TablePlace place) const;
    bool IsEditableCheckBox(Cell cell) const;

    /// Ends an open edit. A text that differs from the former one is told with `Changed`.
    void CommitCellEdit();

    /// To be called when another table may have been loaded.
    void ForgetTable() { m_editableRows.clear(); }

Q_SIGNALS:
    void Changed(schedules::Cell cell, const QString& text);

    /// The box has refused something that was typed or pasted.
    void Refused();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Edit
    {
        Column column{-1};
        Row row{-1};
        QString previous; ///< the text of the cell when the edit began
        bool editing = false;
    };

    void Connect();
    const Sheet& Table() const;
    void StartCellEdit(Cell cell);
    void BeginCellEdit(Column column, Row row);
    void CloseBox();
    void OnCellMoved(Cell cell);

    // Keys of the box.
    void Escape();
    void GoOnVertically(Qt::Key key);
    void GoOnByTab(bool forward);

    // Keys of the grid; true for those that are used up.
    bool PressGridKey(const QKeyEvent& event);
    bool OpenByKey(const QKeyEvent& event);
    bool CommitByKey(const QKeyEvent& event);
    bool LeaveCheckBox(bool forward);

    bool GoOnToEditable(bool forward);
    std::optional<Cell> NextEditable(Cell from, int step);
    void FindEditableRows();

    SpreadView& m_grid;
    CSchedule& m_engine;
    std::function<bool(Cell)> m_isAllowed;
    CellEditBox* m_box;
    Edit m_edit;
    std::vector<bool> m_editableRows; ///< by row, whether any of its cells may be edited; empty when not yet asked
};

} // namespace schedules
