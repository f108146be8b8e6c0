// Editing a cell: how an edit starts, what commits it, what a commit changes.

#include "tools/EditingTest.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

namespace schedules {

TEST_F(CellEditingTest, IsIdleAtFirst)
{
    ShowSchedule();
    EXPECT_EQ(Edit(), "idle");
    EXPECT_FALSE(Box()->isVisibleTo(&view));
}

TEST_F(CellEditingTest, AClickOpensTheBoxOverTheCellWithAllItsTextSelected)
{
    ShowSchedule();
    ClickCell(1, 1);
    EXPECT_EQ(Edit(), "1,1: 12");
    EXPECT_EQ(Focus(), Box());
    EXPECT_EQ(Box()->selectedText(), QStringLiteral("12"));
}

TEST_F(CellEditingTest, OpensOnRelease)
{
    ShowSchedule();
    QTest::mousePress(Spread()->viewport(), Qt::LeftButton, {}, Middle(1, 1));
    EXPECT_EQ(Edit(), "idle");
    QTest::mouseRelease(Spread()->viewport(), Qt::LeftButton, {}, Middle(1, 1));
    EXPECT_EQ(Edit(), "1,1: 12");
}

TEST_F(CellEditingTest, CellsThatMayNotBeEditedDoNotOpen)
{
    ShowSchedule();
    for (const auto& [column, row] : {std::pair(2, 1), std::pair(3, 2)}) {
        ClickCell(column, row);
        EXPECT_EQ(Edit(), "idle");
        Key(Qt::Key_F2);
        EXPECT_EQ(Edit(), "idle");
        EXPECT_EQ(Active(), std::to_string(column) + "," + std::to_string(row));
    }
}

TEST_F(CellEditingTest, HeadersNeverOpenEvenIfTheyAreMarkedEditable)
{
    Show(kScheduleView, QStringLiteral("<TABLE><TR><TH AllowEdit='-1'/><TH AllowEdit='-1'>A</TH></TR>"
                                       "<TR><TH AllowEdit='-1'>1</TH><TD AllowEdit='-1'>x</TD></TR></TABLE>"));
    for (const Cell cell : {Cell{Column(0), Row(0)}, Cell{Column(1), Row(0)}, Cell{Column(0), Row(1)}}) {
        TheSheet()->SetActiveCell(cell);
        QTest::keyClick(Spread(), Qt::Key_Return);
        EXPECT_EQ(Edit(), "idle");
    }
    TheSheet()->SetActiveCell({Column(1), Row(1)});
    QTest::keyClick(Spread(), Qt::Key_Return);
    EXPECT_EQ(Edit(), "1,1: x");
}

TEST_F(CellEditingTest, ANamelessViewTypeAndTheSelectorDoNotEdit)
{
    for (const int type : {0, kSelectorView, 3}) {
        Show(type, kEditable);
        TheSheet()->SetActiveCell({Column(1), Row(1)});
        QTest::keyClick(Spread(), Qt::Key_Return);
        ClickCell(1, 1);
        EXPECT_EQ(Edit(), "idle") << type;
    }
}

TEST_F(CellEditingTest, OnlyTheTextMinusOneMakesACellEditable)
{
    Show(kScheduleView, QStringLiteral("<TABLE><TR><TH/><TH>A</TH><TH>B</TH><TH>C</TH><TH>D</TH></TR><TR><TH/>"
                                       "<TD AllowEdit='1'>a</TD><TD AllowEdit='True'>b</TD><TD allowedit='-1'>c</TD>"
                                       "<TD x:AllowEdit='-1' xmlns:x='u'>d</TD></TR></TABLE>"));
    for (int column = 1; column <= 4; ++column) {
        ClickCell(column, 1);
        EXPECT_EQ(Edit(), "idle") << column;
    }
}

TEST_F(CellEditingTest, ADoubleClickStartsAnEditAtTheActiveCell)
{
    ShowSchedule();
    TheSheet()->SetActiveCell({Column(1), Row(2)});
    QTest::mouseDClick(Spread()->viewport(), Qt::LeftButton, {}, Middle(1, 2));
    QTest::mouseRelease(Spread()->viewport(), Qt::LeftButton, {}, Middle(1, 2));
    EXPECT_EQ(Edit(), "1,2: 13");
}

TEST_F(CellEditingTest, ExtendingASelectionReloadingAndHeaderClicksStartNone)
{
    ShowSchedule();
    ClickCell(2, 1);
    ClickCell(1, 1, Qt::ShiftModifier);
    EXPECT_EQ(Edit(), "idle");
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Edit(), "idle");
    TheSheet()->SetActiveCell({Column(1), Row(1)});
    view.IToolUI_Activate();
    EXPECT_EQ(Edit(), "idle");
    ClickCell(1, 0);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(Active(), "1,1") << "a click on a header makes its column the active one";
}

