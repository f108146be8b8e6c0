// Check boxes that may be edited in a schedule: no edit box, the same consequences.

#include "tools/EditingTest.h"

namespace schedules {

namespace {

const QString kBoxes = QStringLiteral(
    "<TABLE><TR><TH/><TH>In service</TH><TH>Flow</TH><TH>Spare</TH></TR>"
    "<TR><TH>P-1</TH><TD dataType='CHECKBOX' visible='-1' AllowEdit='-1'>1</TD><TD AllowEdit='-1'>12</TD>"
    "<TD dataType='CHECKBOX' visible='-1'>1</TD></TR></TABLE>");

class CheckBoxTest : public EditingTest
{
protected:
    void ShowBoxes() { Show(kScheduleView, kBoxes); }
};

} // namespace

TEST_F(CheckBoxTest, AClickTogglesWithoutAnEditBox)
{
    ShowBoxes();
    ClickCell(1, 1);
    EXPECT_EQ(TextAt(1, 1), "0");
    EXPECT_EQ(Edit(), "idle");
    EXPECT_TRUE(Dirty());
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
    EXPECT_EQ(Marked(), "1,1");
    Click("btnSaveTag");
    QString expected = kBoxes;
    expected.replace(QStringLiteral("AllowEdit='-1'>1<"), QStringLiteral("AllowEdit='-1' Dirty=\"-1\">0<"));
    EXPECT_EQ(SavedXml(), expected.toStdString());
}

TEST_F(CheckBoxTest, ToggledBackItIsStillAnEdit)
{
    ShowBoxes();
    ClickCell(1, 1);
    ClickCell(1, 1);
    EXPECT_EQ(TextAt(1, 1), "1");
    EXPECT_TRUE(Dirty());
}

TEST_F(CheckBoxTest, SpaceTogglesAndEnterDoesNothing)
{
    ShowBoxes();
    TheSheet()->SetActiveCell({Column(1), Row(1)});
    Key(Qt::Key_Return);
    Key(Qt::Key_F2);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(TextAt(1, 1), "1");
    Key(Qt::Key_Space);
    EXPECT_EQ(TextAt(1, 1), "0");
}

TEST_F(CheckBoxTest, OneThatMayNotBeEditedDoesNotReact)
{
    ShowBoxes();
    ClickCell(3, 1);
    Key(Qt::Key_Space);
    EXPECT_EQ(TextAt(3, 1), "1");
    EXPECT_FALSE(Dirty());
}

TEST_F(CheckBoxTest, DoesNotReactBetweenATextThatDoesNotAllowItAndItsActivation)
{
    ShowBoxes();
    view.IToolUI_XML(kOtherSchedule);
    ClickCell(1, 1);
    Key(Qt::Key_Space);
    EXPECT_EQ(TextAt(1, 1), "1");
}

TEST_F(CheckBoxTest, SpaceWithAModifierIsTheHosts)
{
    ShowBoxes();
    TheSheet()->SetActiveCell({Column(1), Row(1)});
    for (const auto modifier : {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier, Qt::MetaModifier})
        Key(Qt::Key_Space, modifier);
    EXPECT_EQ(TextAt(1, 1), "1");
}

TEST_F(CheckBoxTest, DraggingSelectsInsteadOfSweeping)
{
    ShowBoxes();
    QTest::mousePress(Spread()->viewport(), Qt::LeftButton, {}, Middle(1, 1));
    QTest::mouseMove(Spread()->viewport(), Middle(3, 1));
    QTest::mouseRelease(Spread()->viewport(), Qt::LeftButton, {}, Middle(3, 1));
    EXPECT_EQ(TextAt(1, 1), "1");
    EXPECT_EQ(Spread()->Selection(), (CellRange{{Column(1), Row(1)}, {Column(3), Row(1)}}));
}

TEST_F(CheckBoxTest, TabReachesABoxAndGoesOnFromIt)
{
    ShowBoxes();
    ClickCell(2, 1);
    ASSERT_EQ(Edit(), "2,1: 12");
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Active(), "1,1");
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(Focus(), Spread());
    Key(Qt::Key_Tab);
    EXPECT_EQ(Edit(), "2,1: 12");
}

TEST_F(CheckBoxTest, PastTheLastBoxTabLeavesTheGrid)
{
    ShowBoxes();
    TheSheet()->SetActiveCell({Column(1), Row(1)});
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_NE(Focus(), Spread());
}

} // namespace schedules
