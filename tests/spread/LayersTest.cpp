#include "spread/Layers.h"

#include <gtest/gtest.h>
#include <string>

using namespace schedules;

namespace {

constexpr Cell At(int column, int row)
{
    return {Column(column), Row(row)};
}

constexpr CellRange kEverything{{kAllColumns, kAllRows}, {kAllColumns, kAllRows}};

constexpr CellRange Rows(int first, int last)
{
    return {{kAllColumns, Row(first)}, {kAllColumns, Row(last)}};
}

constexpr CellRange Columns(int first, int last)
{
    return {{Column(first), kAllRows}, {Column(last), kAllRows}};
}

struct LayersTest : ::testing::Test
{
    /// The values of columns 0 to 3, rows 0 to 2.
    std::string Drawn() const
    {
        std::string drawn;
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 4; ++column)
                drawn += static_cast<char>('0' + layers.At(At(column, row)));
            drawn += row < 2 ? " " : "";
        }
        return drawn;
    }

    Layers<int> layers;
};

} // namespace

TEST_F(LayersTest, StartWithTheDefaultValue)
{
    EXPECT_EQ(Drawn(), "0000 0000 0000");
    EXPECT_TRUE(layers.Uniform());
}

TEST_F(LayersTest, SetSingleCells)
{
    layers.Set(CellRange::Of(Column(2), Row(1)), 7);
    EXPECT_EQ(Drawn(), "0000 0070 0000");
    EXPECT_FALSE(layers.Uniform());
}

TEST_F(LayersTest, SetBlocks)
{
    layers.Set({At(1, 0), At(2, 1)}, 7);
    EXPECT_EQ(Drawn(), "0770 0770 0000");
}

TEST_F(LayersTest, SetWholeRowsWithTheirHeaders)
{
    layers.Set(Rows(1, 1), 5);
    EXPECT_EQ(Drawn(), "0000 5555 0000");
    layers.Set(Rows(1, 2), 6);
    EXPECT_EQ(Drawn(), "0000 6666 6666");
}

TEST_F(LayersTest, SetWholeColumnsWithTheirHeaders)
{
    layers.Set(Columns(3, 3), 5);
    EXPECT_EQ(Drawn(), "0005 0005 0005");
    layers.Set(Columns(0, 1), 6);
    EXPECT_EQ(Drawn(), "6605 6605 6605");
}

TEST_F(LayersTest, SettingEverythingEndsAllThatWasSetBefore)
{
    layers.Set(Rows(1, 1), 5);
    layers.Set(Columns(1, 1), 6);
    layers.Set(CellRange::Of(Column(0), Row(0)), 7);
    layers.Set(kEverything, 1);
    EXPECT_EQ(Drawn(), "1111 1111 1111");
    EXPECT_TRUE(layers.Uniform());
}

TEST_F(LayersTest, WhereRowAndColumnCrossTheLastOneAppliedHolds)
{
    layers.Set(Rows(1, 1), 5);
    layers.Set(Columns(1, 1), 6);
    EXPECT_EQ(Drawn(), "0600 5655 0600");
    layers.Set(Rows(1, 1), 7);
    EXPECT_EQ(Drawn(), "0600 7777 0600");
}

TEST_F(LayersTest, BlocksTakeTurnsWithRowsAndColumns)
{
    layers.Set({At(0, 0), At(1, 1)}, 3);
    layers.Set(Rows(1, 1), 5);
    EXPECT_EQ(Drawn(), "3300 5555 0000");
    layers.Set({At(0, 0), At(1, 1)}, 4);
    EXPECT_EQ(Drawn(), "4400 4455 0000");
    layers.Set({At(1, 1), At(2, 2)}, 8);
    EXPECT_EQ(Drawn(), "4400 4885 0880");
}

TEST_F(LayersTest, TheDefaultValueCanBeSetLikeAnyOther)
{
    layers.Set(kEverything, 2);
    layers.Set(Columns(1, 1), 0);
    EXPECT_EQ(Drawn(), "2022 2022 2022");
}

TEST_F(LayersTest, ClearBringsBackTheDefault)
{
    layers.Set(kEverything, 2);
    layers.Set(Columns(1, 1), 1);
    layers.Clear();
    EXPECT_EQ(Drawn(), "0000 0000 0000");
    layers.Set(Rows(0, 0), 3);
    EXPECT_EQ(Drawn(), "3333 0000 0000");
}
