// The keys of editing, in the box and in the grid.

#include "tools/EditingTest.h"

#include <QInputMethodEvent>
#include <QToolBar>

namespace schedules {

namespace {

constexpr auto kFirstEdited = "<TABLE><TR><TH/><TH>Flow</TH><TH>Head</TH><TH>Note</TH></TR>"
                              "<TR><TH>P-1</TH><TD AllowEdit='-1' Dirty=\"-1\">12.5</TD><TD>48</TD>"
                              "<TD AllowEdit='-1'>spare</TD></TR>"
                              "<TR><TH>P-2</TH><TD AllowEdit='-1'>13</TD><TD AllowEdit='-1'>49</TD>"
                              "<TD>fixed</TD></TR></TABLE>";

} // namespace

TEST_F(CellEditingTest, ArrowKeysStartAnEditAtTheCellTheyReach)
{
    ShowSchedule();
    ClickCell(2, 1);
    Key(Qt::Key_Left);
    EXPECT_EQ(Edit(), "1,1: 12");
}

TEST_F(CellEditingTest, EnterAndF2StartAnEditAtTheActiveCell)
{
    ShowSchedule();
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2}) {
        TheSheet()->SetActiveCell({Column(1), Row(2)});
        Key(key);
        EXPECT_EQ(Edit(), "1,2: 13");
        Key(Qt::Key_Escape);
        EXPECT_EQ(Edit(), "idle");
    }
}

TEST_F(CellEditingTest, AKeyHeldDownDoesNotOpenTheNextEdit)
{
    ShowSchedule();
    ClickCell(1, 1);
    Key(Qt::Key_Return);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QApplication::sendEvent(Spread(), &held);
    EXPECT_EQ(Edit(), "idle");
    QTest::keyClick(Spread(), Qt::Key_Return);
    EXPECT_EQ(Edit(), "1,1: 12");
}

TEST_F(CellEditingTest, EnterCommitsAndBringsTheFocusBack)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("12.5");
    Key(Qt::Key_Return);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(Focus(), Spread());
    EXPECT_EQ(TextAt(1, 1), "12.5");
    EXPECT_TRUE(Dirty());
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), kFirstEdited);
}

TEST_F(CellEditingTest, EscapeInTheGridKeepsTheChange)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("99");
    QTest::keyClick(Spread(), Qt::Key_Escape);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(TextAt(1, 1), "99");
}

TEST_F(CellEditingTest, UpAndDownCommitAndGoOn)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    Key(Qt::Key_Down);
    EXPECT_EQ(TextAt(1, 1), "20");
    EXPECT_EQ(Edit(), "1,2: 13");
    Type("21");
    Key(Qt::Key_Up);
    EXPECT_EQ(TextAt(1, 2), "21");
    EXPECT_EQ(Edit(), "1,1: 20");
}

TEST_F(CellEditingTest, UpAndDownGoOnToACellThatStaysClosed)
{
    ShowSchedule();
    ClickCell(2, 2);
    Key(Qt::Key_Up);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(Active(), "2,1");
    EXPECT_EQ(Focus(), Spread());
}

TEST_F(CellEditingTest, AtTheEdgeTheyOpenTheSameCellAgain)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    Key(Qt::Key_Up);
    EXPECT_EQ(TextAt(1, 1), "20");
    EXPECT_EQ(Edit(), "1,1: 20");
}

TEST_F(CellEditingTest, TabCommitsAndGoesOnAtTheNextEditableCell)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    Key(Qt::Key_Tab);
    EXPECT_EQ(TextAt(1, 1), "20");
    EXPECT_EQ(Edit(), "3,1: spare");
    EXPECT_EQ(Active(), "3,1");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Edit(), "1,2: 13");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Edit(), "2,2: 49");
}

TEST_F(CellEditingTest, ShiftTabGoesBack)
{
    ShowSchedule();
    ClickCell(1, 2);
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Edit(), "3,1: spare");
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Edit(), "1,1: 12");
}

TEST_F(CellEditingTest, PastTheLastEditableCellTabLeavesTheGrid)
{
    ShowSchedule();
    ClickCell(2, 2);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(Focus(), Button("cmdCancel"));
    Spread()->setFocus();
    TheSheet()->SetActiveCell({});
    ClickCell(1, 1);
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_NE(Focus(), Spread());
    EXPECT_NE(Focus(), Box());
}

