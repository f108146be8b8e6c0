#include "spread/FileLook.h"

#include <gtest/gtest.h>

using namespace schedules;

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
