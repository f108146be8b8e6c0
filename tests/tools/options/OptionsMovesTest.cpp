// Moving groups and data items: by the buttons, by Alt+Up and Alt+Down, by dragging.

#include "OptionsTest.h"

#include <QScrollBar>

namespace schedules::testing {

namespace {

/// One way of moving the selected entry by a row.
enum class By
{
    Button,
    Key,
    Drag
};

std::string NameOf(const ::testing::TestParamInfo<By>& info)
{
    const char* names[] = {"Button", "Key", "Drag"};
    return names[static_cast<int>(info.param)];
}

} // namespace

class OptionsMoves : public OptionsTest, public ::testing::WithParamInterface<By>
{
protected:
    void Move(CheckList& list, const char* buttons, bool down)
    {
        if (GetParam() == By::Button)
            return Click(buttons, down ? 1 : 0);
        if (GetParam() == By::Key)
            return QTest::keyClick(&list, down ? Qt::Key_Down : Qt::Key_Up, Qt::AltModifier);
        const int neighbour = list.CurrentRow() + (down ? 1 : -1);
        if (neighbour >= 0 && neighbour < list.Count())
            Drag(list, list.Text(list.CurrentRow()), list.Text(neighbour));
    }

    void MoveGroup(const char* text, bool down)
    {
        ClickGroup(text);
        Move(Groups(), "cmdGroupMove", down);
    }

    void MoveItem(const char* text, bool down)
    {
        ClickItem(text);
        Move(Items(), "cmdItemMove", down);
    }
};

INSTANTIATE_TEST_SUITE_P(All, OptionsMoves, ::testing::Values(By::Button, By::Key, By::Drag), NameOf);

TEST_P(OptionsMoves, AGroupDown)
{
    Start();
    MoveGroup("Design", true);
    EXPECT_EQ(Screen(), "Pump schedule - Pumps / Missing: 3077  Pumps *\n"
                        "[x] Motor | > [x] Design | [ ] Vendor\n"
                        "Design Missing: 3070 / [x]\n"
                        "[x] Flow | [ ] Head | [x] *Duty note\n"
                        "\n"
                        "cboTemplates lstGroups chkShowGroupName lstItems cmdSaveAs cmdDelete cmdOK cmdCancel cmdApply "
                        "cmdGroupMove_0 cmdGroupMove_1");
    EXPECT_TRUE(editor->HasUnsavedEdits());
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Model(), "[x] Motor {ShowGroupName=0}\n  [x] Power\n[x] Design {ShowGroupName=-1}\n  [x] Flow\n"
                       "  [ ] Head\n  [x] *Duty note (Note)\n[ ] Vendor {ShowGroupName=-1}\n  [x] Price");
}

TEST_P(OptionsMoves, AGroupUp)
{
    Start();
    MoveGroup("Vendor", false);
    EXPECT_EQ(DrawnGroupList(), "[x] Design | > [ ] Vendor | [x] Motor");
    EXPECT_TRUE(editor->HasUnsavedEdits());
    EXPECT_EQ(Model(), "[x] Design {ShowGroupName=-1}\n  [x] Flow\n  [ ] Head\n  [x] *Duty note (Note)\n"
                       "[ ] Vendor {ShowGroupName=-1}\n  [x] Price\n[x] Motor {ShowGroupName=0}\n  [x] Power");
}

TEST_P(OptionsMoves, AnItemDown)
{
    Start();
    ClickGroup("Design");
    MoveItem("Flow", true);
    EXPECT_EQ(DrawnItemList(), "[ ] Head | > [x] Flow | [x] *Duty note");
    EXPECT_TRUE(editor->HasUnsavedEdits());
    EXPECT_TRUE(
        Model().starts_with("[x] Design {ShowGroupName=-1}\n  [ ] Head\n  [x] Flow\n  [x] *Duty note (Note)\n"));
}