TEST_F(CellEditingTest, TabSkipsHiddenCells)
{
    ShowSchedule();
    TheSheet()->SetHidden(Column(3), true);
    ClickCell(1, 1);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Edit(), "1,2: 13");
}

TEST_F(CellEditingTest, RefusedKeysBeep)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("123456789012345678901234567890x");
    EXPECT_EQ(user.beeps, 1);
    EXPECT_EQ(Edit(), "1,1: 123456789012345678901234567890");
}

TEST_F(CellEditingTest, WhatAnInputMethodIsStillComposingIsCommitted)
{
    ShowSchedule();
    ClickCell(3, 1);
    QInputMethodEvent composing(QStringLiteral("日本"), {});
    QApplication::sendEvent(Box(), &composing);
    view.SetTagDataDirty(true);
    QTest::mouseClick(Find<QToolBar>("tbTasks")->widgetForAction(Tool("btnSaveTag")), Qt::LeftButton);
    EXPECT_EQ(TextAt(3, 1), "日本");
    EXPECT_TRUE(SavedXml().find("日本") != std::string::npos);
}

TEST_F(CellEditingTest, EscapeDropsWhatAnInputMethodIsComposing)
{
    ShowSchedule();
    ClickCell(3, 1);
    QInputMethodEvent composing(QStringLiteral("abc"), {});
    QApplication::sendEvent(Box(), &composing);
    Key(Qt::Key_Escape);
    EXPECT_EQ(TextAt(3, 1), "spare");
    EXPECT_FALSE(Dirty());
}

TEST_F(CellEditingTest, KeysWithModifiersAreLeftToTheHost)
{
    ShowSchedule();
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        TheSheet()->SetActiveCell({Column(1), Row(1)});
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2, Qt::Key_Space}) {
            QKeyEvent press(QEvent::KeyPress, key, modifier);
            QApplication::sendEvent(Spread(), &press);
            EXPECT_EQ(Edit(), "idle");
            EXPECT_FALSE(press.isAccepted());
        }
    }
}

TEST_F(CellEditingTest, AKeyHeldDownAfterACommitDoesNotReachTheHostsForm)
{
    ShowSchedule();
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2, Qt::Key_Escape}) {
        TheSheet()->SetActiveCell({Column(1), Row(1)});
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
        QApplication::sendEvent(Spread(), &held);
        EXPECT_TRUE(held.isAccepted()) << key;
        EXPECT_EQ(Edit(), "idle");
    }
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(Spread(), &escape);
    EXPECT_FALSE(escape.isAccepted()) << "one that has nothing to end is the host's";
}

TEST_F(CellEditingTest, InTheTransposedLayoutTheHeaderRowLeadsToItsColumn)
{
    ShowSchedule();
    Click("btnTranspose");
    TheSheet()->SetRepainting(false);
    TheSheet()->SetActiveCell({Column(2), Row(0)});
    Key(Qt::Key_Return);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(Active(), "2,1");
    EXPECT_TRUE(TheSheet()->Repainting());
}

TEST_F(CellEditingTest, TabFindsTheNextCellOfALargeTable)
{
    QString document = QStringLiteral("<TABLE><TR><TH/><TH>A</TH><TH>B</TH></TR>") +
                       QStringLiteral("<TR><TH/><TD/><TD/></TR>").repeated(500) +
                       QStringLiteral("<TR><TH/><TD/><TD AllowEdit='-1'>last</TD></TR></TABLE>");
    document.replace(document.indexOf(QStringLiteral("<TD/>")), 5, QStringLiteral("<TD AllowEdit='-1'>first</TD>"));
    Show(kScheduleView, document);
    ClickCell(1, 1);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Edit(), "2,501: last");
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Edit(), "1,1: first");
    Activate(kEditable);
    ClickCell(1, 1);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Edit(), "3,1: spare") << "another table has other cells";
}

TEST_F(CellEditingTest, TabKnowsTheTableThatIsShownNow)
{
    ShowSchedule();
    ClickCell(1, 1);
    Key(Qt::Key_Tab);
    ASSERT_EQ(Edit(), "3,1: spare");
    Activate(QStringLiteral("<TABLE><TR><TH/><TH>A</TH></TR><TR><TH>1</TH><TD AllowEdit='-1'>a1</TD></TR>"
                            "<TR><TH>2</TH><TD>a2</TD></TR><TR><TH>3</TH><TD AllowEdit='-1'>a3</TD></TR></TABLE>"));
    ClickCell(1, 1);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Edit(), "1,3: a3");
}

} // namespace schedules
