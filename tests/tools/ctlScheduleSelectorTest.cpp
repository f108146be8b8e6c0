// Picking tags: ticking them, and what Continue and Print make of them.

#include "tools/EditingTest.h"

#include <QMenu>

namespace schedules {

namespace {

/// Three tags as columns, the way a selection comes; the third has no identifier.
const QString kTags =
    QStringLiteral("<TABLE><TR><TH/><TH>1</TH><TH>2</TH><TH>3</TH></TR>"
                   "<TR><TH>Tag</TH><TD>P-1</TD><TD>a&lt;&amp;b</TD><TD/></TR>"
                   "<TR><TH>Select</TH><TD dataType='CHECKBOX' visible='-1'/><TD dataType='CHECKBOX' visible='-1'/>"
                   "<TD dataType='CHECKBOX' visible='-1'/></TR></TABLE>");

QString ManyTags(int count)
{
    QString document = QStringLiteral("<TABLE><TR><TH/>");
    for (int tag = 1; tag <= count; ++tag)
        document += QStringLiteral("<TH>%1</TH>").arg(tag);
    document += QStringLiteral("</TR><TR><TH>Tag</TH>");
    for (int tag = 1; tag <= count; ++tag)
        document += QStringLiteral("<TD>P-%1</TD>").arg(tag);
    document += QStringLiteral("</TR><TR><TH>Select</TH>");
    return document + QStringLiteral("<TD dataType='CHECKBOX' visible='-1'/>").repeated(count) +
           QStringLiteral("</TR></TABLE>");
}

class SelectorTest : public EditingTest
{
protected:
    void ShowSelector(const QString& xml = kTags)
    {
        view.setProperty("ShowPrintButtonOnUnitSelector", true);
        view.setProperty("BuilderPdsg", QStringLiteral("pdsg"));
        Show(kSelectorView, xml);
    }

    /// The boxes as they stand in the orientation: "101".
    std::string Ticks() const
    {
        const bool across = view.SchedOrientation() == 1;
        std::string ticks;
        for (int tag = 1; tag <= (across ? TheSheet()->ColumnCount() : TheSheet()->RowCount()); ++tag)
            ticks += across ? TextAt(tag, 2) : TextAt(2, tag);
        return ticks;
    }

    std::string Continued()
    {
        host.sent.clear();
        Press("cmdContinue");
        return Log();
    }

    /// The menu that a right click opens; null for none.
    QMenu* MenuAt(int column, int row)
    {
        AskForMenu(Middle(column, row));
        return view.findChild<QMenu*>(QStringLiteral("mnuGrid"));
    }

    void Choose(const char* entry, int column = 1, int row = 1)
    {
        QMenu* menu = MenuAt(column, row);
        ASSERT_TRUE(menu);
        for (QAction* action : menu->actions()) {
            if (action->text() == QLatin1String(entry))
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        }
        EXPECT_FALSE(menu->isVisible());
        QCoreApplication::sendPostedEvents(menu, QEvent::DeferredDelete);
    }

