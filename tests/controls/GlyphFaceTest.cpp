#include "controls/cells/GlyphFace.h"

#include <QFontMetricsF>

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

QFont SomeFont(bool bold = false)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(bold);
    return font;
}

} // namespace

TEST(GlyphFace, WidthsAreThoseOfTheFont)
{
    for (const bool bold : {false, true}) {
        GlyphFace face(SomeFont(bold));
        const QFontMetricsF metrics(SomeFont(bold));
        for (const char* text : {"P-101A", "AVAVA To Ty", "12.50", "spare in store", "x"}) {
            const QString string = QString::fromLatin1(text);
            const auto width = face.WidthOf(string);
            ASSERT_TRUE(width) << text;
            EXPECT_NEAR(*width, metrics.horizontalAdvance(string), 0.1) << text;
        }
    }
}

TEST(GlyphFace, LeavesOtherCharactersAndLigaturesToTheLayout)
{
    GlyphFace face(SomeFont());
    EXPECT_FALSE(face.WidthOf(QStringLiteral("Größe")));
    EXPECT_FALSE(face.WidthOf(QStringLiteral("насос")));
    EXPECT_FALSE(face.WidthOf(QStringLiteral("a\tb")));
    EXPECT_FALSE(face.WidthOf(QStringLiteral("office"))) << "this font joins f and i";
    EXPECT_FALSE(face.WidthOf(QString()));
}

TEST(GlyphFace, GlyphsStandOneAfterTheOther)
{
    GlyphFace face(SomeFont());
    GlyphRow row;
    face.Append(row, u"11", {5, 7});
    face.Append(row, u"2", {90, 7});
    ASSERT_EQ(row.glyphs.size(), 3U);
    EXPECT_EQ(row.glyphs[0], row.glyphs[1]);
    EXPECT_NE(row.glyphs[0], row.glyphs[2]);
    EXPECT_EQ(row.positions[0], QPointF(5, 7));
    EXPECT_NEAR(row.positions[1].x(), 5 + QFontMetricsF(SomeFont()).horizontalAdvance(u'1'), 0.05);
    EXPECT_EQ(row.positions[2], QPointF(90, 7));
}

} // namespace schedules::testing
