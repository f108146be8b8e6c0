// Deleting the current template, and what is current afterwards.

#include "SavingTest.h"

#include <QLabel>

#include <unistd.h>

namespace schedules::testing {

namespace {

constexpr auto kQuestionShown = "Missing: 3068 (4) Missing: 3067";

} // namespace

class OptionsDelete : public SavingTest
{
protected:
    void Delete(Answer answer = Answer::Yes)
    {
        user.answers.push_back(answer);
        Click("cmdDelete");
    }

    /// Lists "a.xml" (category PUMPS), which is current, and these behind it: "file|root attributes|list attributes".
    void StartAmong(const QStringList& others)
    {
        QStringList entries{"name='a' filename='a.xml' category='PUMPS'"};
        Write("a.xml", "Name='a' DisplayName='a' Category='PUMPS'", "[x] G\n");
        for (const QString& other : others) {
            const QStringList parts = other.split('|');
            Write(parts[0] + ".xml", parts[1], "[x] G\n");
            entries += QString("name='%1' filename='%1.xml' %2").arg(parts[0], parts[2]);
        }
        List(entries);
        host.replies["GETCURRENTSCHEDTEMPLATE"] = "a.xml";
        Start();
        ASSERT_EQ(Current(), "Missing: 3077  a");
    }

    std::string ErrorOfDeletion(const QString& description) const
    {
        return ErrorOf(description, "DeleteTemplate", "Schedules.ctlSchedOptions.DeleteTemplate");
    }