TEST_P(OptionsMoves, AnItemUp)
{
    Start();
    ClickGroup("Design");
    MoveItem("*Duty note", false);
    EXPECT_EQ(DrawnItemList(), "[x] Flow | > [x] *Duty note | [ ] Head");
    EXPECT_EQ(NameBox().text(), "Duty note");
    EXPECT_TRUE(IsEnabled("txtDisplayName"));
    EXPECT_TRUE(
        Model().starts_with("[x] Design {ShowGroupName=-1}\n  [x] Flow\n  [x] *Duty note (Note)\n  [ ] Head\n"));
}

TEST_P(OptionsMoves, TheFirstUpAndTheLastDownDoesNothing)
{
    Start();
    const std::string before = DrawnGroupList();
    MoveGroup("Design", false);
    EXPECT_EQ(DrawnItemList(), "[x] Flow | [ ] Head | [x] *Duty note");
    MoveItem("Flow", false);
    MoveItem("*Duty note", true);
    EXPECT_EQ(DrawnItemList(), "[x] Flow | [ ] Head | > [x] *Duty note");
    MoveGroup("Vendor", true);
    EXPECT_EQ(DrawnGroupList(), "[x] Design | [x] Motor | > [ ] Vendor");
    EXPECT_FALSE(editor->HasUnsavedEdits());
    EXPECT_EQ(Model(), DrawnGroups(TemplateText({}, kPumps)));
}

TEST_P(OptionsMoves, PastGroupsThatAreNotListedGoesDirectlyToTheListedOne)
{
    ListOne("[x] A\n[x] ~Hidden\n[x] B\n[x] ~Other\n[x] C\n");
    Start();
    MoveGroup("A", true);
    EXPECT_EQ(DrawnGroupList(), "[x] B | > [x] A | [x] C");
    EXPECT_EQ(Model(), "[x] ~Hidden\n[x] B\n[x] A\n[x] ~Other\n[x] C");
    MoveGroup("C", false);
    EXPECT_EQ(DrawnGroupList(), "[x] B | > [x] C | [x] A");
    EXPECT_EQ(Model(), "[x] ~Hidden\n[x] B\n[x] C\n[x] A\n[x] ~Other");
}

TEST_P(OptionsMoves, PastItemsThatAreNotListedGoesDirectlyToTheListedOne)
{
    ListOne("[x] G\n  [x] ~First\n  [x] A\n  [x] ~Hidden\n  [x] B\n  [x] ~Last\n");
    Start();
    ClickGroup("G");
    MoveItem("B", false);
    EXPECT_EQ(DrawnItemList(), "> [x] B | [x] A");
    EXPECT_EQ(Model(), "[x] G\n  [x] ~First\n  [x] B\n  [x] A\n  [x] ~Hidden\n  [x] ~Last");
    ClickGroup("G");
    MoveItem("B", true);
    EXPECT_EQ(Model(), "[x] G\n  [x] ~First\n  [x] A\n  [x] B\n  [x] ~Hidden\n  [x] ~Last");
}

TEST_P(OptionsMoves, NamesThatLookLikePlacesAreNames)
{
    ListOne("[x] Third (3)\n[x] Second (2)\n[x] First (1)\n");
    Start();
    MoveGroup("Third", true);
    EXPECT_EQ(Model(), "[x] Second (2)\n[x] Third (3)\n[x] First (1)");
}

TEST_P(OptionsMoves, OneAndTheSameToTheEndAndBackRestoresTheOrder)
{
    Start();
    for (const bool down : {true, true, true, false, false, false})
        MoveGroup("Design", down);
    EXPECT_EQ(DrawnGroupList(), "> [x] Design | [x] Motor | [ ] Vendor");
    EXPECT_TRUE(editor->HasUnsavedEdits());
    EXPECT_EQ(Model(), DrawnGroups(TemplateText({}, kPumps)));
}

TEST_P(OptionsMoves, TheIdsStayWithTheirMembers)
{
    Start();
    MoveGroup("Design", true);
    EXPECT_EQ(Groups().Id(0), 2);
    EXPECT_EQ(Groups().Id(1), 1);
    ClickGroup("Design");
    EXPECT_EQ(DrawnItemList(), "[x] Flow | [ ] Head | [x] *Duty note");
    ChooseTemplateAgain();
    EXPECT_EQ(Groups().Id(0), 2);
    EXPECT_EQ(Groups().Id(1), 1);
}

