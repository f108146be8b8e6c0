#include "tools/ToolbarInWindow.h"

namespace schedules {

namespace {

using ToolbarIcons = ToolbarInWindow;
using ToolbarKeyboard = ToolbarInWindow;
using NarrowToolbar = ToolbarInWindow;

} // namespace

TEST(ImageFile, HasTheSixOfTheList)
{
    const QStringList names{"print", "export", "customize", "help", "transpose", "save"};
    for (int image = 1; image <= 6; ++image)
        EXPECT_EQ(ImageFile(image), QStringLiteral(":/schedules/icons/%1.svg").arg(names.at(image - 1)));
}

TEST(ImageFile, HasNoOther)
{
    for (const int image : {-1, 0, 7, 1000})
        EXPECT_EQ(ImageFile(image), QString()) << image;
}

TEST_F(ToolbarIcons, AreThoseOfTheImageNumbers)
{
    AddViewTools();
    for (const ViewTool& tool : ViewToolsOf(ViewSettings{.viewType = 1})) {
        const QImage expected = SymbolIcon(ImageFile(tool.image), bar).pixmap(QSize(16, 16), 1).toImage();
        EXPECT_EQ(Button(tool.key)->icon().pixmap(QSize(16, 16), 1).toImage(), expected) << tool.key;
        EXPECT_FALSE(expected.isNull()) << tool.key;
    }
}

TEST_F(ToolbarIcons, AreMissingWithoutAnImage)
{
    AddHostTool("none");
    AddHostTool("unknown", ToolKind::Button, 7);
    AddHostTool("negative", ToolKind::Button, -1);
    for (const char* key : {"none", "unknown", "negative"})
        EXPECT_TRUE(Tool(key)->icon().isNull()) << key;
}

TEST_F(ToolbarIcons, AreForToolsOfTheHostToo)
{
    AddHostTool("locate", ToolKind::Button, 4);
    AddHostTool("mark", ToolKind::CheckButton, 6);
    EXPECT_FALSE(Button("locate")->icon().isNull() || Button("mark")->icon().isNull());
}

TEST_F(ToolbarIcons, StandBesideTheCaptionInTheSizeOfThePicture)
{
    AddViewTools();
    EXPECT_EQ(Button("btnHelp")->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    EXPECT_EQ(Button("btnHelp")->text(), QStringLiteral("Help"));
    EXPECT_EQ(Button("btnHelp")->toolTip(), QStringLiteral("Tip"));
    const int pixels = 250 * bar->logicalDpiX() / 1440;
    EXPECT_EQ(Button("btnHelp")->iconSize(), QSize(pixels, pixels));
}

TEST_F(ToolbarIcons, FollowThePaletteOfTheBarOnScreen)
{
    AddHostTool("", ToolKind::Button, 6);
    Show();
    QPalette palette = bar->palette();
    palette.setColor(QPalette::ButtonText, QColor(1, 99, 2));
    bar->setPalette(palette);
    const QWidget* button = bar->widgetForAction(bar->actions().constFirst());
    const QImage shown = bar->grab(button->geometry()).toImage();
    const auto* pixels = reinterpret_cast<const QRgb*>(shown.constBits());
    EXPECT_GT(std::count(pixels, pixels + shown.width() * shown.height(), QColor(1, 99, 2).rgb()), 20);
}

TEST_F(ToolbarKeyboard, TabGoesThroughTheToolsInTheirOrder)
{
    AddHostTool("Mark");
    AddHostTool("", ToolKind::Separator);
    AddHostTool("Locate");
    AddViewTools();
    Show();
    EXPECT_EQ(Walk(Qt::Key_Tab, &before, &after), "Transpose Save Print Export Customize Help Mark Locate after");
    EXPECT_EQ(Walk(Qt::Key_Backtab, &after, &before), "Locate Mark Help Customize Export Print Save Transpose before");
}

TEST_F(ToolbarKeyboard, TabPassesToolsThatAreDisabledOrHidden)
{
    AddViewTools();
    Tool("btnSaveTag")->setEnabled(false);
    Tool("btnPrint")->setVisible(false);
    Show();
    EXPECT_EQ(Walk(Qt::Key_Tab, &before, &after), "Transpose Export Customize Help after");
}

TEST_F(ToolbarKeyboard, TheToolWithTheFocusCanBeSeen)
{
    AddViewTools();
    Show();
    Walk(Qt::Key_Tab, &before, Button("btnSaveTag"));
    const QImage focused = Button("btnSaveTag")->grab().toImage();
    after.setFocus();
    EXPECT_NE(Button("btnSaveTag")->grab().toImage(), focused);
}

TEST_F(ToolbarKeyboard, AMouseClickLeavesTheFocusWhereItIs)
{
    AddViewTools();
    Show();
    before.setFocus();
    QTest::mouseClick(Button("btnHelp"), Qt::LeftButton);
    EXPECT_EQ(Clicks(), "btnHelp");
    EXPECT_TRUE(before.hasFocus());
}

TEST_F(ToolbarKeyboard, SpaceAndEnterClick)
{
    AddViewTools();
    Show();
    Press("btnTranspose", Qt::Key_Space);
    Press("btnPrint", Qt::Key_Return);
    Press("btnHelp", Qt::Key_Enter);
    EXPECT_EQ(Clicks(), "btnTranspose btnPrint btnHelp");
}

TEST_F(ToolbarKeyboard, AHeldKeyClicksOnce)
{
    AddViewTools();
    Show();
    Press("btnHelp", Qt::Key_Return);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QApplication::sendEvent(Button("btnHelp"), &repeated);
    EXPECT_EQ(Clicks(), "btnHelp");
}

TEST_F(ToolbarKeyboard, ToolsTellTheirCaptionAndTooltip)
{
    AddViewTools();
    const auto tool = Accessible(Button("btnCustomize"));
    EXPECT_EQ(tool->text(QAccessible::Name), QStringLiteral("Customize"));
    EXPECT_EQ(tool->text(QAccessible::Description), QStringLiteral("Tip"));
    EXPECT_EQ(tool->role(), QAccessible::PushButton);
    EXPECT_TRUE(tool->state().focusable);
}

TEST_F(NarrowToolbar, FitsAViewOf320Pixels)
{
    AddViewTools();
    AddExportMenu();
    Show(320);
    EXPECT_EQ(window.width(), 320);
    EXPECT_EQ(bar->width(), 320);
    EXPECT_LE(bar->minimumSizeHint().width(), 200);
}

TEST_F(NarrowToolbar, KeepsEachToolInSight)
{
    AddViewTools();
    Show(320);
    QStringList captions;
    for (const QAction* tool : bar->actions()) {
        if (bar->widgetForAction(const_cast<QAction*>(tool))->isVisible())
            captions += tool->text();
    }
    const std::string hidden = OpenedBy([this] { QTest::mouseClick(More(), Qt::LeftButton); });
    EXPECT_EQ(captions.join(' ').toStdString() + ' ' + hidden, "Transpose Save Print Export Customize Help");
}

TEST_F(NarrowToolbar, ShowsAllToolsOnceItIsWideAgain)
{
    AddViewTools();
    Show(320);
    EXPECT_TRUE(More()->isVisible());
    window.resize(900, 200);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Button("btnHelp")->isVisible(); }));
    EXPECT_FALSE(More()->isVisible());
}

