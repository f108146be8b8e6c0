#include "rtf/DrawnDocument.h"

#include <gtest/gtest.h>

namespace schedules::rtf {

TEST(UnicodeEscapes, ReplaceOneCharacterBehind)
{
    EXPECT_EQ(Shown(R"(a\u8364?b\u8364 ?c\u8364 d)"), "a\u20ACb\u20ACc\u20AC");
}

TEST(UnicodeEscapes, MayBeNegative)
{
    EXPECT_EQ(Shown(R"(\u-1280?\u-3?)"), "\uFB00\uFFFD");
}

TEST(UnicodeEscapes, ReplaceAnEscapedByteOrSymbolAsOneCharacter)
{
    EXPECT_EQ(Shown(R"(\u8364\'80a)"), "\u20ACa");
    EXPECT_EQ(Shown(R"(\u8364\~a\u8364\{b\u8364\bullet c\u8364\bin3 {{{d)"), "\u20ACa\u20ACb\u20ACc\u20ACd");
    EXPECT_EQ(Shown(R"(\uc3\u8364\'80x\_a)"), "\u20ACa");
}

TEST(UnicodeEscapes, ReplaceWithinTheirGroupAlone)
{
    EXPECT_EQ(Shown(R"(\uc3{\u8364 x}abc)"), "\u20ACabc");
    EXPECT_EQ(Shown(R"(\uc3\u8364 x{abc})"), "\u20ACabc");
}

TEST(UnicodeEscapes, DoNotReplaceOtherWords)
{
    EXPECT_EQ(Shown(R"(\u8364\par a)"), "\u20AC\na");
    EXPECT_EQ(Shown(R"(\u8364\b a)"), "\u20AC[b]a[/]");
}

TEST(UnicodeEscapes, SizeOfTheReplacedIsOfTheGroup)
{
    EXPECT_EQ(Shown(R"(\uc2{\uc0\u8364 a{\uc1\u8364 bc}\u8364 d}\u8364 efg)"), "\u20ACa\u20ACc\u20ACd\u20ACg");
    EXPECT_EQ(Shown(R"(\uc-5\u8364 a)"), "\u20ACa");
    EXPECT_EQ(Shown(R"(\uc0\u8364 a{\uc\u8364 bc})"), "\u20ACa\u20ACc");
}

TEST(UnicodeEscapes, MakeCharactersOfSurrogates)
{
    EXPECT_EQ(Shown(R"(a\u-10179?\u-8704?b)"), "a\U0001F600b");
    EXPECT_EQ(Shown(R"(a\u55357?\u56832?b\uc0\u55357\u56832)"), "a\U0001F600b\U0001F600");
    EXPECT_EQ(Shown(R"(\u128512?)"), "\U0001F600");
}

TEST(UnicodeEscapes, ReplaceHalfCharacters)
{
    EXPECT_EQ(Shown(R"(a\u-10179?b)"), "a\uFFFDb");
    EXPECT_EQ(Shown(R"(a\u-8704?b)"), "a\uFFFDb");
    EXPECT_EQ(Shown(R"(\u-10179?\u-10179?\u-8704?)"), "\uFFFD\U0001F600");
    EXPECT_EQ(Shown(R"(a\u-10179?\par b\u-10179?)"), "a\uFFFD\nb\uFFFD");
}

TEST(UnicodeEscapes, ReplaceWhatIsNoCharacter)
{
    EXPECT_EQ(Shown(R"(\u99999999?\u-99999999?\u64976?\u65535?\u8233?\u65532?)"),
              "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(Shown(R"(a\u0?\u7?\u13?b\u9?c)"), "ab\u2192c");
}

TEST(ByteEscapes, MakeCharactersOfTwoBytes)
{
    EXPECT_EQ(Shown(R"(\ansicpg932 a\'83\'7cb)"), "a\u30DDb");
    EXPECT_EQ(Shown(R"(\ansicpg932 \'83|\'83\\\'83\{\'83eb)"), "\u30DD\u30BD\u30DC\u30C6b");
    EXPECT_EQ(Shown("\\ansicpg932 \\'83\r\n\\'7cb"), "\u30DDb");
}

TEST(ByteEscapes, ReplaceAByteWithoutItsSecond)
{
    EXPECT_EQ(Shown(R"(\ansicpg932 a\'83)"), "a\uFFFD");
    EXPECT_EQ(Shown(R"(\ansicpg932 a\'83 b)"), "a\uFFFD b");
    EXPECT_EQ(Shown(R"(\ansicpg932 a\'83{b})"), "a\uFFFDb");
    EXPECT_EQ(Shown(R"(\ansicpg932 a\'83\par b)"), "a\uFFFD\nb");
    EXPECT_EQ(Shown(QStringLiteral("\\ansicpg932 \\'83\u0441")), "\uFFFD\u0441");
    EXPECT_EQ(Shown(R"(\ansicpg932 \'83\'20b)"), "\uFFFD b");
}

TEST(ByteEscapes, DropControlCharacters)
{
    EXPECT_EQ(Shown(R"(a\'00\'07\'0db\'09c)"), "ab\u2192c");
}

TEST(ByteEscapes, UnknownCodePagesChangeNothing)
{
    EXPECT_EQ(Shown(R"(\ansicpg1251\ansicpg99999\'e9\ansicpg1200\'e9)"), "\u0439\u0439");
}

TEST(Utf8Escapes, MakeCharactersOfUpToFourBytes)
{
    EXPECT_EQ(Shown(R"(\ansicpg65001 5 \'c2\'b5m \'e2\'89\'a4 x\'f0\'9f\'98\'80y)"), "5 \u00B5m \u2264 x\U0001F600y");
    EXPECT_EQ(Shown("\\ansicpg65001 \\'e2\r\n\\'89\n\\'a4"), "\u2264");
    EXPECT_EQ(Shown(R"(\ansicpg65001\uc3\u8804\'e2\'89\'a4x)"), "\u2264x");
}

TEST(Utf8Escapes, MayMeetBytesThatAreNotEscaped)
{
    EXPECT_EQ(Shown(QStringLiteral("\\ansicpg65001 \\'e2\u0089\u00A4x")), "\u2264x");
    EXPECT_EQ(Shown(QStringLiteral("\\ansicpg65001 \\'e2\u0089\n\u00A4x")), "\u2264x");
}

TEST(Utf8Escapes, AreReplacedWhereTheyAreIllFormed)
{
    EXPECT_EQ(Shown(R"(\ansicpg65001 a\'e9b)"), "a\uFFFDb");
    EXPECT_EQ(Shown(R"(\ansicpg65001 a\'e2\'89b\'e2\'89\par\'f0\'9f\'98)"), "a\uFFFDb\uFFFD\n\uFFFD");
    EXPECT_EQ(Shown(R"(\ansicpg65001 a\'80\'ff\'c0b)"), "a\uFFFD\uFFFD\uFFFDb");
    EXPECT_EQ(Shown(R"(\ansicpg65001 \'e2\'c2\'b5)"), "\uFFFD\u00B5");
    EXPECT_EQ(Shown(R"(\ansicpg65001 \'e2{\'89}\'a4)"), "\uFFFD\uFFFD\uFFFD");
}

TEST(Utf8Escapes, ReplaceWhatStructuresDocuments)
{
    EXPECT_EQ(Shown(R"(\ansicpg65001 a\'e2\'80\'a9b\'ef\'bf\'bcc\'ef\'bf\'bfd)"), "a\uFFFDb\uFFFDc\uFFFDd");
}

TEST(Utf8Escapes, AreOfTheFontsWithWesternLetters)
{
    EXPECT_EQ(Shown(R"(\ansicpg65001{\fonttbl{\f0\fcharset0 A;}{\f1\fcharset204 A;}}\f0\'c2\'b5\f1\'cf)"),
              "[font=A]\u00B5\u041F[/]");
}

TEST(Utf8Bytes, AreDecodedWhereEachIsACharacter)
{
    EXPECT_EQ(Shown(QStringLiteral("\\ansicpg65001 \u00C2\u00B5 \u00E2\u0089\u00A4")), "\u00B5 \u2264");
    EXPECT_EQ(Shown(QStringLiteral("\\ansicpg1252 \u00C2\u00B5")), "\u00C2\u00B5");
}

TEST(Utf8Bytes, AreCharactersWhereTheMessageWasDecoded)
{
    EXPECT_EQ(Shown(QStringLiteral("\\ansicpg65001 \u00C2\u00B5 \u00E9")), "\u00C2\u00B5 \u00E9");
    EXPECT_EQ(Shown(QStringLiteral("\\ansicpg65001 \u00C2\u00B5 \u2264")), "\u00C2\u00B5 \u2264");
}

} // namespace schedules::rtf