    static std::string ContinueEvent(const char* tags)
    {
        return std::string("event ctlSchedule -> Host: ContinueButton 8 9 [4 SelectedTags=") + tags + "]";
    }
};

} // namespace

TEST_F(SelectorTest, AClickTogglesABox)
{
    ShowSelector();
    ClickCell(1, 2);
    EXPECT_EQ(Ticks(), "100");
    ClickCell(1, 2);
    EXPECT_EQ(Ticks(), "000");
    ClickCell(2, 2);
    EXPECT_EQ(Ticks(), "010");
    EXPECT_FALSE(Dirty());
}

TEST_F(SelectorTest, OnlyBoxesToggle)
{
    ShowSelector();
    ClickCell(1, 1);
    Key(Qt::Key_Space);
    EXPECT_EQ(TextAt(1, 1), "P-1");
    EXPECT_EQ(Ticks(), "000");
}

TEST_F(SelectorTest, SpaceTogglesTheActiveBox)
{
    ShowSelector();
    TheSheet()->SetActiveCell({Column(2), Row(2)});
    Key(Qt::Key_Space);
    EXPECT_EQ(Ticks(), "010");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    QApplication::sendEvent(Spread(), &held);
    EXPECT_EQ(Ticks(), "010") << "a key held down toggles once";
    Key(Qt::Key_Space);
    EXPECT_EQ(Ticks(), "000");
}

TEST_F(SelectorTest, TheMouseSweepsOverSeveralBoxes)
{
    ShowSelector();
    ClickCell(2, 2);
    QTest::mousePress(Spread()->viewport(), Qt::LeftButton, {}, Middle(1, 2));
    EXPECT_EQ(Ticks(), "110") << "the first one at once";
    QTest::mouseMove(Spread()->viewport(), Middle(3, 2));
    QTest::mouseRelease(Spread()->viewport(), Qt::LeftButton, {}, Middle(3, 2));
    EXPECT_EQ(Ticks(), "111") << "all become what the first one became";
    QTest::mousePress(Spread()->viewport(), Qt::LeftButton, {}, Middle(3, 2));
    QTest::mouseMove(Spread()->viewport(), Middle(2, 1));
    QTest::mouseRelease(Spread()->viewport(), Qt::LeftButton, {}, Middle(2, 1));
    EXPECT_EQ(Ticks(), "100");
    EXPECT_EQ(TextAt(2, 1), "a<&b") << "what is no box stays";
}

TEST_F(SelectorTest, TheMenuTicksAllNoneAndInverts)
{
    ShowSelector();
    Choose("Select All");
    EXPECT_EQ(Ticks(), "111");
    ClickCell(1, 2);
    Choose("Invert Selection");
    EXPECT_EQ(Ticks(), "100");
    Choose("Select None");
    EXPECT_EQ(Ticks(), "000");
}

TEST_F(SelectorTest, TheMenuLeavesHiddenBoxesAlone)
{
    ShowSelector();
    Choose("Select All");
    TheSheet()->SetHidden(Column(2), true);
    Choose("Select None");
    EXPECT_EQ(Ticks(), "010");
    EXPECT_EQ(Continued(), ContinueEvent("<Tags><Tag><Id>a&lt;&amp;b</Id></Tag></Tags>")) << "it still counts";
    TheSheet()->SetHidden(Column(2), false);
    TheSheet()->SetHidden(Row(2), true);
    Choose("Select All");
    EXPECT_EQ(Ticks(), "010");
}

TEST_F(SelectorTest, SelectAllTagsTicksAtTheStart)
{
    view.setProperty("SelectAllTags", true);
    ShowSelector();
    EXPECT_EQ(Ticks(), "111");
    ClickCell(1, 2);
    view.IToolUI_Activate();
    EXPECT_EQ(Ticks(), "111") << "a reload goes back to the default";
}

TEST_F(SelectorTest, ContinueSendsTheTickedTags)
{
    ShowSelector();
    ClickCell(1, 2);
    EXPECT_EQ(Continued(), ContinueEvent("<Tags><Tag><Id>P-1</Id></Tag></Tags>"));
    ClickCell(2, 2);
    EXPECT_EQ(Continued(), ContinueEvent("<Tags><Tag><Id>P-1</Id></Tag><Tag><Id>a&lt;&amp;b</Id></Tag></Tags>"));
    EXPECT_EQ(Boxes(), "");
}

TEST_F(SelectorTest, OnlyTheTextOneIsATick)
{
    ShowSelector();
    for (const char* text : {"0", "", "-1", "01", " 1", "True"}) {
        TheSheet()->SetText({Column(1), Row(2)}, QLatin1String(text));
        EXPECT_EQ(Continued(), "") << text;
    }
}

TEST_F(SelectorTest, ATagWithoutAnIdentifierIsNeitherSentNorCounted)
{
    ShowSelector();
    ClickCell(3, 2);
    EXPECT_EQ(Continued(), "");
    EXPECT_EQ(Boxes(), "Missing: 3043\r\n\r\nMissing: 3044 (64) Missing: 1058");
    ClickCell(1, 2);
    EXPECT_EQ(Continued(), ContinueEvent("<Tags><Tag><Id>P-1</Id></Tag></Tags>"));
}

TEST_F(SelectorTest, ContinueWithoutATagSaysSo)
{
    ShowSelector();
    EXPECT_EQ(Continued(), "");
    EXPECT_EQ(Boxes(), "Missing: 3043\r\n\r\nMissing: 3044 (64) Missing: 1058");
}

TEST_F(SelectorTest, PrintSendsTheTickedTags)
{
    ShowSelector();
    ClickCell(1, 2);
    Click("btnPrint");
    EXPECT_EQ(Log(), "event ctlSchedule -> Host: PrintSelections 8 9 "
                     "[4 SelectedTags=<Tags><Tag><Id>P-1</Id></Tag></Tags>] [2 BuilderPdsg=pdsg]");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(SelectorTest, PrintWithoutATagSaysSo)
{
    ShowSelector();
    Click("btnPrint");
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Boxes(), "Missing: 3061\r\n\r\nMissing: 3062 Missing: 3063 (48) Missing: 3064");
}

TEST_F(SelectorTest, AHostThatDoesNotListenIsToldToTheFramework)
{
    ShowSelector();
    ClickCell(1, 2);
    host.failing = {QStringLiteral("ContinueButton"), QStringLiteral("PrintSelections")};
    Press("cmdContinue");
    Click("btnPrint");
    EXPECT_EQ(host.Names(), (QStringList{"ContinueButton", "ErrorMessage", "PrintSelections", "ErrorMessage"}));
    const auto procedure = [&](int sent) {
        return host.sent[sent].message->parameters.Items()[3].value.toString().toStdString();
    };
    EXPECT_EQ(procedure(1), "Schedules.ctlSchedule.cmdContinue_Click");
    EXPECT_EQ(procedure(3), "Schedules.ctlSchedule.PrintSelections");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(SelectorTest, AfterTransposeTheSameTagsAreCollectedInTheSameOrder)
{
    ShowSelector();
    Click("btnTranspose");
    EXPECT_EQ(Ticks(), "000") << "Transpose goes back to the default";
    ClickCell(2, 2);
    ClickCell(2, 1);
    EXPECT_EQ(Ticks(), "110");
    EXPECT_EQ(Continued(), ContinueEvent("<Tags><Tag><Id>P-1</Id></Tag><Tag><Id>a&lt;&amp;b</Id></Tag></Tags>"));
}

TEST_F(SelectorTest, TheOrderIsThatOfTheTableHoweverItIsShown)
{
    ShowSelector(ManyTags(3));
    Click("btnTranspose");
    Choose("Select All", 1, 1);
    TheSheet()->SetActiveCell({Column(1), Row(1)});
    view.DoColSort();
    view.DoColSort();
    ASSERT_EQ(TheSheet()->Rows().ItemAt(1), 3) << "sorted descending";
    EXPECT_EQ(Continued(),
              ContinueEvent("<Tags><Tag><Id>P-1</Id></Tag><Tag><Id>P-2</Id></Tag><Tag><Id>P-3</Id></Tag></Tags>"));
}

TEST_F(SelectorTest, OutsideOfTheSelectorNothingIsSelected)
{
    Show(kScheduleView, kTags);
    TheSheet()->SetText({Column(1), Row(2)}, QStringLiteral("1"));
    Press("cmdContinue");
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Boxes(), "Missing: 3043\r\n\r\nMissing: 3044 (64) Missing: 1058");
    EXPECT_FALSE(MenuAt(1, 1) && MenuAt(1, 1)->actions().first()->text() == QStringLiteral("Select All"));
}

TEST_F(SelectorTest, ATableLoadedAtOnceIsCollectedAsItIsShown)
{
    view.setProperty("ViewType", kSelectorView);
    view.setProperty("SelectAllTags", true);
    Initialize(view);
    ASSERT_TRUE(view.LoadSelectionData(kSelection));
    EXPECT_EQ(view.SchedOrientation(), 1);
    EXPECT_EQ(Continued(), ContinueEvent("<Tags><Tag><Id>P-1</Id></Tag><Tag><Id>P-2</Id></Tag></Tags>"));
    view.setProperty("ViewType", kScheduleView);
    ASSERT_TRUE(view.LoadScheduleData(kEditable));
    EXPECT_EQ(view.SchedOrientation(), 0);
    EXPECT_EQ(Grid(), " | Flow | Head | Note\nP-1 | 12 | 48 | spare\nP-2 | 13 | 49 | fixed");
}

TEST_F(SelectorTest, EditableCellsAreTintedInTheScheduleAlone)
{
    Show(kScheduleView, kEditable);
    EXPECT_TRUE(Spread()->ShowsEditable());
    view.setProperty("ViewType", kSelectorView);
    Activate(kSelection);
    EXPECT_FALSE(Spread()->ShowsEditable());
}

TEST_F(SelectorTest, TheLegendGoesWithTheTable)
{
    view.setProperty("RowsFrozen", 1);
    ShowSelector();
    EXPECT_TRUE(Shown("lblLegend"));
    Activate(kBroken);
    view.setProperty("RowsFrozen", 0);
    EXPECT_FALSE(Shown("lblLegend"));
    view.setProperty("RowsFrozen", 1);
    Activate(kTags);
    EXPECT_TRUE(Shown("lblLegend"));
    view.CleanUP();
    EXPECT_FALSE(Shown("lblLegend"));
}

TEST_F(SelectorTest, AThousandTagsAreCollected)
{
    ShowSelector(ManyTags(1000));
    Choose("Select All");
    const QString tags = QString::fromStdString(Continued());
    EXPECT_EQ(tags.count(QStringLiteral("<Tag>")), 1000);
    EXPECT_TRUE(tags.contains(QStringLiteral("<Tag><Id>P-1000</Id></Tag></Tags>")));
}

TEST_F(SelectorTest, TheMenuKeyOpensTheMenu)
{
    ShowSelector();
    TheSheet()->SetActiveCell({Column(1), Row(1)});
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, Middle(1, 1), Spread()->mapToGlobal(Middle(1, 1)));
    QApplication::sendEvent(Spread(), &asked);
    auto* menu = view.findChild<QMenu*>(QStringLiteral("mnuGrid"));
    ASSERT_TRUE(menu);
    EXPECT_TRUE(menu->isVisible());
    delete menu;
}

