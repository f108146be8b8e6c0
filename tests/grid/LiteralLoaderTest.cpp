// The one-pass loader against the literal one, on documents written at random.

#include "grid/LiteralLoader.h"

#include "grid/RandomTables.h"
#include "grid/ScheduleFixture.h"

#include <QTextStream>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr int kDocuments = 1500;
constexpr int kLooked = 40; ///< no random document has as many rows, columns or header cells
constexpr std::uint32_t kRowHeaderGrey = 0x8000000F;

struct Setting
{
    int orientation;
    bool transpose;
};

struct AgainstLiteral : ::testing::TestWithParam<Setting>
{
};

/// Draws whatever can be asked for the same things, a sheet or a literal grid.
template <class Texts, class Boxes, class Bold, class Colors>
QString DrawnCells(Texts text, Boxes isBox, Bold isBold, Colors color)
{
    QString drawn;
    QTextStream stream(&drawn);
    for (int row = 0; row < kLooked; ++row) {
        for (int column = 0; column < kLooked; ++column) {
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

QString DrawnLines(bool loaded, int columns, int rows, auto hiddenColumn, auto hiddenRow)
{
    QString drawn = QStringLiteral("%1: %2 x %3, hidden").arg(loaded).arg(columns).arg(rows);
    for (int index = 0; index < kLooked; ++index) {
        drawn += hiddenColumn(index) ? QStringLiteral(" c%1").arg(index) : QString();
        drawn += hiddenRow(index) ? QStringLiteral(" r%1").arg(index) : QString();
    }
    return drawn + u'\n';
}

std::string LoadedLiterally(const QString& xml, Setting setting)
{
    LiteralGrid grid;
    const int message = LiteralLoader(grid, setting.orientation, setting.transpose).Load(xml);
    if (grid.DataColumns() > 0 && grid.DataRows() > 0)
        grid.colors.push_back({{At(0, 1), At(0, grid.DataRows())}, kRowHeaderGrey});
    const QString lines = DrawnLines(
        message == 0, grid.DataColumns(), grid.DataRows(), [&](int c) { return grid.hiddenColumns.contains(c); },
        [&](int r) { return grid.hiddenRows.contains(r); });
    const QString cells = DrawnCells(
        [&](Cell cell) { return grid.Text(cell); }, [&](Cell cell) { return grid.checkBoxes.contains(cell); },
        [&](Cell cell) { return grid.Bold(cell); }, [&](Cell cell) { return grid.Color(cell); });
    return (lines + cells).toStdString() + std::to_string(message);
}

std::string LoadedFast(const QString& xml, Setting setting)
{
    ScriptedUserInterface user;
    Sheet sheet;
    CSchedule engine(user);
    engine.SetSched(&sheet);
    engine.SetSchedOrientation(setting.orientation);
    engine.SetTransposeData(setting.transpose);
    const bool loaded = engine.LoadScheduleData(xml);
    const QString lines = DrawnLines(
        loaded, sheet.ColumnCount(), sheet.RowCount(), [&](int c) { return sheet.Hidden(Column(c)); },
        [&](int r) { return sheet.Hidden(Row(r)); });
    const QString cells =
        DrawnCells([&](Cell cell) { return sheet.Text(cell); },
                   [&](Cell cell) { return sheet.Style(cell).type == CellType::CheckBox; },
                   [&](Cell cell) { return sheet.Bold(cell); }, [&](Cell cell) { return sheet.BackColor(cell); });
    const int message = user.boxes.empty() ? 0 : user.boxes.front().number;
    return (lines + cells).toStdString() + std::to_string(message);
}

std::string NameOf(const ::testing::TestParamInfo<Setting>& tested)
{
    const int orientation = tested.param.orientation;
    return (orientation < 0 ? "Minus1" : std::to_string(orientation)) + (tested.param.transpose ? "Transposed" : "");
}

} // namespace

TEST_P(AgainstLiteral, TheLoadersAgreeOnRandomDocuments)
{
    RandomTables tables(static_cast<unsigned>(2 * GetParam().orientation + GetParam().transpose) + 1);
    int loaded = 0;
    for (int count = 0; count < kDocuments; ++count) {
        const QString xml = tables.Next();
        const std::string expected = LoadedLiterally(xml, GetParam());
        ASSERT_EQ(LoadedFast(xml, GetParam()), expected) << "document " << count << ":\n" << xml.toStdString();
        loaded += expected.starts_with('1') ? 1 : 0;
    }
    EXPECT_GT(loaded, kDocuments / 2);
    EXPECT_LT(loaded, kDocuments);
}

INSTANTIATE_TEST_SUITE_P(Orientations, AgainstLiteral,
                         ::testing::Values(Setting{0, false}, Setting{0, true}, Setting{1, false}, Setting{1, true},
                                           Setting{2, false}, Setting{-1, true}),
                         NameOf);
