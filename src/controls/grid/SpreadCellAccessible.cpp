#include "controls/grid/SpreadCellAccessible.h"

#include "common/modResource.h"
#include "controls/cells/CellContent.h"
#include "controls/grid/SpreadViewAccessible.h"

namespace schedules {

SpreadViewAccessible& SpreadCellAccessible::Table() const
{
    return *static_cast<SpreadViewAccessible*>(QAccessible::queryAccessibleInterface(m_view.data()));
}

bool SpreadCellAccessible::isValid() const
{
    return m_view && m_view->TheSheet() && Table().Cells().IndexOf(m_cell) >= 0;
}

void* SpreadCellAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableCellInterface && !IsHeader())
        return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface && !actionNames().isEmpty())
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

QAccessibleInterface* SpreadCellAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(m_view.data());
}

QString SpreadCellAccessible::text(QAccessible::Text kind) const
{
    if (!isValid())
        return {};
    const CellContent content = ContentOf(TheSheet(), m_cell);
    if (kind == QAccessible::Description && content.style.edited)
        return ComponentText("Changed, not saved");
    if (kind != QAccessible::Name)
        return {};
    return content.Kind().showsText ? content.text : TheSheet().Text({m_cell.column, Row(0)});
}

QRect SpreadCellAccessible::rect() const
{
    if (!isValid())
        return {};
    const QRect seen = m_view->SeenRect(m_cell);
    const QRect shown = seen.isEmpty() ? m_view->CellRect(m_cell) : seen;
    return {m_view->viewport()->mapToGlobal(shown.topLeft()), shown.size()};
}

QAccessible::Role SpreadCellAccessible::role() const
{
    if (m_cell.row.Value() == 0)
        return QAccessible::ColumnHeader;
    if (m_cell.column.Value() == 0)
        return QAccessible::RowHeader;
    return isValid() ? KindOf(TheSheet().Style(m_cell)).role : QAccessible::Cell;
}

QAccessible::State SpreadCellAccessible::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const CellContent content = ContentOf(TheSheet(), m_cell);
    state.offscreen = m_view->SeenRect(m_cell).isEmpty();
    state.checkable = content.Kind().Toggles();
    state.checked = content.Ticked();
    state.editable = MayBeEdited();
    state.readOnly = !state.editable;
    state.focusable = state.selectable = !IsHeader();
    state.selected = isSelected();
    state.focused = m_view->hasFocus() && m_cell == TheSheet().ActiveCell();
    return state;
}

bool SpreadCellAccessible::MayBeEdited() const
{
    return m_view->ShowsEditable() && !IsHeader() && TheSheet().Style(m_cell).allowEdit;
}

QStringList SpreadCellAccessible::actionNames() const
{
    if (!isValid() || IsHeader())
        return {};
    if (KindOf(TheSheet().Style(m_cell)).Toggles())
        return {toggleAction()};
    return MayBeEdited() ? QStringList{pressAction()} : QStringList();
}

void SpreadCellAccessible::doAction(const QString& actionName)
{
    if (actionNames().contains(actionName))
        m_view->Click(m_cell);
}

bool SpreadCellAccessible::isSelected() const
{
    return isValid() && m_view->IsSelected(m_cell);
}

QList<QAccessibleInterface*> SpreadCellAccessible::HeaderCells(Cell header) const
{
    QAccessibleInterface* const cell = isValid() ? Table().InterfaceOf(header) : nullptr;
    return cell ? QList{cell} : QList<QAccessibleInterface*>();
}

QList<QAccessibleInterface*> SpreadCellAccessible::columnHeaderCells() const
{
    return HeaderCells({m_cell.column, Row(0)});
}

QList<QAccessibleInterface*> SpreadCellAccessible::rowHeaderCells() const
{
    return HeaderCells({Column(0), m_cell.row});
}

int SpreadCellAccessible::columnIndex() const
{
    if (!isValid())
        return -1;
    const VisibleTracks& columns = Table().Cells().Columns();
    return columns.IndexOf(m_cell.column.Value()) - columns.HeaderCount();
}

int SpreadCellAccessible::rowIndex() const
{
    if (!isValid())
        return -1;
    const VisibleTracks& rows = Table().Cells().Rows();
    return rows.IndexOf(m_cell.row.Value()) - rows.HeaderCount();
}

} // namespace schedules
