#include "spread/VisibleCopy.h"

#include "support/SheetDrawing.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// Each cell of 4 columns and 4 rows, headers counted, says where it is: "2/1".
struct VisibleCopyTest : ::testing::Test
{
    VisibleCopyTest()
    {
        for (int column = 0; column <= 3; ++column) {
            for (int row = 0; row <= 3; ++row)
                source.SetText(At(column, row), QStringLiteral("%1/%2").arg(column).arg(row));
        }
        source.SetSize(3, 3);
    }

    std::string Copied()
    {
        CopyVisible(source, target);
        return Drawn(target);
    }

    Sheet source;
    Sheet target;
};

} // namespace

TEST_F(VisibleCopyTest, HeadersBecomeTheFirstColumnAndRow)
{
    EXPECT_EQ(Copied(), " |     |     |     |\n"
                        " | 0/0 | 1/0 | 2/0 | 3/0\n"
                        " | 0/1 | 1/1 | 2/1 | 3/1\n"
                        " | 0/2 | 1/2 | 2/2 | 3/2\n"
                        " | 0/3 | 1/3 | 2/3 | 3/3");
    EXPECT_EQ(DrawnSize(target), "4 columns, 4 rows");
}

TEST_F(VisibleCopyTest, HiddenColumnsAndRowsAreLeftOut)
{
    source.SetHidden(Column(2), true);
    source.SetHidden(Row(1), true);
    EXPECT_EQ(Copied(), " |     |     |\n"
                        " | 0/0 | 1/0 | 3/0\n"
                        " | 0/2 | 1/2 | 3/2\n"
                        " | 0/3 | 1/3 | 3/3");
    EXPECT_EQ(DrawnHidden(target), "none");
}

TEST_F(VisibleCopyTest, HiddenHeadersAreLeftOutToo)
{
    source.SetHidden(Column(0), true);
    source.SetHidden(Row(0), true);
    EXPECT_EQ(Copied(), " |     |     |\n"
                        " | 1/1 | 2/1 | 3/1\n"
                        " | 1/2 | 2/2 | 3/2\n"
                        " | 1/3 | 2/3 | 3/3");
}

TEST_F(VisibleCopyTest, RowsStandInTheOrderInWhichTheyAreShown)
{
    source.SetRowOrder({3, 1, 2});
    source.SetHidden(Row(1), true);
    source.SetHidden(Column(3), true);
    EXPECT_EQ(Copied(), " |     |     |\n"
                        " | 0/0 | 1/0 | 2/0\n"
                        " | 0/3 | 1/3 | 2/3\n"
                        " | 0/2 | 1/2 | 2/2");
    EXPECT_FALSE(target.Rows().Ordered());
}

TEST_F(VisibleCopyTest, CellsOfATableThatRunsTheOtherWayAreCopiedAlike)
{
    CellStore cells;
    for (int line = 0; line <= 2; ++line) {
        for (int slot = 0; slot <= 1; ++slot)
            cells.Place(line, slot, std::to_string(line) + "/" + std::to_string(slot), {});
    }
    source.Reset();
    source.Adopt(std::move(cells), Lines::AreColumns);
    source.SetSize(2, 1);
    EXPECT_EQ(Copied(), " |     |     |\n"
                        " | 0/0 | 1/0 | 2/0\n"
                        " | 0/1 | 1/1 | 2/1");
}

TEST_F(VisibleCopyTest, StylesGoAlong)
{
    const CellStyle style{.type = CellType::CheckBox, .dataType = DataType::CheckBox, .allowEdit = true};
    source.SetStyle(At(2, 1), style);
    CopyVisible(source, target);
    EXPECT_EQ(target.Style(At(3, 2)), style);
    EXPECT_EQ(target.Style(At(3, 3)), CellStyle{});
}

TEST_F(VisibleCopyTest, SizesAndTheFontGoAlong)
{
    source.SetFont(QFont(QStringLiteral("Liberation Sans"), 15));
    source.SetDefaultColumnWidth(900);
    source.SetColumnWidth(Column(0), 100);
    source.SetColumnWidth(Column(2), 200);
    source.SetHidden(Column(1), true);
    source.SetRowHeight(Row(3), 777);
    source.SetRowOrder({3, 1, 2});
    CopyVisible(source, target);
    EXPECT_EQ(DrawnWidths(target), "900 | 100 | 200 | 900");
    EXPECT_EQ(target.RowHeight(Row(2)), 777);
    EXPECT_EQ(target.RowHeight(Row(3)), source.RowHeight(Row(1)));
    EXPECT_EQ(target.Font(), source.Font());
}

