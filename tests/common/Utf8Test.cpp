#include "common/Utf8.h"

#include <gtest/gtest.h>

using namespace schedules;

namespace {

/// The text again, by a conversion that leaves everything as it is.
std::string Again(std::string_view utf8)
{
    return FromUtf8(utf8).toStdString();
}

} // namespace

TEST(FromUtf8, GivesTextsOfAnyScript)
{
    EXPECT_EQ(Again("Насос 水 𝄞 \u00B3"), "Насос 水 𝄞 \u00B3");
    EXPECT_EQ(Again(""), "");
    EXPECT_EQ(Again({}), "");
}

TEST(FromUtf8, AByteOrderMarkBelongsToThePiece)
{
    for (const char* text : {"\uFEFF", "\uFEFFx", "x\uFEFF", "\uFEFF\uFEFF", "\uFEFFНасос 𝄞"})
        EXPECT_EQ(Again(text), text);
}

TEST(FromUtf8, TakesThePieceAlone)
{
    const std::string_view whole = "\uFEFFab\uFEFFcd";
    EXPECT_EQ(Again(whole.substr(3, 2)), "ab");
    EXPECT_EQ(Again(whole.substr(0, 4)), "\uFEFFa");
    EXPECT_EQ(Again(whole.substr(5, 4)), "\uFEFFc");
}
