// Saving under a new name: what the dialog is given, what is written, listed and sent.

#include "SavingTest.h"

namespace schedules::testing {

namespace {

using OptionsSaveAs = SavingTest;

const QString kGroup = "<Group Name=\"Design\" DisplayName=\"Design\" ShowThisGroup=\"-1\"/></Template>";

/// The template "New" of "pumps.xml" with one group, the host's list of which is empty otherwise.
std::string NewRoot(const QString& attributes)
{
    return ("<Template " + attributes + '>' + kGroup).toStdString();
}

} // namespace

// What the dialog shows.

TEST_F(OptionsSaveAs, TheDialogStartsWithWhatTheTemplateIs)
{
    Start();
    std::string fields;
    QString folderShown;
    WhenAsked({[&](frmSaveAs& dialog) {
        fields = Fields(dialog);
        folderShown = dialog.FilePath();
        Cancel(dialog);
    }});
    Click("cmdSaveAs");
    EXPECT_EQ(fields, "Missing: 3069|Pump schedule|Pump schedule.xml|Pump schedule|PUMPS (Pumps)|"
                      "PUMPS (Pumps), FANS (Fans)");
    EXPECT_EQ(folderShown.toStdString(), (folder.path() + '\\').toStdString());
}

TEST_F(OptionsSaveAs, ADefaultOfACategoryIsUntitled)
{
    StartWith("Name='Pumps' DisplayName='D'", "name='Pumps' filename='pumps.xml' category='FANS' "
                                              "defaultforcategory='True'");
    std::string fields;
    WhenAsked({[&](frmSaveAs& dialog) {
        fields = Fields(dialog);
        Cancel(dialog);
    }});
    Click("cmdSaveAs");
    EXPECT_EQ(fields, "Missing: 3069|Untitled|Untitled.xml|Untitled|FANS (Fans)|PUMPS (Pumps), FANS (Fans)");
}

TEST_F(OptionsSaveAs, WithoutADisplayNameAndACategoryTheFieldsAreEmpty)
{
    StartWith("Name='Pumps'");
    std::string fields;
    WhenAsked({[&](frmSaveAs& dialog) {
        fields = Fields(dialog);
        EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdOK")->isEnabled());
        Cancel(dialog);
    }});
    Click("cmdSaveAs");
    EXPECT_EQ(fields, "Missing: 3069||*.xml|||PUMPS (Pumps), FANS (Fans)");
}

TEST_F(OptionsSaveAs, TheCategoriesAreAskedForAnewAndFoundInAnyLetterCase)
{
    Start();
    host.replies["GETTEMPLATECATEGORIES"] =
        "<x><y><Category NAME='A' DISPLAYNAME='One'/></y><Category displayName='Two' Name='GEN'/>"
        "<category name='lower'/><Category pdsg='1'/><Category name='&quot;%1&quot;' displayname='%2'/></x>";
    std::string fields;
    WhenAsked({[&](frmSaveAs& dialog) {
        fields = Fields(dialog);
        Cancel(dialog);
    }});
    Click("cmdSaveAs");
    EXPECT_EQ(fields, "Missing: 3069|Pump schedule|Pump schedule.xml|Pump schedule||"
                      "A (One), GEN (Two),  (), \"%1\" (%2)");
}

TEST_F(OptionsSaveAs, CategoriesThatAreNoXmlGiveNone)
{
    Start();
    for (const char* nonsense : {"", "nonsense", "<C>"}) {
        host.replies["GETTEMPLATECATEGORIES"] = nonsense;
        std::string fields;
        WhenAsked({[&](frmSaveAs& dialog) {
            fields = Fields(dialog);
            Cancel(dialog);
        }});
        Click("cmdSaveAs");
        EXPECT_EQ(fields, "Missing: 3069|Pump schedule|Pump schedule.xml|Pump schedule||") << nonsense;
    }
}

TEST_F(OptionsSaveAs, CancelChangesNothing)
{
    Start();
    Edit();
    WhenAsked({Cancel});
    Click("cmdSaveAs");
    EXPECT_EQ(Log(), Requests({kAskCategories}));
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
    EXPECT_TRUE(IsDirty());
    EXPECT_EQ(Current(), "Missing: 3077  Pumps *");
    EXPECT_FALSE(editor->findChild<frmSaveAs*>()) << "it is unloaded";
}

TEST_F(OptionsSaveAs, TheDialogIsUnloadedAfterASave)
{
    Start();
    SaveAs("New");
    EXPECT_FALSE(editor->findChild<frmSaveAs*>());
}

// What is written and sent.

TEST_F(OptionsSaveAs, WritesListsReloadsAndSelectsTheNewTemplate)
{
    ListOne("[x] Design\n", "Name='Pumps' DisplayName='D' Category='PUMPS'");
    Start();
    SaveAs("New");
    const QString list = "<Templates><Template name=\"Pumps\" filename=\"pumps.xml\"/>"
                         "<Template pdsg=\"\" name=\"New\" filename=\"New.xml\" defaultforcategory=\"False\" "
                         "readonly=\"False\"/></Templates>";
    EXPECT_EQ(Log(), Requests(QStringList{kAskCategories} + Saving(list)));
    EXPECT_EQ(Content("New.xml"), NewRoot("Name=\"New\" DisplayName=\"New\" Category=\"PUMPS\" AllowEdit=\"-1\""));
    EXPECT_EQ(Current(), "Missing: 3077  New");
    EXPECT_EQ(Templates().currentText(), "New");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(OptionsSaveAs, VariantsOfTheRootsAttributesAreRenamedInPlace)
{
    ListOne("[x] Design\n", "allowEDIT='0' CATEGORY='C' Version='7' displayname='D' name='N'");
    Start();
    SaveAs("New");
    EXPECT_EQ(Content("New.xml"), NewRoot("AllowEdit=\"-1\" Category=\"PUMPS\" Version=\"7\" DisplayName=\"New\" "
                                          "Name=\"New\""));
}

TEST_F(OptionsSaveAs, AttributesThatTheRootLacksComeLast)
{
    ListOne("[x] Design\n", "Version='7'");
    Start();
    SaveAs("New");
    EXPECT_EQ(Content("New.xml"), NewRoot("Version=\"7\" Name=\"New\" DisplayName=\"New\" Category=\"PUMPS\" "
                                          "AllowEdit=\"-1\""));
}

TEST_F(OptionsSaveAs, ACaptionOfItsOwnAndAnotherCategoryAreWritten)
{
    ListOne("[x] Design\n", "Name='Pumps' DisplayName='D' Category='PUMPS'");
    Start();
    WhenAsked({[](frmSaveAs& dialog) {
        TypeInto(dialog, "Text1", "New");
        QTest::keyClick(dialog.findChild<QCheckBox*>("chkUseNameAsCaption"), Qt::Key_Space);
        TypeInto(dialog, "txtTemplCaption", "Own <caption>");
        ChooseCategory(dialog, 1);
        PressIn(dialog, "cmdOK");
    }});
    Click("cmdSaveAs");
    EXPECT_EQ(Content("New.xml"), NewRoot("Name=\"New\" DisplayName=\"Own &lt;caption&gt;\" Category=\"FANS\" "
                                          "AllowEdit=\"-1\""));
    EXPECT_EQ(Listed(), "Pumps=pumps.xml New=New.xml");
    EXPECT_EQ(Templates().currentText(), "Own <caption>");
}

TEST_F(OptionsSaveAs, TheEditsGoToTheCopyAndTheFileStays)
{
    Start();
    const std::string before = Content("pumps.xml");
    Edit();
    SaveAs("New");
    EXPECT_EQ(ReadBack("New.xml").substr(0, 30), "[ ] Design {ShowGroupName=-1}\n");
    EXPECT_EQ(Content("pumps.xml"), before);
    EXPECT_FALSE(IsDirty());
    ChooseTemplate(0);
    EXPECT_EQ(DrawnGroupList(), "[x] Design | [x] Motor | [ ] Vendor");
}

TEST_F(OptionsSaveAs, TheScheduleKeepsItsTemplateUntilTheCopyIsApplied)
{
    Start();
    SaveAs("New");
    EXPECT_EQ(host.replies["GETCURRENTSCHEDTEMPLATE"], "pumps.xml");
    Click("cmdOK");
    EXPECT_EQ(host.replies["GETCURRENTSCHEDTEMPLATE"], "New.xml");
}

TEST_F(OptionsSaveAs, TheCopyOfADefaultOrAProtectedTemplateIsNeither)
{
    for (const char* flags : {"readonly='True'", "defaultforcategory='-1'", "readonly='1' defaultforcategory='True'"}) {
        editor = std::make_unique<ctlSchedOptions>(&watched);
        QFile::remove(PathOf("New.xml"));
        StartWith("Name='Pumps' DisplayName='D'", QString("name='Pumps' filename='pumps.xml' pdsg='p' ") + flags);
        SaveAs("New");
        EXPECT_TRUE(HostList().endsWith("<Template pdsg=\"p\" name=\"New\" filename=\"New.xml\" "
                                        "defaultforcategory=\"False\" readonly=\"False\"/></Templates>"))
            << HostList().toStdString();
        EXPECT_TRUE(IsEnabled("cmdDelete")) << flags;
    }
}

TEST_F(OptionsSaveAs, BlanksAroundTheNameStayInTheNameOnly)
{
    ListOne("[x] Design\n", "Name='Pumps' DisplayName='D' Category='PUMPS'");
    Start();
    SaveAs("  New  ");
    EXPECT_EQ(FolderFiles(), "New.xml fans.xml pumps.xml rooms.xml");
    EXPECT_EQ(Content("New.xml"),
              NewRoot("Name=\"  New  \" DisplayName=\"  New  \" Category=\"PUMPS\" AllowEdit=\"-1\""));
    EXPECT_EQ(Listed(), "Pumps=pumps.xml   New  =New.xml");
    EXPECT_EQ(Current(), "Missing: 3077  New");
}

// Failures.

TEST_F(OptionsSaveAs, ABlankCaptionEndsTheSave)
{
    Start();
    Edit();
    WhenAsked({[](frmSaveAs& dialog) {
        TypeInto(dialog, "Text1", "New");
        QTest::keyClick(dialog.findChild<QCheckBox*>("chkUseNameAsCaption"), Qt::Key_Space);
        TypeInto(dialog, "txtTemplCaption", "  ");
        PressIn(dialog, "cmdOK");
    }});
    Click("cmdSaveAs");
    EXPECT_EQ(Log(), Requests({kAskCategories}) + '\n' + MissingError(3072, "SaveTemplateAs"));
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
    EXPECT_TRUE(IsDirty());
}

TEST_F(OptionsSaveAs, AnUnprotectedTemplateTakesANameThatTheHostLists)
{
    Start();
    host.replies["GETTEMPLATELIST"] = "<T><Template name=\"x\" filename=\"New.xml\" readonly=\"True\"/></T>";
    SaveAs("New");
    EXPECT_EQ(HostList().toStdString(), "<T><Template name=\"x\" filename=\"New.xml\" readonly=\"True\"/></T>");
    EXPECT_NE(Content("New.xml"), "no file");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(OptionsSaveAs, AListThatIsNoXmlLetsNothingBeWritten)
{
    Start();
    Edit();
    host.replies["GETTEMPLATELIST"] = "<Templates>";
    SaveAs("New");
    EXPECT_EQ(Log(), Requests({kAskCategories, kAskList}) + '\n' + MissingError(1062, "SaveTemplateAs"));
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
    EXPECT_TRUE(IsDirty());
}

TEST_F(OptionsSaveAs, WhatAppearsAfterTheDialogIsReplacedWhenItCanBeDeleted)
{
    Start();
    inside = [this](const QString& name) {
        if (name == "GETTEMPLATELIST" && !QFile::exists(PathOf("New.xml")))
            WriteFile("New.xml", "old");
    };
    SaveAs("New");
    EXPECT_EQ(ReadBack("New.xml"), ReadBack("pumps.xml"));
}

TEST_F(OptionsSaveAs, AReadOnlyFileThatAppearsAfterTheDialogEndsTheSave)
{
    Start();
    Edit();
    inside = [&](const QString& name) {
        if (name != "GETTEMPLATELIST")
            return;
        WriteFile("New.xml", "old");
        ASSERT_TRUE(QFile::setPermissions(PathOf("New.xml"), QFile::ReadOwner));
    };
    SaveAs("New");
    EXPECT_EQ(Log(), Requests({kAskCategories, kAskList}) + '\n' + MissingError(3076, "SaveTemplateAs"));
    EXPECT_EQ(Content("New.xml"), "old");
    EXPECT_TRUE(IsDirty());
}

TEST_F(OptionsSaveAs, AFolderThatAppearsAfterTheDialogEndsTheSave)
{
    Start();
    Edit();
    inside = [&](const QString& name) {
        if (name == "GETTEMPLATELIST")
            QDir(folder.path()).mkdir("New.xml");
    };
    SaveAs("New");
    EXPECT_EQ(Log(), Requests({kAskCategories, kAskList}) + '\n' + MissingError(3076, "SaveTemplateAs"));
    EXPECT_TRUE(QFileInfo(PathOf("New.xml")).isDir());
    EXPECT_TRUE(IsDirty());
}

} // namespace schedules::testing
