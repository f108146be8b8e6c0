#pragma once

#include "spread/Sheet.h"

#include <QObject>

#include <optional>
#include <vector>

class QKeyEvent;

namespace schedules {

class CellEditBox;
class EditSession;
class HostLink;
class ShownTable;
class SpreadView;
struct ViewSettings;

/// Editing the cells of a schedule: a box that lies over one cell at a time, and the keys and clicks that open it, go
/// on with it and close it. Idle, or open at one cell; committing, whatever its cause, makes it idle.
///
/// Editing reports no errors: what fails is left out.
class CellEditing : public QObject
{
    Q_OBJECT

public:
    /// All must outlive the editing, whose box (`txtEditCell`) is a child of the table's grid.
    CellEditing(HostLink& host, ShownTable& table, EditSession& edits, const ViewSettings& settings);
    ~CellEditing() override;

    /// Whether the table lets the user change the cell at that place, now. Headers never.
    bool CellEditable(Sheet::TablePlace place) const;

    /// The same of a cell that a click changes to its other state.
    bool IsToggledCell(Cell cell) const;

    bool IsEditing() const { return m_edit.editing; }

    /// Whether the text of an open box is not the one of its cell.
    bool HasOpenChange() const { return m_hasOpenChange; }

    /// Ends an open edit. A text that differs from the one when it began is a change, and its column becomes wide
    /// enough for it.
    void CommitCellEdit();

    /// To be called when the host has handed over text: an open edit that it leaves no place for is refused.
    void LookAtDocument();

    /// Enters a text into a cell as a user does, with the same limits. False when no edit opens there, or the box takes
    /// no such text; the cell is then as it was.
    enum class Typed
    {
        Taken,
        NotEditable,
        Refused
    };
    Typed Type(Cell cell, const QString& text);

    /// To be called when another table may have been loaded.
    void ForgetTable() { m_editableRows.clear(); }

Q_SIGNALS:
    void OpenChangeChanged();

    /// The box has refused something that was typed or pasted, or the document an edit.
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
    void FollowBox();

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

    HostLink& m_host;
    ShownTable& m_table;
    EditSession& m_edits;
    const ViewSettings& m_settings;
    SpreadView& m_grid;
    CellEditBox* m_box;
    Edit m_edit;
    bool m_hasOpenChange = false;
    std::vector<bool> m_editableRows; ///< by row, whether any of its cells may be edited; empty when not yet asked
};

} // namespace schedules
