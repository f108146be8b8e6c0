#include "grid/LoadedBothWays.h"

#include "grid/CSchedule.h"
#include "grid/LiteralLoader.h"
#include "support/ScriptedUserInterface.h"
#include "support/SheetDrawing.h"

#include <QTextStream>

namespace schedules::testing {

namespace {

constexpr std::uint32_t kRowHeaderGrey = 0x8000000F;

/// Draws whatever can be asked for the same things, a sheet or a literal grid.
template <class Texts, class Boxes, class Bold, class Colors>
QString DrawnCells(int looked, Texts text, Boxes isBox, Bold isBold, Colors color)
{
    QString drawn;
    QTextStream stream(&drawn);
    for (int row = 0; row < looked; ++row) {
        for (int column = 0; column < looked; ++column) {
            const Cell cell = At(column, row);
            if (text(cell).isEmpty() && !isBox(cell) && !isBold(cell) && !color(cell))
                continue;
            stream << column << ',' << row << " '" << text(cell) << '\'' << (isBox(cell) ? " box" : "")
                   << (isBold(cell) ? " bold" : "");
            if (color(cell))
                stream << ' ' << *color(cell);
            stream << '\n';
        }
    }
    return drawn;
}

QString DrawnLines(int looked, bool loaded, int columns, int rows, auto hiddenColumn, auto hiddenRow)
{
    QString drawn = QStringLiteral("%1: %2 x %3, hidden").arg(loaded).arg(columns).arg(rows);
    for (int index = 0; index < looked; ++index) {
        drawn += hiddenColumn(index) ? QStringLiteral(" c%1").arg(index) : QString();
        drawn += hiddenRow(index) ? QStringLiteral(" r%1").arg(index) : QString();
    }
    return drawn + u'\n';
}

} // namespace

std::string LoadedLiterally(const QString& xml, LoadSetting setting, int looked)
{
    LiteralGrid grid;
    const int message = LiteralLoader(grid, setting.orientation, setting.transpose).Load(xml);
    if (grid.DataColumns() > 0 && grid.DataRows() > 0)
        grid.colors.push_back({{At(0, 1), At(0, grid.DataRows())}, kRowHeaderGrey});
    const QString lines = DrawnLines(
        looked, message == 0, grid.DataColumns(), grid.DataRows(),
        [&](int c) { return grid.hiddenColumns.contains(c); }, [&](int r) { return grid.hiddenRows.contains(r); });
    const QString cells = DrawnCells(
        looked, [&](Cell cell) { return grid.Text(cell); }, [&](Cell cell) { return grid.checkBoxes.contains(cell); },
        [&](Cell cell) { return grid.Bold(cell); }, [&](Cell cell) { return grid.Color(cell); });
    return (lines + cells).toStdString() + std::to_string(message);
}

std::string LoadedFast(const QString& xml, LoadSetting setting, int looked)
{
    ScriptedUserInterface user;
    Sheet sheet;
    CSchedule engine(user);
    engine.SetSched(&sheet);
    engine.SetSchedOrientation(setting.orientation);
    engine.SetTransposeData(setting.transpose);
    const bool loaded = engine.LoadScheduleData(xml);
    const QString lines = DrawnLines(
        looked, loaded, sheet.ColumnCount(), sheet.RowCount(), [&](int c) { return sheet.Hidden(Column(c)); },
        [&](int r) { return sheet.Hidden(Row(r)); });
    const QString cells = DrawnCells(
        looked, [&](Cell cell) { return sheet.Text(cell); },
        [&](Cell cell) { return sheet.Style(cell).type == CellType::CheckBox; },
        [&](Cell cell) { return sheet.Bold(cell); }, [&](Cell cell) { return sheet.BackColor(cell); });
    const int message = user.boxes.empty() ? 0 : user.boxes.front().number;
    return (lines + cells).toStdString() + std::to_string(message);
}

} // namespace schedules::testing
