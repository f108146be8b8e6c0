// The names of new templates: what may be one, and what is told after OK, before the dialog comes again.

#include "SavingTest.h"

#include <QLabel>

namespace schedules::testing {

namespace {

using OptionsSaveAsNames = SavingTest;

} // namespace

TEST_F(OptionsSaveAsNames, NamesMayHoldWhateverAFileNameCan)
{
    for (const char* file : {"fans.xml", "rooms.xml"})
        QFile::remove(PathOf(file));
    for (const QString name : {"O'Brien's", "\"quoted\"", "both ' and \"", "a & b <c>", "]]>", "ÄЖ水𝄞", "a?b", "%1",
                               "-rf", ".hidden", "a.xml", "#", "[a]", "{}", "~", "$HOME", "con", "..."})
    {
        SCOPED_TRACE(name.toStdString());
        const std::string both = ("Pumps=pumps.xml " + name + '=' + name + ".xml").toStdString();
        editor = std::make_unique<ctlSchedOptions>(&watched);
        host.replies["GETCURRENTSCHEDTEMPLATE"] = "pumps.xml";
        StartWith("Name='Pumps' DisplayName='D'");
        SaveAs(name);
        EXPECT_EQ(Listed(), both);
        EXPECT_EQ(RootAttribute(name + ".xml", "Name"), name.toStdString());
        EXPECT_EQ(editor->findChild<QLabel*>("templateFileName")->text().toStdString(), (name + ".xml").toStdString());
        Edit();
        Apply();
        EXPECT_EQ(Listed(), both) << "one entry each";
        EXPECT_FALSE(IsDirty());
        user.answers = {Answer::Yes};
        Click("cmdDelete");
        EXPECT_EQ(FolderFiles(), "pumps.xml");
        EXPECT_EQ(Listed(), "Pumps=pumps.xml");
    }
}

/// "*" matches every file in the dialog, but is a name like any other to the save.
TEST_F(OptionsSaveAsNames, AStarIsANameWhereNoFileMatchesIt)
{
    Start();
    for (const char* file : {"pumps.xml", "fans.xml", "rooms.xml"})
        QFile::rename(PathOf(file), PathOf(file).chopped(4));
    SaveAs("*");
    EXPECT_EQ(FolderFiles(), "*.xml fans pumps rooms");
    EXPECT_EQ(RootAttribute("*.xml", "Name"), "*");
}

TEST_F(OptionsSaveAsNames, TheNameOfAFileIsNoPatternForTheDeletion)
{
    Start();
    for (const char* file : {"pumps.xml", "fans.xml", "rooms.xml"})
        QFile::rename(PathOf(file), PathOf(file).chopped(4));
    SaveAs("*");
    for (const char* file : {"pumps.xml", "fans.xml", "rooms.xml"})
        QFile::rename(PathOf(file).chopped(4), PathOf(file));
    user.answers = {Answer::Yes};
    Click("cmdDelete");
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
}

// Names that are not taken: told after OK, and the dialog comes again.

TEST_F(OptionsSaveAsNames, ANameThatTheCatalogueHasInAnotherFileIsToldAndTheFieldsStay)
{
    Start();
    for (const char* name : {"Fans", "fANS", " Fans", "Fans  "}) {
        QFile::rename(PathOf("fans.xml"), PathOf("other.xml"));
        List({"name='Pumps' filename='pumps.xml'", "name='Fans' filename='other.xml'"});
        editor = std::make_unique<ctlSchedOptions>(&watched);
        Start();
        std::string fields;
        WhenAsked({[&](frmSaveAs& dialog) {
                       TypeInto(dialog, "Text1", name);
                       QTest::keyClick(dialog.findChild<QCheckBox*>("chkUseNameAsCaption"), Qt::Key_Space);
                       TypeInto(dialog, "txtTemplCaption", "Caption");
                       ChooseCategory(dialog, 1);
                       PressIn(dialog, "cmdOK");
                   },
                   [&](frmSaveAs& dialog) {
                       fields = Fields(dialog);
                       Cancel(dialog);
                   }});
        Click("cmdSaveAs");
        EXPECT_EQ(Boxes(), "There is a template of this name already, in a file of another name. (48) Missing: 3069")
            << name;
        EXPECT_EQ(fields, "Missing: 3069|" + std::string(name) + '|' + QString(name).trimmed().toStdString() +
                              ".xml|Caption|FANS (Fans)|PUMPS (Pumps), FANS (Fans)");
        EXPECT_EQ(Log(), Requests({kAskCategories})) << name;
        EXPECT_EQ(FolderFiles(), "other.xml pumps.xml rooms.xml") << name;
    }
}

/// The catalogue has each name once, so that nobody would see the new template.
TEST_F(OptionsSaveAsNames, AFileNameThatDiffersInLetterCaseAloneIsAnotherFile)
{
    Start();
    WhenAsked({Enter("FANS"), Cancel});
    Click("cmdSaveAs");
    EXPECT_EQ(Boxes(), "There is a template of this name already, in a file of another name. (48) Missing: 3069");
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml");
}

TEST_F(OptionsSaveAsNames, ANameOfTheCatalogueWhoseOwnFileIsGoneIsTaken)
{
    Start();
    ASSERT_TRUE(QFile::remove(PathOf("fans.xml")));
    SaveAs("fans");
    EXPECT_EQ(Boxes(), "");
    EXPECT_EQ(Listed(), "Pumps=pumps.xml Fans=fans.xml Rooms=rooms.xml");
    EXPECT_EQ(RootAttribute("fans.xml", "Name"), "fans");
}

TEST_F(OptionsSaveAsNames, ACategoryMustBeChosen)
{
    StartWith("Name='Pumps' DisplayName='D'");
    WhenAsked({[](frmSaveAs& dialog) { PressIn(dialog, "cmdOK"); },
               [](frmSaveAs& dialog) {
                   ChooseCategory(dialog, 1);
                   PressIn(dialog, "cmdOK");
               }});
    Click("cmdSaveAs");
    EXPECT_EQ(Boxes(), "Choose a category. (48) Missing: 3069");
    EXPECT_EQ(Listed(), "Pumps=pumps.xml D=D.xml");
    EXPECT_EQ(RootAttribute("D.xml", "Category"), "FANS");
}

TEST_F(OptionsSaveAsNames, NamesThatNoFileOfTheFolderCanHaveAreToldAndTheFieldsStay)
{
    Start();
    ASSERT_TRUE(QDir(folder.path()).mkdir("sub"));
    const QStringList names{"../out",
                            "..\\out",
                            "/tmp/out",
                            "sub/out",
                            "sub\\out",
                            "C:\\out",
                            QString(252, 'x'),
                            QString(100, QChar(0x6C34)),
                            QString("lone") + QChar(0xD83D),
                            QString("a") + QChar(0xFFFF)};
    for (const QString& name : names) {
        Forget();
        std::string fields;
        WhenAsked({[&](frmSaveAs& dialog) {
                       TypeInto(dialog, "Text1", name);
                       PressIn(dialog, "cmdOK");
                   },
                   [&](frmSaveAs& dialog) {
                       fields = dialog.findChild<QLineEdit*>("Text1")->text().toStdString();
                       Cancel(dialog);
                   }});
        Click("cmdSaveAs");
        EXPECT_EQ(Boxes(), "A file in the template folder cannot have this name. (48) Missing: 3069")
            << name.toStdString();
        EXPECT_EQ(fields, name.toStdString());
        EXPECT_EQ(Log(), Requests({kAskCategories})) << name.toStdString();
    }
    EXPECT_EQ(FolderFiles(), "fans.xml pumps.xml rooms.xml sub");
    EXPECT_TRUE(QDir(PathOf("sub")).isEmpty());
    EXPECT_FALSE(QFile::exists(folder.path() + "/../out.xml"));
}

TEST_F(OptionsSaveAsNames, TheLongestNameIsTaken)
{
    Start();
    const QString name(251, 'x');
    SaveAs(name);
    EXPECT_EQ(Boxes(), "");
    EXPECT_NE(Content(name + ".xml"), "no file");
}

TEST_F(OptionsSaveAsNames, AnExistingFileIsRefusedInTheDialog)
{
    Start();
    const std::string before = Content("fans.xml");
    WhenAsked({[](frmSaveAs& dialog) {
        TypeInto(dialog, "Text1", "fans");
        PressIn(dialog, "cmdOK");
        EXPECT_TRUE(dialog.isVisible());
        Cancel(dialog);
    }});
    Click("cmdSaveAs");
    EXPECT_EQ(Boxes(), "Missing: 1067\r\nMissing: 1068\r\nMissing: 1069\r\nMissing: 1070 (16)");
    EXPECT_EQ(Log(), Requests({kAskCategories}));
    EXPECT_EQ(Content("fans.xml"), before);
}

TEST_F(OptionsSaveAsNames, AfterTheObjectionAnotherNameIsSaved)
{
    Start();
    WhenAsked({Enter("../out"), Enter("a/b"), Enter("New")});
    Click("cmdSaveAs");
    EXPECT_EQ(user.boxes.size(), 2U);
    EXPECT_EQ(FolderFiles(), "New.xml fans.xml pumps.xml rooms.xml");
    EXPECT_EQ(Current(), "Missing: 3077  New");
}

} // namespace schedules::testing
