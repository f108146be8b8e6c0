#include "rtf/RtfReader.h"

#include "rtf/DrawnDocument.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <gtest/gtest.h>

namespace schedules::rtf {

namespace {

/// Remembers what it was asked to load.
class AskedDocument : public QTextDocument
{
public:
    QList<QUrl> asked;

protected:
    QVariant loadResource(int, const QUrl& name) override
    {
        asked << name;
        return {};
    }
};

} // namespace

TEST(RichText, IsWhatHasItsMarkAnywhereInLowerCase)
{
    EXPECT_TRUE(IsRichText(u"{\\rtf1 a}"));
    EXPECT_TRUE(IsRichText(u"see {\\rtf"));
    EXPECT_FALSE(IsRichText(u"{\\RTF1 a}"));
    EXPECT_FALSE(IsRichText(u"{ \\rtf1 a}"));
    EXPECT_FALSE(IsRichText(u""));
}

TEST(RichText, ShowsAWholeMessage)
{
    EXPECT_EQ(
        DrawnMessage(R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\fnil\fcharset0 Arial;}{\f1\fnil\fcharset2 Symbol;}}
{\colortbl ;\red255\green0\blue0;}
{\*\generator Writer 5.41;}\viewkind4\uc1\pard\qc\b\fs24 Pumps\b0\fs20\par
\pard{\pntext\f1\'B7\tab}{\*\pn\pnlvlblt\pnf1\pnindent0{\pntxtb\'B7}}\fi-360\li720\cf1 Check\cf0  the \i duty\i0\par
{\pntext\f1\'B7\tab}5 \'b0C\par
}
)"),
        "<centre> [b font=Arial size=12]Pumps[/]\n"
        "<li=48 fi=-24 tabs=24L> [size=10]\u2022\u2192[/][font=Arial size=10 colour=#ff0000]Check[/]"
        "[font=Arial size=10] the [/][i font=Arial size=10]duty[/]\n"
        "<li=48 fi=-24 tabs=24L> [size=10]\u2022\u2192[/][font=Arial size=10]5 \u00B0C[/]");
}

TEST(RichText, ShowsWhatStandsAroundIt)
{
    EXPECT_EQ(DrawnMessage("C:\\temp {x}\r\n\nsee {\\rtf1 \\b text}, too"), "C:\\temp {x}\n\nsee [b]text[/], too");
}

TEST(RichText, DropsWhatFollowsTheLastBraceUnseen)
{
    EXPECT_EQ(DrawnMessage(QStringLiteral("{\\rtf1 a\\par}\r\n  ") + QChar(0)), "a");
    EXPECT_EQ(DrawnMessage("{\\rtf1 a "), "a ");
}

TEST(RichText, ReplacesWhatTheDocumentHeld)
{
    QTextDocument document;
    ReadRichText(u"{\\rtf1\\qc\\b one\\par two}", document);
    ReadRichText(u"{\\rtf1 three}", document);
    EXPECT_EQ(Drawn(document), "three");
}

TEST(RichText, GroupsKeepWhatTheySet)
{
    EXPECT_EQ(Shown(R"(a{\b b{\i c}d}e)"), "a[b]b[/][b i]c[/][b]d[/]e");
    EXPECT_EQ(Shown(R"(\b a{\b0\i b}c)"), "[b]a[/][i]b[/][b]c[/]");
}

TEST(RichText, ParagraphsAreSetAsTheyEnd)
{
    EXPECT_EQ(Shown(R"(a\qc\par b\ql\par{\qr c\par}d)"), "<centre> a\n<left> b\n<right> c\n<left> d");
    EXPECT_EQ(Shown(R"({\qc a})"), "<centre> a");
}

TEST(RichText, AnEmptyParagraphIsAsHighAsItsMark)
{
    QTextDocument document;
    ReadRichText(u"{\\rtf1 a\\par\\fs40\\par b}", document);
    EXPECT_EQ(document.begin().next().charFormat().fontPointSize(), 20);
}

