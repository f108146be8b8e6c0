#include "tools/schedule/layout/CustomMessage.h"

#include "support/ProcessorTime.h"

#include <QImage>

#include <gtest/gtest.h>

namespace schedules {

namespace {

const QString kRich = QStringLiteral("{\\rtf1{\\colortbl;\\red200;}\\qc\\b Check \\b0 the \\cf1 duty\\cf0  points}");

/// The height that a box wants which shows so many paragraphs.
int ShownHeight(int paragraphs)
{
    CustomMessage box;
    box.resize(400, 300);
    box.show();
    box.Show(
        {"{\\rtf1 " +
         QStringLiteral("Check the {\\b duty points} of the pumps before the next outage.\\par ").repeated(paragraphs) +
         '}'});
    box.grab();
    return box.sizeHint().height();
}

/// A box on a dark desktop, as a picture.
QImage PictureOf(const QString& text)
{
    CustomMessage box;
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::Base, Qt::black);
    box.setPalette(palette);
    box.resize(300, 100);
    box.Show({text});
    return box.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

int BrightPixels(const QImage& picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += qGray(picture.pixel(x, y)) > 128 ? 1 : 0;
    }
    return count;
}

} // namespace

TEST(CustomMessage, OfOneKindLeavesNothingForTheNext)
{
    CustomMessage box;
    box.Show({QStringLiteral("bold"), true, true, 2});
    box.Show({QStringLiteral("{\\rtf1 text}"), true, true, 2});
    EXPECT_FALSE(box.font().bold());
    EXPECT_FALSE(box.font().italic());
    box.Show({QStringLiteral("plain"), false, true, 0});
    EXPECT_FALSE(box.font().bold());
    EXPECT_TRUE(box.font().italic());
    box.Show({});
    EXPECT_EQ(box.toPlainText(), QString());
    EXPECT_TRUE(box.isHidden());
}

TEST(CustomMessage, InPlainTextHasNothingOfARichOneBefore)
{
    CustomMessage fresh;
    fresh.Show({QStringLiteral("plain")});
    CustomMessage box;
    box.Show({QStringLiteral("{\\rtf1\\deftab1440\\qc\\li720\\b\\fs48 rich}")});
    box.Show({QStringLiteral("plain")});
    EXPECT_EQ(box.toHtml(), fresh.toHtml());
    EXPECT_EQ(box.tabStopDistance(), fresh.tabStopDistance());
}

TEST(CustomMessage, InRichTextIsShownAsItIsWritten)
{
    CustomMessage box;
    box.Show({kRich, false, true, 1});
    EXPECT_EQ(box.toPlainText(), QStringLiteral("Check the duty points"));
    EXPECT_EQ(box.alignment(), Qt::AlignHCenter);
    QTextCursor cursor = box.textCursor();
    EXPECT_EQ(cursor.position(), 0);
    cursor.setPosition(3);
    EXPECT_EQ(cursor.charFormat().fontWeight(), QFont::Bold);
    EXPECT_FALSE(cursor.charFormat().fontItalic());
    cursor.setPosition(8);
    EXPECT_NE(cursor.charFormat().fontWeight(), QFont::Bold);
}

TEST(CustomMessage, IsGoneWhenTheRichTextHasNoText)
{
    CustomMessage box;
    box.Show({QStringLiteral("{\\rtf1}")});
    EXPECT_TRUE(box.isHidden());
    box.Show({QStringLiteral("{\\rtf1 a}")});
    EXPECT_FALSE(box.isHidden());
}

TEST(CustomMessage, WithoutAColourIsReadableOnADarkDesktop)
{
    for (const char* text : {"text", "{\\rtf1 text}", "{\\rtf1{\\colortbl;\\red255;}\\cf0 text}"})
        EXPECT_GT(BrightPixels(PictureOf(QLatin1String(text))), 5) << text;
    EXPECT_EQ(BrightPixels(PictureOf(QStringLiteral("{\\rtf1{\\colortbl;\\blue255;}\\cf1 text}"))), 0);
}

TEST(CustomMessage, IsAsHighAsItsRichText)
{
    CustomMessage box;
    box.resize(400, 300);
    box.Show({QStringLiteral("{\\rtf1 one}")});
    const int oneLine = box.sizeHint().height();
    box.Show({QStringLiteral("{\\rtf1 one\\par two\\line three}")});
    EXPECT_EQ(box.sizeHint().height(), oneLine + 2 * box.fontMetrics().lineSpacing());
}

TEST(CustomMessage, LoadsNothingWhateverAsksForIt)
{
    CustomMessage box;
    box.Show(
        {QStringLiteral("{\\rtf1{\\field{\\*\\fldinst INCLUDEPICTURE \"file://" SCHEDULES_SOURCE_DIR
                        "/resources/icons/print.svg\"}{\\fldrslt picture}}{\\pict 00}{\\object{\\*\\objdata 00}}}")});
    EXPECT_EQ(box.toPlainText(), QStringLiteral("picture"));
    for (const auto type :
         {QTextDocument::HtmlResource, QTextDocument::ImageResource, QTextDocument::StyleSheetResource}) {
        const QUrl source = QUrl::fromLocalFile(QStringLiteral(__FILE__));
        EXPECT_EQ(box.document()->resource(type, source).toByteArray(), QByteArray());
        EXPECT_EQ(box.loadResource(type, source).toByteArray(), QByteArray());
    }
}

TEST(CustomMessage, OfTenMegabytesIsShown)
{
    EXPECT_GT(ShownHeight(150'000), 4000);
}

TEST(CustomMessage, IsShownInLinearTime)
{
    EXPECT_LT(testing::CostOfFourTimes(2'500, ShownHeight), testing::kLinear);
}

TEST(CustomMessage, IsAsHighAsItsText)
{
    CustomMessage box;
    box.resize(400, 300);
    box.Show({QStringLiteral("one")});
    const int oneLine = box.sizeHint().height();
    box.Show({QStringLiteral("one\ntwo\nthree")});
    EXPECT_EQ(box.sizeHint().height(), oneLine + 2 * box.fontMetrics().lineSpacing());
    EXPECT_EQ(box.minimumSizeHint().height(), oneLine);
}

TEST(CustomMessage, BreaksBetweenWordsUnlessOneOfThemIsEndless)
{
    CustomMessage box;
    box.Show({QStringLiteral("words and words").repeated(1000)});
    EXPECT_EQ(box.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    box.Show({QString(1000, u'W') + u' ' + QString(1000, u'W')});
    EXPECT_EQ(box.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    box.Show({QString(1001, u'W')});
    EXPECT_EQ(box.wordWrapMode(), QTextOption::WrapAnywhere);
    box.Show({kRich});
    EXPECT_EQ(box.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    box.Show({QStringLiteral("{\\rtf1 ") + QString(1001, u'W') + u'}'});
    EXPECT_EQ(box.wordWrapMode(), QTextOption::WrapAnywhere);
}

} // namespace schedules