TEST_F(CellEditingTest, LeavingTheBoxCommits)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    Button("cmdCancel")->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(TextAt(1, 1), "20");
    EXPECT_EQ(Focus(), Button("cmdCancel")) << "the focus goes where the user wants it";
}

TEST_F(CellEditingTest, AClickOnAnotherCellCommitsAndOpensThatOne)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    ClickCell(2, 2);
    EXPECT_EQ(TextAt(1, 1), "20");
    EXPECT_EQ(Edit(), "2,2: 49");
}

TEST_F(CellEditingTest, TheFocusLentToAPopupOrAnotherProgramDoesNotCommit)
{
    ShowSchedule();
    for (const auto reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason, Qt::MenuBarFocusReason}) {
        ClickCell(1, 1);
        Type("20");
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(Box(), &out);
        EXPECT_EQ(Edit(), "1,1: 20");
        QFocusEvent in(QEvent::FocusIn, reason);
        QApplication::sendEvent(Box(), &in);
        EXPECT_EQ(Edit(), "1,1: 20") << "what was typed is still there";
        Key(Qt::Key_Escape);
        TheSheet()->SetActiveCell({});
    }
}

TEST_F(CellEditingTest, TheMenuOfTheBoxDoesNotCommit)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, {5, 5}, Box()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(Box(), &asked);
    QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_TRUE(menu);
    EXPECT_EQ(Edit(), "1,1: 20");
    menu->close();
    EXPECT_EQ(Edit(), "1,1: 20");
}

TEST_F(CellEditingTest, ScrollingResizingAndHidingCommit)
{
    const QString tall = QStringLiteral("<TABLE><TR><TH/><TH>A</TH></TR>") +
                         QStringLiteral("<TR><TH/><TD AllowEdit='-1'>x</TD></TR>").repeated(100) +
                         QStringLiteral("</TABLE>");
    const std::function<void()> moves[] = {
        [this] { QTest::keyClick(Spread(), Qt::Key_PageDown); },
        [this] { view.resize(700, 300); },
        [this] { TheSheet()->SetColumnWidth(Column(1), 3000); },
        [this] { Spread()->hide(); },
    };
    for (const auto& move : moves) {
        Spread()->show();
        Show(kScheduleView, tall);
        ClickCell(1, 2);
        ASSERT_EQ(Edit(), "1,2: x");
        Type("y");
        move();
        EXPECT_EQ(TextAt(1, 2), "y");
        EXPECT_NE(Edit().substr(0, 4), "1,2:");
    }
}

TEST_F(CellEditingTest, ACellOutOfSightIsScrolledIntoViewAndTheBoxStaysInTheGrid)
{
    Show(kScheduleView,
         QStringLiteral("<TABLE><TR><TH/><TH>A</TH></TR>") +
             QStringLiteral("<TR><TH/><TD AllowEdit='-1'>x</TD></TR>").repeated(100) + QStringLiteral("</TABLE>"),
         {320, 240});
    TheSheet()->SetActiveCell({Column(1), Row(90)});
    Key(Qt::Key_F2);
    EXPECT_EQ(Edit(), "1,90: x");
    EXPECT_TRUE(Spread()->viewport()->rect().contains(Box()->geometry()));
}

TEST_F(CellEditingTest, AViewThatGoesWithAnOpenEditIsNoTrouble)
{
    auto other = std::make_unique<ctlSchedule>(&user);
    other->setProperty("ViewType", kScheduleView);
    Initialize(*other);
    other->IToolUI_XML(kEditable);
    other->IToolUI_Activate();
    other->show();
    other->ShownSheet()->SetActiveCell({Column(1), Row(1)});
    auto* spread = other->findChild<SpreadView*>();
    QTest::keyClick(spread, Qt::Key_F2);
    ASSERT_TRUE(other->findChild<CellEditBox*>()->isVisible());
    other.reset();
    EXPECT_EQ(Boxes(), "");
}

TEST_F(CellEditingTest, AnEditThatCannotOpenLeavesTheViewIdle)
{
    ShowSchedule();
    TheSheet()->SetHidden(Column(1), true);
    TheSheet()->SetActiveCell({Column(1), Row(1)});
    Key(Qt::Key_F2);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_FALSE(Box()->isVisible());
    TheSheet()->SetHidden(Column(1), false);
    Key(Qt::Key_F2);
    EXPECT_EQ(Edit(), "1,1: 12");
}

} // namespace schedules