TEST_F(SelectorTest, AMenuThatOutlivesItsTableDoesNothing)
{
    ShowSelector();
    QMenu* menu = MenuAt(1, 1);
    ASSERT_TRUE(menu);
    QAction* const all = menu->actions().first();
    view.setProperty("ViewType", kScheduleView);
    Activate(QStringLiteral(
        "<TABLE><TR><TH/><TH>A</TH></TR><TR><TH/><TD dataType='CHECKBOX' visible='-1'>0</TD></TR></TABLE>"));
    all->trigger();
    EXPECT_EQ(TextAt(1, 1), "0");
    EXPECT_FALSE(Dirty());
    view.CleanUP();
    all->trigger();
    EXPECT_EQ(Boxes(), "");
    delete menu;
}

TEST_F(SelectorTest, TheLegendFollowsFrozenCountsThatAreSetLater)
{
    ShowSelector();
    EXPECT_FALSE(Shown("lblLegend"));
    view.setProperty("ColsFrozen", 1);
    EXPECT_EQ(Find<QLabel>("lblLegend")->text(),
              QStringLiteral("Note: the first data column contains selection requirements only."));
    EXPECT_TRUE(Shown("lblLegend"));
    view.setProperty("RowsFrozen", 2);
    EXPECT_EQ(Find<QLabel>("lblLegend")->text(),
              QStringLiteral("Note: the first data row contains selection requirements only."));
    view.setProperty("RowsFrozen", 0);
    view.setProperty("ColsFrozen", 0);
    EXPECT_FALSE(Shown("lblLegend"));
}

TEST_F(SelectorTest, FrozenCountsSetWhileTransposedHoldAtOnceAndAfterActivation)
{
    view.setProperty("RowsFrozen", 1);
    view.setProperty("ColsFrozen", 2);
    ShowSelector();
    Click("btnTranspose");
    EXPECT_EQ(Frozen(), "1 x 2");
    view.setProperty("RowsFrozen", 3);
    EXPECT_EQ(Frozen(), "1 x 3");
    view.IToolUI_Activate();
    EXPECT_EQ(Frozen(), "2 x 3");
}

} // namespace schedules