    /// Makes the host list a current template in that file.
    void StartListing(const QString& fileName)
    {
        List({"name='Other' filename='" + fileName + '\''});
        host.replies["GETCURRENTSCHEDTEMPLATE"] = fileName;
        Start();
        ASSERT_EQ(Templates().count(), 1);
    }
};

// Asking.

TEST_F(OptionsDelete, AsksDeletesTellsAndReloads)
{
    Start();
    Delete();
    EXPECT_EQ(Boxes(), kQuestionShown);
    EXPECT_EQ(Log(), Requests(QStringList{"REMOVECONFIGENTRY 0 0 [2 TemplateFile=pumps.xml]"} + kReload));
    EXPECT_EQ(FolderFiles(), "fans.xml rooms.xml");
    EXPECT_EQ(Listed(), "Fans=fans.xml Rooms=rooms.xml");
    EXPECT_EQ(Templates().count(), 2);
}

TEST_F(OptionsDelete, NoChangesNothing)
{
    Start();
    Edit();
    const std::string before = Screen();
    Delete(Answer::No);
    EXPECT_EQ(Boxes(), kQuestionShown);
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
    EXPECT_EQ(Screen(), before);
    EXPECT_TRUE(IsDirty());
}

TEST_F(OptionsDelete, OfACategorysDefaultTheUserIsWarnedFirst)
{
    StartWith("Name='Pumps'", "name='Pumps' filename='pumps.xml' category='PUMPS' defaultforcategory='True'");
    user.answers = {Answer::Ok};
    Delete(Answer::No);
    EXPECT_EQ(Boxes(), std::string("Missing: 3066 (64) Missing: 3067\n") + kQuestionShown);
    EXPECT_EQ(Log(), "");
    user.answers = {Answer::Ok};
    Delete();
    EXPECT_EQ(Names(), "REMOVECONFIGENTRY GETTEMPLATELIST GETBUILDERPATH GETTEMPLATECATEGORIES "
                       "GETCURRENTSCHEDTEMPLATE");
}

TEST_F(OptionsDelete, ATemplateWithoutACategoryOfItsOwnIsNoDefaultToTheWarning)
{
    StartWith("Name='Pumps'");
    Delete(Answer::No);
    EXPECT_EQ(Boxes(), kQuestionShown);
}

TEST_F(OptionsDelete, TheBoxesAreAboutWhatTheComboBoxShows)
{
    StartWith("Name='Pumps' DisplayName='  Shown '", "name='Pumps' filename='pumps.xml' defaultforcategory='1'");
    user.answers = {Answer::Ok};
    Delete(Answer::No);
    for (const MessageBox& box : user.boxes)
        EXPECT_EQ(box.subject, "Shown");
}

TEST_F(OptionsDelete, AProtectedTemplateCannotBeDeleted)
{
    host.replies["GETCURRENTSCHEDTEMPLATE"] = "rooms.xml";
    Start();
    EXPECT_FALSE(IsEnabled("cmdDelete"));
    Click("cmdDelete");
    EXPECT_EQ(Boxes() + Log(), "");
}

// What is current afterwards.

TEST_F(OptionsDelete, ThenTheCategorysDefaultIsCurrent)
{
    StartAmong({"b|Category='x'|category='PUMPS' defaultforcategory='1'", "c|Version='1'|category='FANS'",
                "d|Version='1'|category='Pumps'", "e|Version='1'|category='PUMPS'"});
    host.onSend = [this](const QString& name) {
        Follow(name);
        host.replies["GETCURRENTSCHEDTEMPLATE"] = "b.xml";
    };
    Delete();
    EXPECT_EQ(Current(), "Missing: 3077  d");
    EXPECT_EQ(Templates().currentText(), "d - Pumps");
    EXPECT_EQ(DrawnGroupList(), "[x] G");
    EXPECT_FALSE(IsEnabled("cmdApply"));
}

TEST_F(OptionsDelete, ElseTheDefaultOfAnyCategoryIsCurrent)
{
    StartAmong({"b|Category='PUMPS'|category='PUMPS' defaultforcategory='1'", "c|Version='1'|category='FANS'",
                "d|Version='1'|"});
    Delete();
    EXPECT_EQ(Current(), "Missing: 3077  c");
}

TEST_F(OptionsDelete, ElseWhatTheHostCallsTheDefaultOfTheCategoryIsCurrent)
{
    StartAmong({"b|Category='PUMPS'|category='FANS' defaultforcategory='1'",
                "c|Category='PUMPS'|category='PUMPS' defaultforcategory='0'",
                "d|Category=''|category='PUMPS' defaultforcategory='True'"});
    Delete();
    EXPECT_EQ(Current(), "Missing: 3077  d");
}

TEST_F(OptionsDelete, ElseWhatTheScheduleUsesIsCurrent)
{
    StartAmong({"b|Category='PUMPS'|category='PUMPS'", "c|Category='PUMPS'|category='PUMPS'"});
    host.replies["GETCURRENTSCHEDTEMPLATE"] = "c.xml";
    Delete();
    EXPECT_EQ(Current(), "Missing: 3077  c");
}

TEST_F(OptionsDelete, ElseNothingIsCurrent)
{
    StartAmong({"b|Category='PUMPS'|category='PUMPS'"});
    Delete();
    EXPECT_EQ(Screen(), " / \n\nMissing: 1040 / [ ]\n\n\ncboTemplates cmdOK cmdCancel");
    ChooseTemplate(0);
    EXPECT_EQ(Current(), "Missing: 3077  b");
}

TEST_F(OptionsDelete, AFileThatCannotBeReadIsNobodysDefault)
{
    StartAmong({"b|Version='1'|category='PUMPS'", "c|Version='1'|category='PUMPS'"});
    WriteFile("b.xml", "<Template>");
    Delete();
    EXPECT_EQ(Current(), "Missing: 3077  c");
}

TEST_F(OptionsDelete, TheLastOneLeavesEverythingEmptyAndDisabled)
{
    ListOne(kPumps);
    Start();
    ClickGroup("Design");
    ClickItem("*Duty note");
    Delete();
    EXPECT_EQ(Screen(), " / \n\nMissing: 1040 / [ ]\n\n\ncmdOK cmdCancel");
    EXPECT_EQ(Templates().count(), 0);
    EXPECT_EQ(Find<QLabel>("templateFileName")->text(), "");
    EXPECT_FALSE(IsDirty());
    EXPECT_EQ(Listed(), "");
    Forget();
    Click("cmdOK");
    EXPECT_EQ(Log(), kUnload);
}

TEST_F(OptionsDelete, EditsGoWithTheTemplate)
{
    Start();
    Edit();
    Delete();
    EXPECT_FALSE(IsDirty());
    EXPECT_EQ(Current(), "Missing: 3077  Rooms");
}

TEST_F(OptionsDelete, AHostThatKeepsTheEntryShowsItAgainWithoutGroups)
{
    ListOne(kPumps);
    Start();
    host.onSend = nullptr;
    Delete();
    EXPECT_EQ(Current(), "Missing: 3077  Pumps");
    EXPECT_EQ(DrawnGroupList(), "");
    EXPECT_FALSE(QFile::exists(PathOf("pumps.xml")));
}

TEST_F(OptionsDelete, WhatWasDeletedIsGoneFromACatalogueThatCannotBeMadeAnew)
{
    Start();
    inside = [this](const QString& name) {
        if (name == "REMOVECONFIGENTRY")
            host.replies["GETTEMPLATELIST"] = "nonsense";
    };
    Delete();
    EXPECT_EQ(Templates().count(), 2);
    EXPECT_EQ(Templates().findText("Pump schedule - Pumps"), -1);
    EXPECT_EQ(Current(), "Missing: 3077  Rooms");
}

// Files.

TEST_F(OptionsDelete, AFileThatIsGoneAlreadyIsNoFailure)
{
    Start();
    ASSERT_TRUE(QFile::remove(PathOf("pumps.xml")));
    Delete();
    EXPECT_EQ(Log(), Requests(QStringList{"REMOVECONFIGENTRY 0 0 [2 TemplateFile=pumps.xml]"} + kReload));
    EXPECT_EQ(Listed(), "Fans=fans.xml Rooms=rooms.xml");
}

TEST_F(OptionsDelete, AReadOnlyFileStaysAndSoDoesTheEntry)
{
    Start();
    Edit();
    const std::string before = Content("pumps.xml");
    const std::string screen = Screen();
    ASSERT_TRUE(QFile::setPermissions(PathOf("pumps.xml"), QFile::ReadOwner));
    Delete();
    EXPECT_EQ(Log(), ErrorOfDeletion("Missing: 3076"));
    EXPECT_EQ(Content("pumps.xml"), before);
    EXPECT_EQ(Screen(), screen);
    EXPECT_TRUE(IsDirty());
    EXPECT_EQ(Templates().count(), 3);
}

TEST_F(OptionsDelete, AFolderIsNotDeleted)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath("dir.xml/sub"));
    StartListing("dir.xml");
    Delete();
    EXPECT_EQ(Log(), ErrorOfDeletion("Missing: 3076"));
    EXPECT_TRUE(QFileInfo(PathOf("dir.xml/sub")).isDir());
}