TEST_P(OptionsMoves, AMovedEntryStaysVisible)
{
    QString drawing;
    for (int number = 1; number <= 20; ++number)
        drawing += QString("[x] Group %1\n").arg(number);
    ListOne(drawing);
    Start();
    ClickGroup("Group 1");
    for (const bool down : {true, false}) {
        for (int step = 0; step < 19; ++step) {
            if (GetParam() == By::Drag)
                Groups().scrollTo(
                    Groups().model()->index(std::clamp(Groups().CurrentRow() + (down ? 1 : -1), 0, 19), 0));
            Move(Groups(), "cmdGroupMove", down);
            const QRect entry = Groups().visualRect(Groups().model()->index(Groups().CurrentRow(), 0));
            EXPECT_TRUE(Groups().viewport()->rect().contains(entry)) << step;
        }
        EXPECT_EQ(Groups().CurrentRow(), down ? 19 : 0);
        EXPECT_EQ(Groups().verticalScrollBar()->value(), down ? Groups().verticalScrollBar()->maximum() : 0);
    }
}

using OptionsMovesByMouse = OptionsTest;

TEST_F(OptionsMovesByMouse, ADragGoesFarDown)
{
    Start();
    Drag(Groups(), "Design", "Vendor");
    EXPECT_EQ(DrawnGroupList(), "[x] Motor | [ ] Vendor | > [x] Design");
    EXPECT_EQ(DrawnItemList(), "[x] Flow | [ ] Head | [x] *Duty note");
    EXPECT_EQ(Model(), "[x] Motor {ShowGroupName=0}\n  [x] Power\n[ ] Vendor {ShowGroupName=-1}\n  [x] Price\n"
                       "[x] Design {ShowGroupName=-1}\n  [x] Flow\n  [ ] Head\n  [x] *Duty note (Note)");
}

TEST_F(OptionsMovesByMouse, ADragGoesFarUp)
{
    Start();
    ClickGroup("Design");
    Drag(Items(), "*Duty note", "Flow");
    EXPECT_EQ(DrawnItemList(), "> [x] *Duty note | [x] Flow | [ ] Head");
    EXPECT_EQ(NameBox().text(), "Duty note");
    EXPECT_TRUE(
        Model().starts_with("[x] Design {ShowGroupName=-1}\n  [x] *Duty note (Note)\n  [x] Flow\n  [ ] Head\n"));
}

TEST_F(OptionsMovesByMouse, ADragBackToItsPlaceDirtiesNothing)
{
    Start();
    Drag(Groups(), "Motor", "Motor");
    EXPECT_EQ(DrawnGroupList(), "[x] Design | > [x] Motor | [ ] Vendor");
    EXPECT_FALSE(editor->HasUnsavedEdits());
}

TEST_F(OptionsMovesByMouse, ADragInAListThatIsClosedDoesNothing)
{
    Start();
    MarkGroup("Design");
    ChooseTemplateAgain();
    ClickGroup("Design");
    Drag(Items(), "Flow", "*Duty note");
    EXPECT_EQ(DrawnItemList(), "[x] Flow | [ ] Head | [x] *Duty note");
    EXPECT_FALSE(editor->HasUnsavedEdits());
}

TEST_F(OptionsMovesByMouse, TheButtonsNeedASelectedEntry)
{
    Start();
    EXPECT_FALSE(Find<QPushButton>("cmdGroupMove", 0)->isEnabled());
    EXPECT_FALSE(Find<QPushButton>("cmdGroupMove", 1)->isEnabled());
    ClickGroup("Design");
    EXPECT_FALSE(Find<QPushButton>("cmdItemMove", 0)->isEnabled());
    EXPECT_FALSE(Find<QPushButton>("cmdItemMove", 1)->isEnabled());
}

} // namespace schedules::testing
