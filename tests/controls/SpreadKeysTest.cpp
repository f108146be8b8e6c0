#include "controls/grid/SpreadKeys.h"

#include "controls/DrawnSheet.h"

#include <gtest/gtest.h>
#include <ostream>

namespace schedules {

void PrintTo(const Place& place, std::ostream* stream)
{
    *stream << "column " << place.column << " row " << place.row;
}

} // namespace schedules

namespace schedules::testing {

namespace {

constexpr auto kControl = Qt::ControlModifier;

/// Where a key leads in a window that shows the header and five rows.
Place Gone(const Sheet& sheet, Place from, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
           bool mirrored = false)
{
    const int rowHeight = SpreadGeometry(sheet, {.size = {400, 200}}).RectOf({1, 1}).height();
    const SpreadGeometry geometry(sheet, {.size = {400, 6 * rowHeight}});
    const Move move = MoveOf(QKeyEvent(QEvent::KeyPress, key, modifiers), mirrored);
    return move ? move({sheet, geometry, from}) : Place{-1, -1};
}

} // namespace

TEST(SpreadKeys, ArrowsGoByOneCell)
{
    const auto sheet = NumberedSheet(5, 5);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Left), (Place{2, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Right), (Place{4, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Up), (Place{3, 2}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Down), (Place{3, 4}));
}

TEST(SpreadKeys, NothingLeadsOutOfTheDataOrIntoHeaders)
{
    const auto sheet = NumberedSheet(5, 5);
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Home}) {
        EXPECT_EQ(Gone(*sheet, {1, 1}, key), (Place{1, 1})) << key;
    }
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End}) {
        EXPECT_EQ(Gone(*sheet, {5, 5}, key), (Place{5, 5})) << key;
    }
}

TEST(SpreadKeys, HiddenColumnsAndRowsAreSkipped)
{
    const auto sheet = NumberedSheet(5, 5);
    for (const int hidden : {1, 3, 5}) {
        sheet->SetHidden(Column(hidden), true);
        sheet->SetHidden(Row(hidden), true);
    }
    EXPECT_EQ(Gone(*sheet, {2, 2}, Qt::Key_Right), (Place{4, 2}));
    EXPECT_EQ(Gone(*sheet, {4, 2}, Qt::Key_Right), (Place{4, 2}));
    EXPECT_EQ(Gone(*sheet, {2, 2}, Qt::Key_Left), (Place{2, 2}));
    EXPECT_EQ(Gone(*sheet, {2, 4}, Qt::Key_Up), (Place{2, 2}));
    EXPECT_EQ(Gone(*sheet, {2, 2}, Qt::Key_Home, kControl), (Place{2, 2}));
    EXPECT_EQ(Gone(*sheet, {2, 2}, Qt::Key_End, kControl), (Place{4, 4}));
}

TEST(SpreadKeys, HomeAndEndGoToTheEndsOfTheRowWithControlToThoseOfTheSheet)
{
    const auto sheet = NumberedSheet(5, 5);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Home), (Place{1, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_End), (Place{5, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Home, kControl), (Place{1, 1}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_End, kControl), (Place{5, 5}));
}

TEST(SpreadKeys, PagesGoByWhatScrolls)
{
    const auto sheet = NumberedSheet(2, 30);
    EXPECT_EQ(Gone(*sheet, {1, 8}, Qt::Key_PageDown), (Place{1, 13}));
    EXPECT_EQ(Gone(*sheet, {1, 8}, Qt::Key_PageUp), (Place{1, 3}));
    EXPECT_EQ(Gone(*sheet, {1, 28}, Qt::Key_PageDown), (Place{1, 30}));
    sheet->SetFrozenRows(2);
    EXPECT_EQ(Gone(*sheet, {1, 8}, Qt::Key_PageDown), (Place{1, 11}));
}

TEST(SpreadKeys, PagesGoByOneRowAtLeast)
{
    const auto sheet = NumberedSheet(2, 30);
    sheet->SetRowHeight(Row(8), 14400);
    EXPECT_EQ(Gone(*sheet, {1, 8}, Qt::Key_PageDown), (Place{1, 9}));
}

TEST(SpreadKeys, ControlArrowsJumpToTheEdgesOfFilledCells)
{
    const auto sheet = DrawnSheet(QStringLiteral("| 1 | 2 | 3 | 4 | 5 | 6\n"
                                                 "| a | b | c |   |   | d\n"
                                                 "| e |   |   |   |   |  \n"
                                                 "|   | f |   |   |   |  \n"));
    EXPECT_EQ(Gone(*sheet, {1, 1}, Qt::Key_Right, kControl), (Place{3, 1})) << "to the end of the filled stretch";
    EXPECT_EQ(Gone(*sheet, {3, 1}, Qt::Key_Right, kControl), (Place{6, 1})) << "over the gap";
    EXPECT_EQ(Gone(*sheet, {4, 1}, Qt::Key_Right, kControl), (Place{6, 1})) << "out of the gap";
    EXPECT_EQ(Gone(*sheet, {6, 1}, Qt::Key_Left, kControl), (Place{3, 1}));
    EXPECT_EQ(Gone(*sheet, {1, 2}, Qt::Key_Right, kControl), (Place{6, 2})) << "to the end of the sheet";
    EXPECT_EQ(Gone(*sheet, {1, 1}, Qt::Key_Down, kControl), (Place{1, 2}));
    EXPECT_EQ(Gone(*sheet, {2, 1}, Qt::Key_Down, kControl), (Place{2, 3}));
    EXPECT_EQ(Gone(*sheet, {2, 3}, Qt::Key_Up, kControl), (Place{2, 1}));
    EXPECT_EQ(Gone(*sheet, {1, 1}, Qt::Key_Up, kControl), (Place{1, 1}));
}

TEST(SpreadKeys, LeftAndRightAreAsSeen)
{
    const auto sheet = NumberedSheet(5, 5);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Left, Qt::NoModifier, true), (Place{4, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Right, Qt::NoModifier, true), (Place{2, 3}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Left, kControl, true), (Place{5, 3}));
}

TEST(SpreadKeys, RowsGoInTheOrderShown)
{
    const auto sheet = NumberedSheet(1, 3);
    sheet->SetRowOrder({2, 3, 1});
    const Place second = Gone(*sheet, {1, 1}, Qt::Key_Down);
    EXPECT_EQ(CellOf(*sheet, second), At(1, 3));
}

TEST(SpreadKeys, OtherKeysAndModifiersMoveNothing)
{
    const auto sheet = NumberedSheet(5, 5);
    const Place none{-1, -1};
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_A), none);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Return), none);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Down, Qt::AltModifier), none);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_PageDown, kControl), none);
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Down, Qt::KeypadModifier), (Place{3, 4}));
    EXPECT_EQ(Gone(*sheet, {3, 3}, Qt::Key_Down, Qt::ShiftModifier), (Place{3, 4}));
}

} // namespace schedules::testing
