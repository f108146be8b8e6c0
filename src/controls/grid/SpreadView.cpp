#include "controls/grid/SpreadView.h"

#include "controls/grid/SpreadPainter.h"
#include "controls/grid/SpreadTip.h"
#include "controls/grid/SpreadViewAccessible.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

namespace schedules {

namespace {

/// Columns are wide, so the smallest step goes by a part of one.
constexpr int kStepsPerColumn = 3;

void SetUp(QScrollBar& bar, int maximum, int page, int step)
{
    bar.setRange(0, maximum);
    bar.setPageStep(page);
    bar.setSingleStep(std::max(step, 1));
}

bool ChangesLayout(QEvent::Type change)
{
    return change == QEvent::FontChange || change == QEvent::StyleChange || change == QEvent::LayoutDirectionChange;
}

} // namespace

SpreadView::SpreadView(QWidget* parent)
    : QAbstractScrollArea(parent), m_mouse(*this, m_selection), m_keyboard(*this, m_selection)
{
    InstallSpreadViewAccessible();
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::StyledPanel);
}

void SpreadView::SetSheet(Sheet* sheet)
{
    if (m_sheet)
        m_sheet->disconnect(this);
    m_sheet = sheet;
    m_selection.Collapse();
    m_mouse.End();
    if (m_sheet) {
        m_sheet->SetFont(font());
        ConnectSheet();
    }
    LayOut();
}

void SpreadView::ConnectSheet()
{
    connect(m_sheet, &Sheet::Changed, this, &SpreadView::Relayout);
    connect(m_sheet, &Sheet::FrozenChanged, this, &SpreadView::Relayout);
    connect(m_sheet, &Sheet::CellChanged, this, &SpreadView::OnCellChanged);
    connect(m_sheet, &Sheet::ActiveCellChanged, this, &SpreadView::OnActiveCellChanged);
    connect(m_sheet, &QObject::destroyed, this, &SpreadView::Relayout);
}

SpreadGeometry SpreadView::Geometry() const
{
    return {*m_sheet,
            {viewport()->size(),
             {horizontalScrollBar()->value(), verticalScrollBar()->value()},
             static_cast<double>(viewport()->logicalDpiX()),
             static_cast<double>(viewport()->logicalDpiY()),
             layoutDirection()}};
}

CellFaces& SpreadView::Faces()
{
    if (!m_faces || !m_faces->Serve(m_sheet->Font(), *viewport()))
        m_faces.emplace(m_sheet->Font(), *viewport());
    return *m_faces;
}

QRect SpreadView::CellRect(Cell cell) const
{
    return m_sheet ? Geometry().RectOf(PlaceOf(*m_sheet, cell)) : QRect();
}

QRect SpreadView::SeenRect(Cell cell) const
{
    return m_sheet ? Geometry().SeenRectOf(PlaceOf(*m_sheet, cell)) : QRect();
}

std::optional<Cell> SpreadView::CellAt(QPoint point) const
{
    if (!m_sheet)
        return std::nullopt;
    const auto place = Geometry().PlaceAt(point);
    return place ? std::optional(CellOf(*m_sheet, *place)) : std::nullopt;
}

void SpreadView::EnsureVisible(Cell cell)
{
    if (!m_sheet)
        return;
    const SpreadGeometry geometry = Geometry();
    const ShownPlace place = PlaceOf(*m_sheet, cell);
    horizontalScrollBar()->setValue(geometry.Columns().ScrollToShow(place.column));
    verticalScrollBar()->setValue(geometry.Rows().ScrollToShow(place.row));
}

void SpreadView::ScrollBy(QPoint pixels)
{
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + pixels.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + pixels.y());
}

void SpreadView::Relayout()
{
    if (m_sheet && !m_sheet->Repainting())
        return;
    LayOut();
}

void SpreadView::LayOut()
{
    UpdateScrollBars();
    viewport()->update();
    TellTableChanged(*this);
    Q_EMIT CellsMoved();
}

