#pragma once

#include "controls/grid/SpreadView.h"

#include <QAccessible>
#include <QPointer>

namespace schedules {

class SpreadViewAccessible;

/// A cell or a header of a spread view as assistive programs see it. Check boxes and cells that may be edited have an
/// action, which is a click.
class SpreadCellAccessible : public QAccessibleInterface,
                             public QAccessibleTableCellInterface,
                             public QAccessibleActionInterface
{
public:
    SpreadCellAccessible(SpreadView* view, Cell cell) : m_view(view), m_cell(cell) {}

    Cell TheCell() const { return m_cell; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override;
    int columnIndex() const override;
    int rowIndex() const override;
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    bool MayBeEdited() const;
    bool IsHeader() const { return m_cell.column.Value() == 0 || m_cell.row.Value() == 0; }
    const Sheet& TheSheet() const { return *m_view->TheSheet(); }
    SpreadViewAccessible& Table() const;
    QList<QAccessibleInterface*> HeaderCells(Cell header) const;

    QPointer<SpreadView> m_view;
    Cell m_cell;
};

} // namespace schedules
