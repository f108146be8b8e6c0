#include "host/schedule/NumberText.h"

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

/// "value, decimals", or "none".
std::string Read(const char* text)
{
    const auto number = NumberIn(QString::fromUtf8(text));
    return number ? QStringLiteral("%1, %2").arg(number->value, 0, 'g', 17).arg(number->decimals).toStdString()
                  : "none";
}

std::string WrittenAs(const char* format, double number)
{
    const auto known = NumberFormatOf(format);
    return known ? Written(number, *known).toStdString() : "none";
}

} // namespace

TEST(NumberIn, TellsTheNumberAndThePlaceOfItsLastDigit)
{
    EXPECT_EQ(Read("412"), "412, 0");
    EXPECT_EQ(Read("412.50"), "412.5, 2");
    EXPECT_EQ(Read("-0.25"), "-0.25, 2");
    EXPECT_EQ(Read("+7."), "7, 0");
    EXPECT_EQ(Read(" 12.5 "), "12.5, 1");
    EXPECT_EQ(Read("2.5E-3"), "0.0025000000000000001, 4");
    EXPECT_EQ(Read("1.5e+06"), "1500000, -5");
}

TEST(NumberIn, OtherTextsAreNone)
{
    for (const char* text : {"", " ", "abc", "1,814", "1,5", "12 5", "nan", "inf", "-", ".", "e5", "1e", "0x10",
                             "1e999", "١٢", "12 m", "10-20", "1..2"})
        EXPECT_EQ(Read(text), "none") << text;
}

TEST(NumberFormat, WritesTheDecimalsOfTheFormat)
{
    EXPECT_EQ(WrittenAs("0", 412.4), "412");
    EXPECT_EQ(WrittenAs("0.0", 412), "412.0");
    EXPECT_EQ(WrittenAs("0.00", -1.5), "-1.50");
    EXPECT_EQ(WrittenAs("0.000", 0.1234), "0.123");
    EXPECT_EQ(WrittenAs("0.0000", 0.00017), "0.0002");
}

TEST(NumberFormat, GroupsThousands)
{
    EXPECT_EQ(WrittenAs("#,##0", 999), "999");
    EXPECT_EQ(WrittenAs("#,##0", 1000), "1,000");
    EXPECT_EQ(WrittenAs("#,##0", -999), "-999");
    EXPECT_EQ(WrittenAs("#,##0", -123456), "-123,456");
    EXPECT_EQ(WrittenAs("#,##0.0", 1814), "1,814.0");
    EXPECT_EQ(WrittenAs("#,##0.00", 1234567.891), "1,234,567.89");
}

TEST(NumberFormat, WritesExponents)
{
    EXPECT_EQ(WrittenAs("0.00E+00", 0.0000123), "1.23E-05");
    EXPECT_EQ(WrittenAs("0E+00", 1500), "2E+03");
}

TEST(NumberFormat, AHalfGoesAwayFromZero)
{
    EXPECT_EQ(WrittenAs("0", 2.5), "3");
    EXPECT_EQ(WrittenAs("0", -2.5), "-3");
    EXPECT_EQ(WrittenAs("0.0", 0.15), "0.2") << "a little less as a double";
    EXPECT_EQ(WrittenAs("0.00", 1.005), "1.01");
    EXPECT_EQ(WrittenAs("0.0", 0.1499999), "0.1");
}

TEST(NumberFormat, ZeroHasNoSign)
{
    EXPECT_EQ(WrittenAs("0.0", -0.04), "0.0");
    EXPECT_EQ(WrittenAs("0", -0.0), "0");
    EXPECT_EQ(WrittenAs("0.0", -0.06), "-0.1");
}

TEST(NumberFormat, LargeNumbersKeepTheirDigits)
{
    EXPECT_EQ(WrittenAs("0", 1234567890123456), "1234567890123456");
}

TEST(NumberFormat, OtherTextsAreNone)
{
    for (const char* format : {"", "0.", "#", "#,##0.#", "General", " 0", "0,0", "0%"})
        EXPECT_EQ(WrittenAs(format, 1), "none") << format;
}

TEST(WithoutGrouping, DropsCommasThatSeparateThousands)
{
    EXPECT_EQ(WithoutGrouping("1,814.0"), "1814.0");
    EXPECT_EQ(WithoutGrouping("-12,345,678"), "-12345678");
    EXPECT_EQ(WithoutGrouping("1814.0"), "1814.0");
}

TEST(WithoutGrouping, OtherTextsStay)
{
    for (const char* text : {"1,81", "1814,000", "12,5", "1,814,0", "red, green", ",123", "1,234 kg"})
        EXPECT_EQ(WithoutGrouping(text), text);
}

} // namespace schedules::host