void SpreadView::UpdateScrollBars()
{
    if (!m_sheet) {
        SetUp(*horizontalScrollBar(), 0, 0, 0);
        SetUp(*verticalScrollBar(), 0, 0, 0);
        return;
    }
    const SpreadGeometry geometry = Geometry();
    const AxisLayout& columns = geometry.Columns();
    const AxisLayout& rows = geometry.Rows();
    const QSize room = maximumViewportSize();
    const bool fits = columns.Total() <= room.width() && rows.Total() <= room.height();
    SetUp(*horizontalScrollBar(), fits ? 0 : columns.MaximumScroll(), columns.Extent() - columns.FixedEnd(),
          static_cast<int>(columns.Pixels(m_sheet->Columns().DefaultSize())) / kStepsPerColumn);
    SetUp(*verticalScrollBar(), fits ? 0 : rows.MaximumScroll(), rows.Extent() - rows.FixedEnd(),
          static_cast<int>(rows.Pixels(m_sheet->Rows().DefaultSize())));
}

void SpreadView::paintEvent(QPaintEvent* event)
{
    if (!Shows())
        return;
    QPainter painter(viewport());
    const SpreadGeometry geometry = Geometry();
    const CellLook look{palette(), TextDrawing::Fast, layoutDirection(), this};
    std::optional<ShownSelection> selection;
    if (const auto block = m_selection.Block(*m_sheet))
        selection = {*block, PlaceOf(*m_sheet, m_sheet->ActiveCell()), hasFocus()};
    SpreadPainter(painter, *m_sheet, geometry, Faces(), look, m_marks).Paint(selection, event->rect());
}

void SpreadView::ShowEditable(bool on)
{
    if (on == m_marks.editable)
        return;
    m_marks.editable = on;
    viewport()->update();
    TellTableChanged(*this);
}

void SpreadView::ShowSortMark(std::optional<SortMark> mark)
{
    m_marks.sort = mark;
    viewport()->update();
}

void SpreadView::scrollContentsBy(int, int)
{
    viewport()->update();
    Q_EMIT CellsMoved();
}

void SpreadView::resizeEvent(QResizeEvent*)
{
    UpdateScrollBars();
    Q_EMIT CellsMoved();
}

void SpreadView::showEvent(QShowEvent* event)
{
    QAbstractScrollArea::showEvent(event);
    if (const QWindow* shown = window()->windowHandle())
        connect(shown, &QWindow::screenChanged, this, &SpreadView::FollowScreen, Qt::UniqueConnection);
    FollowScreen();
}

void SpreadView::hideEvent(QHideEvent* event)
{
    QAbstractScrollArea::hideEvent(event);
    m_mouse.End();
    Q_EMIT CellsMoved();
}

void SpreadView::FollowScreen()
{
    connect(screen(), &QScreen::logicalDotsPerInchChanged, this, &SpreadView::Relayout, Qt::UniqueConnection);
    Relayout();
}

void SpreadView::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange && m_sheet)
        m_sheet->SetFont(font());
    if (ChangesLayout(event->type()))
        Relayout();
    else
        viewport()->update();
}

QVariant SpreadView::inputMethodQuery(Qt::InputMethodQuery query) const
{
    // Where the cursor is decides where the keyboard opens a menu.
    const bool hasCursor = query == Qt::ImCursorRectangle && Shows() && IsSelected(m_sheet->ActiveCell());
    const QRect cursor = hasCursor ? SeenRect(m_sheet->ActiveCell()) : QRect();
    return cursor.isEmpty() ? QAbstractScrollArea::inputMethodQuery(query) : cursor;
}

void SpreadView::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
    TellActiveCell(*this);
}

void SpreadView::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void SpreadView::OnCellChanged(Cell cell)
{
    viewport()->update(SeenRect(cell));
    TellCellChanged(*this, cell);
}

void SpreadView::OnActiveCellChanged()
{
    m_selection.Collapse();
    OnSelectionChanged();
}

