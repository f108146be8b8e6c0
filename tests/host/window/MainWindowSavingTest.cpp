// What the view saves, and where it goes.

#include "ShownWindow.h"

namespace schedules::host::testing {

using MainWindowSaving = ShownWindow;

TEST_F(MainWindowSaving, SaveWritesTheChangedTableIntoTheFileThatIsShown)
{
    Open(kPumps);
    Edit(1, 1, "12.5");
    EXPECT_EQ(Content("pumps.xml"), kPumps) << "not before Save";
    PressSave();
    EXPECT_EQ(Content("pumps.xml"), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
                                    "<TABLE><!-- two pumps -->\r\n <TR><TH/><TH>Flow</TH><TH>Head</TH></TR>\r\n"
                                    " <TR><TH>P-1</TH><TD AllowEdit='-1' Dirty=\"-1\">12.5</TD><TD>48</TD></TR>\r\n"
                                    " <TR><TH>P-2</TH><TD AllowEdit='-1'>13</TD><TD>49</TD></TR></TABLE>\r\n");
    EXPECT_FALSE(Dirty());
    EXPECT_EQ(Logged(), QStringList{"UpdateTagScheduleData"});
}

TEST_F(MainWindowSaving, TheStatusBarTellsHowManyCellsWereChangedSinceTheLastSave)
{
    Open(kPumps);
    Edit(1, 1, "12.5");
    Edit(1, 2, "14");
    PressSave();
    EXPECT_EQ(Status(), "Saved 2 changed cells to pumps.xml");
    Edit(1, 2, "15");
    PressSave();
    EXPECT_EQ(Status(), "Saved 1 changed cell to pumps.xml");
}

TEST_F(MainWindowSaving, ASavedFileCanBeOpenedAgain)
{
    Open(kPumps);
    Edit(1, 1, "12.5");
    PressSave();
    Menu(QStringLiteral("&Reload"))->trigger();
    EXPECT_EQ(TextAt(1, 1), "12.5");
    EXPECT_EQ(asked, QStringList());
}

TEST_F(MainWindowSaving, AFailureIsToldAndTheViewStaysDirty)
{
    Open(kPumps);
    Edit(1, 1, "12.5");
    ASSERT_TRUE(QFile::remove(Path("pumps.xml")) && QDir().rmdir(folder.path()));
    PressSave();

    const QString told = QStringLiteral("cannot write %1: No such file or directory").arg(Path("pumps.xml"));
    ASSERT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(user.boxes[0].text, told);
    EXPECT_EQ(Status(), told.toStdString());
    EXPECT_TRUE(Dirty());
    EXPECT_TRUE(Find<QAction>("btnSaveTag")->isEnabled());
    EXPECT_EQ(Logged(), QStringList{"UpdateTagScheduleData"}) << "what failed is in the list, too";
    EXPECT_EQ(Logged(5), QStringList("failed: " + told));
}

TEST_F(MainWindowSaving, AfterAFailureSaveCanBeTriedAgain)
{
    Open(kPumps);
    Edit(1, 1, "12.5");
    ASSERT_TRUE(QFile::remove(Path("pumps.xml")) && QDir().rmdir(folder.path()));
    PressSave();
    ASSERT_TRUE(QDir().mkpath(folder.path()));
    PressSave();
    EXPECT_FALSE(Dirty());
    EXPECT_EQ(Status(), "Saved 1 changed cell to pumps.xml");
}

TEST_F(MainWindowSaving, ARouterThatOutlivesTheWindowSavesNothingMore)
{
    const QString file = Written(QStringLiteral("pumps.xml"), kPumps);
    HostRouter longLived;
    {
        MainWindow shortLived(longLived, {});
        shortLived.Open(file);
    }
    Message message{.name = QStringLiteral("UpdateTagScheduleData")};
    message.parameters.Add(ParameterType::Xml, QStringLiteral("ScheduleXml"), QStringLiteral("<TABLE/>"));
    EXPECT_EQ(longLived.Send({QStringLiteral("ctlSchedule"), kOwner, MessageKind::Event, message.Text()}), QString());
    EXPECT_EQ(Content("pumps.xml"), kPumps);
}

TEST_F(MainWindowSaving, PickedTagsAreCountedInTheStatusBar)
{
    Menu(QStringLiteral("Se&lector"))->trigger();
    Open(kTags);
    Grid().SetText({Column(1), Row(2)}, QStringLiteral("1"));
    Find<QPushButton>("cmdContinue")->click();
    EXPECT_EQ(Status(), "1 tag was picked");
    Grid().SetText({Column(2), Row(2)}, QStringLiteral("1"));
    Find<QPushButton>("cmdContinue")->click();
    EXPECT_EQ(Status(), "2 tags were picked");
    Find<QAction>("btnPrint")->trigger();
    EXPECT_EQ(Status(), "2 tags were picked to be printed");
    EXPECT_EQ(Logged(), (QStringList{"ContinueButton", "ContinueButton", "PrintSelections"}));
}

} // namespace schedules::host::testing
