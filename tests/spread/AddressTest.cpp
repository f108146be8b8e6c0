#include "spread/Address.h"

#include <gtest/gtest.h>
#include <type_traits>

using namespace schedules;

namespace {

constexpr Cell At(int column, int row)
{
    return {Column(column), Row(row)};
}

} // namespace

TEST(Address, ColumnsAndRowsDoNotMix)
{
    EXPECT_FALSE((std::is_convertible_v<Row, Column>));
    EXPECT_FALSE((std::is_convertible_v<int, Column>));
    EXPECT_FALSE((std::is_constructible_v<Column, Row>));
}

TEST(Address, ABlockHoldsBothItsCorners)
{
    constexpr CellRange block{At(1, 2), At(3, 4)};
    EXPECT_TRUE(block.Contains(At(1, 2)));
    EXPECT_TRUE(block.Contains(At(3, 4)));
    EXPECT_TRUE(block.Contains(At(2, 3)));
    EXPECT_FALSE(block.Contains(At(0, 2)));
    EXPECT_FALSE(block.Contains(At(4, 2)));
    EXPECT_FALSE(block.Contains(At(1, 1)));
    EXPECT_FALSE(block.Contains(At(1, 5)));
}

TEST(Address, MinusOneStandsForAll)
{
    constexpr CellRange row{{kAllColumns, Row(2)}, {kAllColumns, Row(2)}};
    EXPECT_TRUE(row.Contains(At(0, 2)));
    EXPECT_TRUE(row.Contains(At(900, 2)));
    EXPECT_FALSE(row.Contains(At(0, 1)));
    constexpr CellRange column{{Column(2), kAllRows}, {Column(2), kAllRows}};
    EXPECT_TRUE(column.Contains(At(2, 0)));
    EXPECT_TRUE(column.Contains(At(2, 900)));
    EXPECT_FALSE(column.Contains(At(1, 0)));
}
