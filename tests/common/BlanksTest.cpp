#include "common/Blanks.h"

#include <gtest/gtest.h>

using namespace schedules;

namespace {

std::string Trimmed(const char* text)
{
    return TrimmedOfBlanks(QString::fromUtf8(text)).toStdString();
}

} // namespace

TEST(TrimmedOfBlanks, TakesTheBlanksAtBothEnds)
{
    EXPECT_EQ(Trimmed("Pumps"), "Pumps");
    EXPECT_EQ(Trimmed("  Pumps"), "Pumps");
    EXPECT_EQ(Trimmed("Pumps "), "Pumps");
    EXPECT_EQ(Trimmed("   Pumps  "), "Pumps");
    EXPECT_EQ(Trimmed(" Насос "), "Насос");
}

TEST(TrimmedOfBlanks, LeavesThoseInside)
{
    EXPECT_EQ(Trimmed(" Duty  note "), "Duty  note");
}

TEST(TrimmedOfBlanks, LeavesNothingOfBlanksAlone)
{
    EXPECT_EQ(Trimmed(""), "");
    EXPECT_EQ(Trimmed(" "), "");
    EXPECT_EQ(Trimmed("    "), "");
}

TEST(TrimmedOfBlanks, OtherWhiteSpaceIsPartOfTheText)
{
    for (const char* space : {"\t", "\n", "\r", "\v", "\u00A0", "\u2003", "\u3000", "\u200B"}) {
        EXPECT_EQ(Trimmed(space), space);
        EXPECT_EQ(Trimmed((std::string(" ") + space + " ").c_str()), space);
    }
}

TEST(WhiteSpaceAlone, IsBlanksTabsAndLineEnds)
{
    for (const char* text : {"", " ", "\t", "\n", "\r", " \t\r\n "}) {
        EXPECT_TRUE(IsWhiteSpaceAlone(text));
        EXPECT_TRUE(IsWhiteSpaceAlone(QString::fromUtf8(text)));
    }
}

TEST(WhiteSpaceAlone, IsNoOtherSpace)
{
    for (const char* text : {"-", " x ", "\v", "\f", "\u0085", "\u00A0", "\u2003", "\u2028", "\u3000", " \u00A0 "}) {
        EXPECT_FALSE(IsWhiteSpaceAlone(text)) << text;
        EXPECT_FALSE(IsWhiteSpaceAlone(QString::fromUtf8(text))) << text;
    }
}
