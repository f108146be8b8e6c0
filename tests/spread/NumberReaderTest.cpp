#include "spread/NumberReader.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace schedules;

namespace {

/// "12.5" for a number, "text" for any other text.
std::string Read(const char* text, const QLocale& locale = QLocale(QLocale::English),
                 Exponents exponents = Exponents::Refused)
{
    const auto number = NumberReader(locale).Read(text, exponents);
    return number ? QByteArray::number(*number, 'g', 15).toStdString() : "text";
}

std::string ReadWithExponent(const char* text)
{
    return Read(text, QLocale(QLocale::English), Exponents::Allowed);
}

} // namespace

TEST(NumberReader, ReadsDigitsWithASignAndAPoint)
{
    EXPECT_EQ(Read("12"), "12");
    EXPECT_EQ(Read("-12.5"), "-12.5");
    EXPECT_EQ(Read("+12.5"), "12.5");
    EXPECT_EQ(Read("007"), "7");
    EXPECT_EQ(Read(".5"), "0.5");
    EXPECT_EQ(Read("5."), "5");
    EXPECT_EQ(Read("0.30000000000000004"), "0.3");
}

TEST(NumberReader, BlanksAroundDoNotMatter)
{
    EXPECT_EQ(Read(" \t12\r\n"), "12");
    EXPECT_EQ(Read("\u00A0-12\u2003"), "-12");
}

TEST(NumberText, IsDigitsWithPointsCommasAndASign)
{
    for (const char* text : {"0", "12", " 12.5 ", "-1,234.5", "+7", "007", ".5", "1.2.3"})
        EXPECT_TRUE(ReadsAsNumber(text)) << text;
    for (const char* text : {"", " ", "-", ".", "P-12", "12 m", "1e5", "--1", "1-2", "n/a", "½"})
        EXPECT_FALSE(ReadsAsNumber(text)) << text;
}

TEST(NumberText, MayHaveSpacesOfAnyKindAround)
{
    for (const char* text : {"\u00A012", "12\u2009", "\u300012\u3000", " \u00A0-12.5 \t", "\r\n12\v\f"})
        EXPECT_TRUE(ReadsAsNumber(text)) << text;
    for (const char* text : {"\u00A0", "1\u00A0234", "12\u200B", "\uFEFF12", "\u00A0m"})
        EXPECT_FALSE(ReadsAsNumber(text)) << text;
}

TEST(NumberReader, AnythingElseIsText)
{
    for (const char* text :
         {"",    " ",  "-",     "+",     ".",     ",",  "-.",  "P-1",  "12 m",  "12m", "1 2", "--1", "+-1",
          "- 1", "1-", "1.2.3", "1,2,3", "1.2,3", "5%", "(5)", "0x10", "12:30", "1/2", "½",   "Ж1",  "1Ж"})
        EXPECT_EQ(Read(text), "text") << text;
}

TEST(NumberReader, TheNamesOfSpecialValuesAreText)
{
    for (const char* text : {"nan", "NaN", "inf", "-inf", "Infinity", "∞", "nan(1)"}) {
        EXPECT_EQ(Read(text), "text") << text;
        EXPECT_EQ(ReadWithExponent(text), "text") << text;
    }
}

TEST(NumberReader, ACommaIsADecimalMarkWhereItPartsNoGroups)
{
    EXPECT_EQ(Read("12,5"), "12.5");
    EXPECT_EQ(Read("12,34"), "12.34");
    EXPECT_EQ(Read("1234,567"), "1234.567");
    EXPECT_EQ(Read("0,125"), "0.125") << "no number begins with a zero and a group";
    EXPECT_EQ(Read(",125"), "0.125");
    EXPECT_EQ(Read("12,"), "12");
}

TEST(NumberReader, TheLocalesMarkPartsGroups)
{
    EXPECT_EQ(Read("1,234"), "1234");
    EXPECT_EQ(Read("-1,234,567.5"), "-1234567.5");
    EXPECT_EQ(Read("123,456"), "123456");
    EXPECT_EQ(Read("1,234,56"), "text");
    EXPECT_EQ(Read("1,2345,678"), "text");
    EXPECT_EQ(Read("1,,234"), "text");
    EXPECT_EQ(Read("1,2,345"), "text");
    EXPECT_EQ(Read("1.5,234"), "text") << "no groups among the decimals";
}

