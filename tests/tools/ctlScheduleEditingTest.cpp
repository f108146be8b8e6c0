// Editing a cell: how an edit starts, what commits it, what a commit changes.

#include "tools/EditingTest.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

namespace schedules {

namespace {

class CellEditingTest : public EditingTest
{
protected:
    void ShowSchedule() { Show(kScheduleView, kEditable); }
};

constexpr auto kFirstEdited = "<TABLE><TR><TH/><TH>Flow</TH><TH>Head</TH><TH>Note</TH></TR>"
                              "<TR><TH>P-1</TH><TD AllowEdit='-1' Dirty=\"-1\">12.5</TD><TD>48</TD>"
                              "<TD AllowEdit='-1'>spare</TD></TR>"
                              "<TR><TH>P-2</TH><TD AllowEdit='-1'>13</TD><TD AllowEdit='-1'>49</TD>"
                              "<TD>fixed</TD></TR></TABLE>";

} // namespace

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

TEST_F(CellEditingTest, ADoubleClickStartsAnEditAtTheActiveCell)
{
    ShowSchedule();
    TheSheet()->SetActiveCell({Column(1), Row(2)});
    QTest::mouseDClick(Spread()->viewport(), Qt::LeftButton, {}, Middle(1, 2));
    QTest::mouseRelease(Spread()->viewport(), Qt::LeftButton, {}, Middle(1, 2));
    EXPECT_EQ(Edit(), "1,2: 13");
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

TEST_F(CellEditingTest, EscapeChangesNothing)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("99");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(Focus(), Spread());
    EXPECT_EQ(TextAt(1, 1), "12");
    EXPECT_FALSE(Dirty());
    EXPECT_FALSE(Tool("btnSaveTag")->isEnabled());
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), kEditable.toStdString());
}

TEST_F(CellEditingTest, TheSameTextChangesNothing)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("12");
    Key(Qt::Key_Return);
    EXPECT_FALSE(Dirty());
    EXPECT_FALSE(Tool("btnSaveTag")->isEnabled());
    EXPECT_EQ(Marked(), "");
    EditCell(1, 2, "14");
    ClickCell(1, 1);
    Type("12");
    Key(Qt::Key_Return);
    EXPECT_TRUE(Dirty()) << "an earlier edit stays";
    EXPECT_TRUE(Tool("btnSaveTag")->isEnabled());
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

TEST_F(CellEditingTest, AnotherDocumentIsShownFromItsStart)
{
    const QString tall = QStringLiteral("<TABLE><TR><TH/><TH>A</TH></TR>") +
                         QStringLiteral("<TR><TH/><TD>x</TD></TR>").repeated(100) + QStringLiteral("</TABLE>");
    Show(kScheduleView, tall);
    Spread()->EnsureVisible({Column(1), Row(100)});
    view.IToolUI_Activate();
    EXPECT_TRUE(Spread()->SeenRect({Column(1), Row(1)}).isEmpty()) << "the same document stays where it is";
    Activate(tall);
    EXPECT_FALSE(Spread()->SeenRect({Column(1), Row(1)}).isEmpty());
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

TEST_F(CellEditingTest, WhatIsSavedShowsInTheSamePlaceAndNothingElseHasChanged)
{
    const QString document = QStringLiteral(
        "<?xml version='1.0'?>\r\n<D><TABLE><TR><TH/><TH>A</TH></TR><TR><TH>1</TH><!-- in a cell's place -->"
        "<TD AllowEdit='-1'>a1</TD></TR></TABLE>\n<TABLE note=\"second\"><TR><TH>2</TH><TD AllowEdit='-1'>a2</TD>"
        "</TR></TABLE></D>");
    Show(kScheduleView, document);
    EXPECT_EQ(Grid(), " | A | \n1 |  | a1\n2 | a2 | ");
    ClickCell(1, 1);
    EXPECT_EQ(Edit(), "idle") << "a comment cannot be edited";
    EditCell(2, 1, "b1");
    EditCell(1, 2, "b2");
    Click("btnSaveTag");
    QString expected = document;
    expected.replace(QStringLiteral("<TD AllowEdit='-1'>a1"), QStringLiteral("<TD AllowEdit='-1' Dirty=\"-1\">b1"));
    expected.replace(QStringLiteral("<TD AllowEdit='-1'>a2"), QStringLiteral("<TD AllowEdit='-1' Dirty=\"-1\">b2"));
    EXPECT_EQ(SavedXml(), expected.toStdString());
    Activate(QString::fromStdString(SavedXml()));
    EXPECT_EQ(Grid(), " | A | \n1 |  | b1\n2 | b2 | ");
}

TEST_F(CellEditingTest, TheTransposedLayoutEditsTheElementThatItShows)
{
    ShowSchedule();
    Click("btnTranspose");
    ASSERT_EQ(TextAt(1, 3), "spare");
    EditCell(1, 3, "moved");
    Click("btnSaveTag");
    QString expected = kEditable;
    expected.replace(QStringLiteral("<TD AllowEdit='-1'>spare"),
                     QStringLiteral("<TD AllowEdit='-1' Dirty=\"-1\">moved"));
    EXPECT_EQ(SavedXml(), expected.toStdString());
}

/// Data rows and data cells count from 1, after the headers.
TEST_F(CellEditingTest, OrdinalsCountDataRowsAndDataCells)
{
    QString document = QStringLiteral("<TABLE>");
    for (int row = 0; row <= 6; ++row) {
        document += QStringLiteral("<TR>");
        for (int cell = 0; cell <= 6; ++cell)
            document += QStringLiteral("<TD AllowEdit='-1'>%1.%2</TD>").arg(row).arg(cell);
        document += QStringLiteral("</TR>");
    }
    document += QStringLiteral("</TABLE>");
    const auto savedWith = [&](const char* cell) {
        return QString(document).replace(QStringLiteral(" AllowEdit='-1'>%1<").arg(QLatin1String(cell)),
                                         QStringLiteral(" AllowEdit='-1' Dirty=\"-1\">!<"));
    };
    Show(kScheduleView, document);
    EditCell(3, 5, "!");
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), savedWith("5.3").toStdString()) << "the third cell of the fifth row";
    Activate(document);
    Click("btnTranspose");
    EditCell(3, 5, "!");
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), savedWith("3.5").toStdString()) << "the fifth cell of the third row";
}

