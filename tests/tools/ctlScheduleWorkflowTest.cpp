// Whole pieces of work: start, edit, save, transpose, edit again, leave. What the host hears, and what stays on screen.

#include "tools/EditingTest.h"

#include <QMenu>
#include <QPointer>
#include <QRegularExpression>

namespace schedules {

namespace {

class WorkflowTest : public EditingTest
{
protected:
    /// "event ctlSchedule -> Host: ..." for each message, documents left out.
    std::string Heard() const
    {
        QStringList log = host.Log();
        for (QString& line : log)
            line.replace(QRegularExpression(QStringLiteral("ScheduleXml=.*\\]")), QStringLiteral("ScheduleXml=...]"));
        return log.join('\n').toStdString();
    }

    void EditTwice()
    {
        view.setProperty("ViewType", kScheduleView);
        view.setProperty("BuilderPdsg", QStringLiteral("pdsg"));
        Initialize(view);
        Activate(kEditable);
        view.resize(900, 400);
        view.show();
        QApplication::setActiveWindow(&view);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        EditCell(1, 1, "20");
        ClickTool("btnSaveTag");
        ClickTool("btnTranspose");
        EditCell(2, 1, "21");
    }

    void ClickTool(const char* key)
    {
        QTest::mouseClick(Find<QToolBar>("tbTasks")->widgetForAction(Tool(key)), Qt::LeftButton);
    }

    static constexpr auto kStart = "request ctlSchedule -> Host: GetResourceModule 0 3\n"
                                   "request ctlSchedule -> Host: InitializeSchedule 0 0 [2 Caller=]";
    static constexpr auto kUpdate = "\nevent ctlSchedule -> Host: UpdateTagScheduleData 8 9 "
                                    "[2 BuilderPdsg=pdsg] [4 ScheduleXml=...]";
    static constexpr auto kUnload = "\nevent ctlSchedule -> Host: UnloadSchedule 8 9 [8 Cancel=True]";
    static constexpr auto kQuestion = "Save Tag data? (3) Missing: 3042";
};

} // namespace

TEST_F(WorkflowTest, EndingWithYesSavesBeforeItUnloads)
{
    EditTwice();
    user.answers = {Answer::Yes};
    Press("cmdCancel");
    EXPECT_EQ(Heard(), std::string(kStart) + kUpdate + kUpdate + kUnload);
    EXPECT_EQ(Boxes(), kQuestion);
    EXPECT_FALSE(Dirty());
    EXPECT_EQ(
        SavedXml(),
        QString(kEditable)
            .replace(QStringLiteral("<TD AllowEdit='-1'>12"), QStringLiteral("<TD AllowEdit='-1' Dirty=\"-1\">20"))
            .replace(QStringLiteral("<TD AllowEdit='-1'>13"), QStringLiteral("<TD AllowEdit='-1' Dirty=\"-1\">21"))
            .toStdString());
}

TEST_F(WorkflowTest, EndingWithNoUnloadsAlone)
{
    EditTwice();
    user.answers = {Answer::No};
    Press("cmdCancel");
    EXPECT_EQ(Heard(), std::string(kStart) + kUpdate + kUnload);
    EXPECT_EQ(Boxes(), kQuestion);
}

TEST_F(WorkflowTest, EndingWithCancelGoesOn)
{
    EditTwice();
    user.answers = {Answer::Cancel};
    Press("cmdCancel");
    EXPECT_EQ(Heard(), std::string(kStart) + kUpdate);
    EXPECT_TRUE(Dirty());
    EXPECT_EQ(TextAt(2, 1), "21");
    EXPECT_EQ(Marked(), "2,1");
}

TEST_F(WorkflowTest, ClosingTheWindowIsCancel)
{
    EditTwice();
    user.answers = {Answer::Cancel, Answer::No};
    EXPECT_FALSE(view.close());
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(Heard(), std::string(kStart) + kUpdate);
    EXPECT_TRUE(view.close());
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(Heard(), std::string(kStart) + kUpdate + kUnload);
}

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

TEST_F(WorkflowTest, AViewThatNoHostHasTakenOverJustCloses)
{
    ctlSchedule alone(&user);
    alone.show();
    EXPECT_TRUE(alone.close());
    EXPECT_EQ(Boxes(), "");
}

TEST_F(WorkflowTest, CommandsCommitAnOpenEditFirst)
{
    const auto withOpenEdit = [this](const std::function<void()>& command) {
        Show(kScheduleView, kEditable);
        ClickCell(1, 1);
        Type("20");
        ASSERT_EQ(Edit(), "1,1: 20");
        command();
        EXPECT_EQ(Edit(), "idle");
        const Sheet& sheet = *TheSheet();
        EXPECT_EQ(sheet.Text(sheet.CellAt({1, 1})), QStringLiteral("20"));
        view.close();
    };
    view.AddMenu(QStringLiteral("Owner"), QStringLiteral("hostTool"), 0, QStringLiteral("Host"), {}, true, 0);
    QString committedBeforeHostTool;
    QObject::connect(&view, &ctlSchedule::HostToolClicked, [&] {
        committedBeforeHostTool = TheSheet()->Text({Column(1), Row(1)});
    });
    user.answers = std::deque<Answer>(20, Answer::Cancel);
    withOpenEdit([this] { ClickTool("btnTranspose"); });
    withOpenEdit([this] {
        view.SetTagDataDirty(true); // by an earlier edit
        ClickTool("btnSaveTag");
    });
    EXPECT_TRUE(SavedXml().find("Dirty=\"-1\">20<") != std::string::npos);
    withOpenEdit([this] { ClickTool("btnCustomize"); });
    withOpenEdit([this] { ClickTool("btnHelp"); });
    withOpenEdit([this] { ClickTool("hostTool"); });
    EXPECT_EQ(committedBeforeHostTool, QStringLiteral("20"));
    withOpenEdit([this] { Press("cmdCancel"); });
    withOpenEdit([this] { Button("cmdCancel")->click(); });
    withOpenEdit([this] { view.IToolUI_Deactivate(false); });
    withOpenEdit([this] { view.IToolUI_Activate(); });
    withOpenEdit([this] { view.DoColSort(); });
    withOpenEdit([this] { view.findChild<QAbstractButton*>(QStringLiteral("cmdContinue"))->click(); });
    withOpenEdit([this] {
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, Middle(1, 1), Spread()->mapToGlobal(Middle(1, 1)));
        QApplication::sendEvent(Spread(), &asked);
        delete view.findChild<QMenu*>(QStringLiteral("mnuGrid"));
    });
}

