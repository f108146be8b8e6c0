#include "ScheduleViewTest.h"
#include "tools/schedule/bar/ToolIdentifiers.h"

#include <QSignalSpy>

#include <limits>

namespace schedules {

namespace {

class ScheduleToolbarTest : public ScheduleViewTest
{
protected:
    QToolBar* Bar() const { return Find<QToolBar>("tbTasks"); }

    /// "key: caption, image, tooltip" for each tool.
    std::string Tools() const
    {
        QStringList tools;
        for (const QAction* action : Bar()->actions())
            tools +=
                QStringLiteral("%1: %2, %3, %4")
                    .arg(action->objectName(), action->text(), action->property("image").toString(), action->toolTip());
        return tools.join('\n').toStdString();
    }

    std::string Keys() const
    {
        QStringList keys;
        for (const QAction* action : Bar()->actions())
            keys += action->objectName();
        return keys.join(' ').toStdString();
    }

    void AddMenu(const char* key, int type = 0, bool visible = true)
    {
        view.AddMenu(QStringLiteral("Drawing"), QLatin1String(key), 0, QStringLiteral("Locate"),
                     QStringLiteral("Locate in the drawing"), visible, type);
    }

    void ClickWithMouse(const char* key)
    {
        view.resize(900, 400);
        view.show();
        QTest::mouseClick(Bar()->widgetForAction(Tool(key)), Qt::LeftButton);
    }
};

} // namespace

TEST_F(ScheduleToolbarTest, OfTheScheduleViewHasSixTools)
{
    Start(kScheduleView, kSchedule);
    EXPECT_EQ(Tools(), "btnTranspose: Transpose, 5, Missing: 3045\n"
                       "btnSaveTag: Save, 6, Missing: 3046\n"
                       "btnPrint: Print, 1, Missing: 3047\n"
                       "btnExport: Export, 2, Missing: 1061\n"
                       "btnCustomize: Customize, 3, Missing: 1017\n"
                       "btnHelp: Help, 4, Missing: 3048");
    for (const QAction* action : Bar()->actions())
        EXPECT_TRUE(action->isVisible());
}

TEST_F(ScheduleToolbarTest, OfTheSelectorViewHasThreeTools)
{
    Start(kSelectorView, kSelection);
    EXPECT_EQ(Keys(), "btnTranspose btnExport btnHelp");
}

TEST_F(ScheduleToolbarTest, OfTheSelectorViewHasPrintOnRequest)
{
    view.setProperty("ShowPrintButtonOnUnitSelector", true);
    Start(kSelectorView, kSelection);
    EXPECT_EQ(Tools(), "btnTranspose: Transpose, 5, Missing: 3045\n"
                       "btnPrint: Print, 1, Missing: 3050\n"
                       "btnExport: Export, 2, Missing: 1061\n"
                       "btnHelp: Help, 4, Missing: 3048");
}

TEST_F(ScheduleToolbarTest, IsBuiltOnce)
{
    Start(kSelectorView, kSelection);
    view.setProperty("ViewType", kScheduleView);
    view.setProperty("ShowPrintButtonOnUnitSelector", true);
    Activate(kSchedule);
    EXPECT_EQ(Keys(), "btnTranspose btnExport btnHelp");
}

TEST_F(ScheduleToolbarTest, BelongsToTheView)
{
    Start(kScheduleView, kSchedule);
    EXPECT_EQ(Tool("btnHelp")->property("owner"), QStringLiteral("ctlSchedule"));
    EXPECT_EQ(Bar()->accessibleName(), QStringLiteral("Toolbar"));
}

TEST_F(ScheduleToolbarTest, RunsACommandOnAClick)
{
    Start(kScheduleView, kSchedule);
    ClickWithMouse("btnCustomize");
    EXPECT_EQ(host.Names().join(' '), QStringLiteral("ShowOptions"));
}

TEST_F(ScheduleToolbarTest, TakesToolsOfTheHostAtItsEnd)
{
    Start(kSelectorView, kSelection);
    AddMenu("locate");
    AddMenu("mark");
    EXPECT_EQ(Keys(), "btnTranspose btnExport btnHelp locate mark");
    EXPECT_EQ(Tool("locate")->text(), QStringLiteral("Locate"));
    EXPECT_EQ(Tool("locate")->toolTip(), QStringLiteral("Locate in the drawing"));
    EXPECT_TRUE(Tool("locate")->isVisible());
    EXPECT_FALSE(Tool("locate")->isCheckable());
}

TEST_F(ScheduleToolbarTest, PutsItsOwnToolsBeforeThoseThatTheHostAddedEarlier)
{
    AddMenu("locate");
    AddMenu("mark");
    Start(kSelectorView, kSelection);
    EXPECT_EQ(Keys(), "btnTranspose btnExport btnHelp locate mark");
}

TEST_F(ScheduleToolbarTest, KnowsSeparatorsAndCheckButtons)
{
    AddMenu("line", 1);
    AddMenu("check", 2);
    AddMenu("other", 99);
    EXPECT_TRUE(Tool("line")->isSeparator());
    EXPECT_TRUE(Tool("check")->isCheckable());
    EXPECT_FALSE(Tool("other")->isCheckable() || Tool("other")->isSeparator());
}

TEST_F(ScheduleToolbarTest, TakesManySeparatorsWithoutAKey)
{
    AddMenu("", 1);
    AddMenu("", 1);
    const auto actions = view.findChild<QToolBar*>(QStringLiteral("tbTasks"))->actions();
    EXPECT_EQ(std::ranges::count_if(actions, &QAction::isSeparator), 2);
}

TEST_F(ScheduleToolbarTest, HidesAToolThatTheHostWantsHidden)
{
    AddMenu("locate", 0, false);
    EXPECT_FALSE(Tool("locate")->isVisible());
}

TEST_F(ScheduleToolbarTest, AddsNoKeyTwice)
{
    Start(kSelectorView, kSelection);
    AddMenu("locate");
    AddMenu("locate", 2);
    AddMenu("btnHelp", 2);
    EXPECT_EQ(Keys(), "btnTranspose btnExport btnHelp locate");
    EXPECT_FALSE(Tool("btnHelp")->isCheckable());
}

TEST_F(ScheduleToolbarTest, TellsTheHostOfClicksOnItsTools)
{
    AddMenu("locate");
    Start(kSelectorView, kSelection);
    const QSignalSpy clicks(&view, &ctlSchedule::HostToolClicked);
    ClickWithMouse("locate");
    ASSERT_EQ(clicks.size(), 1);
    EXPECT_EQ(clicks[0], (QVariantList{QStringLiteral("Drawing"), QStringLiteral("locate")}));
    EXPECT_EQ(Log(), "");
}

TEST_F(ScheduleToolbarTest, IssuesIdentifiersFrom1001)
{
    EXPECT_EQ(view.GetUniqueToolID(), 1001);
    EXPECT_EQ(view.GetUniqueToolID(), 1002);
    ctlSchedule other(&user);
    EXPECT_EQ(other.GetUniqueToolID(), 1001);
}

TEST(ToolIdentifiers, OverflowWithAnError)
{
    ToolIdentifiers identifiers(std::numeric_limits<int>::max() - 1);
    EXPECT_EQ(identifiers.Next(), std::numeric_limits<int>::max());
    try {
        identifiers.Next();
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), kOverflowError);
    }
}

} // namespace schedules
