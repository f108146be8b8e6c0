// Disks and folders that do not take what is saved, and names that lead out of the folder.

#include "SavingTest.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace schedules::testing {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class OptionsSavingFaults : public SavingTest
{
protected:
    void ChangeFolder(mode_t mode) const { EXPECT_EQ(::chmod(folder.path().toLocal8Bit().constData(), mode), 0); }

    /// A file beside the folder, which nobody may touch.
    QString Victim() const
    {
        QFile file(outside.filePath("victim.xml"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(TemplateText("Name='Pumps' DisplayName='D' Category='C'", "[x] Design\n").toUtf8());
        return file.fileName();
    }

    static QByteArray ContentAt(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }

    /// Makes the host use a template in that file.
    void StartListing(const QString& fileName)
    {
        List({"name='Pumps' filename='" + fileName + '\''});
        host.replies["GETCURRENTSCHEDTEMPLATE"] = fileName;
        Start();
    }

    void ExpectUntouched(const std::string& content) const
    {
        EXPECT_EQ(Content("pumps.xml"), content);
        EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
        EXPECT_TRUE(IsDirty());
        EXPECT_TRUE(IsEnabled("cmdApply"));
    }

    QTemporaryDir outside;
};

TEST_F(OptionsSavingFaults, AFolderThatIsReadOnlyIsTold)
{
    Start();
    Edit();
    const std::string before = Content("pumps.xml");
    ChangeFolder(0555);
    {
        const OrdinaryUser nobody;
        Apply();
    }
    ChangeFolder(0700);
    EXPECT_EQ(Names(), "GETTEMPLATELIST ErrorMessage");
    EXPECT_THAT(Log(), HasSubstr("Permission denied"));
    EXPECT_THAT(Log(), HasSubstr("[2 ErrorSource=Schedules.ctlSchedOptions.SaveTemplateEx]"));
    EXPECT_THAT(Log(), HasSubstr("[2 ProcName=Schedules.ctlSchedOptions.ApplyChanges]"));
    ExpectUntouched(before);
}

TEST_F(OptionsSavingFaults, AFolderThatIsReadOnlyTakesNoNewFile)
{
    Start();
    Edit();
    const std::string before = Content("pumps.xml");
    ChangeFolder(0555);
    {
        const OrdinaryUser nobody;
        SaveAs("New");
    }
    ChangeFolder(0700);
    EXPECT_EQ(Names(), "GETTEMPLATECATEGORIES GETTEMPLATELIST ErrorMessage");
    EXPECT_THAT(Log(), HasSubstr("[2 ProcName=Schedules.ctlSchedOptions.SaveTemplateAs]"));
    ExpectUntouched(before);
}

TEST_F(OptionsSavingFaults, InAFolderThatIsReadOnlyNothingIsDeleted)
{
    Start();
    const std::string before = Content("pumps.xml");
    ChangeFolder(0555);
    {
        const OrdinaryUser nobody;
        user.answers = {Answer::Yes};
        Click("cmdDelete");
    }
    ChangeFolder(0700);
    EXPECT_EQ(Log(), ErrorOf("Missing: 3076", "DeleteTemplate", "Schedules.ctlSchedOptions.DeleteTemplate"));
    EXPECT_EQ(Content("pumps.xml"), before);
    EXPECT_EQ(Templates().count(), 3);
}

TEST_F(OptionsSavingFaults, ADiskThatIsFullIsTold)
{
    Start();
    Edit();
    const std::string before = Content("pumps.xml");
    {
        const FileSizeLimit limit(100);
        Apply();
    }
    EXPECT_EQ(Names(), "GETTEMPLATELIST ErrorMessage");
    EXPECT_THAT(Log(), HasSubstr("File too large"));
    ExpectUntouched(before);
    Apply();
    EXPECT_FALSE(IsDirty()) << "there is room again";
}

TEST_F(OptionsSavingFaults, ADiskThatIsFullTakesNoNewFile)
{
    Start();
    Edit();
    const std::string before = Content("pumps.xml");
    {
        const FileSizeLimit limit(100);
        SaveAs("New");
    }
    EXPECT_EQ(Names(), "GETTEMPLATECATEGORIES GETTEMPLATELIST ErrorMessage");
    ExpectUntouched(before);
}

TEST_F(OptionsSavingFaults, OkDoesNotCloseOverAFullDisk)
{
    Start();
    Edit();
    {
        const FileSizeLimit limit(100);
        Click("cmdOK");
    }
    EXPECT_EQ(Names(), "GETTEMPLATELIST ErrorMessage");
}

TEST_F(OptionsSavingFaults, AFolderThatIsGoneIsTold)
{
    Start();
    Edit();
    ASSERT_TRUE(QDir(folder.path()).removeRecursively());
    Apply();
    EXPECT_EQ(Names(), "GETTEMPLATELIST ErrorMessage");
    EXPECT_THAT(Log(), HasSubstr("No such file or directory"));
    EXPECT_EQ(Boxes(), "");
    EXPECT_TRUE(IsDirty());
    Forget();
    SaveAs("New");
    EXPECT_EQ(Names(), "GETTEMPLATECATEGORIES GETTEMPLATELIST ErrorMessage");
    EXPECT_FALSE(QFileInfo::exists(folder.path()));
}

TEST_F(OptionsSavingFaults, InAFolderThatIsGoneThereIsNothingToDelete)
{
    Start();
    ASSERT_TRUE(QDir(folder.path()).removeRecursively());
    user.answers = {Answer::Yes};
    Click("cmdDelete");
    EXPECT_EQ(host.Names().first(), "REMOVECONFIGENTRY");
    EXPECT_EQ(Listed(), "Fans=fans.xml Rooms=rooms.xml");
}

TEST_F(OptionsSavingFaults, AFolderInPlaceOfTheFileStays)
{
    Start();
    Edit();
    ASSERT_TRUE(QFile::remove(PathOf("pumps.xml")) && QDir(folder.path()).mkdir("pumps.xml"));
    user.answers = {Answer::Yes};
    Apply();
    EXPECT_EQ(user.boxes.size(), 1U) << "that something changed";
    EXPECT_EQ(Log(), Requests({kAskList}) + '\n' + MissingError(3076, "ApplyChanges"));
    EXPECT_TRUE(QFileInfo(PathOf("pumps.xml")).isDir());
    EXPECT_TRUE(IsDirty());
}

TEST_F(OptionsSavingFaults, APipeInPlaceOfTheFileStays)
{
    Start();
    Edit();
    ASSERT_TRUE(QFile::remove(PathOf("pumps.xml")));
    ASSERT_EQ(::mkfifo(PathOf("pumps.xml").toLocal8Bit().constData(), 0600), 0);
    user.answers = {Answer::Yes};
    Apply();
    EXPECT_EQ(Names(), "GETTEMPLATELIST ErrorMessage");
    EXPECT_TRUE(IsDirty());
}

TEST_F(OptionsSavingFaults, ADiskThatFillsUpBehindTheFileDoesNotMatterToTheList)
{
    Start();
    Edit();
    std::unique_ptr<FileSizeLimit> limit;
    inside = [&](const QString& name) {
        if (name == "UPDATESCHEDCONFIG")
            limit = std::make_unique<FileSizeLimit>(1);
    };
    Apply();
    limit.reset();
    EXPECT_FALSE(IsDirty());
    EXPECT_EQ(ReadBack("pumps.xml").substr(0, 10), "[ ] Design");
}

// Names that lead out of the folder.

TEST_F(OptionsSavingFaults, WhatLiesOutsideOfTheFolderIsNeitherReadNorWritten)
{
    const QString victim = Victim();
    const QByteArray before = ContentAt(victim);
    const QString up = "../" + QDir(outside.path()).dirName() + "/victim.xml";
    ASSERT_TRUE(QDir(folder.path()).mkpath("sub") && QFile::link(victim, PathOf("link.xml")));
    for (const QString& name : {up, "sub/../" + up, "./" + up, QString(up).replace('/', '\\'), QString("link.xml")}) {
        SCOPED_TRACE(name.toStdString());
        editor = std::make_unique<ctlSchedOptions>(&watched);
        StartListing(name);
        EXPECT_EQ(DrawnGroupList(), "");
        Apply();
        SaveAs("New");
        EXPECT_EQ(ContentAt(victim), before);
        EXPECT_TRUE(QFile::remove(PathOf("New.xml"))) << "it can be saved under a name of the folder";
    }
}

TEST_F(OptionsSavingFaults, NothingBelowTheFolderIsWritten)
{
    const QString victim = Victim();
    const QByteArray before = ContentAt(victim);
    ASSERT_TRUE(QDir(folder.path()).mkdir("sub") && QFile::copy(victim, PathOf("sub/victim.xml")));
    for (const QString& name : {QString("sub/victim.xml"), QString("sub\\victim.xml"), QString("./pumps.xml")}) {
        SCOPED_TRACE(name.toStdString());
        editor = std::make_unique<ctlSchedOptions>(&watched);
        StartListing(name);
        ASSERT_THAT(DrawnGroupList(), StartsWith("[x] Design")) << "reading it does no harm";
        Edit();
        Apply();
        EXPECT_EQ(Log(), Requests({kAskList}) + '\n' +
                             ErrorOf("A file in the template folder cannot have this name.", "ApplyChanges"));
        EXPECT_TRUE(IsDirty());
        EXPECT_EQ(ContentAt(PathOf("sub/victim.xml")), before);
    }
}

TEST_F(OptionsSavingFaults, ALinkOutOfTheFolderIsNotFollowed)
{
    const QString victim = Victim();
    const QByteArray before = ContentAt(victim);
    ASSERT_TRUE(QFile::copy(victim, PathOf("link.xml")));
    StartListing("link.xml");
    Edit();
    ASSERT_TRUE(QFile::remove(PathOf("link.xml")) && QFile::link(victim, PathOf("link.xml"))) << "since it was read";
    Apply();
    EXPECT_EQ(Log(), Requests({kAskList}) + '\n' +
                         ErrorOf("A file in the template folder cannot have this name.", "ApplyChanges"));
    EXPECT_EQ(ContentAt(victim), before);
    EXPECT_TRUE(QFileInfo(PathOf("link.xml")).isSymLink());
}

TEST_F(OptionsSavingFaults, ALinkToNothingOutsideMakesNothingThere)
{
    Start();
    inside = [this](const QString& name) {
        if (name == "GETTEMPLATELIST")
            QFile::link(outside.filePath("new.xml"), PathOf("New.xml"));
    };
    SaveAs("New");
    EXPECT_EQ(Names(), "GETTEMPLATECATEGORIES GETTEMPLATELIST ErrorMessage");
    EXPECT_FALSE(QFile::exists(outside.filePath("new.xml")));
}

TEST_F(OptionsSavingFaults, OfALinkWithinTheFolderTheFileIsReplaced)
{
    ASSERT_TRUE(QFile::link(PathOf("pumps.xml"), PathOf("link.xml")));
    StartListing("link.xml");
    Edit();
    Apply();
    EXPECT_TRUE(QFileInfo(PathOf("link.xml")).isSymLink());
    EXPECT_EQ(ReadBack("pumps.xml").substr(0, 10), "[ ] Design");
    EXPECT_EQ(ReadBack("link.xml"), ReadBack("pumps.xml"));
}

TEST_F(OptionsSavingFaults, AFolderBehindALinkIsTheFolder)
{
    const QString link = outside.filePath("templates");
    ASSERT_TRUE(QFile::link(folder.path(), link));
    host.replies["GETBUILDERPATH"] = link + "/";
    Start();
    Edit();
    Apply();
    EXPECT_FALSE(IsDirty());
    EXPECT_EQ(ReadBack("pumps.xml").substr(0, 10), "[ ] Design");
}

TEST_F(OptionsSavingFaults, TheFolderIsFoundHoweverItsPathIsWritten)
{
    for (const QString& path : {folder.path() + '/', folder.path() + '\\', "  " + folder.path() + "  ",
                                QString(folder.path()).replace('/', '\\')})
    {
        SCOPED_TRACE(path.toStdString());
        editor = std::make_unique<ctlSchedOptions>(&watched);
        host.replies["GETBUILDERPATH"] = path;
        Start();
        const std::string before = ReadBack("pumps.xml");
        Edit();
        Apply();
        EXPECT_FALSE(IsDirty());
        EXPECT_NE(ReadBack("pumps.xml"), before);
    }
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
}

TEST_F(OptionsSavingFaults, TwoEntriesOfOneFileStayTwo)
{
    List({"name='Pumps' filename='pumps.xml'", "name='Twin' filename='pumps.xml'"});
    Start();
    ChooseTemplate(1);
    Edit();
    Apply();
    EXPECT_EQ(Listed(), "Pumps=pumps.xml Twin=pumps.xml");
    EXPECT_EQ(Current(), "Missing: 3077  Pumps") << "the first in the file that was saved";
    EXPECT_EQ(Boxes(), "");
}

} // namespace schedules::testing
