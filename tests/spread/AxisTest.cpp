#include "spread/Axis.h"

#include <gtest/gtest.h>
#include <string>

using namespace schedules;

namespace {

/// Header and five items of 100 twips.
struct AxisTest : ::testing::Test
{
    AxisTest() { axis.SetCount(5); }

    void Hide(std::initializer_list<int> items)
    {
        for (const int item : items)
            axis.SetHidden(item, true);
    }

    std::string Offsets() const
    {
        std::string offsets;
        for (int position = 0; position <= axis.Count() + 1; ++position)
            offsets += (offsets.empty() ? "" : " ") + std::to_string(axis.Offset(position));
        return offsets;
    }

    Axis axis{100};
};

} // namespace

TEST_F(AxisTest, OffsetsAddUpTheSizes)
{
    EXPECT_EQ(Offsets(), "0 100 200 300 400 500 600");
    axis.SetSize(0, 50);
    axis.SetSize(3, 10);
    EXPECT_EQ(Offsets(), "0 50 150 250 260 360 460");
}

TEST_F(AxisTest, HiddenItemsTakeNoRoomAndKeepTheirSize)
{
    axis.SetSize(2, 30);
    Hide({2});
    EXPECT_EQ(Offsets(), "0 100 200 200 300 400 500");
    EXPECT_EQ(axis.Size(2), 30);
    axis.SetHidden(2, false);
    EXPECT_EQ(Offsets(), "0 100 200 230 330 430 530");
}

TEST_F(AxisTest, TheDefaultSizeHoldsForItemsWithoutOneOfTheirOwn)
{
    axis.SetSize(1, 30);
    axis.SetDefaultSize(200);
    EXPECT_EQ(Offsets(), "0 200 230 430 630 830 1030");
    EXPECT_EQ(axis.DefaultSize(), 200);
}

TEST_F(AxisTest, ZeroIsASizeAndLessIsZero)
{
    axis.SetSize(3, 0);
    axis.SetSize(4, -7);
    EXPECT_EQ(axis.Size(3), 0);
    EXPECT_EQ(axis.Size(4), 0);
    EXPECT_EQ(axis.Size(2), 100) << "items before it stay of default size";
    EXPECT_EQ(Offsets(), "0 100 200 300 300 300 400");
}

TEST_F(AxisTest, SizesAndFlagsBeyondTheCountCountOnceTheAxisGrows)
{
    axis.SetSize(6, 10);
    Hide({7});
    EXPECT_EQ(axis.Offset(6), 600);
    axis.SetCount(7);
    EXPECT_EQ(Offsets(), "0 100 200 300 400 500 600 610 610");
}

TEST_F(AxisTest, ItemsBelowZeroDoNotExist)
{
    axis.SetSize(-1, 10);
    axis.SetHidden(-1, true);
    EXPECT_FALSE(axis.Hidden(-1));
    EXPECT_EQ(axis.Size(-1), 100);
    EXPECT_EQ(Offsets(), "0 100 200 300 400 500 600");
}

TEST_F(AxisTest, ACountBelowZeroIsZero)
{
    axis.SetCount(-3);
    EXPECT_EQ(axis.Count(), 0);
    EXPECT_EQ(Offsets(), "0 100");
}

TEST_F(AxisTest, OffsetsOutsideAreThoseOfTheEnds)
{
    EXPECT_EQ(axis.Offset(-4), 0);
    EXPECT_EQ(axis.Offset(70), 600);
}

TEST_F(AxisTest, FindsThePositionThatCoversAnOffset)
{
    axis.SetSize(2, 10);
    EXPECT_EQ(axis.PositionAt(0), 0);
    EXPECT_EQ(axis.PositionAt(99), 0);
    EXPECT_EQ(axis.PositionAt(100), 1);
    EXPECT_EQ(axis.PositionAt(199), 1);
    EXPECT_EQ(axis.PositionAt(200), 2);
    EXPECT_EQ(axis.PositionAt(209), 2);
    EXPECT_EQ(axis.PositionAt(210), 3);
    EXPECT_EQ(axis.PositionAt(509), 5);
}

TEST_F(AxisTest, FindsTheNearestVisiblePositionOutside)
{
    EXPECT_EQ(axis.PositionAt(-5), 0);
    EXPECT_EQ(axis.PositionAt(600), 5);
    EXPECT_EQ(axis.PositionAt(1'000'000), 5);
    Hide({0, 5});
    EXPECT_EQ(axis.PositionAt(-5), 1);
    EXPECT_EQ(axis.PositionAt(400), 4);
}

TEST_F(AxisTest, AnOffsetNeverFallsOnAHiddenPosition)
{
    Hide({1, 2});
    EXPECT_EQ(axis.PositionAt(99), 0);
    EXPECT_EQ(axis.PositionAt(100), 3);
}

