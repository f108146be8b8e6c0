#include "tools/schedule/edits/CellEditing.h"

#include "common/Error.h"
#include "controls/cells/CellContent.h"
#include "controls/grid/CellEditBox.h"
#include "controls/grid/SpreadView.h"
#include "grid/CSchedule.h"

#include <QKeyEvent>

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

} // namespace

CellEditing::CellEditing(SpreadView& grid, CSchedule& engine, std::function<bool(Cell)> isAllowed)
    : m_grid(grid), m_engine(engine), m_isAllowed(std::move(isAllowed)), m_box(new CellEditBox(grid.viewport()))
{
    m_box->setObjectName(QStringLiteral("txtEditCell"));
    m_grid.installEventFilter(this);
    Connect();
}

CellEditing::~CellEditing() = default;

void CellEditing::Connect()
{
    connect(&m_grid, &SpreadView::ActiveCellMoved, this, &CellEditing::OnCellMoved);
    connect(&m_grid, &SpreadView::CellDoubleClicked, this, &CellEditing::StartCellEdit);
    connect(&m_grid, &SpreadView::CellsMoved, this, &CellEditing::CommitCellEdit);
    connect(m_box, &CellEditBox::EnterPressed, this, &CellEditing::CommitCellEdit);
    connect(m_box, &CellEditBox::FocusLeft, this, &CellEditing::CommitCellEdit);
    connect(m_box, &CellEditBox::EscapePressed, this, &CellEditing::Escape);
    connect(m_box, &CellEditBox::TabPressed, this, &CellEditing::GoOnByTab);
    connect(m_box, &CellEditBox::VerticalKeyPressed, this, &CellEditing::GoOnVertically);
    connect(m_box, &CellEditBox::Refused, this, &CellEditing::Refused);
}

const Sheet& CellEditing::Table() const
{
    return *m_engine.Sched();
}

bool CellEditing::CellEditable(Sheet::TablePlace place) const
{
    const Cell cell = Table().CellAt(place);
    return IsDataCell(cell) && Table().Style(cell).allowEdit && m_isAllowed(cell);
}

bool CellEditing::IsEditableCheckBox(Cell cell) const
{
    return Table().Style(cell).type == CellType::CheckBox && CellEditable(Table().TablePlaceOf(cell));
}

void CellEditing::OnCellMoved(Cell cell)
{
    CommitCellEdit();
    StartCellEdit(cell);
}

void CellEditing::StartCellEdit(Cell cell)
{
    IgnoringErrors([&] {
        if (m_engine.SchedOrientation() == 1 && cell.row == Row(0)) {
            m_grid.SelectColumn(cell.column);
            m_engine.Sched()->SetRepainting(true);
        } else if (CellEditable(Table().TablePlaceOf(cell)) && !IsEditableCheckBox(cell))
            BeginCellEdit(cell.column, cell.row);
    });
}

void CellEditing::BeginCellEdit(Column column, Row row)
{
    const Cell cell{column, row};
    if (m_edit.editing)
        return;
    m_grid.EnsureVisible(cell);
    const QRect place = m_grid.SeenRect(cell);
    if (place.isEmpty())
        return;
    const Edit edit{column, row, Table().Text(cell), true};
    m_box->Open(edit.previous, place, AlignmentOf(ContentOf(Table(), cell)));
    m_edit = edit;
}

void CellEditing::CommitCellEdit()
{
    if (!m_edit.editing)
        return;
    // Idle before anything else happens: what follows moves the focus, and losing it commits.
    const Edit edit = std::exchange(m_edit, {});
    QString text = edit.previous;
    IgnoringErrors([&] { text = m_box->FinishedValue(); });
    if (text.trimmed().isEmpty())
        text.clear(); // a table knows no text of white space alone
    IgnoringErrors([this] { CloseBox(); });
    if (text != edit.previous)
        Q_EMIT Changed({edit.column, edit.row}, text);
}