TEST_F(WorkflowTest, TheQuestionComesAfterTheOpenEditIsCommitted)
{
    Show(kScheduleView, kEditable);
    ClickCell(1, 1);
    Type("20");
    user.answers = {Answer::Yes};
    view.close();
    EXPECT_EQ(host.Names(), (QStringList{"UpdateTagScheduleData", "UnloadSchedule"}));
    EXPECT_TRUE(SavedXml().find("Dirty=\"-1\">20<") != std::string::npos);
}

TEST_F(WorkflowTest, EditsMarksAndTheActiveCellSurviveTranspose)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    ClickCell(3, 1);
    Type("other");
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | P-1 | P-2\nFlow | 20 | 13\nHead | 48 | 49\nNote | other | fixed");
    EXPECT_TRUE(Dirty());
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
    EXPECT_EQ(Marked(), "1,1 1,3");
    EXPECT_EQ(Active(), "1,3");
    EXPECT_EQ(Edit(), "idle");
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | Flow | Head | Note\nP-1 | 20 | 48 | other\nP-2 | 13 | 49 | fixed");
    EXPECT_EQ(Marked(), "1,1 3,1");
    EXPECT_EQ(Active(), "3,1");
}

TEST_F(WorkflowTest, AnEditBeforeAndOneAfterTransposeAreBothSaved)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    Click("btnTranspose");
    EditCell(2, 2, "50");
    Click("btnTranspose");
    EditCell(1, 2, "21");
    Click("btnSaveTag");
    Activate(QString::fromStdString(SavedXml()));
    EXPECT_EQ(Grid(), " | Flow | Head | Note\nP-1 | 20 | 48 | spare\nP-2 | 21 | 50 | fixed");
    EXPECT_EQ(Marked(), "") << "what comes from the host is not an edit of this user";
}

