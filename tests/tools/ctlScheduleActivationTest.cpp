#include "ScheduleViewTest.h"
#include "common/Error.h"
#include "support/TraceLog.h"

namespace schedules {

using ScheduleActivation = ScheduleViewTest;

namespace {

/// A user interface whose box for one text cannot be shown.
class FailingBox : public testing::ScriptedUserInterface
{
public:
    explicit FailingBox(int number) : m_number(number) {}

    Answer Show(const MessageBox& box) override
    {
        if (box.number == m_number)
            throw Error(5, QStringLiteral("There is no screen"));
        return ScriptedUserInterface::Show(box);
    }

private:
    int m_number;
};

} // namespace

TEST_F(ScheduleActivation, OfTheScheduleViewShowsTheScheduleInOrientation0)
{
    Start(kScheduleView, kWithHiddenLine);
    EXPECT_EQ(Grid(), " | A | B\n2 | a2 | b2");
}

TEST_F(ScheduleActivation, OfTheSelectorViewShowsTheTagsInOrientation1)
{
    Start(kSelectorView, kWithHiddenLine);
    EXPECT_EQ(Grid(), " | B\n1 | b1\n2 | b2");
}

TEST_F(ScheduleActivation, OfNeitherViewShowsAScheduleWithoutTools)
{
    Start(0, kWithHiddenLine);
    EXPECT_EQ(Grid(), " | A | B\n2 | a2 | b2");
    EXPECT_TRUE(Find<QToolBar>("tbTasks")->actions().isEmpty());
}

TEST_F(ScheduleActivation, TicksTheTagsAsTheHostHasSet)
{
    Start(kSelectorView, kSelection);
    EXPECT_EQ(Grid(), " | 1 | 2\nTag | P-1 | P-2\nSelect | 0 | 0");
    view.setProperty("SelectAllTags", true);
    view.IToolUI_Activate();
    EXPECT_EQ(Grid(), " | 1 | 2\nTag | P-1 | P-2\nSelect | 1 | 1");
}

TEST_F(ScheduleActivation, SendsNothing)
{
    Start(kScheduleView, kSchedule);
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(ScheduleActivation, IsTraced)
{
    view.setProperty("ViewType", kScheduleView);
    view.IToolUI_XML(kSchedule);
    const testing::TraceLog trace;
    view.IToolUI_Activate();
    view.IToolUI_Activate();
    EXPECT_EQ(trace.lines.join(' '), QStringLiteral("Schedules.ctlSchedule.IToolUI_Activate "
                                                    "Schedules.ctlSchedule.InitializeControls "
                                                    "Schedules.ctlSchedule.IToolUI_Activate"));
}

TEST_F(ScheduleActivation, OfABrokenScheduleShowsTheMessagesOfEngineAndView)
{
    view.setProperty("ViewType", kScheduleView);
    const testing::TraceLog trace;
    Activate(kBroken);
    EXPECT_EQ(Boxes(), "Missing: 1064 (0)\nMissing: 3040 (0)");
    EXPECT_EQ(user.boxes.back().number, 3040);
    EXPECT_EQ(trace.lines, QStringList{QStringLiteral("Schedules.ctlSchedule.IToolUI_Activate")});
}

TEST_F(ScheduleActivation, OfABrokenSelectionShowsTheMessagesOfEngineAndView)
{
    view.setProperty("ViewType", kSelectorView);
    Activate(kBroken);
    EXPECT_EQ(Boxes(), "Missing: 1064 (0)\nMissing: 3039 (0)");
    EXPECT_EQ(user.boxes.back().number, 3039);
}

TEST_F(ScheduleActivation, ThatFailsFirstBuildsNoToolbarAndTheNextOneDoes)
{
    view.setProperty("ViewType", kScheduleView);
    Activate(kBroken);
    EXPECT_TRUE(Find<QToolBar>("tbTasks")->actions().isEmpty());
    Activate(kSchedule);
    EXPECT_EQ(Find<QToolBar>("tbTasks")->actions().size(), 6);
}

TEST_F(ScheduleActivation, SwitchesRepaintingOnAgainAlsoWhenItFails)
{
    for (const int viewType : {kScheduleView, kSelectorView}) {
        for (const QString& xml : {kSelection, kBroken}) {
            Start(viewType, xml);
            EXPECT_TRUE(TheSheet()->Repainting());
        }
    }
}

TEST_F(ScheduleActivation, RepaintsOnceALoad)
{
    Start(kScheduleView, kSchedule);
    int repaints = 0;
    QObject::connect(TheSheet(), &Sheet::Changed, &view, [&] { ++repaints; });
    Activate(kOtherSchedule);
    EXPECT_EQ(repaints, 1);
}

TEST(ScheduleActivationError, IsShownWithTheNameOfTheProcedure)
{
    FailingBox user(3040);
    ctlSchedule view(&user);
    view.IToolUI_XML(kBroken);
    view.IToolUI_Activate();
    ASSERT_EQ(user.boxes.size(), 2U);
    EXPECT_EQ(user.boxes.back().text, QStringLiteral("There is no screen"));
    EXPECT_EQ(user.boxes.back().style, kExclamation);
    EXPECT_EQ(user.boxes.back().title, QStringLiteral("Schedules.ctlSchedule.IToolUI_Activate"));
    EXPECT_TRUE(view.ShownSheet()->Repainting());
}

TEST_F(ScheduleActivation, LeavesNothingOfAnEarlierTable)
{
    Start(kScheduleView, kSchedule);
    view.setProperty("ViewType", kSelectorView);
    Activate(kSelection);
    EXPECT_EQ(Grid(), " | 1 | 2\nTag | P-1 | P-2\nSelect | 0 | 0");
    Activate(kOtherSchedule);
    EXPECT_EQ(Grid(), " | Area\nV-1 | 7");
}

TEST_F(ScheduleActivation, GoesBackToTheNormalLayout)
{
    view.setProperty("RowsFrozen", 1);
    Start(kScheduleView, kSchedule);
    Click("btnTranspose");
    ASSERT_EQ(Frozen(), "1 x 0");
    view.IToolUI_Activate();
    EXPECT_EQ(Grid(), " | Flow | Head\nP-1 | 12 | 48");
    EXPECT_EQ(Frozen(), "0 x 1");
    EXPECT_EQ(view.property("RowsFrozen"), 1);
}

TEST_F(ScheduleActivation, DisablesSaveAsLongAsNothingIsEdited)
{
    Start(kScheduleView, kSchedule);
    EXPECT_FALSE(Tool("btnSaveTag")->isEnabled());
    view.SetTagDataDirty(true);
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
}

TEST_F(ScheduleActivation, OfTheSameDocumentKeepsThatItIsEdited)
{
    Start(kScheduleView, kSchedule);
    view.SetTagDataDirty(true);
    Tool("btnSaveTag")->setEnabled(false);
    view.IToolUI_Activate();
    EXPECT_EQ(view.property("TagDataDirty"), true);
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
}

TEST_F(ScheduleActivation, OfANewDocumentForgetsTheEditsOfTheOldOne)
{
    for (const QString& next : {kOtherSchedule, kBroken}) {
        Start(kScheduleView, kSchedule);
        view.SetTagDataDirty(true);
        view.IToolUI_XML(next);
        EXPECT_EQ(view.property("TagDataDirty"), true);
        view.IToolUI_Activate();
        EXPECT_EQ(view.property("TagDataDirty"), false);
        EXPECT_FALSE(Tool("btnSaveTag")->isEnabled());
    }
}

TEST_F(ScheduleActivation, TellsOfUnsavedEditsAsEveryToolDoes)
{
    Start(kScheduleView, kSchedule);
    EXPECT_EQ(view.property("HasUnsavedEdits"), false);
    view.SetTagDataDirty(true);
    EXPECT_EQ(view.property("HasUnsavedEdits"), true);
    view.IToolUI_XML(kOtherSchedule);
    view.IToolUI_Activate();
    EXPECT_EQ(view.property("HasUnsavedEdits"), false);
    EXPECT_FALSE(view.setProperty("HasUnsavedEdits", true)) << "it is the view's to say";
}

TEST_F(ScheduleActivation, ShowsTheCommandButtonsOfItsViewType)
{
    Start(kSelectorView, kSelection);
    EXPECT_TRUE(Shown("cmdContinue"));
    EXPECT_EQ(Button("cmdCancel")->text(), QStringLiteral("Missing: 1057"));
    view.setProperty("ViewType", kScheduleView);
    Activate(kSchedule);
    EXPECT_FALSE(Shown("cmdContinue"));
    EXPECT_EQ(Button("cmdCancel")->text(), QStringLiteral("Missing: 3049"));
}

using ScheduleLoading = ScheduleViewTest;

TEST_F(ScheduleLoading, ShowsAScheduleAtOnce)
{
    Start(kSelectorView, kSelection);
    EXPECT_TRUE(view.LoadScheduleData(kOtherSchedule));
    EXPECT_EQ(Grid(), " | Area\nV-1 | 7");
    EXPECT_FALSE(Shown("cmdContinue"));
    EXPECT_TRUE(TheSheet()->Repainting());
}

TEST_F(ScheduleLoading, ShowsASelectionAtOnceInAFreshGrid)
{
    Start(kScheduleView, kWithHiddenLine);
    view.setProperty("SelectAllTags", true);
    EXPECT_TRUE(view.LoadSelectionData(kSelection));
    EXPECT_EQ(Grid(), " | 1 | 2\nTag | P-1 | P-2\nSelect | 1 | 1");
    EXPECT_TRUE(Shown("cmdContinue"));
    EXPECT_TRUE(TheSheet()->Repainting());
}

TEST_F(ScheduleLoading, ShowsTheMessagesOfEngineAndViewWhenItFails)
{
    EXPECT_FALSE(view.LoadScheduleData(QStringLiteral("<TABLE/>")));
    EXPECT_FALSE(view.LoadSelectionData(kBroken));
    EXPECT_EQ(Boxes(), "Missing: 1066 (0)\nMissing: 3054 (0)\nMissing: 1064 (0)\nMissing: 3053 (0)");
    EXPECT_EQ(user.boxes.back().number, 3053);
    EXPECT_EQ(user.boxes[1].number, 3054);
    EXPECT_TRUE(TheSheet()->Repainting());
}

TEST_F(ScheduleLoading, KeepsTheTextForWhatComesNext)
{
    Start(kScheduleView, kSchedule);
    view.SetTagDataDirty(true);
    view.LoadScheduleData(kOtherSchedule);
    EXPECT_EQ(view.property("TagDataDirty"), false);
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | V-1\nArea | 7");
    Click("btnSaveTag");
    EXPECT_EQ(host.sent.back().message->parameters.Items().back().value.toString(), kOtherSchedule);
}

} // namespace schedules