void CellEditing::CloseBox()
{
    if (m_box->window()->focusWidget() == m_box)
        m_grid.setFocus(Qt::OtherFocusReason);
    m_box->Close();
}

void CellEditing::Escape()
{
    m_box->SetValue(m_edit.previous);
    CommitCellEdit();
}

void CellEditing::GoOnVertically(Qt::Key key)
{
    CommitCellEdit();
    m_grid.PressMoveKey(key);
    if (!m_edit.editing)
        StartCellEdit(Table().ActiveCell());
}

void CellEditing::GoOnByTab(bool forward)
{
    CommitCellEdit();
    if (!GoOnToEditable(forward))
        m_grid.PassFocusOn(forward);
}

bool CellEditing::eventFilter(QObject* watched, QEvent* event)
{
    const bool isGridKey = watched == &m_grid && event->type() == QEvent::KeyPress;
    return isGridKey && PressGridKey(static_cast<QKeyEvent&>(*event));
}

bool CellEditing::PressGridKey(const QKeyEvent& event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        return OpenByKey(event);
    case Qt::Key_Escape:
        return CommitByKey(event);
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return LeaveCheckBox(event.key() == Qt::Key_Tab);
    default:
        return false;
    }
}

/// A key that is still held down after it has closed an edit neither opens the next one nor reaches the host's form.
bool CellEditing::OpenByKey(const QKeyEvent& event)
{
    if (event.isAutoRepeat())
        return true;
    if (!m_edit.editing)
        StartCellEdit(Table().ActiveCell());
    return m_edit.editing;
}

bool CellEditing::CommitByKey(const QKeyEvent& event)
{
    const bool wasEditing = m_edit.editing;
    CommitCellEdit();
    return wasEditing || event.isAutoRepeat();
}

/// A check box opens no edit that Tab could leave, so Tab leaves the cell itself.
bool CellEditing::LeaveCheckBox(bool forward)
{
    return !m_edit.editing && IsEditableCheckBox(Table().ActiveCell()) && GoOnToEditable(forward);
}

bool CellEditing::GoOnToEditable(bool forward)
{
    const auto next = NextEditable(Table().ActiveCell(), forward ? 1 : -1);
    if (!next)
        return false;
    m_grid.Select(*next, *next);
    m_grid.EnsureVisible(*next);
    StartCellEdit(*next);
    return true;
}

/// The next cell that may be edited as shown, row by row; `step` is 1 or -1.
std::optional<Cell> CellEditing::NextEditable(Cell from, int step)
{
    FindEditableRows();
    const Axis& columns = Table().Columns();
    const Axis& rows = Table().Rows();
    int column = columns.VisibleFrom(columns.PositionOf(from.column.Value()) + step, step);
    for (int position = rows.PositionOf(from.row.Value()); position >= 1;
         position = rows.VisibleFrom(position + step, step))
    {
        const int row = rows.ItemAt(position);
        const bool hasAny = row < std::ssize(m_editableRows) && m_editableRows[row];
        for (; hasAny && column >= 1; column = columns.VisibleFrom(column + step, step)) {
            const Cell cell{Column(columns.ItemAt(column)), Row(row)};
            if (CellEditable(Table().TablePlaceOf(cell)))
                return cell;
        }
        column = columns.VisibleFrom(step > 0 ? 1 : columns.Count(), step);
    }
    return std::nullopt;
}

/// In a large table with few editable cells, looking at each cell on the way to the next one would take long.
void CellEditing::FindEditableRows()
{
    if (!m_editableRows.empty())
        return;
    m_editableRows.resize(static_cast<std::size_t>(Table().RowCount()) + 1);
    for (const Cell cell : Table().CellsWith([](CellStyle style) { return style.allowEdit; })) {
        if (cell.row.Value() < std::ssize(m_editableRows))
            m_editableRows[cell.row.Value()] = true;
    }
}

} // namespace schedules