TEST_F(WorkflowTest, SaveClearsTheMarksAndKeepsTheDirtyAttributes)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    EXPECT_EQ(Marked(), "1,1");
    Click("btnSaveTag");
    EXPECT_EQ(Marked(), "");
    EXPECT_FALSE(Dirty());
    EXPECT_FALSE(Tool("btnSaveTag")->isEnabled());
    EditCell(1, 2, "21");
    EXPECT_EQ(Marked(), "1,2");
    Click("btnTranspose");
    EXPECT_EQ(Marked(), "2,1");
    Click("btnSaveTag");
    EXPECT_EQ(QString::fromStdString(SavedXml()).count(QStringLiteral("Dirty=\"-1\"")), 2);
}

TEST_F(WorkflowTest, AFailedSaveKeepsFlagButtonAndMarks)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    host.failing = {QStringLiteral("UpdateTagScheduleData")};
    Click("btnSaveTag");
    EXPECT_TRUE(Dirty());
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
    EXPECT_EQ(Marked(), "1,1");
    EXPECT_EQ(user.boxes.size(), 1u);
}

TEST_F(WorkflowTest, AFailedSaveOnYesKeepsTheViewOpen)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    host.failing = {QStringLiteral("UpdateTagScheduleData")};
    user.answers = {Answer::Yes};
    Press("cmdCancel");
    EXPECT_EQ(host.Names(), QStringList{"UpdateTagScheduleData"});
    EXPECT_TRUE(Dirty());
    EXPECT_EQ(Marked(), "1,1");
    EXPECT_EQ(user.boxes.size(), 2u);
}

TEST_F(WorkflowTest, AnotherActivationOfTheSameTextKeepsEditsFlagAndMarks)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    view.IToolUI_Activate();
    EXPECT_EQ(TextAt(1, 1), "20");
    EXPECT_TRUE(Dirty());
    EXPECT_EQ(Marked(), "1,1");
}

TEST_F(WorkflowTest, NewTextTakesTheEditsWithIt)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    Activate(kEditable);
    EXPECT_EQ(TextAt(1, 1), "12");
    EXPECT_FALSE(Dirty());
    EXPECT_FALSE(Tool("btnSaveTag")->isEnabled());
    EXPECT_EQ(Marked(), "");
}

TEST_F(WorkflowTest, TheLoadMethodsKeepTheirText)
{
    Show(kScheduleView, kOtherSchedule);
    ASSERT_TRUE(view.LoadScheduleData(kEditable));
    EditCell(1, 1, "20");
    Click("btnTranspose");
    EXPECT_EQ(Grid(), " | P-1 | P-2\nFlow | 20 | 13\nHead | 48 | 49\nNote | spare | fixed");
    Click("btnSaveTag");
    EXPECT_TRUE(SavedXml().find("Dirty=\"-1\">20<") != std::string::npos);
    EditCell(1, 1, "22");
    ASSERT_TRUE(view.LoadScheduleData(kEditable));
    EXPECT_FALSE(Dirty());
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

TEST_F(WorkflowTest, TransposeShowsNewTextButOnlyAnActivationLetsItBeEdited)
{
    Show(kScheduleView, kEditable);
    EditCell(1, 1, "20");
    view.IToolUI_XML(kEditable);
    Click("btnTranspose");
    EXPECT_TRUE(Dirty());
    ClickCell(1, 1);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(Marked(), "");
    view.IToolUI_Activate();
    EXPECT_FALSE(Dirty());
    ClickCell(1, 1);
    EXPECT_EQ(Edit(), "1,1: 12");
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

} // namespace schedules
