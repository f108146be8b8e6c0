// The tool with a menu of its own, and the tools of the host.

#include "tools/ToolbarInWindow.h"

namespace schedules {

namespace {

using ToolbarDropDown = ToolbarInWindow;
using ToolbarHostTools = ToolbarInWindow;

} // namespace

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

TEST_F(ToolbarDropDown, AnEntryIsToldLikeAToolButWhenItsMenuIsDone)
{
    AddViewTools();
    AddExportMenu();
    bar->AddEntry(&exportMenu, QStringLiteral("entry"), QStringLiteral("Entry"));
    Show();
    std::string clicksInMenu = "no menu";
    OpenedBy([this] { Press("btnExport", Qt::Key_Down); },
             [&](QMenu& menu) {
                 ClickEntry(menu, 2);
                 clicksInMenu = Clicks();
             });
    EXPECT_EQ(clicksInMenu, "");
    EXPECT_EQ(Clicks(), "entry");
    exportMenu.actions().at(2)->trigger();
    EXPECT_EQ(Clicks(), "entry entry") << "no menu is open";
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
