// What a host may do while it answers: save slowly, load, empty or delete the view.

#include "tools/WorkflowTest.h"

#include <QPointer>

namespace schedules {

TEST_F(WorkflowTest, AHostThatClosesTheWindowWhenItIsToldIsNotToldTwice)
{
    EditTwice();
    Click("btnSaveTag");
    host.sent.clear();
    host.onSend = [this](const QString& name) {
        if (name == QLatin1String("UnloadSchedule"))
            view.close();
    };
    Press("cmdCancel");
    EXPECT_EQ(host.Names(), QStringList{"UnloadSchedule"});
    EXPECT_FALSE(view.isVisible());
}

TEST_F(WorkflowTest, AfterCleaningUpSaveAndYesAreSafe)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    view.CleanUP();
    Click("btnSaveTag");
    EXPECT_TRUE(SavedXml().find("Dirty=\"-1\">20<") != std::string::npos);
    view.SetTagDataDirty(true);
    user.answers = {Answer::Yes};
    Press("cmdCancel");
    EXPECT_EQ(host.Names(), (QStringList{"UpdateTagScheduleData", "UpdateTagScheduleData", "UnloadSchedule"}));
}

TEST_F(WorkflowTest, WhenAHostKeepsTheViewClosingAsksAgain)
{
    Show(kScheduleView, kEditable);
    Press("cmdCancel");
    EditCell(1, 1, "20");
    host.sent.clear();
    user.answers = {Answer::Cancel};
    EXPECT_FALSE(view.close());
    EXPECT_EQ(Boxes(), kQuestion);
    EXPECT_EQ(Heard(), "");
}

TEST_F(WorkflowTest, AnEditDuringASaveStaysUnsaved)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    host.onSend = [this](const QString&) {
        host.onSend = nullptr;
        EditCell(1, 2, "21");
    };
    Click("btnSaveTag");
    EXPECT_TRUE(Dirty());
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
    EXPECT_EQ(Marked(), "1,2");
    EXPECT_EQ(SavedXml().find("Dirty=\"-1\">21<"), std::string::npos);
}

TEST_F(WorkflowTest, AnEditDuringASaveThatFailsStaysUnsavedWithTheOthers)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    host.failing = {QStringLiteral("UpdateTagScheduleData")};
    host.onSend = [this](const QString&) {
        host.onSend = nullptr;
        EditCell(1, 2, "21");
    };
    Click("btnSaveTag");
    EXPECT_TRUE(Dirty());
    EXPECT_EQ(Marked(), "1,1 1,2");
    Click("btnTranspose");
    EXPECT_EQ(Marked(), "1,1 2,1");
}

TEST_F(WorkflowTest, AnEditDuringTheSaveOfCancelKeepsTheViewOpen)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    user.answers = {Answer::Yes};
    host.onSend = [this](const QString&) {
        host.onSend = nullptr;
        EditCell(1, 2, "21");
    };
    Press("cmdCancel");
    EXPECT_EQ(host.Names(), QStringList{"UpdateTagScheduleData"});
    EXPECT_TRUE(Dirty());
}

TEST_F(WorkflowTest, CancelDuringTheSaveOfCancelIsTheSameOne)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    user.answers = {Answer::Yes};
    host.onSend = [this](const QString&) {
        host.onSend = nullptr;
        Press("cmdCancel");
    };
    Press("cmdCancel");
    EXPECT_EQ(host.Names(), (QStringList{"UpdateTagScheduleData", "UnloadSchedule"}));
}

TEST_F(WorkflowTest, AFailedSaveTouchesNoOtherDocument)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    host.failing = {QStringLiteral("UpdateTagScheduleData")};
    host.onSend = [this](const QString&) {
        host.onSend = nullptr;
        Activate(kEditable);
    };
    Click("btnSaveTag");
    EXPECT_FALSE(Dirty());
    EXPECT_EQ(Marked(), "");
}

TEST_F(WorkflowTest, AFailedSaveFindsItsMarksInTheLayoutThatIsShown)
{
    Show(kScheduleView, kEditable);
    EditCell(3, 1, "other");
    host.failing = {QStringLiteral("UpdateTagScheduleData")};
    host.onSend = [this](const QString&) {
        host.onSend = nullptr;
        Click("btnTranspose");
    };
    Click("btnSaveTag");
    EXPECT_EQ(Marked(), "1,3");
}

