// Editing: the box over a cell, and what a committed value changes.

#include "controls/CellContent.h"
#include "controls/CellEditBox.h"
#include "controls/SpreadView.h"
#include "tools/schedule/ctlSchedule.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <utility>

namespace schedules {

namespace {

bool IsDataCell(Cell cell)
{
    return cell.column >= Column(1) && cell.row >= Row(1);
}

Qt::Alignment AlignmentOf(const CellContent& content)
{
    if (content.hAlign == HorizontalAlignment::Center)
        return Qt::AlignHCenter;
    return content.hAlign == HorizontalAlignment::Data && IsNumber(content) ? Qt::AlignRight : Qt::AlignLeft;
}

/// The next cell that may be edited as shown, row by row; `step` is 1 or -1.
std::optional<Cell> NextEditable(const Sheet& sheet, Cell from, int step)
{
    const Axis& columns = sheet.Columns();
    const Axis& rows = sheet.Rows();
    int column = columns.VisibleFrom(columns.PositionOf(from.column.Value()) + step, step);
    for (int row = rows.PositionOf(from.row.Value()); row >= 1; row = rows.VisibleFrom(row + step, step)) {
        for (; column >= 1; column = columns.VisibleFrom(column + step, step)) {
            const Cell cell{Column(columns.ItemAt(column)), Row(rows.ItemAt(row))};
            if (sheet.Style(cell).allowEdit)
                return cell;
        }
        column = columns.VisibleFrom(step > 0 ? 1 : columns.Count(), step);
    }
    return std::nullopt;
}

/// Presses a key without modifiers.
void Press(QWidget& widget, Qt::Key key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &press);
}

} // namespace

void ctlSchedule::ConnectEditing()
{
    m_spread->installEventFilter(this);
    connect(m_spread, &SpreadView::ActiveCellMoved, this, &ctlSchedule::GridCellMoved);
    connect(m_spread, &SpreadView::CellDoubleClicked, this, &ctlSchedule::StartCellEdit);
    connect(m_spread, &SpreadView::CellsMoved, this, &ctlSchedule::CommitCellEdit);
    connect(m_editBox, &CellEditBox::EnterPressed, this, &ctlSchedule::ValidateEditBox);
    connect(m_editBox, &CellEditBox::FocusLeft, this, &ctlSchedule::ValidateEditBox);
    connect(m_editBox, &CellEditBox::EscapePressed, this, &ctlSchedule::EditBoxEscape);
    connect(m_editBox, &CellEditBox::TabPressed, this, &ctlSchedule::GoOnByTab);
    connect(m_editBox, &CellEditBox::VerticalKeyPressed, this, &ctlSchedule::GoOnVertically);
    connect(m_editBox, &CellEditBox::Refused, this, [this] { IgnoringErrors([this] { Ui().Beep(); }); });
}

/// Between a new document and its activation the cells on screen are those of another one.
bool ctlSchedule::MayEdit() const
{
    return IsScheduleView() && m_sheet && !m_xmlIsNew;
}

bool ctlSchedule::CellEditable(Sheet::TablePlace place) const
{
    if (!MayEdit())
        return false;
    const Cell cell = m_sheet->CellAt(place);
    return IsDataCell(cell) && m_sheet->Style(cell).allowEdit;
}

bool ctlSchedule::IsEditableCheckBox(Cell cell) const
{
    return CellEditable(m_sheet->TablePlaceOf(cell)) && m_sheet->Style(cell).type == CellType::CheckBox;
}

void ctlSchedule::GridCellMoved(Cell cell)
{
    CommitCellEdit();
    StartCellEdit(cell);
}

void ctlSchedule::StartCellEdit(Cell cell)
{
    IgnoringErrors([&] {
        if (m_engine.SchedOrientation() == 1 && cell.row == Row(0)) {
            HeaderClick(cell.column);
            m_engine.Sched()->SetRepainting(true);
        } else if (MayEdit() && CellEditable(m_sheet->TablePlaceOf(cell)) && !IsEditableCheckBox(cell))
            BeginCellEdit(cell.column, cell.row);
    });
}

void ctlSchedule::BeginCellEdit(Column column, Row row)
{
    const Cell cell{column, row};
    if (m_edit.editing)
        return;
    m_spread->EnsureVisible(cell);
    const QRect place = m_spread->SeenRect(cell);
    if (place.isEmpty())
        return;
    m_edit = {column, row, m_sheet->Text(cell), true};
    m_editBox->Open(m_edit.previous, place, AlignmentOf(ContentOf(*m_sheet, cell)));
}