void SpreadView::OnSelectionChanged()
{
    if (Shows()) {
        viewport()->update();
        TellActiveCell(*this);
        TellSelectionChanged(*this);
    }
    Q_EMIT SelectionChanged();
}

CellRange SpreadView::Selection() const
{
    const auto block = m_sheet ? m_selection.Block(*m_sheet) : std::nullopt;
    return block ? CellRange{CellOf(*m_sheet, block->first), CellOf(*m_sheet, block->last)} : CellRange{};
}

bool SpreadView::IsSelected(Cell cell) const
{
    const auto block = m_sheet ? m_selection.Block(*m_sheet) : std::nullopt;
    return block && block->Contains(PlaceOf(*m_sheet, cell));
}

void SpreadView::Activate(Cell cell)
{
    if (cell != m_sheet->ActiveCell())
        m_sheet->SetActiveCell(cell);
    else
        OnActiveCellChanged();
}

void SpreadView::ExtendTo(Cell corner)
{
    m_selection.ExtendTo(corner);
    OnSelectionChanged();
}

void SpreadView::Select(Cell active, Cell corner)
{
    if (!m_sheet || !HoldsData(*m_sheet, PlaceOf(*m_sheet, active)))
        return;
    Activate(active);
    ExtendTo(corner);
}

void SpreadView::SelectColumn(Column column)
{
    if (m_sheet)
        Select({column, CellOf(*m_sheet, FirstPlace(*m_sheet)).row},
               {column, CellOf(*m_sheet, LastPlace(*m_sheet)).row});
}

void SpreadView::SelectRow(Row row)
{
    if (m_sheet)
        Select({CellOf(*m_sheet, FirstPlace(*m_sheet)).column, row},
               {CellOf(*m_sheet, LastPlace(*m_sheet)).column, row});
}

void SpreadView::SelectAll()
{
    if (m_sheet)
        Select(CellOf(*m_sheet, FirstPlace(*m_sheet)), CellOf(*m_sheet, LastPlace(*m_sheet)));
}

void SpreadView::Copy() const
{
    const QString text = m_sheet ? m_selection.Text(*m_sheet) : QString();
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

bool SpreadView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && SpreadKeyboard::Claims(*static_cast<QKeyEvent*>(event)))
        event->accept();
    return QAbstractScrollArea::event(event);
}

void SpreadView::keyPressEvent(QKeyEvent* event)
{
    event->setAccepted(m_keyboard.Press(*event));
}

void SpreadView::wheelEvent(QWheelEvent* event)
{
    const QPoint pixels = event->pixelDelta();
    if (pixels.isNull()) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    ScrollBy({isRightToLeft() ? pixels.x() : -pixels.x(), -pixels.y()});
    event->accept();
}

void SpreadView::mousePressEvent(QMouseEvent* event)
{
    m_mouse.Press(*event);
}

void SpreadView::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_mouse.PressAgain(*event);
}

void SpreadView::mouseMoveEvent(QMouseEvent* event)
{
    m_mouse.MoveTo(event->position().toPoint());
}

void SpreadView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_mouse.Release();
}

void SpreadView::Click(Cell cell)
{
    if (!Shows() || CellRect(cell).isEmpty() || !HoldsData(*m_sheet, PlaceOf(*m_sheet, cell)))
        return;
    setFocus(Qt::MouseFocusReason);
    m_mouse.Click(PlaceOf(*m_sheet, cell));
}

bool SpreadView::viewportEvent(QEvent* event)
{
    const bool asksForTip = event->type() == QEvent::ToolTip && Shows();
    if (asksForTip && ShowTip(*static_cast<QHelpEvent*>(event), *m_sheet, Geometry(), Faces(), *viewport()))
        return true;
    return QAbstractScrollArea::viewportEvent(event);
}

void SpreadView::Announce(QAccessibleEvent& event)
{
    QAccessible::updateAccessibility(&event);
}

} // namespace schedules
