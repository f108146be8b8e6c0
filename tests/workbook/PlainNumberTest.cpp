#include "workbook/PlainNumber.h"

#include <gtest/gtest.h>

using namespace schedules;

TEST(PlainNumber, DigitsWithASignAndDecimalsAreOne)
{
    EXPECT_EQ(PlainNumberIn("0"), (PlainNumber{0, 0}));
    EXPECT_EQ(PlainNumberIn("12"), (PlainNumber{12, 0}));
    EXPECT_EQ(PlainNumberIn("-7"), (PlainNumber{-7, 0}));
    EXPECT_EQ(PlainNumberIn("12.50"), (PlainNumber{12.5, 2}));
    EXPECT_EQ(PlainNumberIn("0.125"), (PlainNumber{0.125, 3}));
    EXPECT_EQ(PlainNumberIn("-0.5"), (PlainNumber{-0.5, 1}));
    EXPECT_EQ(PlainNumberIn("123456789012345"), (PlainNumber{123456789012345, 0}));
    EXPECT_EQ(PlainNumberIn("-1.23456789012345"), (PlainNumber{-1.23456789012345, 14}));
}

TEST(PlainNumber, ATextWithACommaIsNone)
{
    for (const char* text : {"12,5", "0,125", "1234,567", "1,2345", "1,234", "1,234.5", "-12,5"})
        EXPECT_EQ(PlainNumberIn(text), std::nullopt) << text;
}

TEST(PlainNumber, OtherTextsAreNone)
{
    for (const char* text : {"",
                             "-",
                             ".",
                             "007",
                             "00",
                             "-01",
                             "+5",
                             "5.",
                             ".5",
                             "-.5",
                             "1.2.3",
                             "1,234,567",
                             "1e5",
                             "12 ",
                             " 12",
                             "12m",
                             "0x1F",
                             "nan",
                             "inf",
                             "-0",
                             "-0.00",
                             "1234567890123456",
                             "1.234567890123456",
                             "٣",
                             "--1",
                             "1-",
                             "12\n"})
        EXPECT_EQ(PlainNumberIn(text), std::nullopt) << text;
}