TEST_F(CellEditingTest, WithoutAnElementGridAndFlagChangeAllTheSame)
{
    ShowSchedule();
    CellStyle style;
    style.allowEdit = true;
    TheSheet()->SetSize(4, 2);
    TheSheet()->SetText({Column(4), Row(1)}, QStringLiteral("host"));
    TheSheet()->SetStyle({Column(4), Row(1)}, style);
    EditCell(4, 1, "user");
    EXPECT_EQ(TextAt(4, 1), "user");
    EXPECT_TRUE(Dirty());
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), kEditable.toStdString());
}

TEST_F(CellEditingTest, AnEditThatWasOpenWhenAnotherDocumentCameChangesTheGridAlone)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    view.IToolUI_XML(kOtherSchedule);
    EXPECT_EQ(Edit(), "1,1: 20") << "new text changes nothing on screen";
    Key(Qt::Key_Return);
    EXPECT_EQ(TextAt(1, 1), "20");
    EXPECT_TRUE(Dirty());
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), kOtherSchedule.toStdString());
}

TEST_F(CellEditingTest, BetweenNewTextAndItsActivationNothingCanBeEdited)
{
    ShowSchedule();
    view.IToolUI_XML(kEditable);
    ClickCell(1, 1);
    Key(Qt::Key_F2);
    EXPECT_EQ(Edit(), "idle");
    view.IToolUI_Activate();
    ClickCell(1, 1);
    EXPECT_EQ(Edit(), "1,1: 12");
}

TEST_F(CellEditingTest, ReportsNoErrors)
{
    ShowSchedule();
    host.failing = {testing::FakeHost::kEverything};
    EditCell(1, 1, "20");
    view.CleanUP();
    QTest::keyClick(Spread(), Qt::Key_Return);
    QTest::keyClick(Spread(), Qt::Key_Space);
    QTest::keyClick(Spread(), Qt::Key_Tab);
    EXPECT_EQ(Boxes(), "");
    EXPECT_TRUE(host.sent.empty());
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

TEST_F(CellEditingTest, RefusedKeysBeep)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("123456789012345678901234567890x");
    EXPECT_EQ(user.beeps, 1);
    EXPECT_EQ(Edit(), "1,1: 123456789012345678901234567890");
}

TEST_F(CellEditingTest, EscapeKeepsALongValueAndItsLineBreaks)
{
    const QString longValue = QStringLiteral("1234567890123456789012345678901234567890");
    Show(kScheduleView, QStringLiteral("<TABLE><TR><TH/><TH>A</TH><TH>B</TH></TR><TR><TH/><TD AllowEdit='-1'>%1</TD>"
                                       "<TD AllowEdit='-1'>a&#10;b</TD></TR></TABLE>")
                            .arg(longValue));
    for (const int column : {1, 2}) {
        const std::string before = TextAt(column, 1);
        ClickCell(column, 1);
        Key(Qt::Key_Delete);
        Type("x");
        Key(Qt::Key_Escape);
        EXPECT_EQ(TextAt(column, 1), before);
        EXPECT_FALSE(Dirty());
    }
    EXPECT_EQ(user.beeps, 0);
}

TEST_F(CellEditingTest, EnterOnAnUntouchedValueOfAnyLengthChangesNothing)
{
    Show(kScheduleView,
         QStringLiteral("<TABLE><TR><TH/><TH>A</TH></TR><TR><TH/><TD AllowEdit='-1'>%1</TD></TR></TABLE>")
             .arg(QString(40'000, u'x')));
    ClickCell(1, 1);
    Key(Qt::Key_Return);
    EXPECT_FALSE(Dirty());
    EXPECT_EQ(TextAt(1, 1).size(), 40'000u);
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

TEST_F(CellEditingTest, OneCommitChangesTheCellOnce)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    int changes = 0;
    QObject::connect(TheSheet(), &Sheet::CellChanged, [&](Cell cell) {
        changes += TheSheet()->Text(cell) == QStringLiteral("20") && TheSheet()->Style(cell).edited ? 1 : 0;
    });
    Button("cmdCancel")->setFocus();
    EXPECT_EQ(changes, 1);
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

TEST_F(CellEditingTest, WhiteSpaceAloneIsNoValue)
{
    ShowSchedule();
    EditCell(1, 1, "  ");
    EXPECT_EQ(TextAt(1, 1), "");
    EXPECT_TRUE(Dirty());
    Click("btnTranspose");
    EXPECT_EQ(TextAt(1, 1), "");
}

TEST_F(CellEditingTest, ACellThatStoodInAnEditedOneIsGone)
{
    Show(kScheduleView, QStringLiteral("<TABLE><TR><TH/><TD/></TR><TR><TH/><TD AllowEdit='-1'>out<TABLE><TR><TH/>"
                                       "<TD AllowEdit='-1'>in</TD></TR></TABLE></TD></TR></TABLE>"));
    ASSERT_EQ(TextAt(1, 2), "in");
    EditCell(1, 1, "x");
    ClickCell(1, 2);
    EXPECT_EQ(Edit(), "idle");
    Key(Qt::Key_F2);
    EXPECT_EQ(Edit(), "idle");
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

} // namespace schedules
