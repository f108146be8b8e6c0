#include "spread/LearnedPairs.h"

#include <gtest/gtest.h>

using namespace schedules;

TEST(LearnedPairs, LearnEachPairOnce)
{
    LearnedPairs<int> pairs(-1);
    int learned = 0;
    const auto learn = [&](char32_t before, char32_t character) {
        ++learned;
        return static_cast<int>(before * 1000 + character);
    };
    EXPECT_EQ(pairs.Of(U'A', U'V', learn), 65086);
    EXPECT_EQ(pairs.Of(U'A', U'V', learn), 65086);
    EXPECT_EQ(pairs.Of(U'V', U'A', learn), 86065);
    EXPECT_EQ(learned, 2);
}

TEST(LearnedPairs, MayAskForOthersWhileTheyLearn)
{
    LearnedPairs<int> pairs(-1);
    const auto one = [](char32_t, char32_t) { return 1; };
    EXPECT_EQ(pairs.Of(1, 2, [&](char32_t, char32_t) { return pairs.Of(0, 1, one) + 1; }), 2);
    EXPECT_EQ(pairs.Of(1, 2, one), 2);
}

TEST(LearnedPairs, AreKnownInTheirRow)
{
    LearnedPairs<float> pairs(-1);
    pairs.Of(U'~', U'\x7F', [](char32_t, char32_t) { return 7.F; });
    EXPECT_EQ(pairs.Row(U'~')[0x7F], 7.F);
    EXPECT_EQ(pairs.Row(U'~')[0x7E], -1.F);
}

TEST(LearnedPairs, AreOfAsciiCharacters)
{
    EXPECT_TRUE(LearnedPairs<int>::Covers(0x7F));
    EXPECT_FALSE(LearnedPairs<int>::Covers(0x80));
}
