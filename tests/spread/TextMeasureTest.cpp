#include "spread/TextMeasure.h"

#include "support/MeasuredText.h"

#include <QFontDatabase>
#include <QGuiApplication>

#include <array>
#include <deque>
#include <gtest/gtest.h>
#include <random>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr std::array kWords{"P-101A",
                            "AVAST",
                            "To",
                            "Ty.",
                            "12.5",
                            "1,000",
                            "m3/h",
                            "office",
                            "afflux",
                            "ffi",
                            "fi",
                            "Flow",
                            "fjord",
                            "affj",
                            "ſt",
                            "ct",
                            "offer",
                            "waffle",
                            "off-f",
                            "f f",
                            "fix",
                            "Tfi",
                            "Vfl",
                            "rf",
                            "kPa(g)",
                            "°C",
                            "½",
                            "№ 5",
                            "Насос",
                            "ГОСТ",
                            "Гр.",
                            "Тр",
                            "Αντλία",
                            "ΑΥΤΟ",
                            "λ",
                            "水泵",
                            "中文,abc",
                            "ポンプ",
                            "한국",
                            "ﷲ",
                            "مضخة",
                            "لا",
                            "עברית",
                            "नमस्ते",
                            "ไทย",
                            "e\u0301",
                            "A\u030A",
                            "a\u0300\u0301",
                            "\u0301",
                            "🙂",
                            "👩\u200D🔧",
                            "🇩🇪",
                            "x\u00ADy",
                            "a\tb",
                            "a\nb",
                            "\u00A0",
                            "\u2009",
                            "\u202E",
                            "a\u2019s",
                            "“q”",
                            "…",
                            "→",
                            "≥",
                            "∅",
                            "𝄞",
                            "Å",
                            "Ǆ",
                            "ß",
                            "ĳ",
                            "ﬁ",
                            "\u4E2D\uFE00",
                            "-1",
                            "0",
                            "AV",
                            "VA",
                            "WA.",
                            "L'",
                            "P.",
                            "r,",
                            "Yo",
                            " ",
                            "  ",
                            "_",
                            "()",
                            "[x]",
                            "fb",
                            "fh",
                            "fk",
                            "ft",
                            "tt",
                            "ti",
                            "Th",
                            "gy",
                            "TT"};

class RandomTexts
{
public:
    explicit RandomTexts(unsigned seed) : m_random(seed) {}

    QString Next()
    {
        QString text;
        for (int words = static_cast<int>(m_random() % 5); words > 0; --words) {
            text += QString::fromUtf8(kWords[m_random() % kWords.size()]);
            text += m_random() % 2 == 0 ? QStringLiteral(" ") : QString();
        }
        for (int letters = static_cast<int>(m_random() % 6); letters > 0; --letters)
            text += QChar(static_cast<char16_t>(0x20 + m_random() % 0x5F));
        return text;
    }

private:
    std::mt19937 m_random;
};

/// The fonts that schedules are seen and printed in: the application's, and those that stand for Arial and for what
/// it lacks. An empty family is the application's.
struct TextMeasureTest : ::testing::TestWithParam<const char*>
{
    void SetUp() override
    {
        const auto family = QString::fromLatin1(GetParam());
        ASSERT_TRUE(family.isEmpty() || QFontDatabase::families().contains(family)) << "This font is not installed.";
        if (!family.isEmpty())
            font = QFont(family, 9);
    }

    QFont font = QGuiApplication::font();
};

int Measured(const QString& text, const QFont& font, bool bold)
{
    return TextMeasure(font).Exact(text.toUtf8().toStdString(), bold);
}

/// The advance of a text as it is painted, with a blank for a tab or a line end.
int PaintedAdvance(QString text, const QFont& font, bool bold)
{
    return Advance(text.replace(u'\t', u' ').replace(u'\n', u' '), font, bold);
}

std::string NameOf(const ::testing::TestParamInfo<const char*>& tested)
{
    const QString name = QString::fromLatin1(tested.param).remove(u' ');
    return name.isEmpty() ? "Application" : name.toStdString();
}

} // namespace

TEST_P(TextMeasureTest, TheExactMeasureIsTheFontsAdvanceRoundedUp)
{
    for (const char* word : kWords) {
        const QString text = QString::fromUtf8(word);
        ASSERT_EQ(Measured(text, font, false), PaintedAdvance(text, font, false)) << word;
        ASSERT_EQ(Measured(text, font, true), PaintedAdvance(text, font, true)) << word;
    }
}

TEST_P(TextMeasureTest, TheLearnedMeasureIsTheFontsAdvanceOrNone)
{
    TextMeasure measure(font);
    RandomTexts texts(1);
    const QFontMetricsF regular(InTwips(font, false));
    const QFontMetricsF heavy(InTwips(font, true));
    for (int count = 0; count < 8000; ++count) {
        const QString text = texts.Next();
        const bool bold = count % 3 == 0;
        const std::int64_t learned = measure.Learned(text.toUtf8().toStdString(), bold);
        if (learned >= 0) {
            EXPECT_EQ(learned, std::lround((bold ? heavy : regular).horizontalAdvance(text) * 64))
                << text.toStdString();
        }
    }
}

TEST_P(TextMeasureTest, TheWidestTextIsTheOneThatTheFontFindsWidest)
{
    TextMeasure measure(font);
    RandomTexts texts(2);
    for (int column = 0; column < 300; ++column) {
        WidestText widest;
        std::deque<std::string> kept;
        int expected = 0;
        for (int row = 0; row < 20; ++row) {
            const QString text = texts.Next();
            const bool bold = row % 4 == 0;
            widest.Consider(kept.emplace_back(text.toUtf8().toStdString()), bold, measure);
            expected = std::max(expected, PaintedAdvance(text, font, bold));
        }
        ASSERT_EQ(widest.Width(measure), expected) << "column " << column;
    }
}