TEST(RichText, EndsOfLinesInTheSourceAreNone)
{
    EXPECT_EQ(Shown("a\r\nb\nc\\b\r\nd"), "abc[b]d[/]");
    EXPECT_EQ(Shown("a\\\r\nb"), "a\nb");
}

TEST(RichText, SymbolsStandForCharacters)
{
    EXPECT_EQ(Shown(R"(a\~b\_c\-d\{e\}f\\g\|\:h)"), "a\u00A0b\u2011c\u00ADd{e}f\\gh");
}

TEST(RichText, TakesLiteralCharactersAsTheyAre)
{
    EXPECT_EQ(Shown(QStringLiteral("\\ansicpg1251 \u00E9\u0080 \u0416 \u6CF5 \U0001F600")),
              "\u00E9\u0080 \u0416 \u6CF5 \U0001F600");
}

TEST(RichText, TheFirstColourAndOneWithoutPartsAreThePalettes)
{
    EXPECT_EQ(Shown(R"({\colortbl\red9;;\red255\green300\blue-5;}\cf0 a\cf1 b\cf2 c)"), "ab[colour=#ffff00]c[/]");
}

TEST(RichText, ALaterColourTableReplacesTheFirst)
{
    EXPECT_EQ(Shown(R"({\colortbl;\red255;}\cf1 a\par{\colortbl;\blue255;}b)"),
              "[colour=#ff0000]a[/]\n[colour=#0000ff]b[/]");
}

TEST(RichText, SizesAreLimited)
{
    EXPECT_EQ(Shown(R"(\fs999999999999 a\fs-8 b)"), "[size=1638]a[/]b");
}

TEST(RichText, IndentsLeaveRoomForText)
{
    EXPECT_EQ(Shown(R"(\li99999999\ri99999999\fi99999999\sb99999999\sa99999999 a)"), "<li=288 ri=288 sb=192 sa=192> a");
    EXPECT_EQ(Shown(R"(\li1440\fi99999999 a)"), "<li=96 fi=192> a");
    EXPECT_EQ(Shown(R"(\li-720\ri-720\fi-720\sb-1\sa-1 a)"), "a");
}

TEST(RichText, TabStopsCountFromTheMargin)
{
    EXPECT_EQ(Shown(R"(\li720\fi-360\tx2160\tx360\tx180 a)"), "<li=48 fi=-24 tabs=24L,120L> a");
    EXPECT_EQ(Shown(R"(\li720\tx1440 a)"), "<li=48 tabs=48L> a");
}

TEST(RichText, AParagraphHasSoManyTabStops)
{
    QString stops;
    for (int stop = 1; stop <= 1000; ++stop)
        stops += QStringLiteral("\\tx%1").arg(stop * 15);
    QTextDocument document;
    ReadRichText("{\\rtf1" + stops + " a}", document);
    EXPECT_EQ(document.begin().blockFormat().tabPositions().size(), 64);
}

TEST(RichText, LengthsFollowTheResolution)
{
    QTextDocument document;
    ReadRichText(u"{\\rtf1\\li1440\\tx2880 a}", document, 192);
    EXPECT_EQ(Drawn(document), "<li=192 tabs=192L> a");
}

TEST(RichText, TextStandsAtItsTabStop)
{
    QTextDocument document;
    ReadRichText(u"{\\rtf1\\li1440\\fi-720\\tx2880 a\\tab b\\tab c}", document);
    document.setTextWidth(1000);
    ASSERT_GT(document.size().height(), 0);
    const QTextLine line = document.begin().layout()->lineAt(0);
    EXPECT_EQ(line.x(), 48);
    EXPECT_EQ(line.cursorToX(2), 96);
    EXPECT_EQ(line.cursorToX(4), 192);
}

TEST(RichText, OtherTabStopsAreHalfAnInchApartOrAsTheTextSays)
{
    QTextDocument document;
    ReadRichText(u"{\\rtf1 a}", document);
    EXPECT_EQ(document.defaultTextOption().tabStopDistance(), 48);
    ReadRichText(u"{\\rtf1\\deftab1440 a}", document);
    EXPECT_EQ(document.defaultTextOption().tabStopDistance(), 96);
    ReadRichText(u"{\\rtf1\\deftab0 a}", document);
    EXPECT_GT(document.defaultTextOption().tabStopDistance(), 0);
}

