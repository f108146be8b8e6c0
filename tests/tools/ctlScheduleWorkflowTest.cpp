// Whole pieces of work: start, edit, save, transpose, edit again, leave. What the host hears, and what stays on screen.

#include "tools/WorkflowTest.h"

#include <QMenu>

namespace schedules {

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

} // namespace schedules