INSTANTIATE_TEST_SUITE_P(Fonts, TextMeasureTest,
                         ::testing::Values("", "Liberation Sans", "DejaVu Sans", "DejaVu Serif", "Liberation Serif"),
                         NameOf);

TEST(TextMeasure, OrdinaryTextsAreLearned)
{
    TextMeasure measure(QGuiApplication::font());
    for (const char* text : {"P-101A", "12.5", "spare in store", "Насос", "Αντλία", "水泵", "ポンプ", "°C"})
        EXPECT_GE(measure.Learned(text, false), 0) << text;
}

TEST(TextMeasure, ScriptsWhereMoreThanTwoNeighboursDecideGoToTheFont)
{
    TextMeasure measure(QGuiApplication::font());
    for (const char* text : {"مضخة", "नमस्ते", "e\u0301", "👩\u200D🔧", "efficient", "a\tb", "עברית"})
        EXPECT_EQ(measure.Learned(text, false), -1) << text;
}

TEST(TextMeasure, TextsOfSeveralScriptsGoToTheFont)
{
    TextMeasure measure(QGuiApplication::font());
    for (const char* text : {"Насос To", "To Насос", "Αντλία Насос", "水 To", "é Ж", "Ж é", "水ポンプ"})
        EXPECT_EQ(measure.Learned(text, false), -1) << text;
    for (const char* text : {"Насос 12.5", "é To", "Ж №"})
        EXPECT_GE(measure.Learned(text, false), 0) << text;
}

TEST(TextMeasure, SignsBeforeTheFirstLetterOfAnotherScriptGoToTheFont)
{
    TextMeasure measure(QGuiApplication::font());
    EXPECT_EQ(measure.Learned("12.5 Ж", false), -1);
    EXPECT_EQ(measure.Learned("№ 水", false), -1);
    EXPECT_GE(measure.Learned("12.5 kg", false), 0);
}

TEST(TextMeasure, TextsOfMillionsOfCharactersAreAddedUp)
{
    TextMeasure measure(QGuiApplication::font());
    const std::string text(20'000'000, 'm');
    EXPECT_GT(measure.Learned(text, false), 20'000'000LL * 100 * 64);
}

TEST(TextMeasure, TextsOfHundredsOfThousandsOfCharactersHaveTheirWidth)
{
    const TextMeasure measure(QGuiApplication::font());
    const double one = measure.Exact(std::string(1000, 'm'), false) / 1000.0;
    EXPECT_NEAR(measure.Exact(std::string(300'000, 'm'), false) / one, 300'000, 300);
    EXPECT_EQ(measure.Exact(std::string(30'000'000, 'm'), false), 100'000'000) << "the widest there is";
}

TEST(TextMeasure, KerningCounts)
{
    const QFont font(QStringLiteral("Liberation Sans"), 9);
    TextMeasure measure(font);
    const std::int64_t together = measure.Learned("AV", false);
    EXPECT_LT(together, measure.Learned("A", false) + measure.Learned("V", false));
}

TEST(TextMeasure, BoldIsWider)
{
    TextMeasure measure(QGuiApplication::font());
    EXPECT_GT(measure.Exact("Remarks", true), measure.Exact("Remarks", false));
}

TEST(TextMeasure, AFontThatIsBoldItselfIsMeasuredBold)
{
    QFont bold = QGuiApplication::font();
    bold.setBold(true);
    EXPECT_EQ(TextMeasure(bold).Exact("Remarks", false), TextMeasure(QGuiApplication::font()).Exact("Remarks", true));
}

TEST(TextMeasure, WidthsAreTwips)
{
    QFont font(QStringLiteral("Liberation Sans"), 10);
    const int tenPoints = TextMeasure(font).Exact("MMMMMMMMMM", false);
    EXPECT_EQ(tenPoints, 1666) << "ten times 0.833 of 200 twips";
    font.setPointSize(20);
    EXPECT_NEAR(TextMeasure(font).Exact("MMMMMMMMMM", false), 2 * tenPoints, 2);
}

TEST(TextMeasure, TextsAreMeasuredOnOneLine)
{
    TextMeasure measure(QGuiApplication::font());
    const int width = measure.Exact("Flow (m3/h)", false);
    for (const char* text : {"Flow\n(m3/h)", "Flow\t(m3/h)", "Flow\r(m3/h)", "Flow\u2028(m3/h)", "Flow\u2029(m3/h)"}) {
        EXPECT_EQ(measure.Exact(text, false), width) << text;
        EXPECT_EQ(measure.Learned(text, false), -1) << text;
        WidestText widest;
        widest.Consider(text, false, measure);
        EXPECT_EQ(widest.Width(measure), width) << text;
    }
}

TEST(WidestText, IsNothingWithoutTexts)
{
    TextMeasure measure(QGuiApplication::font());
    WidestText widest;
    EXPECT_EQ(widest.Width(measure), 0);
    widest.Consider("", false, measure);
    EXPECT_EQ(widest.Width(measure), 0);
}

TEST(WidestText, ATextThatOnlyTheFontCanMeasureMayWin)
{
    const QFont font = QGuiApplication::font();
    TextMeasure measure(font);
    WidestText widest;
    widest.Consider("short", false, measure);
    widest.Consider("مضخة مضخة مضخة", false, measure);
    widest.Consider("also short", false, measure);
    EXPECT_EQ(widest.Width(measure), measure.Exact("مضخة مضخة مضخة", false));
}
