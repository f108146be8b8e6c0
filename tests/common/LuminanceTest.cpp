#include "common/Luminance.h"

#include <gtest/gtest.h>

namespace schedules {

TEST(Luminance, CountsGreenMostAndBlueLeast)
{
    EXPECT_DOUBLE_EQ(Luminance(0, 0, 0), 0);
    EXPECT_DOUBLE_EQ(Luminance(1, 1, 1), 1);
    EXPECT_DOUBLE_EQ(Luminance(1, 0, 0), 0.2126);
    EXPECT_DOUBLE_EQ(Luminance(0, 1, 0), 0.7152);
    EXPECT_DOUBLE_EQ(Luminance(0, 0, 1), 0.0722);
}

TEST(Luminance, FollowsTheEyeBetweenBlackAndWhite)
{
    EXPECT_NEAR(Luminance(0.5, 0.5, 0.5), 0.2140, 0.0001);
    EXPECT_NEAR(Luminance(0.02, 0.02, 0.02), 0.02 / 12.92, 1e-9);
}

TEST(Contrast, IsFromOneToTwentyOne)
{
    EXPECT_DOUBLE_EQ(Contrast(0, 1), 21);
    EXPECT_DOUBLE_EQ(Contrast(1, 0), 21);
    EXPECT_DOUBLE_EQ(Contrast(0.3, 0.3), 1);
}

TEST(DarkGround, IsWhereWhiteTextIsEasierToReadThanBlack)
{
    EXPECT_TRUE(IsDark(0));
    EXPECT_TRUE(IsDark(0.179));
    EXPECT_FALSE(IsDark(0.18));
    EXPECT_FALSE(IsDark(1));
}

} // namespace schedules
