#include "controls/cells/CellContent.h"

#include "controls/DrawnSheet.h"

#include <gtest/gtest.h>

namespace schedules::testing {

TEST(CellContent, StandsWhereItsDataSay)
{
    const auto sheet = DrawnSheet(QStringLiteral(" | a  | b   | c\n"
                                                 "1| 12 | n/a | [x]"));
    sheet->SetHAlign(Block(1, 1, 3, 1), HorizontalAlignment::Data);
    EXPECT_EQ(ContentOf(*sheet, At(1, 1)).edge, CellEdge::Far);
    EXPECT_EQ(ContentOf(*sheet, At(2, 1)).edge, CellEdge::Near);
    EXPECT_EQ(ContentOf(*sheet, At(3, 1)).edge, CellEdge::Center);
}

TEST(CellContent, LineBreaksAreBlanksUnlessTheCellWraps)
{
    Sheet sheet;
    sheet.SetSize(1, 1);
    sheet.SetText(At(1, 1), QStringLiteral("Flow\n(m3/h)\there"));
    EXPECT_EQ(ContentOf(sheet, At(1, 1)).text, QStringLiteral("Flow (m3/h) here"));
    sheet.SetWraps(Block(1, 1, 1, 1), true);
    EXPECT_EQ(ContentOf(sheet, At(1, 1)).text, QStringLiteral("Flow\n(m3/h)\there"));
}

TEST(CellContent, ACheckBoxIsTickedWhenItReadsOne)
{
    const auto sheet = DrawnSheet(QStringLiteral(" | a   | b   | c\n"
                                                 "1| [x] | [ ] | 1"));
    EXPECT_TRUE(ContentOf(*sheet, At(1, 1)).Ticked());
    EXPECT_FALSE(ContentOf(*sheet, At(2, 1)).Ticked());
    EXPECT_TRUE(ContentOf(*sheet, At(2, 1)).Kind().Toggles());
    EXPECT_FALSE(ContentOf(*sheet, At(3, 1)).Ticked());
}

} // namespace schedules::testing