TEST_F(VisibleCopyTest, LooksGoAlongWithTheirRowsAndColumns)
{
    source.SetBold({{kAllColumns, Row(3)}, {kAllColumns, Row(3)}}, true);
    source.SetBackColor({{Column(3), kAllRows}, {Column(3), kAllRows}}, 255);
    source.SetBackColor({At(1, 1), At(2, 2)}, 7);
    source.SetHAlign({At(0, 0), At(3, 0)}, HorizontalAlignment::Center);
    source.SetVAlign({At(1, 2), At(3, 3)}, VerticalAlignment::Bottom);
    source.SetWraps(CellRange::Of(Column(3), Row(1)), true);
    source.SetHidden(Column(1), true);
    source.SetRowOrder({1, 3, 2});
    CopyVisible(source, target);
    EXPECT_EQ(DrawnBold(target), "....\n....\n....\n####\n....");
    EXPECT_EQ(DrawnColors(target), "- | - | - | 255\n"
                                   "- | - | - | 255\n"
                                   "- | - | 7 | 255\n"
                                   "- | - | - | 255\n"
                                   "- | - | 7 | 255");
    EXPECT_EQ(DrawnHAlign(target), "LLLL\nLCCC\nLLLL\nLLLL\nLLLL");
    EXPECT_EQ(DrawnVAlign(target), "TTTT\nTTTT\nTTTT\nTTBB\nTTBB");
    EXPECT_TRUE(target.Wraps(At(3, 2)));
}

TEST_F(VisibleCopyTest, WhereSettingsCrossTheLastOneAppliedHolds)
{
    source.SetBackColor({{kAllColumns, kAllRows}, {kAllColumns, kAllRows}}, 1);
    source.SetBackColor({{Column(1), kAllRows}, {Column(1), kAllRows}}, 2);
    source.SetBackColor({{kAllColumns, Row(1)}, {kAllColumns, Row(1)}}, 3);
    source.SetBackColor(CellRange::Of(Column(1), Row(1)), std::nullopt);
    CopyVisible(source, target);
    EXPECT_EQ(DrawnColors(target), "1 | 1 | 2 | 1 | 1\n"
                                   "1 | 1 | 2 | 1 | 1\n"
                                   "3 | 3 | - | 3 | 3\n"
                                   "1 | 1 | 2 | 1 | 1\n"
                                   "1 | 1 | 2 | 1 | 1");
    target.SetBackColor({{kAllColumns, Row(4)}, {kAllColumns, Row(4)}}, 9);
    EXPECT_EQ(target.BackColor(At(2, 4)), 9u) << "a later setting comes on top";
}

TEST_F(VisibleCopyTest, NothingIsFrozenInTheTarget)
{
    source.SetFrozenColumns(1);
    source.SetFrozenRows(1);
    target.SetFrozenColumns(2);
    target.SetFrozenRows(2);
    CopyVisible(source, target);
    EXPECT_EQ(target.FrozenColumns(), 0);
    EXPECT_EQ(target.FrozenRows(), 0);
}

TEST_F(VisibleCopyTest, WhatTheTargetHeldIsGone)
{
    target.SetText(At(1, 1), QStringLiteral("old"));
    target.SetText(At(9, 9), QStringLiteral("old"));
    target.SetHidden(Column(1), true);
    target.SetBold({{kAllColumns, kAllRows}, {kAllColumns, kAllRows}}, true);
    target.SetSize(9, 9);
    const std::string copied = Copied();
    EXPECT_EQ(copied.find("old"), std::string::npos);
    EXPECT_EQ(DrawnHidden(target), "none");
    EXPECT_FALSE(target.Bold(At(1, 1)));
    EXPECT_FALSE(target.Holds(At(9, 9)));
}

TEST_F(VisibleCopyTest, TheSourceStaysAndTheTargetTellsOnce)
{
    const std::string before = Drawn(source);
    const QSignalSpy changed(&target, &Sheet::Changed);
    CopyVisible(source, target);
    EXPECT_EQ(Drawn(source), before);
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(VisibleCopyTest, AnEmptySheetGivesOneEmptyCell)
{
    Sheet empty;
    CopyVisible(empty, target);
    EXPECT_EQ(DrawnSize(target), "1 columns, 1 rows");
    EXPECT_EQ(Drawn(target), " |\n |");
}
