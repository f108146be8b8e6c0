// A host that does in each message of the schedule view what no host should: no crash, no edit lost, and a view that
// still lives works.

#include "HostileHost.h"
#include "support/ScriptedUserInterface.h"

#include <QCoreApplication>

namespace schedules::testing {

namespace {

/// A host, a user and a view between them.
struct Stage
{
    Stage() { host.replies[QStringLiteral("GetResourceModule")] = QStringLiteral("0"); }

    void Start(int viewType)
    {
        view.Widget().setProperty("ViewType", viewType);
        view.Widget().setProperty("ShowPrintButtonOnUnitSelector", true);
        view.Ui().IToolUI_Initialize(&host, QStringLiteral("Host"));
        if (view.Lives())
            view.Ui().IToolUI_XML(viewType == kSelectorView ? kSelection : kSchedule);
        if (view.Lives())
            view.Ui().IToolUI_Activate();
    }

    /// On screen, with something that has not been saved.
    void Open(int viewType)
    {
        Start(viewType);
        view.Widget().show();
        if (viewType == kScheduleView)
            view.Edit(1, 1, "20");
        else
            view.Tick(1, 2);
    }

    void PressCancelAnswering(Answer answer)
    {
        user.answers = {answer, answer};
        view.Press("cmdCancel");
    }

    /// A host that refuses one message hears of it in another.
    void TriggerFailing(const char* message, const char* action)
    {
        host.failing = {QLatin1String(message)};
        view.Trigger(action);
        host.failing.clear();
    }

    ScriptedUserInterface user;
    HostileHost host;
    HostedView view{&user};
};

/// What happens to a view that shows a table; 0 for one that shows none yet.
struct Life
{
    const char* name;
    int viewType;
    void (*live)(Stage& stage);
};

const Life kLives[] = {
    {"start", 0, [](Stage& stage) { stage.Start(kScheduleView); }},
    {"start of a selector", 0, [](Stage& stage) { stage.Start(kSelectorView); }},
    {"save", kScheduleView, [](Stage& stage) { stage.view.Trigger("btnSaveTag"); }},
    {"customize", kScheduleView, [](Stage& stage) { stage.view.Trigger("btnCustomize"); }},
    {"help", kScheduleView, [](Stage& stage) { stage.view.Trigger("btnHelp"); }},
    {"help that fails", kScheduleView, [](Stage& stage) { stage.TriggerFailing("ProcessSubscriberEvent", "btnHelp"); }},
    {"save and close", kScheduleView, [](Stage& stage) { stage.PressCancelAnswering(Answer::Yes); }},
    {"close without saving", kScheduleView, [](Stage& stage) { stage.PressCancelAnswering(Answer::No); }},
    {"close of the window", kScheduleView,
     [](Stage& stage) {
         stage.user.answers = {Answer::Yes, Answer::Yes};
         stage.view.Widget().close();
     }},
    {"continue", kSelectorView, [](Stage& stage) { stage.view.Press("cmdContinue"); }},
    {"print selections", kSelectorView, [](Stage& stage) { stage.view.Trigger("btnPrint"); }},
    {"print selections that fails", kSelectorView,
     [](Stage& stage) { stage.TriggerFailing("PrintSelections", "btnPrint"); }},
};

void ExpectEditKept(Stage& stage)
{
    if (stage.host.Handed("20"))
        return;
    EXPECT_TRUE(stage.view.HasUnsavedEdits());
    stage.view.Widget().setProperty("ViewType", kScheduleView);
    stage.view.Save();
    EXPECT_TRUE(stage.host.Handed("20"));
}

void ExpectWorking(Stage& stage)
{
    const HostedView& view = stage.view;
    view.Widget().setProperty("ViewType", kScheduleView);
    view.Ui().IToolUI_XML(kSchedule);
    view.Ui().IToolUI_Activate();
    view.Widget().show();
    EXPECT_EQ(view.Drawn(), kDrawnSchedule);
    view.Edit(2, 2, "50");
    view.Save();
    EXPECT_TRUE(stage.host.Handed("50"));
    EXPECT_FALSE(view.HasUnsavedEdits());
}

/// Lives with the deed in the message of that number; false when there were not so many.
bool LiveWith(const Deed& deed, const Life& life, int at)
{
    SCOPED_TRACE(at);
    Stage stage;
    if (life.viewType != 0)
        stage.Open(life.viewType);
    stage.host.Arm(at, deed, stage.view);
    life.live(stage);
    const bool wasDone = stage.host.Disarm();
    if (stage.view.Lives() && life.viewType == kScheduleView && !deed.takesEdits)
        ExpectEditKept(stage);
    if (stage.view.Lives())
        ExpectWorking(stage);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(stage.view.Lives(), !wasDone || deed.after != ToolAfter::IsGone);
    return wasDone;
}

class HostileSchedule : public ::testing::TestWithParam<Deed>
{
};

} // namespace

TEST_P(HostileSchedule, MayInEachMessage)
{
    LiveWithEachMessage(kLives, [](const Life& life, int at) { return LiveWith(GetParam(), life, at); });
}

INSTANTIATE_TEST_SUITE_P(Host, HostileSchedule, ::testing::ValuesIn(kDeeds),
                         [](const auto& deed) { return std::string(deed.param.name); });

TEST(HostileScheduleLives, MeetEveryMessageOfTheView)
{
    QSet<QString> met;
    for (const Life& life : kLives) {
        Stage stage;
        if (life.viewType != 0)
            stage.Open(life.viewType);
        life.live(stage);
        for (const QString& name : stage.host.Names())
            met.insert(name);
    }
    EXPECT_EQ(Sorted(met), Sorted(kMessagesOfView));
}

} // namespace schedules::testing
