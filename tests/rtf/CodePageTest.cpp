#include "rtf/CodePage.h"

#include "rtf/DrawnDocument.h"

#include <gtest/gtest.h>

namespace schedules::rtf {

namespace {

struct Sample
{
    int codePage;
    const char* escapes;
    const char* text;
};

constexpr Sample kSamples[]{
    {437, R"(\'81\'e1\'9c\'f8\'ff)", "\u00FC\u00DF\u00A3\u00B0\u00A0"},
    {850, R"(\'81\'b5\'d5\'f8\'9b)", "\u00FC\u00C1\u0131\u00B0\u00F8"},
    {932, R"(\'83\'7c\'83\'93\'83\'76\'b1)", "\u30DD\u30F3\u30D7\uFF71"},
    {1250, R"(\'c8\'e8\'d8\'b9)", "\u010C\u010D\u0158\u0105"},
    {1251, R"(\'cf\'f0\'e8\'a8)", "\u041F\u0440\u0438\u0401"},
    {1252, R"(\'80\'e9\'93\'99)", "\u20AC\u00E9\u201C\u2122"},
    {1253, R"(\'c1\'f9\'a2)", "\u0391\u03C9\u0386"},
    {1254, R"(\'dd\'fe\'f0)", "\u0130\u015F\u011F"},
    {1255, R"(\'e0\'fa\'a4)", "\u05D0\u05EA\u20AA"},
    {1256, R"(\'c7\'ed\'81)", "\u0627\u064A\u067E"},
    {1257, R"(\'e0\'fe\'ca)", "\u0105\u017E\u0179"},
    {1258, R"(\'d5\'fe\'f0)", "\u01A0\u20AB\u0111"},
    // Those that an accent may follow, and the accent.
    {1255, R"(\'e9\'c4)", "\u05D9\u05B4"},
    {1258, R"(a\'ec\'e2\'ec)", "a\u0301\u00E2\u0301"},
    // Others that the character sets of fonts ask for.
    {874, R"(\'a1\'fb)", "\u0E01\u0E5B"},
    {936, R"(\'d6\'d0)", "\u4E2D"},
    {949, R"(\'c7\'d1)", "\uD55C"},
    {950, R"(\'a4\'a4)", "\u4E2D"},
    {10000, R"(\'8e\'a5)", "\u00E9\u2022"},
    {kSymbolCodePage, R"(\'b7\'a7\'e9)", "\u2022\u25AA\u00E9"},
    {kUtf8CodePage, R"(\'c2\'b5\'e2\'89\'a4\'f0\'9f\'98\'80x)", "\u00B5\u2264\U0001F600x"},
};

constexpr std::pair<int, int> kCharsets[]{{0, 1252},   {1, 0},      {2, 42},     {77, 10000}, {128, 932},  {129, 949},
                                          {130, 1361}, {134, 936},  {136, 950},  {161, 1253}, {162, 1254}, {163, 1258},
                                          {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251}, {222, 874},  {238, 1250},
                                          {254, 437},  {255, 850},  {99, 0},     {-1, 0}};

} // namespace

TEST(CodePages, DecodeTheTextOfADocument)
{
    for (const Sample& sample : kSamples)
        EXPECT_EQ(Shown(QStringLiteral("\\ansicpg%1 %2").arg(sample.codePage).arg(sample.escapes)), sample.text)
            << sample.codePage;
}

TEST(CodePages, DecodeTheTextOfAFont)
{
    for (const Sample& sample : kSamples)
        EXPECT_EQ(Shown(QStringLiteral("{\\fonttbl{\\f5\\cpg%1;}}\\f5 %2").arg(sample.codePage).arg(sample.escapes)),
                  sample.text)
            << sample.codePage;
}

TEST(CodePages, FollowTheCharacterSet)
{
    for (const auto& [charset, codePage] : kCharsets)
        EXPECT_EQ(CodePageOfCharset(charset), codePage) << charset;
}

TEST(CodePages, AreThoseThatAreKnown)
{
    for (const auto& [charset, codePage] : kCharsets)
        EXPECT_EQ(IsCodePage(codePage), codePage != 0) << codePage;
    EXPECT_TRUE(IsCodePage(kUtf8CodePage));
    for (const int other : {-1, 1, 1200, 1249, 1259, 65000, 65002})
        EXPECT_FALSE(IsCodePage(other)) << other;
}

TEST(CodePage, TakesAsciiAsItIs)
{
    for (const Sample& sample : kSamples) {
        const CodePage codePage(sample.codePage);
        for (uchar byte = 0; byte < 0x80; ++byte) {
            EXPECT_EQ(codePage.Decoded(byte), QChar(byte)) << sample.codePage;
            EXPECT_FALSE(codePage.IsLead(byte)) << sample.codePage;
        }
    }
}

TEST(CodePage, ReplacesBytesThatMeanNothing)
{
    EXPECT_EQ(CodePage(1252).Decoded(0x81), QChar(QChar::ReplacementCharacter));
    EXPECT_EQ(CodePage(932).Decoded(0xFD), QChar(QChar::ReplacementCharacter));
}

TEST(CodePage, KnowsTheFirstHalvesOfCharacters)
{
    const CodePage japanese(932);
    for (int byte = 0x80; byte < 0x100; ++byte) {
        const bool isLead = (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
        EXPECT_EQ(japanese.IsLead(static_cast<uchar>(byte)), isLead) << byte;
        EXPECT_FALSE(CodePage(1252).IsLead(static_cast<uchar>(byte))) << byte;
    }
    EXPECT_EQ(japanese.Decoded("\x83\x5C"), QStringLiteral("\u30BD"));
    EXPECT_EQ(japanese.Decoded("\x83\x20"), QString());
    EXPECT_FALSE(japanese.IsBeginning("\x83\x20"));
}

TEST(CodePage, KnowsTheBeginningsOfCharactersOfMoreBytes)
{
    const CodePage utf8(kUtf8CodePage);
    for (int byte = 0x80; byte <= 0xF4; ++byte)
        EXPECT_EQ(utf8.IsLead(static_cast<uchar>(byte)), byte >= 0xC2) << byte;
    EXPECT_TRUE(utf8.IsBeginning("\xE2\x89"));
    EXPECT_FALSE(utf8.IsBeginning("\xE2\x28"));
    EXPECT_FALSE(utf8.IsBeginning("\xE2\x89\xA4"));
    EXPECT_EQ(utf8.Decoded("\xE2\x89\xA4"), QStringLiteral("\u2264"));
}

} // namespace schedules::rtf
