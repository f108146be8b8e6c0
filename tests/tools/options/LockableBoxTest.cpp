#include "tools/options/lists/LockableBox.h"

#include <QTest>

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

QPalette Colors(const QColor& window, const QColor& base)
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, base);
    return palette;
}

QColor Background(const LockableBox& box)
{
    return box.palette().color(QPalette::Base);
}

/// The colour that is most of what is painted.
QColor PaintedBackground(LockableBox& box)
{
    return box.grab().toImage().pixelColor(box.width() / 2, box.height() / 2);
}

} // namespace

TEST(LockableBox, IsUnlockedAtFirst)
{
    LockableBox box;
    EXPECT_FALSE(box.IsLocked());
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(box.text(), "x");
}

TEST(LockableBox, TakesKeysOnlyWhileItIsUnlocked)
{
    LockableBox box;
    box.SetLocked(true);
    QTest::keyClicks(&box, "a");
    box.SetLocked(false);
    QTest::keyClicks(&box, "b");
    EXPECT_EQ(box.text(), "b");
}

TEST(LockableBox, IsPaintedInTheWindowsColourWhileItIsLocked)
{
    QWidget window;
    window.setPalette(Colors(Qt::green, Qt::yellow));
    auto* const box = new LockableBox(&window);
    EXPECT_EQ(PaintedBackground(*box), QColor(Qt::yellow));
    box->SetLocked(true);
    EXPECT_EQ(PaintedBackground(*box), QColor(Qt::green));
    box->SetLocked(false);
    EXPECT_EQ(PaintedBackground(*box), QColor(Qt::yellow));
}

TEST(LockableBox, FollowsThePaletteInEitherState)
{
    QWidget window;
    auto* const box = new LockableBox(&window);
    for (const bool locked : {true, false}) {
        box->SetLocked(locked);
        for (const auto& [back, base] : {std::pair(Qt::green, Qt::yellow), std::pair(Qt::black, Qt::darkGray)}) {
            window.setPalette(Colors(back, base));
            EXPECT_EQ(Background(*box), QColor(locked ? back : base));
        }
    }
}

TEST(LockableBox, HasTheWindowsColourInEachStateOfTheWindow)
{
    QWidget window;
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::Window, Qt::red);
    palette.setColor(QPalette::Inactive, QPalette::Window, Qt::green);
    palette.setColor(QPalette::Disabled, QPalette::Window, Qt::blue);
    window.setPalette(palette);
    auto* const box = new LockableBox(&window);
    box->SetLocked(true);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        EXPECT_EQ(box->palette().color(group, QPalette::Base), palette.color(group, QPalette::Window)) << int(group);
}

} // namespace schedules::testing
