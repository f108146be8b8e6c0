#include "tools/schedule/ScheduleToolbar.h"

#include "controls/SymbolIcon.h"
#include "tools/schedule/ScheduleTools.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionToolButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace schedules {

namespace {

/// A menu's entries as they are shown: separators as "-", those with a submenu with "...".
std::string Entries(const QMenu& menu)
{
    QStringList entries;
    for (const QAction* action : menu.actions())
        entries += action->isSeparator() ? QStringLiteral("-") : action->text() + (action->menu() ? "..." : "");
    return entries.join(' ').toStdString();
}

/// The entries of the menu that an act opens, which is then used and closed.
std::string OpenedBy(
    const std::function<void()>& act, const std::function<void(QMenu&)>& use = [](QMenu&) {})
{
    std::string entries = "no menu";
    QTimer whenOpen;
    QObject::connect(&whenOpen, &QTimer::timeout, &whenOpen, [&] {
        const QPointer menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        whenOpen.stop();
        entries = Entries(*menu);
        use(*menu);
        if (menu)
            menu->close();
    });
    whenOpen.start(1);
    act();
    QApplication::processEvents();
    return entries;
}

void ClickEntry(QMenu& menu, int index)
{
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(menu.actions().at(index)).center());
}

std::unique_ptr<QAccessibleInterface, void (*)(QAccessibleInterface*)> Accessible(QWidget* widget)
{
    // The registry keeps what it gave out.
    return {QAccessible::queryAccessibleInterface(widget), [](QAccessibleInterface*) {}};
}

/// A bar of the schedule view's six tools in a window, between two fields.
class ToolbarInWindow : public ::testing::Test
{
protected:
    ToolbarInWindow()
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins({});
        layout->addWidget(&before);
        layout->addWidget(bar);
        layout->addWidget(&after);
        QObject::connect(bar, &ScheduleToolbar::ViewToolClicked, [this](const QString& key) { clicks += key; });
        QObject::connect(bar, &ScheduleToolbar::HostToolClicked,
                         [this](const QString& owner, const QString& key) { clicks += owner + '/' + key; });
        exportMenu.addAction(QStringLiteral("Workbook"), [this] { clicks += QStringLiteral("Workbook"); });
        exportMenu.addAction(QStringLiteral("Web page"), [this] { clicks += QStringLiteral("Web page"); });
    }

    void AddViewTools()
    {
        for (const ScheduleTool& tool : ScheduleToolsOf(1, false))
            bar->AddViewTool({{}, QLatin1String(tool.key), tool.image, QLatin1String(tool.caption), "Tip"});
    }

    bool AddHostTool(const char* key, ToolKind kind = ToolKind::Button, int image = 0)
    {
        return bar->AddHostTool({"Drawing", QLatin1String(key), image, QLatin1String(key), "Tip", true, kind});
    }

    bool AddExportMenu() { return bar->AddDropDown(QStringLiteral("btnExport"), &exportMenu); }

    void Show(int width = 900)
    {
        window.resize(width, 200);
        window.show();
        QApplication::setActiveWindow(&window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QAction* Tool(const char* key) const { return bar->Tool(QLatin1String(key)); }
    QToolButton* Button(const char* key) const { return qobject_cast<QToolButton*>(bar->widgetForAction(Tool(key))); }
    QToolButton* More() const { return bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")); }

    void Press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        widget->setFocus(Qt::TabFocusReason);
        QTest::keyClick(widget, key, modifiers);
    }

    void Press(const char* key, Qt::Key pressed, Qt::KeyboardModifiers modifiers = {})
    {
        Press(Button(key), pressed, modifiers);
    }

    void ClickArrow(const char* key)
    {
        QStyleOptionToolButton option;
        option.initFrom(Button(key));
        option.subControls = QStyle::SC_All;
        option.features = QStyleOptionToolButton::MenuButtonPopup | QStyleOptionToolButton::HasMenu;
        const QRect arrow =
            bar->style()->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButtonMenu, Button(key));
        QTest::mouseClick(Button(key), Qt::LeftButton, {}, arrow.center());
    }

    /// Where a key leads from field to field: captions of tools, "More", "after", "before".
    std::string Walk(Qt::Key key, QWidget* from, const QWidget* to)
    {
        QStringList names;
        from->setFocus();
        for (int step = 0; step < 20 && QApplication::focusWidget() != to; ++step) {
            QTest::keyClick(QApplication::focusWidget(), key);
            names += NameOf(QApplication::focusWidget());
        }
        return names.join(' ').toStdString();
    }

    std::string Clicks() const { return clicks.join(' ').toStdString(); }

    QWidget window;
    QLineEdit before;
    QLineEdit after;
    ScheduleToolbar* bar = new ScheduleToolbar;
    QMenu exportMenu{QStringLiteral("Export schedule")};
    QStringList clicks;

private:
    QString NameOf(const QWidget* widget) const
    {
        if (const auto* button = qobject_cast<const QToolButton*>(widget))
            return button == More() ? QStringLiteral("More") : button->text();
        return widget == &after ? QStringLiteral("after") : QStringLiteral("before");
    }
};

