#include "spread/PrintCodes.h"

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

std::string Drawn(const HeaderLook& look)
{
    return look.font.toStdString() + " " + QString::number(look.size).toStdString() + (look.bold ? " bold" : "");
}

/// A line of the drawing for each line: the parts that are not empty, each run with its look.
std::string Drawn(const QString& codes)
{
    std::string drawn;
    for (const HeaderLine& line : ReadPrintCodes(codes)) {
        drawn += drawn.empty() ? "" : "\n";
        drawn += "-";
        for (std::size_t part = 0; part < kHeaderPartCount; ++part) {
            for (const HeaderRun& run : line.parts[part])
                drawn += std::string(" ") + "lcr"[part] + "[" + run.text.toStdString() + ": " + Drawn(run.look) + "]";
        }
    }
    return drawn;
}

} // namespace

TEST(PrintCodes, NothingHasNoLines)
{
    EXPECT_EQ(Drawn(QString()), "");
}

TEST(PrintCodes, TextWithoutCodesIsTheLeftPartOfALine)
{
    EXPECT_EQ(Drawn("Pumps"), "- l[Pumps: Arial 10]");
}

TEST(PrintCodes, FontSizeAndBoldHoldForWhatFollows)
{
    EXPECT_EQ(Drawn(R"(a/fn"Courier New"b/fz"8.5"c/fb1d/fb0e)"),
              "- l[a: Arial 10] l[b: Courier New 10] l[c: Courier New 8.5] l[d: Courier New 8.5 bold] "
              "l[e: Courier New 8.5]");
}

TEST(PrintCodes, PartsAreSetInAnyOrder)
{
    EXPECT_EQ(Drawn("/rdate/ctitle/lname/rtime"),
              "- l[name: Arial 10] c[title: Arial 10] r[date: Arial 10] r[time: Arial 10]");
}

TEST(PrintCodes, ANewLineStartsInTheLeftPartAndKeepsTheFont)
{
    EXPECT_EQ(Drawn("/fb1/ctitle/ndate"), "- c[title: Arial 10 bold]\n- l[date: Arial 10 bold]");
}

TEST(PrintCodes, LinesMayBeEmptyButNoneFollowsTheLastNewLine)
{
    EXPECT_EQ(Drawn("a/n/nb/n"), "- l[a: Arial 10]\n-\n- l[b: Arial 10]");
    EXPECT_EQ(Drawn("/l/r"), "");
}

TEST(PrintCodes, AnEmptyLineIsAsHighAsItsFont)
{
    EXPECT_EQ(ReadPrintCodes(R"(/fz"20"/n)").front().look.size, 20);
}

TEST(PrintCodes, ASlashThatStartsNoCodeIsText)
{
    EXPECT_EQ(Drawn("12/31/2024"), "- l[12/31/2024: Arial 10]");
    EXPECT_EQ(Drawn("/fb2 /fx /fnArial /fz\"big\" /q //"), "- l[/fb2 /fx /fnArial /fz\"big\" /q //: Arial 10]");
    EXPECT_EQ(Drawn("a//nb"), "- l[a/: Arial 10]\n- l[b: Arial 10]");
    EXPECT_EQ(Drawn("/fn\"never closed"), "- l[/fn\"never closed: Arial 10]");
}

TEST(PrintCodes, HalfACharacterIsReplacedAndSpoilsNoCode)
{
    EXPECT_EQ(Drawn(QStringLiteral("/ca") + QChar(0xDC00) + QStringLiteral("/nb")),
              "- c[a\uFFFD: Arial 10]\n- l[b: Arial 10]");
}

TEST(PrintCodes, AByteOrderMarkAtTheStartIsText)
{
    EXPECT_EQ(Drawn(QChar(0xFEFF) + QStringLiteral("a")), "- l[\uFEFFa: Arial 10]");
}

TEST(PrintCodes, CodesAreLowerCase)
{
    EXPECT_EQ(Drawn("I/O, N/A, /C"), "- l[I/O, N/A, /C: Arial 10]");
}

TEST(PrintCodes, ASizeIsAtLeastAPoint)
{
    EXPECT_EQ(Drawn("/fz\"0\"a"), "- l[a: Arial 1]");
}

TEST(PrintCodes, AnEmptyFontNameIsKept)
{
    EXPECT_EQ(Drawn("/fn\"\"a"), "- l[a:  10]");
}

TEST(PrintCodes, CharactersThatMoveALineOnAreBlanks)
{
    EXPECT_EQ(Drawn("a\nb\tc"), "- l[a b c: Arial 10]");
}

TEST(PrintCodes, SlashesOfAProtectedTextAreText)
{
    for (const char* title : {"Pumps/newly added", "/c", "a/", "/fz\"12", "/fb", "http://host/list/"})
        EXPECT_EQ(Drawn("/c" + ProtectedFromCodes(title) + "/n"), "- c[" + std::string(title) + ": Arial 10]") << title;
}

TEST(PrintCodes, AProtectedTextSwallowsNoCodeAfterIt)
{
    EXPECT_EQ(Drawn(ProtectedFromCodes("/fz\"1") + "/n/fn\"Arial\"/rdate"),
              "- l[/fz\"1: Arial 10]\n- r[date: Arial 10]");
}

} // namespace schedules::testing
