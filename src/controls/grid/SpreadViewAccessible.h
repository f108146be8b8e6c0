#pragma once

#include "controls/grid/SpreadView.h"
#include "controls/grid/VisibleCells.h"

#include <QAccessibleWidget>

#include <map>
#include <optional>

namespace schedules {

/// Makes assistive programs find the tables of all spread views. May be called any number of times.
void InstallSpreadViewAccessible();

// What a view tells assistive programs.
void TellTableChanged(SpreadView& view);
void TellCellChanged(SpreadView& view, Cell cell);
void TellSelectionChanged(SpreadView& view);
void TellActiveCell(SpreadView& view);

/// A spread view as assistive programs see it: one table of the cells that the user can see. Its children are all
/// visible cells row by row, headers included; its rows and columns are counted without headers.
class SpreadViewAccessible : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit SpreadViewAccessible(SpreadView* view);
    ~SpreadViewAccessible() override;

    /// Cells exist from their first use until the table changes; they belong to Qt's register.
    QAccessibleInterface* InterfaceOf(Cell cell) const;
    const VisibleCells& Cells() const;
    SpreadView& View() const;

    /// To be called when columns, rows or the sheet have changed.
    void ForgetCells();

    bool isValid() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override;
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int column) override;
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

private:
    QAccessibleInterface* InterfaceOf(std::optional<Cell> cell) const;
    IndexRange ColumnsOfSelection() const;
    IndexRange RowsOfSelection() const;

    mutable std::optional<VisibleCells> m_cells;
    mutable std::map<Cell, QAccessible::Id> m_interfaces;
};

} // namespace schedules
