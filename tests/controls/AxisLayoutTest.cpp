#include "controls/grid/AxisLayout.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <sstream>

namespace schedules::testing {

namespace {

/// Items of 20 pixels at 96 dots an inch.
Axis AxisOf(int count)
{
    Axis axis(300);
    axis.SetCount(count);
    return axis;
}

/// Each track as position, its item where that is another one, and its pixels.
std::string Drawn(const AxisLayout& layout)
{
    std::ostringstream drawing;
    for (const Track& track : layout.Tracks()) {
        drawing << track.position;
        if (track.item != track.position)
            drawing << '(' << track.item << ')';
        drawing << ':' << track.span.start << '-' << track.span.end << ' ';
    }
    return drawing.str();
}

} // namespace

TEST(AxisLayout, ShowsWhatFitsIntoTheWindow)
{
    EXPECT_EQ(Drawn({AxisOf(2), {.extent = 200}}), "0:0-20 1:20-40 2:40-60 ");
    EXPECT_EQ(Drawn({AxisOf(9), {.extent = 70}}), "0:0-20 1:20-40 2:40-60 3:60-80 ");
}

TEST(AxisLayout, KeepsTheHeaderAndScrollsTheRest)
{
    EXPECT_EQ(Drawn({AxisOf(9), {.extent = 80, .scroll = 30}}), "0:0-20 2:10-30 3:30-50 4:50-70 5:70-90 ");
}

TEST(AxisLayout, KeepsFrozenItemsToo)
{
    EXPECT_EQ(Drawn({AxisOf(9), {.extent = 120, .frozen = 2, .scroll = 40}}),
              "0:0-20 1:20-40 2:40-60 5:60-80 6:80-100 7:100-120 ");
}

TEST(AxisLayout, LeavesHiddenItemsOut)
{
    Axis axis = AxisOf(6);
    for (const int hidden : {0, 2, 3})
        axis.SetHidden(hidden, true);
    EXPECT_EQ(Drawn({axis, {.extent = 200, .frozen = 2}}), "1:0-20 4:20-40 5:40-60 6:60-80 ");
}

TEST(AxisLayout, ShowsItemsInTheirOrder)
{
    Axis axis = AxisOf(3);
    axis.SetOrder({3, 1, 2});
    axis.SetSize(3, 600);
    EXPECT_EQ(Drawn({axis, {.extent = 200}}), "0:0-20 1(3):20-60 2(1):60-80 3(2):80-100 ");
}

TEST(AxisLayout, ShowsNothingOfAnAxisThatIsWhollyHidden)
{
    Axis axis = AxisOf(1);
    axis.SetHidden(0, true);
    axis.SetHidden(1, true);
    const AxisLayout layout(axis, {.extent = 100});
    EXPECT_EQ(Drawn(layout), "");
    EXPECT_EQ(layout.PositionAt(0), -1);
    EXPECT_EQ(layout.NearestTo(50), -1);
}

TEST(AxisLayout, FreezesMoreItemsThanThereAre)
{
    EXPECT_EQ(Drawn({AxisOf(2), {.extent = 200, .frozen = 9}}), "0:0-20 1:20-40 2:40-60 ");
}

TEST(AxisLayout, LetsFrozenItemsScrollWhereTheyWouldFillTheWindow)
{
    const Axis axis = AxisOf(9);
    EXPECT_EQ(AxisLayout(axis, {.extent = 108, .frozen = 2}).FixedCount(), 3);
    EXPECT_EQ(AxisLayout(axis, {.extent = 107, .frozen = 2}).FixedCount(), 1);
    EXPECT_EQ(Drawn({axis, {.extent = 80, .frozen = 8, .scroll = 120}}), "0:0-20 7:20-40 8:40-60 9:60-80 ");
}

TEST(AxisLayout, LetsEvenTheHeaderScrollWhereItWouldFillTheWindow)
{
    Axis axis = AxisOf(3);
    axis.SetSize(0, 3000);
    EXPECT_EQ(Drawn({axis, {.extent = 60, .scroll = 1000}}), "1:0-20 2:20-40 3:40-60 ");
}

TEST(AxisLayout, KeepsTheScrollValueWithinItsLimits)
{
    const Axis axis = AxisOf(9);
    EXPECT_EQ(AxisLayout(axis, {.extent = 80, .scroll = 500}).Scroll(), 120);
    EXPECT_EQ(AxisLayout(axis, {.extent = 80, .scroll = -5}).Scroll(), 0);
    EXPECT_EQ(AxisLayout(axis, {.extent = 500}).MaximumScroll(), 0);
}

TEST(AxisLayout, NeighboursShareTheirEdgesAtAnyResolution)
{
    Axis axis(100);
    axis.SetCount(500);
    for (const double dpi : {72.0, 96.0, 101.0, 110.5, 120.0, 144.0, 192.0, 600.0}) {
        const AxisLayout layout(axis, {.dpi = dpi, .extent = 100'000});
        for (int position = 0; position < 500; ++position)
            ASSERT_EQ(layout.SpanOf(position).end, layout.SpanOf(position + 1).start);
        EXPECT_EQ(layout.SpanOf(500).end, layout.Total());
    }
}

TEST(AxisLayout, EveryPixelBelongsToTheItemThatCoversIt)
{
    Axis axis(137);
    axis.SetCount(60);
    axis.SetHidden(7, true);
    for (const double dpi : {72.0, 96.0, 101.0, 110.5, 144.0, 200.0}) {
        const AxisLayout layout(axis, {.dpi = dpi, .extent = 300, .frozen = 3, .scroll = 101});
        for (const Track& track : layout.Tracks()) {
            const Span seen = layout.SeenSpanOf(track.position);
            for (int pixel = seen.start; pixel < seen.end; ++pixel)
                ASSERT_EQ(layout.PositionAt(pixel), track.position) << dpi << ' ' << pixel;
        }
    }
}

TEST(AxisLayout, NothingIsBesideTheItems)
{
    const Axis axis = AxisOf(2);
    const AxisLayout layout(axis, {.extent = 200});
    EXPECT_EQ(layout.PositionAt(-1), -1);
    EXPECT_EQ(layout.PositionAt(59), 2);
    EXPECT_EQ(layout.PositionAt(60), -1);
    EXPECT_EQ(layout.NearestTo(-30), 0);
    EXPECT_EQ(layout.NearestTo(180), 2);
}

TEST(AxisLayout, WhatIsBeneathTheFrozenPartIsNotSeen)
{
    const Axis axis = AxisOf(9);
    const AxisLayout layout(axis, {.extent = 120, .frozen = 1, .scroll = 30});
    EXPECT_EQ(layout.SpanOf(2), (Span{10, 30}));
    EXPECT_EQ(layout.SeenSpanOf(2).Length(), 0);
    EXPECT_EQ(layout.SpanOf(3), (Span{30, 50}));
    EXPECT_EQ(layout.SeenSpanOf(3), (Span{40, 50}));
    EXPECT_EQ(layout.SeenSpanOf(9).Length(), 0);
}

TEST(AxisLayout, ScrollsAsLittleAsShowsAnItem)
{
    Axis axis = AxisOf(20);
    axis.SetSize(12, 3000);
    const AxisLayout layout(axis, {.extent = 120, .frozen = 1, .scroll = 60});
    EXPECT_EQ(layout.ScrollToShow(0), 60);
    EXPECT_EQ(layout.ScrollToShow(1), 60);
    EXPECT_EQ(layout.ScrollToShow(6), 60);
    EXPECT_EQ(layout.ScrollToShow(3), 20);
    EXPECT_EQ(layout.ScrollToShow(10), 100);
    EXPECT_EQ(layout.ScrollToShow(12), 200) << "one that is too large shows its start";
}

TEST(AxisLayout, MillionsOfRowsFitIntoPixels)
{
    const Axis axis = AxisOf(5'000'000);
    const AxisLayout layout(axis, {.extent = 100, .scroll = 100'000'000});
    EXPECT_EQ(layout.Total(), 100'000'020);
    EXPECT_EQ(layout.Tracks().back().position, 5'000'000);
    EXPECT_EQ(layout.PositionAt(99), 5'000'000);
}

TEST(AxisLayout, SkipsManyHiddenItemsAtOnce)
{
    Axis axis = AxisOf(1000);
    for (int item = 1; item < 1000; ++item)
        axis.SetHidden(item, true);
    EXPECT_EQ(Drawn({axis, {.extent = 100}}), "0:0-20 1000:20-40 ");
}

} // namespace schedules::testing