using ToolbarIcons = ToolbarInWindow;
using ToolbarKeyboard = ToolbarInWindow;
using NarrowToolbar = ToolbarInWindow;
using ToolbarDropDown = ToolbarInWindow;
using ToolbarHostTools = ToolbarInWindow;

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
    for (const ScheduleTool& tool : ScheduleToolsOf(1, false)) {
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

TEST_F(ToolbarDropDown, OpensAtItsArrow)
{
    AddViewTools();
    EXPECT_TRUE(AddExportMenu());
    Show();
    EXPECT_EQ(OpenedBy([this] { ClickArrow("btnExport"); }, [](QMenu& menu) { ClickEntry(menu, 1); }),
              "Workbook Web page");
    EXPECT_EQ(Clicks(), "Web page");
}

TEST_F(ToolbarDropDown, LeavesTheButtonItsClick)
{
    AddViewTools();
    AddExportMenu();
    Show();
    EXPECT_EQ(OpenedBy([this] {
                  QTest::mouseClick(Button("btnExport"), Qt::LeftButton, {}, QPoint(8, 8));
                  Press("btnExport", Qt::Key_Space);
                  Press("btnExport", Qt::Key_Return);
              }),
              "no menu");
    EXPECT_EQ(Clicks(), "btnExport btnExport btnExport");
}

TEST_F(ToolbarDropDown, OpensWithDownAndAltDown)
{
    AddViewTools();
    AddExportMenu();
    Show();
    const auto chooseSecond = [](QMenu& menu) {
        QTest::keyClick(&menu, Qt::Key_Down);
        if (menu.activeAction() != menu.actions().at(1))
            QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
    };
    EXPECT_EQ(OpenedBy([this] { Press("btnExport", Qt::Key_Down); }, chooseSecond), "Workbook Web page");
    EXPECT_EQ(OpenedBy([this] { Press("btnExport", Qt::Key_Down, Qt::AltModifier); }, chooseSecond),
              "Workbook Web page");
    EXPECT_EQ(Clicks(), "Web page Web page");
}

TEST_F(ToolbarDropDown, DownOpensNothingOnAToolWithoutOne)
{
    AddViewTools();
    AddExportMenu();
    Show();
    EXPECT_EQ(OpenedBy([this] { Press("btnHelp", Qt::Key_Down); }), "no menu");
    EXPECT_EQ(Clicks(), "");
}

TEST_F(ToolbarDropDown, CanBeClosedWithoutAChoice)
{
    AddViewTools();
    AddExportMenu();
    Show();
    OpenedBy([this] { Press("btnExport", Qt::Key_Down); }, [](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_Escape); });
    EXPECT_EQ(Clicks(), "");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Button("btnExport")->hasFocus(); }));
}

