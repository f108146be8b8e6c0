#include "tools/schedule/edits/CellEditing.h"

#include "common/Blanks.h"
#include "common/Error.h"
#include "controls/cells/CellContent.h"
#include "controls/grid/CellEditBox.h"
#include "controls/grid/SpreadView.h"
#include "tools/HostLink.h"
#include "tools/schedule/ViewSettings.h"
#include "tools/schedule/edits/EditSession.h"
#include "tools/schedule/table/ShownTable.h"

#include <QCoreApplication>
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
    if (content.edge == CellEdge::Center)
        return Qt::AlignHCenter;
    return content.edge == CellEdge::Far ? Qt::AlignRight : Qt::AlignLeft;
}

/// A table knows no text of white space alone.
QString AsInTable(const QString& text)
{
    return IsWhiteSpaceAlone(text) ? QString() : text;
}

void Press(QWidget& widget, int key, const QString& text = {})
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &press);
}

/// Types a text over the one that is selected.
void TypeInto(QLineEdit& box, const QString& text)
{
    if (text.isEmpty())
        return Press(box, Qt::Key_Delete);
    for (const char32_t character : text.toUcs4())
        Press(box, Qt::Key_unknown, QString::fromUcs4(&character, 1));
}

} // namespace

CellEditing::CellEditing(HostLink& host, ShownTable& table, EditSession& edits, const ViewSettings& settings)
    : m_host(host),
      m_table(table),
      m_edits(edits),
      m_settings(settings),
      m_grid(table.Grid()),
      m_box(new CellEditBox(m_grid.viewport()))
{
    m_box->setObjectName(QStringLiteral("txtEditCell"));
    m_grid.installEventFilter(this);
    Connect();
}

CellEditing::~CellEditing() = default;

void CellEditing::Connect()
{
    connect(&m_grid, &SpreadView::ActiveCellMoved, this, &CellEditing::OnCellMoved);
    connect(&m_grid, &SpreadView::ActiveCellClicked, this, &CellEditing::StartCellEdit);
    connect(&m_grid, &SpreadView::CellDoubleClicked, this, &CellEditing::StartCellEdit);
    connect(&m_grid, &SpreadView::CellsMoved, this, &CellEditing::CommitCellEdit);
    connect(m_box, &CellEditBox::EnterPressed, this, &CellEditing::CommitCellEdit);
    connect(m_box, &CellEditBox::FocusLeft, this, &CellEditing::CommitCellEdit);
    connect(m_box, &CellEditBox::EscapePressed, this, &CellEditing::Escape);
    connect(m_box, &CellEditBox::TabPressed, this, &CellEditing::GoOnByTab);
    connect(m_box, &CellEditBox::VerticalKeyPressed, this, &CellEditing::GoOnVertically);
    connect(m_box, &CellEditBox::Refused, this, &CellEditing::Refused);
    connect(m_box, &QLineEdit::textChanged, this, &CellEditing::FollowBox);
}

const Sheet& CellEditing::Table() const
{
    return *m_table.Engine().Sched();
}

bool CellEditing::CellEditable(Sheet::TablePlace place) const
{
    const Cell cell = Table().CellAt(place);
    return IsDataCell(cell) && Table().Style(cell).allowEdit && m_settings.IsScheduleView() && m_edits.MayEdit(cell);
}

bool CellEditing::IsToggledCell(Cell cell) const
{
    return KindOf(Table().Style(cell)).Toggles() && CellEditable(Table().TablePlaceOf(cell));
}

void CellEditing::OnCellMoved(Cell cell)
{
    CommitCellEdit();
    StartCellEdit(cell);
}

void CellEditing::StartCellEdit(Cell cell)
{
    IgnoringErrors([&] {
        if (m_table.Engine().SchedOrientation() == 1 && cell.row == Row(0)) {
            m_grid.SelectColumn(cell.column);
            m_table.Engine().Sched()->SetRepainting(true);
        } else if (CellEditable(Table().TablePlaceOf(cell)) && !IsToggledCell(cell))
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
    const Cell cell{edit.column, edit.row};
    QString text = edit.previous;
    IgnoringErrors([&] { text = m_box->FinishedValue(); });
    if (text != edit.previous)
        text = AsInTable(text);
    const ToolLife::Watch watch(m_host.Life()); // a host that is told of the value may delete the view
    if (text != edit.previous)
        m_edits.Change(cell, text);
    if (watch.IsAlive())
        IgnoringErrors([this] { CloseBox(); });
}

void CellEditing::CloseBox()
{
    if (m_box->window()->focusWidget() == m_box)
        m_grid.setFocus(Qt::OtherFocusReason);
    m_box->Close();
    FollowBox();
}

void CellEditing::FollowBox()
{
    const bool hasOpenChange = m_edit.editing && m_box->text() != m_edit.previous;
    if (std::exchange(m_hasOpenChange, hasOpenChange) != hasOpenChange)
        Q_EMIT OpenChangeChanged();
}

void CellEditing::LookAtDocument()
{
    if (!m_edit.editing || m_edits.MayGoOn({m_edit.column, m_edit.row}, m_edit.previous))
        return;
    m_edit = {};
    CloseBox();
    Q_EMIT Refused();
}

CellEditing::Typed CellEditing::Type(Cell cell, const QString& text)
{
    CommitCellEdit();
    StartCellEdit(cell);
    if (!m_edit.editing)
        return Typed::NotEditable;
    TypeInto(*m_box, text);
    const bool isTaken = m_box->text() == text;
    if (!isTaken)
        m_box->SetValue(m_edit.previous);
    CommitCellEdit();
    return isTaken ? Typed::Taken : Typed::Refused;
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
    return !m_edit.editing && IsToggledCell(Table().ActiveCell()) && GoOnToEditable(forward);
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
