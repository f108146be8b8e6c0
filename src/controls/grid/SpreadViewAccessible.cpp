#include "controls/grid/SpreadViewAccessible.h"

#include "controls/cells/CellContent.h"
#include "controls/grid/SpreadCellAccessible.h"

#include <numeric>
#include <utility>

namespace schedules {

namespace {

QAccessibleInterface* CreateAccessible(const QString&, QObject* object)
{
    auto* const view = qobject_cast<SpreadView*>(object);
    return view ? new SpreadViewAccessible(view) : nullptr;
}

/// Takes the factory away again when the code that it runs goes.
struct Installation
{
    Installation() { QAccessible::installFactory(CreateAccessible); }
    ~Installation() { QAccessible::removeFactory(CreateAccessible); }
    Q_DISABLE_COPY_MOVE(Installation)
};

SpreadViewAccessible* AccessibleOf(SpreadView& view)
{
    return static_cast<SpreadViewAccessible*>(QAccessible::queryAccessibleInterface(&view));
}

/// Sends an event about a cell, or none when the cell cannot be seen.
void TellAbout(SpreadView& view, Cell cell, QAccessibleEvent&& event)
{
    const SpreadViewAccessible* const table = AccessibleOf(view);
    const int index = table && table->isValid() ? table->Cells().IndexOf(cell) : -1;
    if (index < 0)
        return;
    event.setChild(index);
    view.Announce(event);
}

QList<int> Listed(IndexRange range)
{
    QList<int> list(range.Count());
    std::iota(list.begin(), list.end(), range.first);
    return list;
}

} // namespace

void InstallSpreadViewAccessible()
{
    static const Installation installation;
}

void TellTableChanged(SpreadView& view)
{
    // Qt passes the event on only while an assistive program runs, but the table may be asked at other times, too.
    if (SpreadViewAccessible* const table = AccessibleOf(view))
        table->ForgetCells();
    QAccessibleTableModelChangeEvent event(&view, QAccessibleTableModelChangeEvent::ModelReset);
    view.Announce(event);
}

void TellCellChanged(SpreadView& view, Cell cell)
{
    if (KindOf(view.TheSheet()->Style(cell)).Toggles()) {
        QAccessible::State changed;
        changed.checked = true;
        TellAbout(view, cell, QAccessibleStateChangeEvent(&view, changed));
    } else {
        TellAbout(view, cell, QAccessibleEvent(&view, QAccessible::NameChanged));
    }
    TellAbout(view, cell, QAccessibleEvent(&view, QAccessible::DescriptionChanged));
}

void TellSelectionChanged(SpreadView& view)
{
    QAccessibleEvent event(&view, QAccessible::SelectionWithin);
    view.Announce(event);
}

void TellActiveCell(SpreadView& view)
{
    if (view.hasFocus() && view.TheSheet())
        TellAbout(view, view.TheSheet()->ActiveCell(), QAccessibleEvent(&view, QAccessible::Focus));
}

SpreadViewAccessible::SpreadViewAccessible(SpreadView* view) : QAccessibleWidget(view, QAccessible::Table) {}

SpreadViewAccessible::~SpreadViewAccessible()
{
    ForgetCells();
}

SpreadView& SpreadViewAccessible::View() const
{
    return *static_cast<SpreadView*>(widget());
}

bool SpreadViewAccessible::isValid() const
{
    return QAccessibleWidget::isValid() && View().TheSheet();
}

const VisibleCells& SpreadViewAccessible::Cells() const
{
    if (!m_cells)
        m_cells.emplace(*View().TheSheet());
    return *m_cells;
}

void SpreadViewAccessible::ForgetCells()
{
    for (const auto& [cell, id] : std::exchange(m_interfaces, {}))
        QAccessible::deleteAccessibleInterface(id);
    m_cells.reset();
}

QAccessibleInterface* SpreadViewAccessible::InterfaceOf(Cell cell) const
{
    if (Cells().IndexOf(cell) < 0)
        return nullptr;
    const auto [entry, isNew] = m_interfaces.try_emplace(cell, QAccessible::Id());
    if (isNew)
        entry->second = QAccessible::registerAccessibleInterface(new SpreadCellAccessible(&View(), cell));
    return QAccessible::accessibleInterface(entry->second);
}

QAccessibleInterface* SpreadViewAccessible::InterfaceOf(std::optional<Cell> cell) const
{
    return cell ? InterfaceOf(*cell) : nullptr;
}

void* SpreadViewAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

int SpreadViewAccessible::childCount() const
{
    return isValid() ? Cells().Count() : 0;
}

QAccessibleInterface* SpreadViewAccessible::child(int index) const
{
    return isValid() ? InterfaceOf(Cells().At(index)) : nullptr;
}

int SpreadViewAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const cell = dynamic_cast<const SpreadCellAccessible*>(child);
    return cell && isValid() ? Cells().IndexOf(cell->TheCell()) : -1;
}