void ctlSchedule::CommitCellEdit()
{
    if (!m_edit.editing)
        return;
    // Idle before anything else happens: hiding the box moves the focus, which commits.
    const CellEdit edit = std::exchange(m_edit, {});
    const Cell cell{edit.column, edit.row};
    const QString text = m_editBox->text();
    if (IsDataCell(cell) && text != edit.previous)
        ChangeCell(cell, text);
    IgnoringErrors([this] { CloseEditBox(); });
    IgnoringErrors([this] { FollowTagDataDirty(); });
}

void ctlSchedule::CloseEditBox()
{
    if (window()->focusWidget() == m_editBox)
        m_spread->setFocus(Qt::OtherFocusReason);
    m_editBox->Close();
}

void ctlSchedule::ChangeCell(Cell cell, const QString& text)
{
    IgnoringErrors([&] {
        CellStyle style = m_sheet->Style(cell);
        style.edited = true;
        m_sheet->SetText(cell, text);
        m_sheet->SetStyle(cell, style);
    });
    m_engine.SetTagDataDirty(true);
    // An edit that was open when another document came has lost its element.
    IgnoringErrors([&] {
        if (!m_xmlIsNew)
            m_held.SetCellText(m_sheet->TablePlaceOf(cell), text);
    });
}

void ctlSchedule::MarkUnsaved()
{
    for (const Sheet::TablePlace place : m_held.Unsaved()) {
        const Cell cell = m_sheet->CellAt(place);
        CellStyle style = m_sheet->Style(cell);
        style.edited = true;
        m_sheet->SetStyle(cell, style);
    }
}

void ctlSchedule::ForgetUnsaved()
{
    m_held.SetSaved();
    for (const Cell cell : m_sheet->CellsWith([](CellStyle style) { return style.edited; })) {
        CellStyle style = m_sheet->Style(cell);
        style.edited = false;
        m_sheet->SetStyle(cell, style);
    }
}

void ctlSchedule::ValidateEditBox()
{
    if (m_validating)
        return;
    const QScopedValueRollback validating(m_validating, true);
    CommitCellEdit();
}

void ctlSchedule::EditBoxEscape()
{
    m_editBox->setText(m_edit.previous);
    CommitCellEdit();
}

void ctlSchedule::GoOnVertically(Qt::Key key)
{
    CommitCellEdit();
    Press(*m_spread, key);
    if (!m_edit.editing && m_sheet)
        StartCellEdit(m_sheet->ActiveCell());
}

void ctlSchedule::GoOnByTab(bool forward)
{
    ValidateEditBox();
    if (!GoOnToEditable(forward))
        Press(*m_spread, forward ? Qt::Key_Tab : Qt::Key_Backtab);
}

bool ctlSchedule::GoOnToEditable(bool forward)
{
    const auto next = MayEdit() ? NextEditable(*m_sheet, m_sheet->ActiveCell(), forward ? 1 : -1) : std::nullopt;
    if (!next)
        return false;
    m_spread->Select(*next, *next);
    m_spread->EnsureVisible(*next);
    StartCellEdit(*next);
    return true;
}

bool ctlSchedule::eventFilter(QObject* watched, QEvent* event)
{
    const bool isGridKey = watched == m_spread && event->type() == QEvent::KeyPress;
    if (isGridKey && m_sheet && GridKeyPressed(static_cast<QKeyEvent&>(*event)))
        return true;
    return ToolControl::eventFilter(watched, event);
}

bool ctlSchedule::GridKeyPressed(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        return OpenEditByKey(event);
    case Qt::Key_Escape:
        return CommitByKey();
    case Qt::Key_Space:
        return ToggleByKey(event);
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return LeaveCheckBox(event.key() == Qt::Key_Tab);
    default:
        return false;
    }
}

bool ctlSchedule::OpenEditByKey(const QKeyEvent& event)
{
    // The key that has closed an edit may still be held down.
    if (m_edit.editing || event.isAutoRepeat())
        return false;
    StartCellEdit(m_sheet->ActiveCell());
    return true;
}

bool ctlSchedule::CommitByKey()
{
    const bool wasEditing = m_edit.editing;
    CommitCellEdit();
    return wasEditing;
}

bool ctlSchedule::ToggleByKey(const QKeyEvent& event)
{
    const Cell active = m_sheet->ActiveCell();
    if (!Toggles(active))
        return false;
    if (!event.isAutoRepeat())
        ToggleCheckBox(active);
    return true;
}

/// A check box opens no edit that Tab could leave, so Tab leaves the cell itself.
bool ctlSchedule::LeaveCheckBox(bool forward)
{
    return !m_edit.editing && IsEditableCheckBox(m_sheet->ActiveCell()) && GoOnToEditable(forward);
}

} // namespace schedules