TEST_F(ToolbarDropDown, IsClosedWhileTheToolIsDisabled)
{
    AddViewTools();
    AddExportMenu();
    Tool("btnExport")->setEnabled(false);
    Show();
    EXPECT_EQ(OpenedBy([this] { ClickArrow("btnExport"); }), "no menu");
}

TEST_F(ToolbarDropDown, IsToldToAssistivePrograms)
{
    AddViewTools();
    AddExportMenu();
    const auto tool = Accessible(Button("btnExport"));
    EXPECT_EQ(tool->text(QAccessible::Name), QStringLiteral("Export"));
    EXPECT_TRUE(tool->state().hasPopup);
    EXPECT_EQ(Accessible(&exportMenu)->text(QAccessible::Name), QStringLiteral("Export schedule"));
}

TEST_F(ToolbarDropDown, HasTheToolsNameWithoutATitleOfItsOwn)
{
    AddViewTools();
    QMenu untitled;
    QMenu named;
    named.setAccessibleName(QStringLiteral("Formats"));
    bar->AddDropDown(QStringLiteral("btnExport"), &untitled);
    bar->AddDropDown(QStringLiteral("btnPrint"), &named);
    EXPECT_EQ(Accessible(&untitled)->text(QAccessible::Name), QStringLiteral("Export"));
    EXPECT_EQ(Accessible(&named)->text(QAccessible::Name), QStringLiteral("Formats"));
}

TEST_F(ToolbarDropDown, NeedsATool)
{
    AddHostTool("line", ToolKind::Separator);
    EXPECT_FALSE(AddExportMenu());
    EXPECT_FALSE(bar->AddDropDown(QStringLiteral("line"), &exportMenu));
    EXPECT_FALSE(bar->AddDropDown(QString(), &exportMenu));
}

TEST_F(ToolbarDropDown, IsTheCallers)
{
    AddViewTools();
    auto menu = std::make_unique<QMenu>();
    bar->AddDropDown(QStringLiteral("btnPrint"), menu.get());
    AddExportMenu();
    Show();
    menu.reset();
    Press("btnPrint", Qt::Key_Down);
    Press("btnPrint", Qt::Key_Return);
    EXPECT_EQ(Clicks(), "btnPrint");
    delete bar;
    EXPECT_EQ(Entries(exportMenu), "Workbook Web page");
}

TEST_F(ToolbarHostTools, ACheckToolTogglesAndTells)
{
    AddHostTool("mark", ToolKind::CheckButton);
    Show();
    QTest::mouseClick(Button("mark"), Qt::LeftButton);
    EXPECT_TRUE(Tool("mark")->isChecked());
    Press("mark", Qt::Key_Return);
    EXPECT_FALSE(Tool("mark")->isChecked());
    EXPECT_EQ(Clicks(), "Drawing/mark Drawing/mark");
}

TEST_F(ToolbarHostTools, ASeparatorsClickTellsNothing)
{
    AddHostTool("line", ToolKind::Separator);
    AddHostTool("locate");
    Show();
    QTest::mouseClick(bar->widgetForAction(Tool("line")), Qt::LeftButton);
    Tool("line")->trigger();
    EXPECT_EQ(Clicks(), "");
}

TEST_F(ToolbarHostTools, AKeyIsTakenByToolsOfTheViewAndOfTheHost)
{
    AddViewTools();
    EXPECT_FALSE(AddHostTool("btnHelp"));
    EXPECT_TRUE(AddHostTool("locate"));
    EXPECT_FALSE(AddHostTool("locate", ToolKind::Separator));
    EXPECT_FALSE(bar->AddViewTool({{}, "locate", 0, "Locate"}));
    EXPECT_EQ(bar->actions().size(), 7);
}

TEST_F(ToolbarHostTools, ToolsWithoutAKeyAreNotFound)
{
    AddHostTool("", ToolKind::Separator);
    EXPECT_EQ(bar->Tool({}), nullptr);
    EXPECT_EQ(bar->Tool(QStringLiteral("")), nullptr);
}

} // namespace schedules