TEST_F(NarrowToolbar, RunsAToolFromItsMenuWithTheMouse)
{
    AddViewTools();
    Show(320);
    OpenedBy([this] { QTest::mouseClick(More(), Qt::LeftButton); },
             [](QMenu& menu) { ClickEntry(menu, static_cast<int>(menu.actions().size()) - 1); });
    EXPECT_EQ(Clicks(), "btnHelp");
}

TEST_F(NarrowToolbar, RunsAToolFromItsMenuWithTheKeyboard)
{
    AddViewTools();
    Show(320);
    EXPECT_TRUE(QString::fromStdString(Walk(Qt::Key_Tab, &before, &after)).endsWith(QStringLiteral("More after")));
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Down}) {
        OpenedBy([this, key] { Press(More(), key); },
                 [](QMenu& menu) {
                     QTest::keyClick(&menu, Qt::Key_Up);
                     QTest::keyClick(&menu, Qt::Key_Return);
                 });
    }
    EXPECT_EQ(Clicks(), "btnHelp btnHelp btnHelp");
}

TEST_F(NarrowToolbar, TellsWhatTheMenuHolds)
{
    AddViewTools();
    EXPECT_EQ(Accessible(More())->text(QAccessible::Name), QStringLiteral("More tools"));
}

TEST_F(NarrowToolbar, OffersADropDownAsASubmenu)
{
    AddViewTools();
    AddExportMenu();
    Tool("btnTranspose")->setVisible(false);
    Tool("btnSaveTag")->setVisible(false);
    Show(120);
    EXPECT_EQ(OpenedBy([this] { QTest::mouseClick(More(), Qt::LeftButton); },
                       [](QMenu& menu) {
                           QTest::keyClick(&menu, Qt::Key_Down);
                           QTest::keyClick(&menu, Qt::Key_Right);
                           QWidget* submenu = QApplication::activePopupWidget();
                           QTest::keyClick(submenu, Qt::Key_Down);
                           QTest::keyClick(submenu, Qt::Key_Return);
                       }),
              "Export... Customize Help");
    EXPECT_EQ(Clicks(), "Web page");
}

TEST_F(ToolbarInWindow, IsMirroredFromRightToLeft)
{
    AddViewTools();
    window.setLayoutDirection(Qt::RightToLeft);
    Show();
    EXPECT_GT(Button("btnTranspose")->x(), Button("btnSaveTag")->x());
    EXPECT_GT(Button("btnCustomize")->x(), Button("btnHelp")->x());
    window.resize(320, 200);
    EXPECT_TRUE(QTest::qWaitFor([this] { return More()->isVisible(); }));
    EXPECT_LT(More()->x(), 10);
}

} // namespace schedules
