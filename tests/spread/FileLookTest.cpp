#include "spread/FileLook.h"

#include <gtest/gtest.h>

using namespace schedules;

TEST(FileLook, TextsOfDigitsReadAsNumbers)
{
    for (const char* text : {"12", " 12.5 ", "-1,234.5", "+7", "007"})
        EXPECT_TRUE(ReadsAsNumber(text)) << text;
    for (const char* text : {"", "-", ".", "12 m", "1e5", "1-2", "x"})
        EXPECT_FALSE(ReadsAsNumber(text)) << text;
}

TEST(FileLook, DataStandAtTheFarEdgeWhenTheyAreNumbers)
{
    constexpr CellStyle kText;
    constexpr CellStyle kNumber{.dataType = DataType::Double};
    EXPECT_EQ(EdgeOf(HorizontalAlignment::Data, kText, "12"), CellEdge::Far);
    EXPECT_EQ(EdgeOf(HorizontalAlignment::Data, kText, "spare"), CellEdge::Near);
    EXPECT_EQ(EdgeOf(HorizontalAlignment::Data, kNumber, "none"), CellEdge::Far);
    EXPECT_EQ(EdgeOf(HorizontalAlignment::Left, kNumber, "12"), CellEdge::Near);
    EXPECT_EQ(EdgeOf(HorizontalAlignment::Center, kNumber, "12"), CellEdge::Center);
}

TEST(FileLook, CheckBoxesStandInTheMiddle)
{
    constexpr CellStyle kBox{.type = CellType::CheckBox, .dataType = DataType::CheckBox};
    EXPECT_EQ(EdgeOf(HorizontalAlignment::Left, kBox, "1"), CellEdge::Center);
}

TEST(FileLook, ColorsAreThoseOfTheirNumbers)
{
    EXPECT_EQ(FixedColor(0x123456), 0x123456u);
    EXPECT_EQ(FixedColor(0x8000000F), 0xF0F0F0u) << "the face of buttons";
    EXPECT_EQ(FixedColor(0x80000002), 0xD1B499u) << "red is the lowest byte";
    EXPECT_EQ(FixedColor(0x80000063), 0xFFFFFFu) << "no such system color";
}

TEST(FileLook, TextIsWhiteWhereThatIsEasierToRead)
{
    EXPECT_TRUE(NeedsWhiteText(0x000000));
    EXPECT_TRUE(NeedsWhiteText(0x800000)) << "dark blue";
    EXPECT_FALSE(NeedsWhiteText(0xFFFFFF));
    EXPECT_FALSE(NeedsWhiteText(0x00FFFF)) << "yellow";
}
