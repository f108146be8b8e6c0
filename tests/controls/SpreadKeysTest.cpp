#include "controls/grid/SpreadKeys.h"

#include "controls/DrawnSheet.h"

#include <gtest/gtest.h>
#include <ostream>

namespace schedules {

void PrintTo(const ShownPlace& place, std::ostream* stream)
{
    *stream << "column " << place.column << " row " << place.row;
}

} // namespace schedules

namespace schedules::testing {

namespace {

constexpr auto kControl = Qt::ControlModifier;

/// Where a key leads in a window that shows the header and five rows.
ShownPlace Gone(const Sheet& sheet, ShownPlace from, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                bool mirrored = false)
{
    const int rowHeight = SpreadGeometry(sheet, {.size = {400, 200}}).RectOf({1, 1}).height();
    const SpreadGeometry geometry(sheet, {.size = {400, 6 * rowHeight}});
    const Move move = MoveOf(QKeyEvent(QEvent::KeyPress, key, modifiers), mirrored);
    return move ? move({sheet, geometry, from}) : ShownPlace{-1, -1};
}

} // namespace

TEST(SpreadKeys, ArrowsGoByOneCell)
{
    const auto sheet = NumberedSheet(5, 5);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Left), (ShownPlace{2, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Right), (ShownPlace{4, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Up), (ShownPlace{3, 2}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Down), (ShownPlace{3, 4}));
}

TEST(SpreadKeys, NothingLeadsOutOfTheDataOrIntoHeaders)
{
    const auto sheet = NumberedSheet(5, 5);
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Home}) {
        EXPECT_EQ(Gone(*sheet, {1, 1}, key), (ShownPlace{1, 1})) << key;
    }
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End}) {
        EXPECT_EQ(Gone(*sheet, {5, 5}, key), (ShownPlace{5, 5})) << key;
    }
}

TEST(SpreadKeys, HiddenColumnsAndRowsAreSkipped)
{
    const auto sheet = NumberedSheet(5, 5);
    for (const int hidden : {1, 3, 5}) {
        sheet->SetHidden(Column(hidden), true);
        sheet->SetHidden(Row(hidden), true);
    }
    EXPECT_EQ(Gone(*sheet, {2, 2}, Qt::Key_Right), (ShownPlace{4, 2}));
    EXPECT_EQ(Gone(*sheet, {4, 2}, Qt::Key_Right), (ShownPlace{4, 2}));
    EXPECT_EQ(Gone(*sheet, {2, 2}, Qt::Key_Left), (ShownPlace{2, 2}));
    EXPECT_EQ(Gone(*sheet, {2, 4}, Qt::Key_Up), (ShownPlace{2, 2}));
    EXPECT_EQ(Gone(*sheet, {2, 2}, Qt::Key_Home, kControl), (ShownPlace{2, 2}));
    EXPECT_EQ(Gone(*sheet, {2, 2}, Qt::Key_End, kControl), (ShownPlace{4, 4}));
}

TEST(SpreadKeys, HomeAndEndGoToTheEndsOfTheRowWithControlToThoseOfTheSheet)
{
    const auto sheet = NumberedSheet(5, 5);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Home), (ShownPlace{1, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_End), (ShownPlace{5, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Home, kControl), (ShownPlace{1, 1}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_End, kControl), (ShownPlace{5, 5}));
}

TEST(SpreadKeys, PagesGoByWhatScrolls)
{
    const auto sheet = NumberedSheet(2, 30);
    EXPECT_EQ(Gone(*sheet, {1, 8}, Qt::Key_PageDown), (ShownPlace{1, 13}));
    EXPECT_EQ(Gone(*sheet, {1, 8}, Qt::Key_PageUp), (ShownPlace{1, 3}));
    EXPECT_EQ(Gone(*sheet, {1, 28}, Qt::Key_PageDown), (ShownPlace{1, 30}));
    sheet->SetFrozenRows(2);
    EXPECT_EQ(Gone(*sheet, {1, 8}, Qt::Key_PageDown), (ShownPlace{1, 11}));
}

TEST(SpreadKeys, PagesGoByOneRowAtLeast)
{
    const auto sheet = NumberedSheet(2, 30);
    sheet->SetRowHeight(Row(8), 14400);
    EXPECT_EQ(Gone(*sheet, {1, 8}, Qt::Key_PageDown), (ShownPlace{1, 9}));
}

TEST(SpreadKeys, ControlArrowsJumpToTheEdgesOfFilledCells)
{
    const auto sheet = DrawnSheet(QStringLiteral("| 1 | 2 | 3 | 4 | 5 | 6\n"
                                                 "| a | b | c |   |   | d\n"
                                                 "| e |   |   |   |   |  \n"
                                                 "|   | f |   |   |   |  \n"));
    EXPECT_EQ(Gone(*sheet, {1, 1}, Qt::Key_Right, kControl), (ShownPlace{3, 1})) << "to the end of the filled stretch";
    EXPECT_EQ(Gone(*sheet, {3, 1}, Qt::Key_Right, kControl), (ShownPlace{6, 1})) << "over the gap";
    EXPECT_EQ(Gone(*sheet, {4, 1}, Qt::Key_Right, kControl), (ShownPlace{6, 1})) << "out of the gap";
    EXPECT_EQ(Gone(*sheet, {6, 1}, Qt::Key_Left, kControl), (ShownPlace{3, 1}));
    EXPECT_EQ(Gone(*sheet, {1, 2}, Qt::Key_Right, kControl), (ShownPlace{6, 2})) << "to the end of the sheet";
    EXPECT_EQ(Gone(*sheet, {1, 1}, Qt::Key_Down, kControl), (ShownPlace{1, 2}));
    EXPECT_EQ(Gone(*sheet, {2, 1}, Qt::Key_Down, kControl), (ShownPlace{2, 3}));
    EXPECT_EQ(Gone(*sheet, {2, 3}, Qt::Key_Up, kControl), (ShownPlace{2, 1}));
    EXPECT_EQ(Gone(*sheet, {1, 1}, Qt::Key_Up, kControl), (ShownPlace{1, 1}));
}

TEST(SpreadKeys, LeftAndRightAreAsSeen)
{
    const auto sheet = NumberedSheet(5, 5);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Left, Qt::NoModifier, true), (ShownPlace{4, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Right, Qt::NoModifier, true), (ShownPlace{2, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Left, kControl, true), (ShownPlace{5, 3}));
}

TEST(SpreadKeys, RowsGoInTheOrderShown)
{
    const auto sheet = NumberedSheet(1, 3);
    sheet->SetRowOrder({2, 3, 1});
    const ShownPlace second = Gone(*sheet, {1, 1}, Qt::Key_Down);
    EXPECT_EQ(CellOf(*sheet, second), At(1, 3));
}

TEST(SpreadKeys, OtherKeysAndModifiersMoveNothing)
{
    const auto sheet = NumberedSheet(5, 5);
    const ShownPlace none{-1, -1};
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_A), none);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Return), none);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Down, Qt::AltModifier), none);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_PageDown, kControl), none);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Down, Qt::KeypadModifier), (ShownPlace{3, 4}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Down, Qt::ShiftModifier), (ShownPlace{3, 4}));
}

} // namespace schedules::testing
