#include "rtf/Tokenizer.h"

#include <QString>

#include <gtest/gtest.h>

namespace schedules::rtf {

namespace {

std::string Drawn(const Token& token)
{
    const std::string text = token.text.toString().toStdString();
    switch (token.kind) {
    case TokenKind::Text:
        return "'" + text + "'";
    case TokenKind::Word:
        return token.number ? text + "=" + std::to_string(*token.number) : text;
    case TokenKind::Symbol:
        return "symbol " + text;
    case TokenKind::Byte:
        return "byte " + std::to_string(*token.number);
    case TokenKind::Binary:
        return "binary";
    default:
        return text;
    }
}

/// The tokens of a text, one after the other.
std::string Tokens(const QString& text)
{
    Tokenizer tokenizer(text);
    std::string drawn;
    for (Token token = tokenizer.Next(); token.kind != TokenKind::End; token = tokenizer.Next())
        drawn += (drawn.empty() ? "" : " ") + Drawn(token);
    return drawn;
}

} // namespace

TEST(Tokenizer, SplitsGroupsWordsAndText)
{
    EXPECT_EQ(Tokens(R"({\rtf1\b bold\b0  text})"), "{ rtf=1 b 'bold' b=0 ' text' }");
}

TEST(Tokenizer, TakesOneBlankWithAWord)
{
    EXPECT_EQ(Tokens(R"(\b  x\i2 y)"), "b ' x' i=2 'y'");
}

TEST(Tokenizer, EndsAWordAtTheFirstOtherCharacter)
{
    EXPECT_EQ(Tokens(R"(\b;x\fs24.\i-x\li-720y)"), "b ';x' fs=24 '.' i '-x' li=-720 'y'");
}

TEST(Tokenizer, LimitsNumbers)
{
    EXPECT_EQ(Tokens(R"(\a2147483647\b99999999999999999999999\c-99999999999999999999999)"),
              "a=2147483647 b=2147483647 c=-2147483647");
}

TEST(Tokenizer, DropsLineEndsAndControlCharacters)
{
    EXPECT_EQ(Tokens(QStringLiteral("a\r\nb") + QChar(0) + QChar(7) + "c\\b\nd"), "'a' 'b' 'c' b 'd'");
}

TEST(Tokenizer, TakesABackslashBeforeALineEndForAParagraph)
{
    EXPECT_EQ(Tokens("a\\\r\nb\\\nc"), "'a' par 'b' par 'c'");
}

TEST(Tokenizer, TakesTabsForTheirWord)
{
    EXPECT_EQ(Tokens("a\tb\\\tc"), "'a' tab 'b' tab 'c'");
}

TEST(Tokenizer, TakesEscapedCharactersForText)
{
    EXPECT_EQ(Tokens(QStringLiteral(R"(\{a\}\\\~\*)") + u'\\' + u'\u00DC' + "b"),
              "'{' 'a' '}' '\\' symbol ~ symbol * '\u00DC' 'b'");
}

TEST(Tokenizer, KeepsAnEscapedCharacterBeyondTheFirstPlaneWhole)
{
    EXPECT_EQ(Tokens(QStringLiteral("\\\U0001F600b")), "'\U0001F600' 'b'");
}

TEST(Tokenizer, TakesHexEscapesForBytes)
{
    EXPECT_EQ(Tokens(R"(\'e9\'FFx)"), "byte 233 byte 255 'x'");
}

TEST(Tokenizer, LeavesWhatIsNoHexEscape)
{
    EXPECT_EQ(Tokens(R"(\'zz\'4)"), "symbol ' 'zz' symbol ' '4'");
    EXPECT_EQ(Tokens(R"(\'-1)"), "symbol ' '-1'");
    EXPECT_EQ(Tokens(R"(\'+1)"), "symbol ' '+1'");
}

TEST(Tokenizer, TakesBinaryDataWithItsWord)
{
    EXPECT_EQ(Tokens(R"(a\bin4 {\}}\b)"), "'a' binary b");
    EXPECT_EQ(Tokens(R"(a\bin0 b)"), "'a' binary 'b'");
}

TEST(Tokenizer, LeavesTextBehindABrokenSizeOfBinaryData)
{
    EXPECT_EQ(Tokens(R"(\bin9 abc)"), "binary 'abc'");
    EXPECT_EQ(Tokens(R"(\bin-3 abc)"), "binary 'abc'");
    EXPECT_EQ(Tokens(R"(\bin abc)"), "binary 'abc'");
    EXPECT_EQ(Tokens(R"(\bin99999999999 abc)"), "binary 'abc'");
}

TEST(Tokenizer, EndsWhereTheTextIsCut)
{
    EXPECT_EQ(Tokens("a\\"), "'a'");
    EXPECT_EQ(Tokens("a\\'"), "'a' symbol '");
    EXPECT_EQ(Tokens("a\\fs-"), "'a' fs '-'");
    EXPECT_EQ(Tokens(""), "");
}

} // namespace schedules::rtf