TEST(RichText, FontNamesEndBeforeTheirNotes)
{
    EXPECT_EQ(Shown(R"({\fonttbl{\f0\fnil{\*\panose 020b}Arial{\*\falt Helvetica};}{\f1 Times}}\f0 a\f1 b)"),
              "[font=Arial]a[/][font=Times]b[/]");
}

TEST(RichText, FontNamesAreTheUnicodeOnesOfTwins)
{
    EXPECT_EQ(Shown(R"({\fonttbl{\f0{\upr{?}{\*\ud\u913 ?}};}}\f0 a)"), "[font=\u0391]a[/]");
}

TEST(RichText, FontNamesAreInTheirOwnCodePage)
{
    EXPECT_EQ(Shown(R"({\fonttbl{\f0\fcharset128 \'82\'6c\'82\'72;}}\f0 a)"), "[font=\uFF2D\uFF33]a[/]");
}

TEST(RichText, SymbolsOfFontsBecomeCharacters)
{
    EXPECT_EQ(Shown(R"({\fonttbl{\f1\fcharset2 Wingdings;}}\f1\'a7\u61607?)"), "\u25AA\u25AA");
    EXPECT_EQ(Shown(R"({\fonttbl{\f1\fcharset2 Other;}}\f1\'a7\u-3913?\u61607?)"), "\u25AA\u2022\u25AA");
    EXPECT_EQ(Shown(R"(\u-3913?\u61607?)"), "\u2022\u25AA");
}

TEST(RichText, AFieldShowsItsResult)
{
    EXPECT_EQ(Shown(R"(a {\field{\*\fldinst{HYPERLINK "http://example.com/x"}}{\fldrslt{\ul b}}} c)"), "a [u]b[/] c");
    EXPECT_EQ(Shown(R"(a {\field{\fldinst INCLUDEPICTURE "file:///etc/x.png"}{\fldrslt b}} c)"), "a b c");
}

TEST(RichText, PicturesAndObjectsAreNotShown)
{
    EXPECT_EQ(Shown(R"(a{\pict\pngblip\picw10 89504e47}b)"), "ab");
    EXPECT_EQ(Shown(R"(a{\*\shppict{\pict\bin5 {{{}}}}{\nonshppict{\pict 00}}b)"), "ab");
    EXPECT_EQ(Shown(R"(a{\object\objemb{\*\objclass Package}{\*\objdata 0105}{\result c}}b)"), "ab");
}

TEST(RichText, NothingIsLoaded)
{
    AskedDocument document;
    ReadRichText(uR"({\rtf1{\field{\*\fldinst INCLUDEPICTURE "file:///x.png"}{\fldrslt <img src="file:///x.png">}}
{\field{\fldinst HYPERLINK "http://example.com"}{\fldrslt link}}{\pict\wmetafile8 0100}{\object\objlink{\*\objdata 00}}
{\*\template file:///x.dot}{\*\background{\shp{\*\shpinst{\sp{\sn pib}{\sv {\pict 00}}}}}}{\filetbl{\file\fid1 x}}})",
                 document);
    document.setTextWidth(400);
    EXPECT_EQ(Drawn(document), "<img src=\"file:///x.png\">link");
    EXPECT_EQ(document.asked, QList<QUrl>());
}

TEST(RichText, UnknownDestinationsAreNotShown)
{
    EXPECT_EQ(Shown(R"(a{\*\unknown b{c}\par}d)"), "ad");
    EXPECT_EQ(Shown(R"(a{\*\b b}c{\*\unknown}d)"), "acd");
    EXPECT_EQ(Shown(R"(a{\* b}c)"), "a bc");
    EXPECT_EQ(Shown(R"(a{\unknown b}c)"), "abc");
}

TEST(RichText, OnlyAListHasATextForItsBullet)
{
    EXPECT_EQ(Shown(R"(a{\pntxtb -}b)"), "ab");
}

} // namespace schedules::rtf
