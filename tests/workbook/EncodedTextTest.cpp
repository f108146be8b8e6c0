#include "workbook/EncodedText.h"

#include <gtest/gtest.h>

using namespace schedules;

TEST(EncodedText, AsciiAndLatinAreOneByteACharacter)
{
    EXPECT_FALSE(Encoded("P-101").wide);
    EXPECT_EQ(Encoded("P-101").bytes, "P-101");
    EXPECT_FALSE(Encoded("m³ ÿ").wide);
    EXPECT_EQ(Encoded("m³ ÿ").bytes, "m\xB3 \xFF");
}

TEST(EncodedText, OtherTextsAreTwoBytesAUnit)
{
    EXPECT_TRUE(Encoded("aя").wide);
    EXPECT_EQ(Encoded("aя").bytes, std::string("a\0\x4F\x04", 4));
    EXPECT_EQ(Encoded("𝄞").Units(), 2u);
}

TEST(EncodedText, AByteOrderMarkAtTheStartBelongsToTheText)
{
    EXPECT_EQ(Encoded("\uFEFFa").bytes, std::string("\xFF\xFE"
                                                    "a\0",
                                                    4));
}
