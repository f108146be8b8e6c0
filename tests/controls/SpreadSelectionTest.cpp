#include "controls/grid/SpreadSelection.h"

#include "controls/DrawnSheet.h"

#include <gtest/gtest.h>

namespace schedules::testing {

TEST(SpreadSelection, NothingIsSelectedWithoutAnActiveDataCell)
{
    const auto sheet = NumberedSheet(3, 3);
    SpreadSelection selection;
    EXPECT_FALSE(selection.Block(*sheet));
    EXPECT_EQ(selection.Text(*sheet), QString());
    sheet->SetActiveCell(At(2, 0));
    EXPECT_FALSE(selection.Block(*sheet)) << "a header";
    sheet->SetActiveCell(At(9, 1));
    EXPECT_FALSE(selection.Block(*sheet)) << "no cell";
}

TEST(SpreadSelection, ReachesFromTheActiveCellToItsCornerInAnyDirection)
{
    const auto sheet = NumberedSheet(5, 5);
    SpreadSelection selection;
    sheet->SetActiveCell(At(4, 2));
    EXPECT_EQ(selection.Block(*sheet), (ShownBlock{{4, 2}, {4, 2}}));
    selection.ExtendTo(At(2, 5));
    EXPECT_EQ(selection.Block(*sheet), (ShownBlock{{2, 2}, {4, 5}}));
    selection.Collapse();
    EXPECT_EQ(selection.Block(*sheet), (ShownBlock{{4, 2}, {4, 2}}));
}

TEST(SpreadSelection, IsAsShownNotAsNumbered)
{
    const auto sheet = NumberedSheet(1, 4);
    sheet->SetRowOrder({4, 2, 1, 3});
    SpreadSelection selection;
    sheet->SetActiveCell(At(1, 4));
    selection.ExtendTo(At(1, 1));
    EXPECT_EQ(selection.Text(*sheet), QStringLiteral("c1r4\nc1r2\nc1r1\n"));
}

TEST(SpreadSelection, ACornerThatHasGoneLeavesTheActiveCell)
{
    const auto sheet = NumberedSheet(5, 5);
    SpreadSelection selection;
    sheet->SetActiveCell(At(2, 2));
    selection.ExtendTo(At(5, 5));
    sheet->SetSize(3, 3);
    EXPECT_EQ(selection.Block(*sheet), (ShownBlock{{2, 2}, {2, 2}}));
}

TEST(SpreadSelection, TextHasTabsAndLineFeedsAndNoHiddenCells)
{
    const auto sheet = NumberedSheet(3, 3);
    sheet->SetHidden(Column(2), true);
    sheet->SetHidden(Row(2), true);
    SpreadSelection selection;
    sheet->SetActiveCell(At(1, 1));
    selection.ExtendTo(At(3, 3));
    EXPECT_EQ(selection.Text(*sheet), QStringLiteral("c1r1\tc3r1\nc1r3\tc3r3\n"));
}

TEST(SpreadSelection, TextsThatWouldBreakTheTableAreQuoted)
{
    const auto sheet = NumberedSheet(3, 1);
    sheet->SetText(At(1, 1), QStringLiteral("a\tb"));
    sheet->SetText(At(2, 1), QStringLiteral("2\" pipe"));
    SpreadSelection selection;
    sheet->SetActiveCell(At(1, 1));
    selection.ExtendTo(At(3, 1));
    EXPECT_EQ(selection.Text(*sheet), QStringLiteral("\"a\tb\"\t\"2\"\" pipe\"\tc3r1\n"));
}

} // namespace schedules::testing
