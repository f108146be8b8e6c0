// What Apply and OK write and send.

#include "SavingTest.h"

namespace schedules::testing {

namespace {

using OptionsApply = SavingTest;

const QString kSavedPumps = "<Template Name=\"Pumps\" DisplayName=\"Pump schedule\" Category=\"PUMPS\">"
                            "<Group Name=\"Design\" DisplayName=\"Design\" ShowThisGroup=\"0\" ShowGroupName=\"-1\">"
                            "<Item Name=\"Flow\" DisplayName=\"Flow\" ShowThisItem=\"-1\"><Location/></Item>"
                            "<Item Name=\"Head\" DisplayName=\"Head\" ShowThisItem=\"0\"><Location/></Item>"
                            "<Item Name=\"Note\" DisplayName=\"Duty note\" ShowThisItem=\"-1\" UserDefined=\"-1\">"
                            "<Location/></Item></Group>"
                            "<Group Name=\"Motor\" DisplayName=\"Motor\" ShowThisGroup=\"-1\" ShowGroupName=\"0\">"
                            "<Item Name=\"Power\" DisplayName=\"Power\" ShowThisItem=\"-1\"><Location/></Item></Group>"
                            "<Group Name=\"Vendor\" DisplayName=\"Vendor\" ShowThisGroup=\"0\" ShowGroupName=\"-1\">"
                            "<Item Name=\"Price\" DisplayName=\"Price\" ShowThisItem=\"-1\"><Location/></Item>"
                            "</Group></Template>";

} // namespace

TEST_F(OptionsApply, AnUnchangedTemplateIsOnlyTold)
{
    Start();
    EXPECT_FALSE(IsEnabled("cmdApply"));
    const std::string before = Content("pumps.xml");
    Click("cmdOK");
    const QString sent = QString(kSavedPumps)
                             .replace("ShowThisGroup=\"0\" ShowGroupName=\"-1\"><Item Name=\"Flow\"",
                                      "ShowThisGroup=\"-1\" ShowGroupName=\"-1\"><Item Name=\"Flow\"");
    EXPECT_EQ(Log(), Requests({SetCurrent(sent.toStdString(), "pumps.xml")}) + '\n' + kUnload);
    EXPECT_EQ(Content("pumps.xml"), before);
}

TEST_F(OptionsApply, AChangedTemplateIsWrittenListedReloadedAndTold)
{
    Start();
    Edit();
    Apply();
    const QString list = "<Templates><Template name=\"Pumps\" filename=\"pumps.xml\" pdsg=\"p1\" readonly=\"0\" "
                         "category=\"PUMPS\" defaultforcategory=\"0\"/>"
                         "<Template name=\"Fans\" filename=\"fans.xml\" pdsg=\"p2\" readonly=\"0\" category=\"FANS\" "
                         "defaultforcategory=\"0\"/>"
                         "<Template name=\"Rooms\" filename=\"rooms.xml\" pdsg=\"p3\" readonly=\"-1\" category=\"\" "
                         "defaultforcategory=\"0\"/></Templates>";
    EXPECT_EQ(Log(), Requests(Saving(list) + QStringList{SetCurrent(kSavedPumps.toStdString(), "pumps.xml")}));
    EXPECT_EQ(Content("pumps.xml"), kSavedPumps.toStdString());
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(OptionsApply, AfterwardsTheTemplateIsUnchanged)
{
    Start();
    Edit();
    EXPECT_TRUE(IsDirty());
    Apply();
    EXPECT_FALSE(IsDirty());
    EXPECT_FALSE(IsEnabled("cmdApply"));
    EXPECT_EQ(Current(), "Missing: 3077  Pumps");
    EXPECT_EQ(DrawnGroupList(), "> [ ] Design | [x] Motor | [ ] Vendor");
}

TEST_F(OptionsApply, OkOfAChangedTemplateSavesAndCloses)
{
    Start();
    Edit();
    Click("cmdOK");
    EXPECT_EQ(Names(), "GETTEMPLATELIST GETTEMPLATELIST UPDATESCHEDCONFIG GETTEMPLATELIST GETBUILDERPATH "
                       "GETTEMPLATECATEGORIES GETCURRENTSCHEDTEMPLATE SETCURRENTSCHEDTEMPLATE UnloadScheduleOptions");
    EXPECT_EQ(Content("pumps.xml"), kSavedPumps.toStdString());
}

TEST_F(OptionsApply, TheFileHoldsExactlyWhatIsSent)
{
    const QString hard = "a\tb\nc\rd \"e\" 'f' <g> & ]]> äЖ水 𝄞 \u0085\u2028\uFEFF\u00A0";
    ListOne("[x] Design\n", "Name='Pumps' DisplayName='D' Category='C' Note=\"" + EscapedXml(hard) +
                                "\" xmlns:p='u:1' "
                                "p:a='1'");
    Start();
    Edit();
    Apply();
    const QString sent = host.sent.back().message->parameters.Items().front().value.toString();
    EXPECT_EQ(Content("pumps.xml"), sent.toStdString());
    EXPECT_TRUE(sent.startsWith("<Template Name=\"Pumps\"")) << sent.toStdString();
    EXPECT_EQ(XmlDocument::FromText(sent).Root().Attribute("Note"), hard);
}

TEST_F(OptionsApply, AFileInAnotherEncodingBecomesUtf8)
{
    const QString text = TemplateText("Name='Pumps' DisplayName='Ж水' Category='C'", "[x] Ж\n");
    QByteArray utf16("\xFF\xFE");
    for (const QChar character : text) {
        utf16.append(static_cast<char>(character.unicode() & 0xFF));
        utf16.append(static_cast<char>(character.unicode() >> 8));
    }
    WriteFile("pumps.xml", utf16);
    Start();
    Edit();
    Apply();
    EXPECT_EQ(Content("pumps.xml"), "<Template Name=\"Pumps\" DisplayName=\"Ж水\" Category=\"C\">"
                                    "<Group Name=\"Ж\" DisplayName=\"Ж\" ShowThisGroup=\"0\"/></Template>");
}

TEST_F(OptionsApply, AnEntryOfTheListChangesItsFileNameOnly)
{
    const QString list = "<L v=\"1\"><!-- all --><Sub><Template name=\"Old\" x=\"&lt;\" filename=\"pumps.xml\" "
                         "pdsg=\"p\" readonly=\"False\" defaultforcategory=\"True\"><more/></Template></Sub>"
                         "<Template name=\"Again\" filename=\"pumps.xml\"/></L>";
    host.replies["GETTEMPLATELIST"] = list;
    Start();
    Edit();
    Apply();
    EXPECT_EQ(HostList().toStdString(), list.toStdString());
}

TEST_F(OptionsApply, WhatTheListNoLongerHasIsListedAnew)
{
    Start();
    Edit();
    host.replies["GETTEMPLATELIST"] = "<Templates><Template filename=\"PUMPS.XML\" name=\"x\"/></Templates>";
    Apply();
    EXPECT_EQ(HostList().toStdString(), "<Templates><Template filename=\"PUMPS.XML\" name=\"x\"/>"
                                        "<Template pdsg=\"p1\" name=\"Pumps\" filename=\"pumps.xml\" "
                                        "defaultforcategory=\"False\" readonly=\"False\"/></Templates>");
}

TEST_F(OptionsApply, TheListIsAskedForAnewBeforeItIsSent)
{
    Start();
    Edit();
    int asked = 0;
    inside = [&](const QString& name) {
        if (name == "GETTEMPLATELIST" && ++asked == 2)
            host.sent.back().reply = "<Other/>";
    };
    Apply();
    EXPECT_EQ(Listed(), "Pumps=pumps.xml");
    EXPECT_TRUE(HostList().startsWith("<Other>"));
}

TEST_F(OptionsApply, ARootWithoutTextsIsListedUnderTheCataloguesAndStaysWithoutThem)
{
    Write("pumps.xml", "Version='1'", "[x] Design\n");
    Start();
    Edit();
    Unlist("pumps.xml");
    Apply();
    EXPECT_EQ(Listed(), "Fans=fans.xml Rooms=rooms.xml Pumps=pumps.xml");
    EXPECT_EQ(Content("pumps.xml"), "<Template Version=\"1\"><Group Name=\"Design\" DisplayName=\"Design\" "
                                    "ShowThisGroup=\"0\"/></Template>");
    EXPECT_EQ(Names(), "GETTEMPLATELIST GETTEMPLATELIST UPDATESCHEDCONFIG GETTEMPLATELIST GETBUILDERPATH "
                       "GETTEMPLATECATEGORIES GETCURRENTSCHEDTEMPLATE SETCURRENTSCHEDTEMPLATE");
}

TEST_F(OptionsApply, TheNameInTheListIsTheRoots)
{
    Write("pumps.xml", "Name='Root name' DisplayName='D' Category='C'", "[x] Design\n");
    Start();
    Edit();
    Unlist("pumps.xml");
    Apply();
    EXPECT_EQ(Listed(), "Fans=fans.xml Rooms=rooms.xml Root name=pumps.xml");
}

TEST_F(OptionsApply, ATextThatIsBlankEndsTheSave)
{
    for (const char* root : {"Name=' ' DisplayName='D' Category='C'", "Name='N' DisplayName='' Category='C'",
                             "Name='N' DisplayName='D' Category='  '", "Name='N' DisplayName='D'"})
    {
        editor = std::make_unique<ctlSchedOptions>(&watched);
        StartWith(root);
        const std::string before = Content("pumps.xml");
        Edit();
        Apply();
        EXPECT_EQ(Log(), MissingError(3072, "ApplyChanges")) << root;
        EXPECT_TRUE(IsDirty()) << root;
        EXPECT_EQ(Content("pumps.xml"), before) << root;
    }
}

TEST_F(OptionsApply, AFolderThatIsNotKnownEndsTheSave)
{
    Start();
    Edit();
    host.replies["GETBUILDERPATH"] = "  ";
    Apply();
    Forget();
    const std::string before = Content("pumps.xml");
    Edit();
    user.answers = {Answer::Yes};
    Apply();
    EXPECT_EQ(Log(), MissingError(3073, "ApplyChanges"));
    EXPECT_EQ(Content("pumps.xml"), before);
    EXPECT_TRUE(IsDirty());
}

/// The host lets the user apply while it is asked, and has nothing more to show then.
TEST_F(OptionsApply, WithoutACurrentTemplateNothingIsSaved)
{
    Start();
    Edit();
    WhenAsked({Enter("New")});
    inside = [this](const QString& name) {
        if (name != "GETTEMPLATECATEGORIES")
            return;
        inside = nullptr;
        const auto before = std::exchange(host.sent, {});
        host.replies["GETCURRENTSCHEDTEMPLATE"] = "none.xml";
        Unlist("rooms.xml");
        user.answers = {Answer::Yes};
        Click("cmdDelete");
        host.sent = before;
    };
    Click("cmdSaveAs");
    EXPECT_EQ(Log(), Requests({kAskCategories}) + '\n' + MissingError(3071, "SaveTemplateAs"));
    EXPECT_EQ(FolderFiles(), "fans.xml rooms.xml");
}

/// In the file quotation marks stand as they are; written, each takes six characters, and the tag becomes too long.
TEST_F(OptionsApply, ATextThatCannotBeReadAgainIsNotWritten)
{
    const QString quotes(400'000, '"');
    ListOne("[x] Design\n", "Name='Pumps' DisplayName='D' Category='C' Note='" + quotes + '\'');
    Start();
    ASSERT_EQ(DrawnGroupList(), "[x] Design");
    const std::string before = Content("pumps.xml");
    Edit();
    Apply();
    EXPECT_EQ(Log(), Requests({kAskList}) + '\n' + MissingError(3075, "ApplyChanges"));
    EXPECT_EQ(Content("pumps.xml"), before);
    EXPECT_TRUE(IsDirty());
}

TEST_F(OptionsApply, AReadOnlyFileIsNotReplaced)
{
    Start();
    Edit();
    const std::string before = Content("pumps.xml");
    ASSERT_TRUE(QFile::setPermissions(PathOf("pumps.xml"), QFile::ReadOwner));
    Apply();
    EXPECT_EQ(Log(), Requests({kAskList}) + '\n' + MissingError(3076, "ApplyChanges"));
    EXPECT_EQ(Content("pumps.xml"), before);
    EXPECT_TRUE(IsDirty());
    EXPECT_TRUE(IsEnabled("cmdApply"));
}

TEST_F(OptionsApply, AListThatIsNoXmlLetsNothingBeWritten)
{
    for (const char* list : {"", "  ", "nonsense", "<Templates>"}) {
        editor = std::make_unique<ctlSchedOptions>(&watched);
        StartWith("Name='N' DisplayName='D' Category='C'");
        const std::string before = Content("pumps.xml");
        Edit();
        host.replies["GETTEMPLATELIST"] = list;
        Apply();
        EXPECT_EQ(Log(), Requests({kAskList}) + '\n' + MissingError(1062, "ApplyChanges")) << list;
        EXPECT_EQ(Content("pumps.xml"), before) << list;
        EXPECT_TRUE(IsDirty()) << list;
    }
}

TEST_F(OptionsApply, AListThatIsNoXmlTheSecondTimeIsNotSent)
{
    Start();
    Edit();
    int asked = 0;
    inside = [&](const QString& name) {
        if (name == "GETTEMPLATELIST" && ++asked == 2)
            host.sent.back().reply = "nonsense";
    };
    Apply();
    EXPECT_EQ(Log(), Requests({kAskList, kAskList}) + '\n' + MissingError(1062, "ApplyChanges"));
    EXPECT_EQ(Content("pumps.xml"), kSavedPumps.toStdString());
    EXPECT_TRUE(IsDirty());
}

TEST_F(OptionsApply, OkDoesNotCloseOverASaveThatFailed)
{
    Start();
    Edit();
    host.replies["GETTEMPLATELIST"] = "nonsense";
    Click("cmdOK");
    EXPECT_EQ(Names(), "GETTEMPLATELIST ErrorMessage");
    EXPECT_TRUE(IsDirty());
}

TEST_F(OptionsApply, ASaveThatFailedCanBeTriedAgain)
{
    Start();
    Edit();
    const QString list = HostList();
    host.replies["GETTEMPLATELIST"] = "nonsense";
    Apply();
    host.replies["GETTEMPLATELIST"] = list;
    Apply();
    EXPECT_EQ(Content("pumps.xml"), kSavedPumps.toStdString());
    EXPECT_FALSE(IsDirty());
}

TEST_F(OptionsApply, WithoutATemplateOkOnlyCloses)
{
    host.replies["GETCURRENTSCHEDTEMPLATE"] = "none.xml";
    Start();
    Click("cmdOK");
    EXPECT_EQ(Log(), kUnload);
}

TEST_F(OptionsApply, EditsThatWereLeftBehindAreToldButNotSaved)
{
    Start();
    const std::string before = Content("pumps.xml");
    Edit();
    ChooseTemplateAgain();
    Click("cmdOK");
    EXPECT_EQ(Log(), Requests({SetCurrent(kSavedPumps.toStdString(), "pumps.xml")}) + '\n' + kUnload);
    EXPECT_EQ(Content("pumps.xml"), before);
}

} // namespace schedules::testing
