#include "workbook/SheetName.h"

#include <gtest/gtest.h>

using namespace schedules;

namespace {

std::string Legal(const char* name)
{
    return LegalSheetName(QString::fromUtf8(name)).toStdString();
}

} // namespace

TEST(SheetName, ALegalNameStays)
{
    EXPECT_EQ(Legal("Schedule"), "Schedule");
    EXPECT_EQ(Legal("Насосы (север)"), "Насосы (север)");
    EXPECT_EQ(Legal("it's"), "it's");
}

TEST(SheetName, ForbiddenCharactersAreReplaced)
{
    EXPECT_EQ(Legal("a[b]c:d*e?f/g\\h"), "a_b_c_d_e_f_g_h");
    EXPECT_EQ(Legal("a\nb"), "a_b");
}

TEST(SheetName, HasAtMostThirtyOneCharacters)
{
    EXPECT_EQ(Legal("1234567890123456789012345678901"), "1234567890123456789012345678901");
    EXPECT_EQ(Legal("12345678901234567890123456789012"), "1234567890123456789012345678901");
}

TEST(SheetName, NoCharacterIsCutInHalf)
{
    EXPECT_EQ(Legal("123456789012345678901234567890𝄞"), "123456789012345678901234567890");
}

TEST(SheetName, HasNoApostropheAndNoBlankAtItsEnds)
{
    EXPECT_EQ(Legal(" 'quoted' "), "quoted");
    EXPECT_EQ(Legal("123456789012345678901234567890'x"), "123456789012345678901234567890");
}

TEST(SheetName, IsNeverEmpty)
{
    EXPECT_EQ(Legal(""), "Sheet1");
    EXPECT_EQ(Legal("  "), "Sheet1");
    EXPECT_EQ(Legal("''"), "Sheet1");
}