TEST_F(OptionsDelete, AnEmptyFileNameDeletesNothing)
{
    StartListing("");
    ChooseTemplate(0);
    Delete();
    EXPECT_EQ(Names(), "REMOVECONFIGENTRY GETTEMPLATELIST GETBUILDERPATH GETTEMPLATECATEGORIES "
                       "GETCURRENTSCHEDTEMPLATE");
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
}

TEST_F(OptionsDelete, NothingOutsideOfTheFolderIsDeleted)
{
    QTemporaryDir outside;
    const QString file = outside.filePath("victim.xml");
    ASSERT_TRUE(QFile::copy(PathOf("pumps.xml"), file));
    ASSERT_TRUE(QDir(folder.path()).mkdir("sub"));
    ASSERT_TRUE(QFile::copy(PathOf("pumps.xml"), PathOf("sub/victim.xml")));
    const QString up = "../" + QDir(outside.path()).dirName() + "/victim.xml";
    const QStringList names{file, up, "sub/../" + up, "sub/victim.xml", "sub/../pumps.xml", "./pumps.xml"};
    for (QString name : names) {
        for (const bool backwards : {false, true}) {
            if (backwards)
                name.replace('/', '\\');
            SCOPED_TRACE(name.toStdString());
            editor = std::make_unique<ctlSchedOptions>(&watched);
            StartListing(name);
            Delete();
            EXPECT_EQ(Log(), ErrorOfDeletion("A file in the template folder cannot have this name."));
            EXPECT_TRUE(QFile::exists(file));
            EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml sub");
            EXPECT_TRUE(QFile::exists(PathOf("sub/victim.xml")));
        }
    }
}

TEST_F(OptionsDelete, OfALinkTheLinkIsDeleted)
{
    QTemporaryDir outside;
    const QString file = outside.filePath("victim.xml");
    ASSERT_TRUE(QFile::copy(PathOf("pumps.xml"), file));
    ASSERT_TRUE(QFile::link(file, PathOf("link.xml")));
    StartListing("link.xml");
    Delete();
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
}

TEST_F(OptionsDelete, ALinkToNothingIsDeleted)
{
    ASSERT_EQ(::symlink("nowhere", PathOf("link.xml").toLocal8Bit().constData()), 0);
    StartListing("link.xml");
    Delete();
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
}

TEST_F(OptionsDelete, OnlyWhatWasAskedAboutIsDeleted)
{
    Start();
    watched.whileOpen = [this] {
        watched.whileOpen = nullptr;
        Click("cmdDelete");
        Forget();
    };
    user.answers = {Answer::Yes, Answer::Yes};
    Click("cmdDelete");
    EXPECT_TRUE(user.answers.empty());
    EXPECT_EQ(FolderFiles(), "fans.xml rooms.xml");
    EXPECT_EQ(Log(), "");
}

} // namespace schedules::testing
