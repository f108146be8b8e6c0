// What the dialog makes of what is typed, ticked and chosen.

#include "tools/options/frmSaveAsTest.h"

#include <QClipboard>

namespace schedules::testing {

TEST_F(SaveAsTest, StartsWithTheDefaultNameInEveryField)
{
    ShowNew("Pumps", "PUMP");
    EXPECT_EQ(Shown(), "Pumps|Pumps.xml|Pumps.xml|Pumps|PUMP (Pumps)");
    EXPECT_EQ(Result(), "Pumps|Pumps|PUMP|Pumps.xml");
    EXPECT_EQ(dialog->windowTitle(), "Save pumps as");
    EXPECT_TRUE(Check()->isChecked());
    EXPECT_TRUE(Box("txtTemplCaption")->isReadOnly());
    EXPECT_TRUE(Box("Text1")->hasFocus());
    EXPECT_EQ(Box("Text1")->selectedText(), "Pumps");
    EXPECT_EQ(Warning(), "");
}

TEST_F(SaveAsTest, PropertiesAreReachedByTheirNames)
{
    Prepare();
    dialog->setProperty("FilePath", "/templates/");
    dialog->setProperty("DefaultName", " Fans ");
    dialog->setProperty("ProposedFileName", " fans.xml ");
    dialog->setProperty("NewName", " Old ");
    dialog->setProperty("Category", "gen");
    dialog->setProperty("TitleBarCaption", "Save fans as");
    EXPECT_EQ(dialog->property("DefaultName"), "Fans");
    EXPECT_EQ(dialog->property("ProposedFileName"), "fans.xml");
    EXPECT_EQ(dialog->property("NewName"), "Old");
    Show();
    EXPECT_EQ(Shown(), "Fans|Fans.xml|Fans.xml|Fans|GEN (General)");
    EXPECT_EQ(dialog->property("NewName"), "Fans");
    EXPECT_EQ(dialog->property("DisplayName"), "Fans");
    EXPECT_EQ(dialog->property("Category"), "GEN");
    EXPECT_EQ(dialog->property("ProposedFileName"), "Fans.xml");
    EXPECT_EQ(dialog->property("OK"), 0);
    EXPECT_EQ(dialog->windowTitle(), "Save fans as");
    EXPECT_EQ(Text("lblFullFileName"), "/templates/Fans.xml");
}

TEST_F(SaveAsTest, OnlyBlanksAreTrimmedFromAssignedNames)
{
    Prepare();
    dialog->SetNewName(" \tname\t ");
    EXPECT_EQ(dialog->NewName(), "\tname\t");
    dialog->SetDefaultName("  ");
    EXPECT_EQ(dialog->DefaultName(), "");
}

TEST_F(SaveAsTest, FileNameCaptionAndFullNameFollowTheNameKeyByKey)
{
    ShowNew();
    TypeName("A");
    EXPECT_EQ(Shown(), "A|A.xml|A.xml|A|PUMP (Pumps)");
    QTest::keyClicks(Box("Text1"), "b");
    EXPECT_EQ(Shown(), "Ab|Ab.xml|Ab.xml|Ab|PUMP (Pumps)");
    QTest::keyClick(Box("Text1"), Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "A|A.xml|A.xml|A|PUMP (Pumps)");
}

TEST_F(SaveAsTest, TheTypedNameKeepsItsBlanksAndTheFileNameDoesNot)
{
    ShowNew();
    TypeName("  Two words ");
    EXPECT_EQ(Result(), "  Two words |  Two words |PUMP|Two words.xml");
    EXPECT_EQ(Shown(), "  Two words |Two words.xml|Two words.xml|  Two words |PUMP (Pumps)");
}

TEST_F(SaveAsTest, ANameOfBlanksGivesAStarAndDisablesOk)
{
    ShowNew();
    for (const char* name : {"", "   "}) {
        TypeName(name);
        EXPECT_EQ(dialog->ProposedFileName(), "*.xml");
        EXPECT_EQ(Text("Text2"), "*.xml");
        EXPECT_EQ(dialog->NewName(), name);
        EXPECT_FALSE(Button("cmdOK")->isEnabled());
    }
    QTest::keyClicks(Box("Text1"), "x");
    EXPECT_TRUE(Button("cmdOK")->isEnabled());
}

TEST_F(SaveAsTest, WithoutADefaultNameItStartsEmpty)
{
    ShowNew("");
    EXPECT_EQ(Shown(), "|*.xml|*.xml||PUMP (Pumps)");
    EXPECT_FALSE(Button("cmdOK")->isEnabled());
}

TEST_F(SaveAsTest, NoCharacterIsRefusedAndNoLengthImposed)
{
    ShowNew();
    TypeName("a/b\\c*?<>:|\"%1&");
    EXPECT_EQ(dialog->ProposedFileName(), "a/b\\c*?<>:|\"%1&.xml");
    EXPECT_TRUE(Button("cmdOK")->isEnabled());
    const QString longName(100'000, 'n');
    QApplication::clipboard()->setText(longName);
    Box("Text1")->selectAll();
    QTest::keyClick(Box("Text1"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(dialog->NewName().size(), longName.size());
    EXPECT_EQ(dialog->DisplayName().size(), longName.size());
    EXPECT_TRUE(Button("cmdOK")->isEnabled());
}

TEST_F(SaveAsTest, UntickingKeepsTheCaptionThatWasCopiedLast)
{
    ShowNew();
    TypeName("First");
    Tick();
    EXPECT_FALSE(Box("txtTemplCaption")->isReadOnly());
    TypeName("Second");
    EXPECT_EQ(Result(), "Second|First|PUMP|Second.xml");
    EXPECT_EQ(Text("txtTemplCaption"), "First");
}

TEST_F(SaveAsTest, ACaptionTypedIntoTheUnlockedBoxIsTheDisplayNameAtOnce)
{
    ShowNew();
    Tick();
    Type("txtTemplCaption", " All ");
    EXPECT_EQ(dialog->DisplayName(), " All ");
    QTest::keyClicks(Box("txtTemplCaption"), "p");
    EXPECT_EQ(dialog->DisplayName(), " All p");
    EXPECT_EQ(dialog->NewName(), "Pumps");
}

TEST_F(SaveAsTest, TheLockedBoxTakesNoKeys)
{
    ShowNew();
    Box("txtTemplCaption")->setFocus();
    QTest::keyClicks(Box("txtTemplCaption"), "x");
    EXPECT_EQ(Result(), "Pumps|Pumps|PUMP|Pumps.xml");
}

TEST_F(SaveAsTest, TickingAgainCopiesTheNameAgainAndLocks)
{
    ShowNew();
    Tick();
    Type("txtTemplCaption", "Own caption");
    TypeName(" Fans ");
    Tick();
    EXPECT_EQ(Result(), " Fans | Fans |PUMP|Fans.xml");
    EXPECT_EQ(Text("txtTemplCaption"), " Fans ");
    EXPECT_TRUE(Box("txtTemplCaption")->isReadOnly());
}

TEST_F(SaveAsTest, FileNamesAreShownAndNotTyped)
{
    ShowNew();
    for (const char* box : {"Text2", "lblFullFileName"}) {
        EXPECT_TRUE(Box(box)->isReadOnly()) << box;
        QTest::keyClicks(Box(box), "x");
    }
    EXPECT_EQ(Shown(), "Pumps|Pumps.xml|Pumps.xml|Pumps|PUMP (Pumps)");
}

TEST_F(SaveAsTest, TheNameIsSelectedWhenItGetsTheFocus)
{
    ShowNew();
    Tick();
    Box("Text1")->deselect();
    Box("txtTemplCaption")->setFocus();
    Box("Text1")->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(Box("Text1")->selectedText(), "Pumps");
}

TEST_F(SaveAsTest, ComingBackFromAnotherWindowLeavesTheCursorInTheName)
{
    ShowNew();
    TypeName("Fan");
    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(Box("Text1"), &back);
    EXPECT_FALSE(Box("Text1")->hasSelectedText()) << "the next key would delete the name";
}

struct CategoryRow
{
    const char* rule;
    const char* wanted;
    const char* entry;
    const char* category;
};

class SaveAsCategory : public SaveAsTest, public ::testing::WithParamInterface<CategoryRow>
{
};

INSTANTIATE_TEST_SUITE_P(
    Starts, SaveAsCategory,
    ::testing::Values(CategoryRow{"OfThatName", "VALVE", "VALVE (Valves)", "VALVE"},
                      CategoryRow{"InOtherLetterCase", "pump", "PUMP (Pumps)", "PUMP"},
                      CategoryRow{"OfThatDisplayName", "Generators", "GENSET (Generators)", "GENSET"},
                      CategoryRow{"FirstThatContainsIt", "GENSET", "GENSET (Generators)", "GENSET"},
                      CategoryRow{"FirstOfSeveral", "gen", "GEN (General)", "GEN"},
                      CategoryRow{"ContainedInTheMiddle", "ALV", "VALVE (Valves)", "VALVE"},
                      CategoryRow{"GeneralWhenUnknown", "", "GEN (General)", "GEN"},
                      CategoryRow{"NoneWithoutAMatch", "FAN", "", "FAN"}),
    [](const auto& row) { return std::string(row.param.rule); });

TEST_P(SaveAsCategory, IsSelected)
{
    ShowNew("Pumps", GetParam().wanted);
    EXPECT_EQ(Categories()->currentText().toStdString(), GetParam().entry);
    EXPECT_EQ(dialog->Category().toStdString(), GetParam().category);
    EXPECT_EQ(dialog->HasCategory(), Categories()->currentIndex() >= 0);
}

TEST_F(SaveAsTest, TheGeneralCategoryIsToldByItsLetterCase)
{
    ShowNew("Pumps", "");
    Prepare("Pumps", "");
    Categories()->clear();
    for (const char* entry : {"gen (general)", "Gen (Generic)", "OXYGEN (Oxygen)", "GEN (General)"})
        dialog->AddCategory(entry);
    Show();
    EXPECT_EQ(Categories()->currentText(), "OXYGEN (Oxygen)") << "the first that contains it";
}

TEST_F(SaveAsTest, WithoutCategoryAndGeneralEntryNoneIsSelected)
{
    Prepare("Pumps", "");
    Categories()->clear();
    dialog->AddCategory("gen (General)");
    Show();
    EXPECT_EQ(Categories()->currentIndex(), -1);
    EXPECT_EQ(dialog->Category(), "");
    EXPECT_FALSE(dialog->HasCategory());
    EXPECT_TRUE(Button("cmdOK")->isEnabled()) << "OK follows the name alone";
}

TEST_F(SaveAsTest, AddingEntriesSelectsNone)
{
    Prepare();
    EXPECT_EQ(Categories()->currentIndex(), -1);
    EXPECT_EQ(dialog->Category(), "PUMP");
}

TEST_F(SaveAsTest, AChosenEntryGivesWhatStandsBeforeItsFirstBlank)
{
    ShowNew();
    Choose(0);
    EXPECT_EQ(dialog->Category(), "VALVE");
    dialog->AddCategory("NAME WITH BLANKS (Shown)");
    Choose(4);
    EXPECT_EQ(dialog->Category(), "NAME");
}

TEST_F(SaveAsTest, AnEntryWithoutABlankGivesItsWholeText)
{
    ShowNew();
    dialog->AddCategory("FILTER(Filters)");
    Choose(4);
    EXPECT_EQ(dialog->Category(), "FILTER(Filters)");
}

TEST_F(SaveAsTest, AnEntryWithoutANameIsNoCategory)
{
    ShowNew();
    dialog->AddCategory(" (Nameless)");
    Choose(4);
    EXPECT_EQ(dialog->Category(), "");
    EXPECT_FALSE(dialog->HasCategory());
    EXPECT_EQ(Warning(), "Choose a category.");
}

TEST_F(SaveAsTest, WarnsOfANameThatNoFileCanHave)
{
    ShowNew();
    const std::pair<const char*, const char*> warnings[] = {
        {"", "Enter a name."},
        {"   ", "Enter a name."},
        {".", "A name cannot be one or two dots alone."},
        {" .. ", "A name cannot be one or two dots alone."},
        {"a/b", "A name cannot contain a slash or a backslash."},
        {"..\\b", "A name cannot contain a slash or a backslash."},
        {"fine", ""},
    };
    for (const auto& [name, warning] : warnings) {
        TypeName(name);
        EXPECT_EQ(Warning(), warning) << name;
        EXPECT_EQ(Box("Text1")->accessibleDescription().toStdString(), warning) << name;
    }
}

TEST_F(SaveAsTest, TheFileNameMayHave255BytesWithItsExtension)
{
    ShowNew();
    Box("Text1")->setText(QString(251, 'n'));
    EXPECT_EQ(Warning(), "");
    Box("Text1")->setText(QString(252, 'n'));
    EXPECT_EQ(Warning(), "The name is too long for a file.");
    Box("Text1")->setText(QString(126, QChar(0xE4)));
    EXPECT_EQ(Warning(), "The name is too long for a file.") << "two bytes a letter";
}

TEST_F(SaveAsTest, WarnsOfAPastedLineBreak)
{
    ShowNew();
    QApplication::clipboard()->setText("two\nlines");
    QTest::keyClick(Box("Text1"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(dialog->NewName(), "two\nlines");
    EXPECT_EQ(Warning(), "The name contains a character that no file name can have.");
}

TEST_F(SaveAsTest, WarnsOfAFileThatExistsAndOkFollowsItsOwnRule)
{
    Put("Fans <b>&.xml");
    ShowNew();
    TypeName(" Fans <b>& ");
    EXPECT_EQ(Warning(), "Fans <b>&.xml exists already.");
    EXPECT_EQ(Find<QLabel>("lblWarning")->textFormat(), Qt::PlainText);
    EXPECT_TRUE(Button("cmdOK")->isEnabled());
    QTest::keyClicks(Box("Text1"), "2");
    EXPECT_EQ(Warning(), "");
}

TEST_F(SaveAsTest, WarnsUntilACategoryIsChosen)
{
    ShowNew("Pumps", "FAN");
    EXPECT_EQ(Warning(), "Choose a category.");
    TypeName("/");
    EXPECT_EQ(Warning(), "A name cannot contain a slash or a backslash.") << "the name comes first";
    TypeName("Fans");
    EXPECT_EQ(Warning(), "Choose a category.");
    Choose(1);
    EXPECT_EQ(Warning(), "");
}

} // namespace schedules::testing