TEST_F(WorkflowTest, ThePointerComesBackThoughTheViewIsGone)
{
    auto* other = new ctlSchedule(&user);
    other->setProperty("ViewType", kScheduleView);
    Initialize(*other);
    other->IToolUI_XML(kEditable);
    other->IToolUI_Activate();
    host.onSend = [&](const QString&) {
        host.onSend = nullptr;
        delete other;
    };
    user.pointers.clear();
    other->ab_ToolClick(QStringLiteral("btnHelp"));
    EXPECT_EQ(user.pointers, (std::vector{Pointer::Hourglass, Pointer::Default}));
}

/// A view of its own, since the host deletes it in the middle of what it does.
TEST_F(WorkflowTest, AHostMayDeleteTheViewInItsAnswer)
{
    const auto deletedBy = [this](const QString& message, const std::function<void(ctlSchedule&)>& command) {
        auto* other = new TestedSchedule(&user);
        other->setProperty("ViewType", kScheduleView);
        Initialize(*other);
        other->IToolUI_XML(kEditable);
        other->IToolUI_Activate();
        other->show();
        other->SetTagDataDirty(true);
        const QPointer<ctlSchedule> alive(other);
        host.onSend = [&](const QString& name) {
            if (name == message)
                delete alive.data();
        };
        command(*other);
        EXPECT_FALSE(alive) << message.toStdString();
        host.onSend = nullptr;
        delete alive.data();
    };
    const auto click = [](const char* button) {
        return [button](ctlSchedule& tool) { tool.findChild<QAbstractButton*>(QLatin1String(button))->click(); };
    };
    const auto trigger = [](const char* key) {
        return [key](ctlSchedule& tool) { tool.findChild<QAction*>(QLatin1String(key))->trigger(); };
    };
    user.answers = std::deque<Answer>(8, Answer::Yes);
    for (const bool fails : {false, true}) {
        host.failing = fails ? QSet<QString>{testing::FakeHost::kEverything} : QSet<QString>();
        deletedBy(QStringLiteral("UpdateTagScheduleData"), trigger("btnSaveTag"));
        deletedBy(QStringLiteral("UpdateTagScheduleData"), click("cmdCancel"));
        deletedBy(QStringLiteral("ShowOptions"), trigger("btnCustomize"));
        deletedBy(QStringLiteral("ProcessSubscriberEvent"), trigger("btnHelp"));
    }
    host.failing.clear();
    deletedBy(QStringLiteral("UnloadSchedule"), click("cmdCancel"));
    deletedBy(QStringLiteral("UnloadSchedule"), [](ctlSchedule& tool) { tool.close(); });
}

TEST_F(WorkflowTest, AHostMayLoadAnotherScheduleInItsAnswer)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    host.onSend = [this](const QString&) {
        host.onSend = nullptr;
        Activate(kOtherSchedule);
    };
    Click("btnSaveTag");
    EXPECT_EQ(Grid(), " | Area\nV-1 | 7");
    EXPECT_FALSE(Dirty());
    EXPECT_EQ(Marked(), "");
    host.onSend = [this](const QString&) {
        host.onSend = nullptr;
        view.CleanUP();
    };
    view.SetTagDataDirty(true);
    Click("btnSaveTag");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(WorkflowTest, AHostCannotTakeTheKeysOfTheViewsTools)
{
    view.AddMenu(QStringLiteral("Owner"), QStringLiteral("btnSaveTag"), 0, QStringLiteral("Host"), {}, true, 0);
    Show(kScheduleView, kEditable);
    EXPECT_EQ(Tool("btnSaveTag")->text(), QStringLiteral("Save"));
    EditCell(1, 1, "20");
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
}

TEST_F(WorkflowTest, WhenTheHostCannotBeToldToUnloadClosingAsksAgain)
{
    Show(kScheduleView, kEditable);
    host.failing = {QStringLiteral("UnloadSchedule")};
    EXPECT_FALSE(view.close());
    EXPECT_EQ(user.boxes.size(), 1u) << "the failure is shown";
    EXPECT_FALSE(view.close());
    EXPECT_EQ(host.Names(), (QStringList{"UnloadSchedule", "UnloadSchedule"}));
    host.failing.clear();
    EXPECT_TRUE(view.close());
}

} // namespace schedules