TEST(NumberReader, EachLocaleHasItsOwnMark)
{
    const QLocale german(QLocale::German);
    EXPECT_EQ(Read("1.234", german), "1234");
    EXPECT_EQ(Read("1.234.567,5", german), "1234567.5");
    EXPECT_EQ(Read("1,234", german), "1.234");
    EXPECT_EQ(Read("12.5", german), "12.5") << "a point that parts no groups";
    EXPECT_EQ(Read("0.125", german), "0.125");
    EXPECT_EQ(Read("1'234.5", QLocale(QLocale::German, QLocale::Switzerland)), "1234.5");
    EXPECT_EQ(Read("1\u2019234.5", QLocale(QLocale::German, QLocale::Switzerland)), "1234.5");
    EXPECT_EQ(Read("1'234"), "text");
    EXPECT_EQ(Read("1,234", QLocale::c()), "1234");
}

TEST(NumberReader, AnyBlankPartsGroupsWhereTheLocaleHasABlank)
{
    const QLocale french(QLocale::French);
    for (const char* text : {"1 234,5", "1\u00A0234,5", "1\u202F234,5", "1 234.5"})
        EXPECT_EQ(Read(text, french), "1234.5") << text;
    EXPECT_EQ(Read("1,234", french), "1.234");
    EXPECT_EQ(Read("1.234", french), "1.234");
    EXPECT_EQ(Read("1 23", french), "text");
}

TEST(NumberReader, GroupsOfTwoAreRead)
{
    EXPECT_EQ(Read("12,34,567", QLocale(QLocale::English, QLocale::India)), "1234567");
}

TEST(NumberReader, DigitsAndSignsOfAnyScriptAreRead)
{
    EXPECT_EQ(Read("\u221212,5"), "-12.5") << "a minus sign that is no hyphen";
    EXPECT_EQ(Read("\u0661\u0662\u066B\u0665"), "12.5") << "Arabic digits";
    EXPECT_EQ(Read("\u061C-\u0661\u066C\u0662\u0663\u0664", QLocale(QLocale::Arabic, QLocale::Egypt)), "-1234");
    EXPECT_EQ(Read("\u0967\u0968"), "12") << "Devanagari digits";
}

TEST(NumberReader, ReadsWhatEachLocaleWrites)
{
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        const QString written = locale.toString(-123456789.5, 'f', 1);
        const auto read = NumberReader(locale).Read(written.toStdString(), Exponents::Refused);
        EXPECT_EQ(read, -123456789.5) << locale.name().toStdString() << " writes " << written.toStdString();
    }
}

TEST(NumberReader, ExponentsAreReadOnlyWhereAllowed)
{
    EXPECT_EQ(Read("1e3"), "text");
    EXPECT_EQ(Read("1.5E-3"), "text");
    EXPECT_EQ(ReadWithExponent("1e3"), "1000");
    EXPECT_EQ(ReadWithExponent("-1.5E-3"), "-0.0015");
    EXPECT_EQ(ReadWithExponent("1,5e+03"), "1500");
    EXPECT_EQ(ReadWithExponent("12.5"), "12.5");
    for (const char* text : {"1e", "1e+", "e3", "1e3e3", "1e3.5", "1e 3", "1 e3"})
        EXPECT_EQ(ReadWithExponent(text), "text") << text;
}

TEST(NumberReader, NumbersBeyondADoubleAreInfiniteOrNothing)
{
    EXPECT_EQ(Read(std::string(400, '9').c_str()), "inf");
    EXPECT_EQ(Read(('-' + std::string(400, '9')).c_str()), "-inf");
    EXPECT_EQ(ReadWithExponent("1e999"), "inf");
    EXPECT_EQ(ReadWithExponent("1e-999"), "0");
    EXPECT_EQ(Read(("0." + std::string(400, '0') + "1").c_str()), "0");
}
