// What is asked before Apply and OK write: whether to overwrite what has not been seen, and a name instead of a
// protected template's.

#include "SavingTest.h"

namespace schedules::testing {

namespace {

using OptionsApplyAsking = SavingTest;

} // namespace

TEST_F(OptionsApplyAsking, AFileThatWasReadInPartIsReplacedAfterAYes)
{
    const QByteArray partial = "<Template Name='Pumps' DisplayName='D' Category='C'><Group Name='Design' "
                               "DisplayName='Design' ShowThisGroup='-1'/><Group/><Group Name='Lost'/></Template>";
    WriteFile("pumps.xml", partial);
    Start();
    Edit();
    user.answers = {Answer::No};
    Apply();
    EXPECT_EQ(Boxes(), "The file of this template could only be read in part. Saving it drops what could not be read. "
                       "Save? (36) Missing: 1014");
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Content("pumps.xml"), partial.toStdString());
    EXPECT_TRUE(IsDirty());
    user.answers = {Answer::No};
    Click("cmdOK");
    EXPECT_EQ(Log(), "");
    user.answers = {Answer::Yes};
    Apply();
    EXPECT_EQ(Content("pumps.xml"), "<Template Name=\"Pumps\" DisplayName=\"D\" Category=\"C\"><Group Name=\"Design\" "
                                    "DisplayName=\"Design\" ShowThisGroup=\"0\"/></Template>");
    EXPECT_FALSE(IsDirty());
}

TEST_F(OptionsApplyAsking, AFileThatWasChangedMeanwhileIsReplacedAfterAYes)
{
    Start();
    Edit();
    WriteFile("pumps.xml", "<Template Name='By somebody else'/>");
    user.answers = {Answer::No, Answer::Yes};
    Apply();
    EXPECT_EQ(Boxes(), "The file of this template was changed after it had been read. Saving it drops that change. "
                       "Save? (36) Missing: 1014");
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Content("pumps.xml"), "<Template Name='By somebody else'/>");
    EXPECT_TRUE(IsDirty());
    Apply();
    EXPECT_EQ(ReadBack("pumps.xml").substr(0, 10), "[ ] Design");
}

TEST_F(OptionsApplyAsking, AFileThatIsGoneMeanwhileIsWrittenAgain)
{
    Start();
    Edit();
    ASSERT_TRUE(QFile::remove(PathOf("pumps.xml")));
    Apply();
    EXPECT_EQ(Boxes(), "");
    EXPECT_EQ(ReadBack("pumps.xml").substr(0, 10), "[ ] Design");
}

TEST_F(OptionsApplyAsking, TheNextSaveDoesNotAskAgain)
{
    Start();
    Edit();
    Apply();
    Edit();
    Apply();
    EXPECT_EQ(Boxes(), "");
    EXPECT_FALSE(IsDirty());
}

// Protected templates.

TEST_F(OptionsApplyAsking, AProtectedTemplateIsSavedUnderANewNameWhichIsTold)
{
    host.replies["GETCURRENTSCHEDTEMPLATE"] = "rooms.xml";
    Start();
    const std::string before = Content("rooms.xml");
    Edit();
    WhenAsked({Enter("New rooms")});
    Apply();
    const std::string saved = "<Template Name=\"New rooms\" DisplayName=\"New rooms\" Category=\"PUMPS\" "
                              "AllowEdit=\"-1\"><Group Name=\"Room\" DisplayName=\"Room\" ShowThisGroup=\"0\">"
                              "<Item Name=\"Area\" DisplayName=\"Area\" ShowThisItem=\"-1\"><Location/></Item></Group>"
                              "</Template>";
    EXPECT_EQ(Content("New rooms.xml"), saved);
    EXPECT_EQ(Content("rooms.xml"), before);
    EXPECT_TRUE(HostList().endsWith("<Template pdsg=\"p3\" name=\"New rooms\" filename=\"New rooms.xml\" "
                                    "defaultforcategory=\"False\" readonly=\"False\"/></Templates>"));
    EXPECT_EQ(Log(), Requests(QStringList{kAskCategories} + Saving(HostList()) +
                              QStringList{SetCurrent(saved, "New rooms.xml")}));
    EXPECT_EQ(Current(), "Missing: 3077  New rooms");
}

TEST_F(OptionsApplyAsking, CancelInTheDialogKeepsTheEditorOpenAndDirty)
{
    host.replies["GETCURRENTSCHEDTEMPLATE"] = "rooms.xml";
    Start();
    Edit();
    WhenAsked({Cancel});
    Click("cmdOK");
    EXPECT_EQ(Log(), Requests({kAskCategories}));
    EXPECT_TRUE(IsDirty());
}

TEST_F(OptionsApplyAsking, AnUnchangedProtectedTemplateIsToldWithoutADialog)
{
    host.replies["GETCURRENTSCHEDTEMPLATE"] = "rooms.xml";
    Start();
    Click("cmdOK");
    EXPECT_EQ(Names(), "SETCURRENTSCHEDTEMPLATE UnloadScheduleOptions");
}

TEST_F(OptionsApplyAsking, AProtectedTemplateDoesNotTakeANameThatTheHostLists)
{
    host.replies["GETCURRENTSCHEDTEMPLATE"] = "rooms.xml";
    Start();
    Edit();
    host.replies["GETTEMPLATELIST"] = "<Templates><Template name='x' filename='New.xml'/></Templates>";
    WhenAsked({Enter("New")});
    Click("cmdOK");
    EXPECT_EQ(Boxes(), "Missing: 3074 (64) Missing: 1014");
    EXPECT_EQ(Log(), Requests({kAskCategories, kAskList}));
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
    EXPECT_TRUE(IsDirty());
}

TEST_F(OptionsApplyAsking, AFailureBehindTheDialogBearsItsProcedure)
{
    host.replies["GETCURRENTSCHEDTEMPLATE"] = "rooms.xml";
    Start();
    Edit();
    WhenAsked({Enter("New")});
    host.replies["GETTEMPLATELIST"] = "nonsense";
    Click("cmdOK");
    EXPECT_EQ(Log(), Requests({kAskCategories, kAskList}) + '\n' + MissingError(1062, "SaveTemplateAs"));
    EXPECT_TRUE(IsDirty());
}

} // namespace schedules::testing
