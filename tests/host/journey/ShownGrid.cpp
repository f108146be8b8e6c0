#include "ShownGrid.h"

#include "Hands.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QLineEdit>

namespace schedules::host::testing {

namespace {

constexpr int kStep = 40;
constexpr int kMostSteps = 1000;

QAccessibleInterface& Read(QWidget& grid)
{
    return *QAccessible::queryAccessibleInterface(&grid);
}

/// How far to scroll towards a place on one axis. What lies in the midst and is not seen is beneath what is frozen.
int StepTo(int place, int first, int last, bool covered)
{
    if (place > last)
        return kStep;
    return place < first || covered ? -kStep : 0;
}

} // namespace

ShownGrid::ShownGrid(const QWidget& view)
    : m_grid(Part<QAbstractScrollArea>(view, "vaSpread1")), m_surface(*m_grid.viewport())
{
}

int ShownGrid::ColumnCount() const
{
    return Read(m_grid).tableInterface()->columnCount() + 1;
}

int ShownGrid::RowCount() const
{
    return Read(m_grid).tableInterface()->rowCount() + 1;
}

QAccessibleInterface& ShownGrid::CellAt(int column, int row) const
{
    QAccessibleInterface* cell = Read(m_grid).child(row * ColumnCount() + column);
    if (!cell)
        throw HostError(QStringLiteral("there is no cell in column %1, row %2").arg(column).arg(row));
    return *cell;
}

QString ShownGrid::Text(int column, int row) const
{
    return CellAt(column, row).text(QAccessible::Name);
}

bool ShownGrid::Ticked(int column, int row) const
{
    return CellAt(column, row).state().checked;
}

int ShownGrid::ColumnOf(const QString& header) const
{
    return ColumnWith(header, 0);
}

int ShownGrid::ColumnWith(const QString& text, int row) const
{
    for (int column = 0; column < ColumnCount(); ++column) {
        if (Text(column, row) == text)
            return column;
    }
    throw HostError(QStringLiteral("there is no column with %1").arg(text));
}

int ShownGrid::RowOf(const QString& header) const
{
    for (int row = 0; row < RowCount(); ++row) {
        if (Text(0, row) == header)
            return row;
    }
    throw HostError(QStringLiteral("there is no row %1").arg(header));
}

void ShownGrid::Reveal(QAccessibleInterface& cell) const
{
    const QRect seen(m_surface.mapToGlobal(QPoint()), m_surface.size());
    for (int step = 0; step < kMostSteps; ++step) {
        const QPoint middle = cell.rect().center();
        if (seen.contains(middle) && Read(m_grid).childAt(middle.x(), middle.y()) == &cell)
            return;
        const bool covered = seen.contains(middle);
        Scroll(m_surface, {StepTo(middle.x(), seen.left(), seen.right(), covered),
                           StepTo(middle.y(), seen.top(), seen.bottom(), covered)});
    }
    throw HostError(QStringLiteral("%1 cannot be scrolled to").arg(cell.text(QAccessible::Name)));
}

void ShownGrid::Click(int column, int row) const
{
    QAccessibleInterface& cell = CellAt(column, row);
    Reveal(cell);
    testing::Click(m_surface, m_surface.mapFromGlobal(cell.rect().center()));
}

void ShownGrid::Write(int column, int row, const QString& text) const
{
    Click(column, row);
    auto& box = Part<QLineEdit>(m_grid, "txtEditCell");
    if (box.isHidden())
        Press(Qt::Key_F2);
    if (box.isHidden())
        throw HostError(QStringLiteral("%1 cannot be edited").arg(Text(column, row)));
    Press(Qt::Key_A, Qt::ControlModifier);
    Type(text);
    Press(Qt::Key_Return);
}

std::string ShownGrid::Drawn() const
{
    QStringList lines;
    for (int row = 0; row < RowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < ColumnCount(); ++column)
            cells << Text(column, row);
        lines << cells.join(QStringLiteral(" | "));
    }
    return lines.join(u'\n').toStdString();
}

} // namespace schedules::host::testing
