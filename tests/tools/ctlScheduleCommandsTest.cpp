#include "ScheduleViewTest.h"

namespace schedules {

using ScheduleCommands = ScheduleViewTest;

namespace {

const QString kUnload = QStringLiteral("event ctlSchedule -> Host: UnloadSchedule 8 9 [8 Cancel=True]");

QString Update(const QString& builder = {})
{
    return QStringLiteral("event ctlSchedule -> Host: UpdateTagScheduleData 8 9 [2 BuilderPdsg=%1] [4 ScheduleXml=%2]")
        .arg(builder, kSchedule);
}

class ScheduleCancel : public ScheduleViewTest
{
protected:
    void StartEdited(int viewType, Answer answer)
    {
        Start(viewType, viewType == kSelectorView ? kSelection : kSchedule);
        view.SetTagDataDirty(true);
        user.answers = {answer};
    }
};

} // namespace

TEST_F(ScheduleCommands, CustomizeTellsTheHostToShowTheOptions)
{
    view.setProperty("BuilderPdsg", QStringLiteral("Pumps & fans"));
    Start(kScheduleView, kSchedule);
    Click("btnCustomize");
    EXPECT_EQ(Log(), "event ctlSchedule -> Host: ShowOptions 8 9 [2 BuilderPdsg=Pumps & fans]");
}

TEST_F(ScheduleCommands, HelpAsksForTheContextOfTheScheduleView)
{
    Start(kScheduleView, kSchedule);
    Click("btnHelp");
    EXPECT_EQ(Log(), "request ctlSchedule -> Host: ProcessSubscriberEvent 8 0 [2 EventObjectName=cmdHelp] "
                     "[2 ContextID=20] [2 Form=ctlSchedule]");
}

TEST_F(ScheduleCommands, HelpAsksForTheContextOfTheSelectorView)
{
    Start(kSelectorView, kSelection);
    Click("btnHelp");
    EXPECT_EQ(Log(), "request ctlSchedule -> Host: ProcessSubscriberEvent 8 0 [2 EventObjectName=cmdHelp] "
                     "[2 ContextID=23] [2 Form=ctlSchedule]");
}

TEST_F(ScheduleCommands, HelpShowsTheHourglassWhileItIsUnderWay)
{
    Start(kScheduleView, kSchedule);
    std::vector<Pointer> duringSend;
    host.onSend = [&](const QString&) { duringSend = user.pointers; };
    Click("btnHelp");
    EXPECT_EQ(duringSend, std::vector{Pointer::Hourglass});
    EXPECT_EQ(user.pointers.back(), Pointer::Default);
}

TEST_F(ScheduleCommands, HelpThatFailsIsToldToTheFrameworkAndResetsThePointer)
{
    Start(kScheduleView, kSchedule);
    host.failing.insert(QStringLiteral("ProcessSubscriberEvent"));
    Click("btnHelp");
    EXPECT_EQ(host.Names().join(' '), QStringLiteral("ProcessSubscriberEvent ErrorMessage"));
    EXPECT_EQ(user.pointers.back(), Pointer::Default);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(ScheduleCommands, ACommandThatFailsIsShownWithTheNameOfTheDispatch)
{
    Start(kScheduleView, kSchedule);
    host.failing.insert(QStringLiteral("ShowOptions"));
    Click("btnCustomize");
    EXPECT_EQ(Boxes(), "The host does not listen to ShowOptions (48) Schedules.ctlSchedule.ab_ToolClick");
}

TEST_F(ScheduleCommands, AnUnknownKeyDoesNothing)
{
    Start(kScheduleView, kSchedule);
    for (const char* key : {"", "btn", "BTNHELP", "btnHelp "})
        Click(key);
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(ScheduleCommands, SaveSendsTheWholeDocument)
{
    view.setProperty("BuilderPdsg", QStringLiteral("Pumps"));
    Start(kScheduleView, kSchedule);
    view.SetTagDataDirty(true);
    bool dirtyWhileSending = true;
    host.onSend = [&](const QString&) { dirtyWhileSending = view.TagDataDirty(); };
    Click("btnSaveTag");
    EXPECT_EQ(Log(), Update(QStringLiteral("Pumps")).toStdString());
    EXPECT_FALSE(dirtyWhileSending);
    EXPECT_EQ(view.property("TagDataDirty"), false);
    EXPECT_FALSE(Tool("btnSaveTag")->isEnabled());
}

TEST_F(ScheduleCommands, SaveThatFailsKeepsTheEditsUnsaved)
{
    Start(kScheduleView, kSchedule);
    view.SetTagDataDirty(true);
    host.failing.insert(QStringLiteral("UpdateTagScheduleData"));
    Click("btnSaveTag");
    EXPECT_EQ(view.property("TagDataDirty"), true);
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
    EXPECT_EQ(Boxes(), "The host does not listen to UpdateTagScheduleData (48) Schedules.ctlSchedule.ab_ToolClick");
}

TEST_F(ScheduleCommands, SaveDoesNothingOutsideOfTheScheduleView)
{
    for (const int viewType : {0, kSelectorView}) {
        Start(viewType, kSelection);
        view.SetTagDataDirty(true);
        Click("btnSaveTag");
        EXPECT_EQ(Log(), "");
        EXPECT_EQ(view.property("TagDataDirty"), true);
    }
}

TEST_F(ScheduleCommands, TransposeShowsTheScheduleInTheOtherOrientation)
{
    Start(kScheduleView, kSchedule);
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | P-1\nFlow | 12\nHead | 48");
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | Flow | Head\nP-1 | 12 | 48");
    EXPECT_TRUE(TheSheet()->Repainting());
    EXPECT_EQ(Log(), "");
}

TEST_F(ScheduleCommands, TransposeChangesTheOrientationOfEitherView)
{
    Start(kScheduleView, kWithHiddenLine);
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | 2\nA | a2\nB | b2");
    Start(kSelectorView, kWithHiddenLine);
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | 1 | 2\nB | b1 | b2");
}

TEST_F(ScheduleCommands, TransposeShowsNeitherViewsScheduleToo)
{
    Start(0, kSchedule);
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | P-1\nFlow | 12\nHead | 48");
}

TEST_F(ScheduleCommands, TransposeExchangesTheFrozenCounts)
{
    view.setProperty("RowsFrozen", 2);
    view.setProperty("ColsFrozen", 1);
    Start(kScheduleView, kSchedule);
    ASSERT_EQ(Frozen(), "1 x 2");
    Click("btnTranspose");
    EXPECT_EQ(view.property("RowsFrozen"), 1);
    EXPECT_EQ(view.property("ColsFrozen"), 2);
    EXPECT_EQ(Frozen(), "2 x 1");
    Click("btnTranspose");
    EXPECT_EQ(view.property("RowsFrozen"), 2);
    EXPECT_EQ(view.property("ColsFrozen"), 1);
    EXPECT_EQ(Frozen(), "1 x 2");
}

TEST_F(ScheduleCommands, TransposeTurnsWhatIsShownWhateverTextWaits)
{
    Start(kScheduleView, kSchedule);
    TheSheet()->SetActiveCell({Column(2), Row(1)});
    for (const QString& waiting : {kOtherSchedule, kBroken}) {
        view.IToolUI_XML(waiting);
        Click("btnTranspose");
        EXPECT_EQ(Grid(), " | P-1\nFlow | 12\nHead | 48");
        EXPECT_EQ(TheSheet()->ActiveCell(), (Cell{Column(1), Row(2)}));
        Click("btnTranspose");
    }
    EXPECT_EQ(Boxes(), "");
}

TEST_F(ScheduleCommands, TransposeKeepsEdits)
{
    Start(kScheduleView, kSchedule);
    view.SetTagDataDirty(true);
    Click("btnTranspose");
    EXPECT_EQ(view.property("TagDataDirty"), true);
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
}

TEST_F(ScheduleCommands, TransposeLoadsTheSelectionAgainIntoAFreshGrid)
{
    Start(kSelectorView, kSelection);
    TheSheet()->SetText({Column(1), Row(2)}, QStringLiteral("1"));
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | Tag | Select\n1 | P-1 | 0\n2 | P-2 | 0");
    TheSheet()->SetText({Column(2), Row(1)}, QStringLiteral("1"));
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | 1 | 2\nTag | P-1 | P-2\nSelect | 0 | 0");
    EXPECT_TRUE(TheSheet()->Repainting());
}

TEST_F(ScheduleCommands, TransposeResetsTicksToWhatTheHostHasSet)
{
    view.setProperty("SelectAllTags", true);
    Start(kSelectorView, kSelection);
    TheSheet()->SetText({Column(1), Row(2)}, QStringLiteral("0"));
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | Tag | Select\n1 | P-1 | 1\n2 | P-2 | 1");
}

TEST_F(ScheduleCommands, TransposeThatFailsShowsTheMessages)
{
    Start(kScheduleView, kSchedule);
    Activate(kBroken);
    user.boxes.clear();
    Click("btnTranspose");
    EXPECT_EQ(Boxes(), "Missing: 1064 (0)\nMissing: 3040 (0)");
    EXPECT_TRUE(TheSheet()->Repainting());
}

TEST_F(ScheduleCommands, TheLegendLooksAtFrozenRowsFirst)
{
    view.setProperty("RowsFrozen", 1);
    view.setProperty("ColsFrozen", 1);
    Start(kSelectorView, kSelection);
    EXPECT_EQ(Find<QLabel>("lblLegend")->text(),
              QStringLiteral("Note: the first data row contains selection requirements only."));
    EXPECT_TRUE(Shown("lblLegend"));
}

TEST_F(ScheduleCommands, TheLegendFollowsTranspose)
{
    view.setProperty("RowsFrozen", 1);
    Start(kSelectorView, kSelection);
    Click("btnTranspose");
    EXPECT_EQ(Find<QLabel>("lblLegend")->text(),
              QStringLiteral("Note: the first data column contains selection requirements only."));
    EXPECT_TRUE(Shown("lblLegend"));
}

TEST_F(ScheduleCommands, TheLegendStaysAsItWasWhenTransposeFails)
{
    view.setProperty("RowsFrozen", 1);
    Start(kSelectorView, kSelection);
    Activate(kBroken);
    Click("btnTranspose");
    EXPECT_EQ(Find<QLabel>("lblLegend")->text(),
              QStringLiteral("Note: the first data row contains selection requirements only."));
}

TEST_F(ScheduleCommands, TheLegendIsHiddenWhileNothingIsFrozen)
{
    view.setProperty("RowsFrozen", 1);
    Start(kSelectorView, kSelection);
    view.setProperty("RowsFrozen", 0);
    view.IToolUI_Activate();
    EXPECT_FALSE(Shown("lblLegend"));
    EXPECT_EQ(Find<QLabel>("lblLegend")->text(),
              QStringLiteral("Note: the first data row contains selection requirements only."));
}

TEST_F(ScheduleCommands, TheLegendIsTheSelectorViewsAlone)
{
    view.setProperty("RowsFrozen", 1);
    Start(kSelectorView, kSelection);
    view.setProperty("ViewType", kScheduleView);
    Activate(kSchedule);
    EXPECT_FALSE(Shown("lblLegend"));
}

TEST_F(ScheduleCancel, UnloadsAtOnceWhenNothingIsEdited)
{
    Start(kScheduleView, kSchedule);
    Press("cmdCancel");
    EXPECT_EQ(Log(), kUnload.toStdString());
    EXPECT_EQ(Boxes(), "");
}

TEST_F(ScheduleCancel, AsksWhetherToSaveEdits)
{
    StartEdited(kScheduleView, Answer::Cancel);
    Press("cmdCancel");
    EXPECT_EQ(Boxes(), "Save Tag data? (3) Missing: 3042");
}

TEST_F(ScheduleCancel, WithCancelLeavesEverythingAsItIs)
{
    StartEdited(kScheduleView, Answer::Cancel);
    Press("cmdCancel");
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(view.property("TagDataDirty"), true);
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
}

TEST_F(ScheduleCancel, WithYesSavesAndUnloads)
{
    StartEdited(kScheduleView, Answer::Yes);
    Press("cmdCancel");
    EXPECT_EQ(Log(), (Update() + '\n' + kUnload).toStdString());
    EXPECT_EQ(view.property("TagDataDirty"), false);
    EXPECT_FALSE(Tool("btnSaveTag")->isEnabled());
}

TEST_F(ScheduleCancel, WithNoUnloadsWithoutSaving)
{
    StartEdited(kScheduleView, Answer::No);
    Press("cmdCancel");
    EXPECT_EQ(Log(), kUnload.toStdString());
    EXPECT_EQ(view.property("TagDataDirty"), true);
}

TEST_F(ScheduleCancel, WithYesOutsideOfTheScheduleViewOnlyUnloads)
{
    StartEdited(kSelectorView, Answer::Yes);
    Press("cmdCancel");
    EXPECT_EQ(Log(), kUnload.toStdString());
}

TEST_F(ScheduleCancel, StaysOpenWhenSavingFails)
{
    StartEdited(kScheduleView, Answer::Yes);
    host.failing.insert(QStringLiteral("UpdateTagScheduleData"));
    Press("cmdCancel");
    EXPECT_EQ(host.Names().join(' '), QStringLiteral("UpdateTagScheduleData"));
    EXPECT_EQ(view.property("TagDataDirty"), true);
    EXPECT_EQ(Boxes(), "Save Tag data? (3) Missing: 3042\n"
                       "The host does not listen to UpdateTagScheduleData (48) Schedules.ctlSchedule.cmdCancel_Click");
}

TEST_F(ScheduleCancel, ShowsThatUnloadingFailed)
{
    Start(kScheduleView, kSchedule);
    host.failing.insert(QStringLiteral("UnloadSchedule"));
    Press("cmdCancel");
    EXPECT_EQ(Boxes(), "The host does not listen to UnloadSchedule (48) Schedules.ctlSchedule.cmdCancel_Click");
}

} // namespace schedules
