#include "host/window/Palettes.h"

#include <QApplication>
#include <QPalette>

#include <gtest/gtest.h>

namespace schedules::host {

TEST(Palettes, DarkIsDarkAndLightIsLight)
{
    UsePalette(Palette::Dark);
    EXPECT_LT(QApplication::palette().color(QPalette::Base).lightness(), 60);
    EXPECT_GT(QApplication::palette().color(QPalette::Text).lightness(), 200);
    UsePalette(Palette::Light);
    EXPECT_GT(QApplication::palette().color(QPalette::Base).lightness(), 240);
    EXPECT_LT(QApplication::palette().color(QPalette::Text).lightness(), 60);
    UsePalette(Palette::Desktop);
}

TEST(Palettes, TheDesktopsColoursComeBack)
{
    const QPalette desktop = QApplication::palette();
    UsePalette(Palette::Dark);
    ASSERT_NE(QApplication::palette(), desktop);
    UsePalette(Palette::Desktop);
    EXPECT_EQ(QApplication::palette(), desktop);
}

} // namespace schedules::host
