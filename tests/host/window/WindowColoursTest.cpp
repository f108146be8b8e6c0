// The colours of the window from one start to the next.

#include "ShownProject.h"
#include "host/window/Palettes.h"

namespace schedules::host::testing {

namespace {

struct WindowColours : ShownProject
{
    ~WindowColours() override { UsePalette(Palette::Desktop); }
    Q_DISABLE_COPY_MOVE(WindowColours)
    WindowColours() = default;

    bool IsDark() const { return window->palette().color(QPalette::Window).lightness() < 100; }

    /// As the program starts with `--palette`, or without it.
    void StartIn(Palette palette)
    {
        Start();
        window->UseColours(palette);
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(WindowColours, ThoseThatTheUserChoseLastComeBack)
{
    Menu(QStringLiteral("Dark"))->trigger();
    UsePalette(Palette::Desktop);
    StartIn(Palette::Desktop);
    EXPECT_TRUE(IsDark());
    EXPECT_TRUE(Menu(QStringLiteral("Dark"))->isChecked());
}

TEST_F(WindowColours, ThoseOfTheCommandLineAreForThatStartAlone)
{
    Menu(QStringLiteral("Dark"))->trigger();
    StartIn(Palette::Light);
    EXPECT_FALSE(IsDark());
    EXPECT_TRUE(Menu(QStringLiteral("Light"))->isChecked());
    StartIn(Palette::Desktop);
    EXPECT_TRUE(IsDark());
}

TEST_F(WindowColours, TheDesktopsAreChosenAtRunTimeAsWell)
{
    const QColor desktop = window->palette().color(QPalette::Window);
    Menu(QStringLiteral("Dark"))->trigger();
    Menu(QStringLiteral("Desktop"))->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(window->palette().color(QPalette::Window), desktop);
    EXPECT_TRUE(Menu(QStringLiteral("Desktop"))->isChecked());
}

} // namespace schedules::host::testing
