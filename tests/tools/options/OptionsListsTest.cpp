// The lists of groups and of the selected group's data items: what they show and what checking does.

#include "OptionsTest.h"

#include <QLabel>

namespace schedules::testing {

using OptionsLists = OptionsTest;

namespace {

const std::string kFilled = "cboTemplates lstGroups chkShowGroupName lstItems cmdSaveAs cmdDelete cmdOK cmdCancel";

} // namespace

// Filling.

TEST_F(OptionsLists, OfGroupsShowDisplayNamesAndCheckMarks)
{
    ListOne("[x] Design (D)\n[ ] Motor (M)\n");
    Start();
    EXPECT_EQ(DrawnGroupList(), "[x] Design | [ ] Motor");
}

TEST_F(OptionsLists, OfGroupsLackThoseWithoutADisplayName)
{
    ListOne("[x] ~Hidden\n[x] Design\n[x] ~Other\n");
    Start();
    EXPECT_EQ(DrawnGroupList(), "[x] Design");
    EXPECT_EQ(Model(), "[x] ~Hidden\n[x] Design\n[x] ~Other");
}

TEST_F(OptionsLists, OfGroupsShowThoseWithAnEmptyDisplayName)
{
    ListOne("[x]  (Empty)\n[ ] Design\n");
    Start();
    EXPECT_EQ(DrawnGroupList(), "[x]  | [ ] Design");
}

TEST_F(OptionsLists, OfItemsShowDisplayNamesMarksAndCheckMarks)
{
    Start();
    ClickGroup("Design");
    EXPECT_EQ(DrawnItemList(), "[x] Flow | [ ] Head | [x] *Duty note");
}

TEST_F(OptionsLists, OfItemsLackThoseWithoutAnyText)
{
    ListOne("[x] Design\n  [x] ~Nameless\n  [x]  (Empty)\n  [x] * (Own)\n  [x] Flow\n  [x] ~Last {UserDefined=-1}\n");
    Start();
    ClickGroup("Design");
    EXPECT_EQ(DrawnItemList(), "[x] * | [x] Flow | [x] *");
}

TEST_F(OptionsLists, ShowTextsAsTheyAreWritten)
{
    ListOne("[x] <b>A&B</b> (A)\n  [x]  *  x  (I)\n");
    Start();
    ClickGroup("<b>A&B</b>");
    EXPECT_EQ(DrawnGroupList() + '\n' + DrawnItemList(), "> [x] <b>A&B</b>\n[x]  *  x ");
    EXPECT_EQ(Find<QGroupBox>("fraGroup")->title(), "<b>A&&B</b> Missing: 3070");
}

TEST_F(OptionsLists, TakeFlagsInAnyFormThatIsTrueOrFalse)
{
    ListOne(
        "[-] A {ShowThisGroup=True}\n[-] B {ShowThisGroup=false}\n[-] C {ShowThisGroup=1}\n[-] D {ShowThisGroup=0.0}\n"
        "[-] E {ShowThisGroup=7}\n");
    Start();
    EXPECT_EQ(DrawnGroupList(), "[x] A | [ ] B | [x] C | [ ] D | [x] E");
}

TEST_F(OptionsLists, AFlagThatIsNoneConcernsItsEntryOnly)
{
    ListOne("[x] A\n  [x] I\n  [-] J {ShowThisItem=nonsense}\n  [-] K {UserDefined=nonsense}\n  [x] *L\n"
            "[-] B {ShowThisGroup=nonsense}\n[-] C {ShowThisGroup=''}\n[x] D {ShowGroupName=nonsense}\n  [x] M\n");
    Start();
    ClickGroup("A");
    EXPECT_EQ(DrawnGroupList(), "> [x] A | [ ] B | [ ] C | [x] D");
    EXPECT_EQ(DrawnItemList(), "[x] I | [ ] J | [ ] K | [x] *L");
    ClickGroup("D");
    EXPECT_FALSE(Find<QCheckBox>("chkShowGroupName")->isChecked());
    EXPECT_EQ(DrawnItemList(), "[x] M");
    EXPECT_EQ(Log() + Boxes(), "");
    EXPECT_FALSE(editor->HasUnsavedEdits());
}

TEST_F(OptionsLists, WithoutAFlagAnEntryCannotBeChecked)
{
    ListOne("[-] A\n[x] B\n  [-] I\n  [-] *J\n");
    Start();
    MarkGroup("A");
    QTest::keyClick(&Groups(), Qt::Key_Space);
    EXPECT_EQ(DrawnGroupList(), "> [ ] A | [x] B");
    EXPECT_FALSE(IsEnabled("lstItems"));
    ClickGroup("B");
    MarkItem("I");
    EXPECT_EQ(DrawnItemList(), "> [ ] I | [ ] *J");
    MarkItem("*J");
    EXPECT_EQ(DrawnItemList(), "[ ] I | > [ ] *J");
    EXPECT_FALSE(IsEnabled("txtDisplayName"));
    EXPECT_FALSE(editor->HasUnsavedEdits());
    EXPECT_EQ(Model(), "[-] A\n[x] B\n  [-] I\n  [-] *J");
}

TEST_F(OptionsLists, FillingDirtiesNothing)
{
    ListOne(
        "[-] A {ShowThisGroup=True ShowGroupName=True}\n  [-] I {ShowThisItem=1}\n  [-] *J {ShowThisItem=nonsense}\n");
    Start();
    for (int round = 0; round < 2; ++round) {
        ClickGroup("A");
        ClickItem("I");
        ClickItem("*J");
    }
    EXPECT_FALSE(editor->HasUnsavedEdits());
    EXPECT_EQ(Model(), "[-] A {ShowThisGroup=True ShowGroupName=True}\n"
                       "  [-] I {ShowThisItem=1}\n  [-] *J {ShowThisItem=nonsense}");
}

// Groups.

TEST_F(OptionsLists, AClickOnAGroupShowsIt)
{
    Start();
    ClickGroup("Design");
    EXPECT_EQ(Screen(), "Pump schedule - Pumps / Missing: 3077  Pumps\n"
                        "> [x] Design | [x] Motor | [ ] Vendor\n"
                        "Design Missing: 3070 / [x]\n"
                        "[x] Flow | [ ] Head | [x] *Duty note\n"
                        "\n" +
                            kFilled + " cmdGroupMove_1");
    EXPECT_EQ(Find<QLabel>("groupName")->text(), "Design");
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsLists, TheLabelShowsTheNameOfTheGroupAndTheFrameItsDisplayName)
{
    ListOne("[x] Shown & told (Named)\n");
    Start();
    ClickGroup("Shown & told");
    EXPECT_EQ(Find<QLabel>("groupName")->text(), "Named");
    EXPECT_EQ(Find<QGroupBox>("fraGroup")->title(), "Shown && told Missing: 3070");
}

TEST_F(OptionsLists, TheKeysShowGroupsToo)
{
    Start();
    Groups().setFocus();
    QTest::keyClick(&Groups(), Qt::Key_Down);
    QTest::keyClick(&Groups(), Qt::Key_Down);
    EXPECT_EQ(DrawnItemList(), "[x] Power");
    EXPECT_EQ(Find<QGroupBox>("fraGroup")->title(), "Motor Missing: 3070");
}

TEST_F(OptionsLists, ChoosingAnotherGroupForgetsTheItem)
{
    Start();
    ClickGroup("Design");
    ClickItem("*Duty note");
    ClickGroup("Motor");
    EXPECT_EQ(Screen(), "Pump schedule - Pumps / Missing: 3077  Pumps\n"
                        "[x] Design | > [x] Motor | [ ] Vendor\n"
                        "Motor Missing: 3070 / [ ]\n"
                        "[x] Power\n"
                        "\n" +
                            kFilled + " cmdGroupMove_0 cmdGroupMove_1");
}

TEST_F(OptionsLists, UncheckingAGroupHidesItAndClosesItsItems)
{
    Start();
    MarkGroup("Design");
    EXPECT_EQ(Screen(), "Pump schedule - Pumps / Missing: 3077  Pumps *\n"
                        "> [ ] Design | [x] Motor | [ ] Vendor\n"
                        "Design Missing: 3070 / [x]\n"
                        "[x] Flow | [ ] Head | [x] *Duty note\n"
                        "\n"
                        "cboTemplates lstGroups cmdSaveAs cmdDelete cmdOK cmdCancel cmdApply cmdGroupMove_1");
    MarkItem("Flow");
    EXPECT_EQ(DrawnItemList(), "[x] Flow | [ ] Head | [x] *Duty note");
    EXPECT_TRUE(Model().starts_with("[ ] Design {ShowGroupName=-1}\n"));
}

TEST_F(OptionsLists, CheckingAGroupShowsItAndOpensItsItems)
{
    Start();
    ClickGroup("Vendor");
    EXPECT_FALSE(IsEnabled("lstItems"));
    EXPECT_FALSE(IsEnabled("chkShowGroupName"));
    EXPECT_FALSE(editor->HasUnsavedEdits());
    QTest::keyClick(&Groups(), Qt::Key_Space);
    EXPECT_TRUE(IsEnabled("lstItems"));
    EXPECT_TRUE(IsEnabled("chkShowGroupName"));
    EXPECT_TRUE(editor->HasUnsavedEdits());
    EXPECT_NE(Model().find("[x] Vendor {ShowGroupName=-1}\n"), std::string::npos);
}

TEST_F(OptionsLists, UncheckingAGroupClosesTheNameEditor)
{
    Start();
    ClickGroup("Design");
    ClickItem("*Duty note");
    MarkGroup("Design");
    EXPECT_FALSE(IsEnabled("txtDisplayName"));
    EXPECT_EQ(NameBox().text(), "");
}

TEST_F(OptionsLists, ATrueFlagInAnotherFormIsKeptUntilItChanges)
{
    ListOne("[-] A {ShowThisGroup=True}\n  [-] I {ShowThisItem=1}\n");
    Start();
    ClickGroup("A");
    ClickItem("I");
    EXPECT_FALSE(editor->HasUnsavedEdits());
    MarkItem("I");
    MarkGroup("A");
    EXPECT_EQ(Model(), "[ ] A\n  [ ] I");
}

TEST_F(OptionsLists, AFlagThatIsNoneBecomesOneByChecking)
{
    ListOne("[-] A {ShowThisGroup=nonsense}\n");
    Start();
    ClickGroup("A");
    EXPECT_FALSE(editor->HasUnsavedEdits());
    MarkGroup("A");
    EXPECT_TRUE(editor->HasUnsavedEdits());
    EXPECT_EQ(Model(), "[x] A");
}

// "Show group name".

TEST_F(OptionsLists, TheBoxShowsWhetherTheGroupNameIsShown)
{
    Start();
    ClickGroup("Design");
    EXPECT_TRUE(Find<QCheckBox>("chkShowGroupName")->isChecked());
    ClickGroup("Motor");
    EXPECT_FALSE(Find<QCheckBox>("chkShowGroupName")->isChecked());
    EXPECT_FALSE(editor->HasUnsavedEdits());
}

TEST_F(OptionsLists, TheBoxChangesWhetherTheGroupNameIsShown)
{
    Start();
    ClickGroup("Design");
    Find<QCheckBox>("chkShowGroupName")->setFocus();
    QTest::keyClick(Find<QCheckBox>("chkShowGroupName"), Qt::Key_Space);
    EXPECT_TRUE(editor->HasUnsavedEdits());
    ClickGroup("Motor");
    QTest::keyClick(Find<QCheckBox>("chkShowGroupName"), Qt::Key_Space);
    ClickGroup("Design");
    EXPECT_FALSE(Find<QCheckBox>("chkShowGroupName")->isChecked());
    EXPECT_EQ(Model(), "[x] Design {ShowGroupName=0}\n  [x] Flow\n  [ ] Head\n  [x] *Duty note (Note)\n"
                       "[x] Motor {ShowGroupName=-1}\n  [x] Power\n[ ] Vendor {ShowGroupName=-1}\n  [x] Price");
}

TEST_F(OptionsLists, TheBoxDirtiesAlsoWhenItIsBackWhereItWas)
{
    Start();
    ClickGroup("Design");
    for (int press = 0; press < 2; ++press)
        QTest::keyClick(Find<QCheckBox>("chkShowGroupName"), Qt::Key_Space);
    EXPECT_TRUE(editor->HasUnsavedEdits());
}

TEST_F(OptionsLists, TheBoxIsUncheckedWithoutTheFlagAndCreatesIt)
{
    ListOne("[x] A {ShowGroupName=-1}\n[x] B\n");
    Start();
    ClickGroup("A");
    ClickGroup("B");
    EXPECT_FALSE(Find<QCheckBox>("chkShowGroupName")->isChecked());
    EXPECT_FALSE(editor->HasUnsavedEdits());
    QTest::keyClick(Find<QCheckBox>("chkShowGroupName"), Qt::Key_Space);
    EXPECT_EQ(Model(), "[x] A {ShowGroupName=-1}\n[x] B {ShowGroupName=-1}");
}

// Items.

TEST_F(OptionsLists, CheckingAnItemShowsIt)
{
    Start();
    ClickGroup("Design");
    MarkItem("Head");
    EXPECT_EQ(Screen(), "Pump schedule - Pumps / Missing: 3077  Pumps *\n"
                        "> [x] Design | [x] Motor | [ ] Vendor\n"
                        "Design Missing: 3070 / [x]\n"
                        "[x] Flow | > [x] Head | [x] *Duty note\n"
                        "\n" +
                            kFilled + " cmdApply cmdGroupMove_1 cmdItemMove_0 cmdItemMove_1");
    EXPECT_NE(Model().find("  [x] Head\n"), std::string::npos);
}

TEST_F(OptionsLists, UncheckingAnItemHidesIt)
{
    Start();
    ClickGroup("Design");
    ClickItem("Flow");
    EXPECT_FALSE(editor->HasUnsavedEdits());
    QTest::keyClick(&Items(), Qt::Key_Space);
    EXPECT_TRUE(editor->HasUnsavedEdits());
    EXPECT_EQ(DrawnItemList(), "> [ ] Flow | [ ] Head | [x] *Duty note");
    EXPECT_NE(Model().find("  [ ] Flow\n"), std::string::npos);
}

TEST_F(OptionsLists, WhatIsCheckedIsStillSoWhenTheGroupIsShownAgain)
{
    Start();
    ClickGroup("Design");
    MarkItem("Head");
    MarkItem("*Duty note");
    ClickGroup("Motor");
    ClickGroup("Design");
    EXPECT_EQ(DrawnItemList(), "[x] Flow | [x] Head | [ ] *Duty note");
}

// The filter.

TEST_F(OptionsLists, OfMoreThan20EntriesCanBeNarrowedAndThenNotMoved)
{
    QString drawing;
    for (int number = 1; number <= 21; ++number)
        drawing += QString("[x] Group %1\n  [x] Item %1\n").arg(number);
    ListOne(drawing);
    Start();
    QLineEdit* line = nullptr;
    for (auto* const each : editor->findChildren<QLineEdit*>()) {
        if (each->isVisible() && each != &NameBox())
            line = each;
    }
    ASSERT_TRUE(line);
    ClickGroup("Group 2");
    QTest::keyClicks(line, "2");
    EXPECT_FALSE(Find<QPushButton>("cmdGroupMove", 0)->isEnabled());
    EXPECT_FALSE(Find<QPushButton>("cmdGroupMove", 1)->isEnabled());
    MarkGroup("Group 12");
    EXPECT_EQ(Find<QGroupBox>("fraGroup")->title(), "Group 12 Missing: 3070");
    EXPECT_EQ(DrawnItemList(), "[x] Item 12");
    QTest::keyClick(&Groups(), Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(line, Qt::Key_Backspace);
    EXPECT_TRUE(Find<QPushButton>("cmdGroupMove", 0)->isEnabled());
    EXPECT_TRUE(Find<QPushButton>("cmdGroupMove", 1)->isEnabled());
    EXPECT_EQ(Groups().CurrentRow(), 11);
    EXPECT_NE(DrawnGroupList().find("[x] Group 11 | > [ ] Group 12 | [x] Group 13"), std::string::npos);
}

TEST_F(OptionsLists, ChoosingAnotherTemplateEmptiesTheFilter)
{
    QString drawing;
    for (int number = 1; number <= 30; ++number)
        drawing += QString("[x] Group %1\n").arg(number);
    Write("pumps.xml", "DisplayName='Pump schedule'", drawing);
    Start();
    for (auto* const each : editor->findChildren<QLineEdit*>()) {
        if (each->isVisible() && each != &NameBox())
            QTest::keyClicks(each, "7");
    }
    EXPECT_TRUE(Groups().IsNarrowed());
    ChooseTemplate(1);
    EXPECT_FALSE(Groups().IsNarrowed());
    ChooseTemplate(0);
    EXPECT_FALSE(Groups().IsNarrowed());
}

} // namespace schedules::testing
