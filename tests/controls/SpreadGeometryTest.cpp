#include "controls/grid/SpreadGeometry.h"

#include "controls/DrawnSheet.h"

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

/// Columns of 96 pixels, rows of 20.
std::unique_ptr<Sheet> EvenSheet(int columns, int rows)
{
    auto sheet = std::make_unique<Sheet>();
    sheet->SetSize(columns, rows);
    for (int row = 0; row <= rows; ++row)
        sheet->SetRowHeight(Row(row), 300);
    return sheet;
}

SheetWindow Window(Qt::LayoutDirection direction = Qt::LeftToRight)
{
    return {.size = {400, 100}, .direction = direction};
}

} // namespace

TEST(SpreadGeometry, CellsStandInColumnsAndRows)
{
    const auto sheet = EvenSheet(3, 3);
    const SpreadGeometry geometry(*sheet, Window());
    EXPECT_EQ(geometry.RectOf({0, 0}), QRect(0, 0, 96, 20));
    EXPECT_EQ(geometry.RectOf({2, 3}), QRect(192, 60, 96, 20));
}

TEST(SpreadGeometry, RightToLeftMirrorsColumns)
{
    const auto sheet = EvenSheet(3, 3);
    const SpreadGeometry geometry(*sheet, Window(Qt::RightToLeft));
    EXPECT_EQ(geometry.RectOf({0, 0}), QRect(304, 0, 96, 20));
    EXPECT_EQ(geometry.RectOf({2, 3}), QRect(112, 60, 96, 20));
    EXPECT_EQ(geometry.PlaceAt({399, 0}), (ShownPlace{0, 0}));
    EXPECT_EQ(geometry.PlaceAt({112, 79}), (ShownPlace{2, 3}));
    EXPECT_EQ(geometry.PlaceAt({207, 60}), (ShownPlace{2, 3}));
    EXPECT_EQ(geometry.PlaceAt({208, 60}), (ShownPlace{1, 3}));
}

TEST(SpreadGeometry, ResolutionsOfBothDirectionsCount)
{
    const auto sheet = EvenSheet(3, 3);
    const SpreadGeometry geometry(*sheet, {.size = {800, 400}, .dpiX = 192, .dpiY = 144});
    EXPECT_EQ(geometry.RectOf({1, 1}), QRect(192, 30, 192, 30));
}

TEST(SpreadGeometry, FrozenCountsMakeFourPanes)
{
    const auto sheet = EvenSheet(9, 9);
    sheet->SetFrozenColumns(1);
    sheet->SetFrozenRows(1);
    const SpreadGeometry geometry(*sheet, Window());
    EXPECT_EQ(geometry.Panes(), (std::array{QRect(0, 0, 192, 40), QRect(192, 0, 208, 40), QRect(0, 40, 192, 60),
                                            QRect(192, 40, 208, 60)}));
}

TEST(SpreadGeometry, PanesEndWithTheData)
{
    const auto sheet = EvenSheet(1, 1);
    const SpreadGeometry geometry(*sheet, Window(Qt::RightToLeft));
    EXPECT_EQ(geometry.Panes()[3], QRect(208, 20, 96, 20));
}

TEST(SpreadGeometry, NoPlaceIsBesideTheData)
{
    const auto sheet = EvenSheet(1, 1);
    const SpreadGeometry geometry(*sheet, Window());
    EXPECT_EQ(geometry.PlaceAt({192, 5}), std::nullopt);
    EXPECT_EQ(geometry.PlaceAt({5, 40}), std::nullopt);
    EXPECT_EQ(geometry.PlaceAt({191, 39}), (ShownPlace{1, 1}));
}

TEST(SpreadGeometry, ScrolledCellsAreCutOffByFrozenOnes)
{
    const auto sheet = EvenSheet(9, 9);
    SheetWindow window = Window();
    window.scroll = {50, 30};
    const SpreadGeometry geometry(*sheet, window);
    EXPECT_EQ(geometry.SeenRectOf({1, 2}), QRect(96, 20, 46, 10));
    EXPECT_TRUE(geometry.SeenRectOf({1, 1}).isEmpty());
    EXPECT_EQ(geometry.SeenRectOf({0, 2}), QRect(0, 20, 96, 10));
}

} // namespace schedules::testing
