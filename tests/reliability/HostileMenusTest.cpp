// What a host may do while a menu of the view is open: a menu is no dialog, but it waits for the user as well.

#include "HostileDesk.h"

#include <QMenu>

namespace schedules::testing {

namespace {

/// How a user opens it, which may take until it is closed.
struct Menu
{
    const char* name;
    int width; ///< of the view, in pixels
    void (*open)(ViewDesk& desk);
};

const Menu kMenus[] = {
    {"of the exports", 800,
     [](ViewDesk& desk) {
         auto& bar = desk.tool.Find<QToolBar>("tbTasks");
         QTest::keyClick(bar.widgetForAction(&desk.tool.Find<QAction>("btnExport")), Qt::Key_Down);
     }},
    {"of a narrow bar", 150,
     [](ViewDesk& desk) { QTest::keyClick(&desk.tool.Find("qt_toolbar_ext_button"), Qt::Key_Return); }},
    {"of the grid", 800,
     [](ViewDesk& desk) {
         desk.tool.Grid().SetActiveCell({Column(1), Row(1)});
         QMetaObject::invokeMethod(&desk.tool.Find("vaSpread1"), "customContextMenuRequested",
                                   Q_ARG(QPoint, QPoint(5, 60)));
     }},
};

/// Leaves all menus by the keyboard.
void Close()
{
    while (QWidget* const menu = QApplication::activePopupWidget())
        QTest::keyClick(menu, Qt::Key_Escape);
}

/// Takes the first entry of the menu that is open, if it is there still.
void Choose()
{
    if (QWidget* const menu = QApplication::activePopupWidget()) {
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    }
    Close();
}

/// Lets it happen while the menu is open, and leaves the menu in one way then. Whether it was open.
bool OpenWith(const Menu& menu, const Happening& happening, void (*leave)())
{
    ViewDesk desk;
    Start(desk, kScheduleView, kSchedule);
    desk.tool.Widget().resize(menu.width, 400);
    QCoreApplication::processEvents();
    bool wasOpen = false;
    QTimer::singleShot(0, [&] {
        wasOpen = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        desk.Do(happening);
        leave();
    });
    {
        const DialogUser user(0, {}, [&](QDialog& dialog, int) { desk.Accept(dialog); });
        menu.open(desk);
        QCoreApplication::processEvents();
    }
    ExpectWorkingAfter(&happening, desk);
    return wasOpen;
}

class HostileMenus : public ::testing::TestWithParam<Happening>
{
};

} // namespace

TEST_P(HostileMenus, ThatAreClosedThen)
{
    for (const Menu& menu : kMenus)
        EXPECT_TRUE(OpenWith(menu, GetParam(), Close)) << menu.name;
}

TEST_P(HostileMenus, WhoseFirstEntryIsChosenThen)
{
    for (const Menu& menu : kMenus)
        EXPECT_TRUE(OpenWith(menu, GetParam(), Choose)) << menu.name;
}

INSTANTIATE_TEST_SUITE_P(While, HostileMenus, ::testing::ValuesIn(kHappenings), NameOf);
INSTANTIATE_TEST_SUITE_P(WhileIt, HostileMenus, ::testing::Values(kCleaned), NameOf);

} // namespace schedules::testing
