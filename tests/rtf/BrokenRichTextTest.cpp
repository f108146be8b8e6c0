// Broken, hostile and very large texts: as much is shown as they hold, in linear time.

#include "rtf/DrawnDocument.h"
#include "rtf/Group.h"
#include "rtf/RtfReader.h"
#include "support/ProcessorTime.h"

#include <QTextDocument>

#include <gtest/gtest.h>
#include <random>

namespace schedules::rtf {

namespace {

QString Repeated(const char* text, qsizetype times)
{
    return QString::fromLatin1(text).repeated(times);
}

const QString kSample = QStringLiteral(
    R"({\rtf1\ansi\ansicpg932\deff0{\fonttbl{\f0\fnil\fcharset0 Arial;}{\f1\fcharset128 \'82\'6c;}{\f2\fcharset2 Symbol;}}
{\colortbl ;\red255\green0\blue0;\red0\green0\blue255;}{\stylesheet{\s0 Normal;}}{\*\generator X;}{\info{\title T}}
\uc1\pard\qc\b\fs24 Pumps\b0\par{\pntext\f2\'B7\tab}{\*\pn\pnlvlblt\pnf2{\pntxtb\'B7}}\fi-360\li720\tqr\tx2880 a\tab b
\par\pard\cf1\highlight2 \u-10179?\u-8704?\uc2\u8364\'80x {\i\f1\'83\'7c\'83e}\line{\field{\*\fldinst X "u"}{\fldrslt r}}
{\pict\pngblip\bin4 {{{{ 00ff}{\object{\*\objdata 00}}{\upr{a}{\*\ud b}}{\*\nesttableprops\nestrow}\f2 W\'a3\u-3997?\f0\emdash\~\_\-\{\}\\ \strike end\par}})");

QString Mutated(QString text, std::mt19937& random)
{
    static const QString kPieces[]{"{",           "}",
                                   "\\",          "\\'",
                                   "\\'8",        "\\u-10179",
                                   "\\uc9",       "\\bin7 ",
                                   "{\\*\\pn",    "\\par",
                                   "{\\fonttbl",  "{\\colortbl",
                                   ";",           "-",
                                   "99999999999", QString(QChar(0)),
                                   "\\*",         "\n",
                                   "\\plain",     "\\pard",
                                   "\\f1",        "\\ansicpg932",
                                   "\\f2",        "\\ansicpg65001",
                                   "{\\upr",      "{\\*\\ud",
                                   "\\'e2\\'89",  "{\\*\\nesttableprops",
                                   "{\\pntxtb",   QString(QChar(0xD83D))};
    const auto below = [&](qsizetype count) { return std::uniform_int_distribution<qsizetype>(0, count - 1)(random); };
    for (qsizetype changes = 1 + below(6); changes > 0 && text.size() > 1; --changes) {
        const qsizetype at = below(text.size());
        switch (below(4)) {
        case 0:
            text.remove(at, 1 + below(20));
            break;
        case 1:
            text.insert(at, kPieces[below(std::ssize(kPieces))]);
            break;
        case 2:
            text[at] = QChar(static_cast<char16_t>(below(256)));
            break;
        default:
            text.insert(at, text.mid(below(text.size()), below(60)));
        }
    }
    return text;
}

using schedules::testing::CostOfFourTimes;
using schedules::testing::kLinear;

void ReadInto(const QString& text)
{
    QTextDocument document;
    ReadRichText("{\\rtf1 " + text + '}', document);
}

} // namespace

TEST(BrokenRichText, WithoutItsEndShowsWhatIsThere)
{
    EXPECT_EQ(DrawnMessage(R"({\rtf1 a{\b b{\i c)"), "a[b]b[/][b i]c[/]");
    EXPECT_EQ(DrawnMessage(R"({\rtf1 a\)"), "a");
    EXPECT_EQ(DrawnMessage(R"({\rtf1 a\'e)"), "ae");
    EXPECT_EQ(DrawnMessage(R"({\rtf1 a\u83)"), "aS");
    EXPECT_EQ(DrawnMessage(R"({\rtf1 a{\pict 00)"), "a");
    EXPECT_EQ(DrawnMessage(R"({\rtf)"), "");
}

TEST(BrokenRichText, WithTooManyClosingBracesShowsAll)
{
    EXPECT_EQ(DrawnMessage(R"({\rtf1 a}}}} b{\b c}}})"), "a b[b]c[/]");
}

TEST(BrokenRichText, WithoutTheEndOfATableShowsWhatFollows)
{
    EXPECT_EQ(DrawnMessage(R"({\rtf1{\fonttbl{\f0 Arial;}\pard\f0 a)"), "[font=Arial]a[/]");
    EXPECT_EQ(DrawnMessage(R"({\rtf1{\fonttbl{\f0 Arial\pard\f0 a)"), "[font=Arial]a[/]");
    EXPECT_EQ(DrawnMessage(R"({\rtf1{\colortbl;\red255\pard\cf1 a\par b)"),
              "[colour=#ff0000]a[/]\n[colour=#ff0000]b[/]");
}

TEST(BrokenRichText, WithoutTheEndOfARowShowsWhatFollows)
{
    EXPECT_EQ(DrawnMessage(R"({\rtf1 a\nestcell{\*\nesttableprops\trowd\nestrow\pard b)"), "a\u2192\nb");
}

TEST(BrokenRichText, WithoutTheBraceOfADestinationShowsItsText)
{
    EXPECT_EQ(DrawnMessage(R"({\rtf1\info a\stylesheet b\*\unknown c\fonttbl d})"), "abcd");
    EXPECT_EQ(DrawnMessage(R"({\rtf1 a}\pict b)"), "ab");
}

TEST(BrokenRichText, WithHugeNumbersShowsItsText)
{
    QString huge = Repeated("9", 100'000);
    for (const char* word : {"fs", "f", "cf", "cb", "li", "fi", "tx", "uc", "ansicpg", "deff", "deftab", "bin", "rtf"})
    {
        EXPECT_EQ(QString::fromStdString(DrawnMessage("{\\rtf1\\" + (word + huge) + " q}")).count('q'), 1) << word;
        EXPECT_EQ(QString::fromStdString(DrawnMessage("{\\rtf1\\" + (word + ('-' + huge)) + " q}")).count('q'), 1)
            << word;
    }
}

TEST(BrokenRichText, WithAnEndlessWordShowsTheRest)
{
    EXPECT_EQ(Shown("a\\" + Repeated("x", 100'000) + " b"), "ab");
    EXPECT_EQ(Shown("a{\\*\\" + Repeated("x", 100'000) + " b}c"), "ac");
}

TEST(DeepRichText, ShowsItsTextAtEveryDepth)
{
    for (const int depth : {255, 256, 257, 1000, 200'000}) {
        const QString text = Repeated("{", depth) + "\\b deep" + Repeated("}", depth) + "top";
        EXPECT_EQ(Shown(text), "[b]deep[/]top") << depth;
    }
}

TEST(DeepRichText, KeepsTheStateOfEachGroup)
{
    const QString text = Repeated("{\\b a{\\b0 b", 100'000) + Repeated("c}d}", 100'000) + "e";
    QTextDocument document;
    ReadRichText("{\\rtf1 " + text + '}', document);
    EXPECT_EQ(document.characterCount(), 400'002);
    EXPECT_TRUE(QString::fromStdString(Drawn(document)).endsWith("c[b]d[/]c[b]d[/]e"));
}

TEST(DeepRichText, SharesStateBeyondTheDeepest)
{
    const auto depth = static_cast<qsizetype>(GroupStack::kMaxDepth) + 1000;
    EXPECT_EQ(Shown(Repeated("{", depth) + "{\\b a}b{\\fonttbl x}{\\*\\pn\\pnlvlblt x}{\\pict x}" +
                    Repeated("}", depth) + "c"),
              "[b]ab[/]c");
}

TEST(DeepRichText, IsSkipped)
{
    EXPECT_EQ(Shown("a{\\pict" + Repeated("{", 1'000'000) + Repeated("}", 1'000'000) + "}b"), "ab");
}

TEST(DeepRichText, TakesLinearTime)
{
    const auto read = [](int depth) { ReadInto(Repeated("{\\b{x\\i", depth) + Repeated("}}", depth)); };
    EXPECT_LT(CostOfFourTimes(5'000, read), kLinear);
}

TEST(LargeRichText, TakesLinearTime)
{
    for (const char* text : {"a\\par ", "\\b a\\i b\\plain ", "plain text, ", "\\'e9", "\\u8364?", "\\tx720",
                             "{\\f1\\fs20 x}", "{\\colortbl;\\red1;}", "{\\fonttbl{\\f1\\cpg1250 x;}}",
                             "{\\*\\pn\\pnlvlblt{\\pntxtb x}}", "{\\pict 00}", "}", "{", "\\"})
        EXPECT_LT(CostOfFourTimes(5'000, [&](int times) { ReadInto(Repeated(text, times)); }), kLinear) << text;
}

TEST(LargeRichText, RepeatsNoLongBulletInEachParagraph)
{
    const auto list = [](qsizetype length) {
        return "{\\*\\pn\\pnlvlblt{\\pntxtb " + Repeated("x", length) + "}}a\\par b";
    };
    const QString longest = Repeated("x", 32) + QChar(0x2192);
    EXPECT_EQ(QString::fromStdString(Shown(list(32))), longest + "a\n" + longest + 'b');
    EXPECT_EQ(QString::fromStdString(Shown(list(33))), QString::fromUtf8("\u2022\u2192a\n\u2022\u2192b"));
}

TEST(MutatedRichText, NeverFails)
{
    std::mt19937 random(20'240'229);
    for (int round = 0; round < 4000; ++round) {
        QTextDocument document;
        ReadRichText(Mutated(kSample, random), document);
        EXPECT_FALSE(QString::fromStdString(Drawn(document)).contains("OBJECT"));
    }
}

TEST(MutatedRichText, MayBeCutAnywhere)
{
    for (qsizetype size = 0; size < kSample.size(); ++size) {
        QTextDocument document;
        ReadRichText(kSample.first(size), document);
    }
}

} // namespace schedules::rtf