TEST_F(AxisTest, NothingIsFoundWhenNothingIsVisible)
{
    Hide({0, 1, 2, 3, 4, 5});
    EXPECT_EQ(axis.PositionAt(0), -1);
    EXPECT_EQ(axis.VisibleFrom(0, 1), -1);
}

TEST_F(AxisTest, EveryOffsetOfAMixedAxisIsCoveredByTheRightPosition)
{
    axis.SetSize(1, 0);
    axis.SetSize(4, 7);
    Hide({3});
    axis.SetOrder({5, 4, 3, 2, 1});
    for (std::int64_t offset = 0; offset < axis.Offset(6); ++offset) {
        const int position = axis.PositionAt(offset);
        ASSERT_LE(axis.Offset(position), offset);
        ASSERT_GT(axis.Offset(position + 1), offset);
    }
}

TEST_F(AxisTest, AnOrderSaysWhichItemEachPositionShows)
{
    axis.SetSize(3, 10);
    axis.SetOrder({3, 1, 2, 5, 4});
    EXPECT_TRUE(axis.Ordered());
    EXPECT_EQ(axis.ItemAt(0), 0) << "the header stays";
    EXPECT_EQ(axis.ItemAt(1), 3);
    EXPECT_EQ(axis.ItemAt(5), 4);
    EXPECT_EQ(axis.PositionOf(3), 1);
    EXPECT_EQ(axis.PositionOf(4), 5);
    EXPECT_EQ(axis.PositionOf(0), 0);
    EXPECT_EQ(Offsets(), "0 100 110 210 310 410 510");
}

TEST_F(AxisTest, WithoutAnOrderPositionsAreItems)
{
    EXPECT_FALSE(axis.Ordered());
    EXPECT_EQ(axis.ItemAt(4), 4);
    EXPECT_EQ(axis.PositionOf(4), 4);
    axis.SetOrder({5, 4, 3, 2, 1});
    axis.SetOrder({});
    EXPECT_FALSE(axis.Ordered());
    EXPECT_EQ(axis.ItemAt(1), 1);
}

TEST_F(AxisTest, AnotherCountEndsTheOrder)
{
    axis.SetOrder({5, 4, 3, 2, 1});
    axis.SetCount(6);
    EXPECT_FALSE(axis.Ordered());
    EXPECT_EQ(axis.ItemAt(1), 1);
}

TEST_F(AxisTest, GoesToTheNextVisiblePositionInEitherDirection)
{
    Hide({2, 3});
    axis.SetOrder({2, 1, 3, 4, 5});
    EXPECT_EQ(axis.VisibleFrom(1, 1), 2) << "position 1 shows the hidden item 2";
    EXPECT_EQ(axis.VisibleFrom(3, 1), 4);
    EXPECT_EQ(axis.VisibleFrom(3, -1), 2);
    EXPECT_EQ(axis.VisibleFrom(4, 1), 4) << "the start itself counts";
    EXPECT_EQ(axis.VisibleFrom(6, 1), -1);
    EXPECT_EQ(axis.VisibleFrom(-1, -1), -1);
}

TEST_F(AxisTest, CountsTheVisiblePositionsBeforeOne)
{
    Hide({0, 2});
    axis.SetOrder({5, 2, 1, 4, 3});
    EXPECT_EQ(axis.VisibleBefore(0), 0);
    EXPECT_EQ(axis.VisibleBefore(1), 0);
    EXPECT_EQ(axis.VisibleBefore(2), 1);
    EXPECT_EQ(axis.VisibleBefore(3), 1);
    EXPECT_EQ(axis.VisibleBefore(6), 4);
    axis.SetHidden(9, true);
    EXPECT_EQ(axis.VisibleBefore(6), 4) << "what lies beyond the count is not there";
}

TEST_F(AxisTest, ResetBringsBackSizesFlagsAndOrderButNotTheCount)
{
    axis.SetSize(1, 7);
    Hide({2});
    axis.SetOrder({5, 4, 3, 2, 1});
    axis.Reset();
    EXPECT_EQ(axis.Count(), 5);
    EXPECT_FALSE(axis.Ordered());
    EXPECT_FALSE(axis.Hidden(2));
    EXPECT_EQ(Offsets(), "0 100 200 300 400 500 600");
}

TEST_F(AxisTest, OffsetsPass32Bits)
{
    axis.SetDefaultSize(1'000'000);
    axis.SetCount(10'000);
    EXPECT_EQ(axis.Offset(10'000), 10'000'000'000);
    EXPECT_EQ(axis.PositionAt(9'999'999'999), 9'999);
}