QAccessibleInterface* SpreadViewAccessible::childAt(int x, int y) const
{
    return isValid() ? InterfaceOf(View().CellAt(View().viewport()->mapFromGlobal(QPoint(x, y)))) : nullptr;
}

QAccessibleInterface* SpreadViewAccessible::focusChild() const
{
    return isValid() && View().hasFocus() ? InterfaceOf(View().TheSheet()->ActiveCell()) : nullptr;
}

int SpreadViewAccessible::columnCount() const
{
    return isValid() ? Cells().Columns().DataCount() : 0;
}

int SpreadViewAccessible::rowCount() const
{
    return isValid() ? Cells().Rows().DataCount() : 0;
}

QAccessibleInterface* SpreadViewAccessible::cellAt(int row, int column) const
{
    return isValid() ? InterfaceOf(Cells().DataAt(column, row)) : nullptr;
}

IndexRange SpreadViewAccessible::ColumnsOfSelection() const
{
    const CellRange selection = View().Selection();
    return Cells().Columns().Between(selection.first.column.Value(), selection.last.column.Value());
}

IndexRange SpreadViewAccessible::RowsOfSelection() const
{
    const CellRange selection = View().Selection();
    return Cells().Rows().Between(selection.first.row.Value(), selection.last.row.Value());
}

int SpreadViewAccessible::selectedCellCount() const
{
    return isValid() ? ColumnsOfSelection().Count() * RowsOfSelection().Count() : 0;
}

QList<QAccessibleInterface*> SpreadViewAccessible::selectedCells() const
{
    QList<QAccessibleInterface*> cells;
    if (!isValid())
        return cells;
    const QList<int> columns = Listed(ColumnsOfSelection());
    for (const int row : Listed(RowsOfSelection())) {
        for (const int column : columns)
            cells.append(cellAt(row, column));
    }
    return cells;
}

QList<int> SpreadViewAccessible::selectedColumns() const
{
    const bool wholly = isValid() && RowsOfSelection().Count() == rowCount();
    return wholly ? Listed(ColumnsOfSelection()) : QList<int>();
}

QList<int> SpreadViewAccessible::selectedRows() const
{
    const bool wholly = isValid() && ColumnsOfSelection().Count() == columnCount();
    return wholly ? Listed(RowsOfSelection()) : QList<int>();
}

int SpreadViewAccessible::selectedColumnCount() const
{
    return static_cast<int>(selectedColumns().size());
}

int SpreadViewAccessible::selectedRowCount() const
{
    return static_cast<int>(selectedRows().size());
}

bool SpreadViewAccessible::isColumnSelected(int column) const
{
    return selectedColumns().contains(column);
}

bool SpreadViewAccessible::isRowSelected(int row) const
{
    return selectedRows().contains(row);
}

bool SpreadViewAccessible::selectColumn(int column)
{
    const auto cell = isValid() ? Cells().DataAt(column, 0) : std::nullopt;
    if (cell)
        View().SelectColumn(cell->column);
    return cell.has_value();
}

bool SpreadViewAccessible::selectRow(int row)
{
    const auto cell = isValid() ? Cells().DataAt(0, row) : std::nullopt;
    if (cell)
        View().SelectRow(cell->row);
    return cell.has_value();
}

QString SpreadViewAccessible::columnDescription(int column) const
{
    const auto cell = isValid() ? Cells().DataAt(column, 0) : std::nullopt;
    return cell ? View().TheSheet()->Text({cell->column, Row(0)}) : QString();
}

QString SpreadViewAccessible::rowDescription(int row) const
{
    const auto cell = isValid() ? Cells().DataAt(0, row) : std::nullopt;
    return cell ? View().TheSheet()->Text({Column(0), cell->row}) : QString();
}

void SpreadViewAccessible::modelChange(QAccessibleTableModelChangeEvent*)
{
    ForgetCells();
}

} // namespace schedules
