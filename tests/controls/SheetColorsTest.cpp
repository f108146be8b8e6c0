#include "controls/cells/SheetColors.h"

#include <gtest/gtest.h>

namespace schedules::testing {

TEST(SheetColors, ANumberHoldsBlueGreenAndRed)
{
    EXPECT_EQ(ColorOf(255, {}), QColor(255, 0, 0));
    EXPECT_EQ(ColorOf(0x00102030, {}), QColor(0x30, 0x20, 0x10));
}

TEST(SheetColors, TheTopBitStandsForASystemColorOfThePalette)
{
    QPalette palette;
    palette.setColor(QPalette::Button, QColor(1, 2, 3));
    palette.setColor(QPalette::Base, QColor(4, 5, 6));
    palette.setColor(QPalette::Highlight, QColor(7, 8, 9));
    EXPECT_EQ(ColorOf(0x8000000F, palette), QColor(1, 2, 3));
    EXPECT_EQ(ColorOf(0x80000005, palette), QColor(4, 5, 6));
    EXPECT_EQ(ColorOf(0x8000000D, palette), QColor(7, 8, 9));
    EXPECT_EQ(ColorOf(0x8000001F, palette), QColor(4, 5, 6)) << "there is no such color";
    EXPECT_EQ(ColorOf(0xFFFFFFFF, palette), QColor(4, 5, 6)) << "there is no such color";
}

TEST(SheetColors, ContrastGoesFromOneToTwentyOne)
{
    EXPECT_DOUBLE_EQ(Contrast(Qt::white, Qt::white), 1);
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(Contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(SheetColors, TextIsLegibleOnEveryColorWithAnyPreference)
{
    for (const QColor preferred : {QColor(Qt::black), QColor(Qt::white), QColor(120, 120, 120)}) {
        for (int number = 0; number < 0x1000000; number += 0x1357) {
            const QColor ground = ColorOf(static_cast<std::uint32_t>(number), {});
            ASSERT_GE(Contrast(ground, LegibleOn(ground, preferred)), kLegibleContrast) << number;
        }
    }
}

TEST(SheetColors, ThePreferredColorStaysWhereItIsLegible)
{
    EXPECT_EQ(LegibleOn(Qt::white, QColor(0, 0, 128)), QColor(0, 0, 128));
    EXPECT_EQ(LegibleOn(QColor(40, 40, 40), QColor(200, 220, 240)), QColor(200, 220, 240));
    EXPECT_EQ(LegibleOn(Qt::yellow, QColor(Qt::white)), QColor(Qt::black));
}

TEST(SheetColors, MarksNeedLessContrastThanTexts)
{
    const QColor accent(48, 140, 198);
    EXPECT_EQ(LegibleOn(Qt::white, accent), QColor(Qt::black));
    EXPECT_EQ(LegibleOn(Qt::white, accent, kMarkContrast), accent);
    EXPECT_EQ(LegibleOn(accent, accent, kMarkContrast), QColor(Qt::black));
}

TEST(SheetColors, BlendsByShare)
{
    EXPECT_EQ(Blend(QColor(0, 100, 200), QColor(100, 0, 200), 0), QColor(0, 100, 200));
    EXPECT_EQ(Blend(QColor(0, 100, 200), QColor(100, 0, 200), 0.25), QColor(25, 75, 200));
    EXPECT_EQ(Blend(QColor(0, 100, 200), QColor(100, 0, 200), 1), QColor(100, 0, 200));
}

} // namespace schedules::testing
