// What keys and clicks do with a check list.

#include "controls/ShownCheckList.h"
#include "controls/lists/CheckList.h"

namespace schedules::testing {

namespace {

const QString kPump = QStringLiteral("[x] Design\n"
                                     "[ ] Motor\n"
                                     "[-] Vendor\n"
                                     "[x] Remarks");

} // namespace

TEST(CheckListClicks, AClickSelectsAndTellsItOnce)
{
    ShownCheckList shown(kPump);
    shown.Click(shown.Middle(1));
    EXPECT_EQ(shown.list->CurrentRow(), 1);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
}

TEST(CheckListClicks, AClickOnTheSelectedEntryIsToldToo)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(1);
    shown.Click(shown.Middle(1));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
}

TEST(CheckListClicks, AClickBesideTheMarkLeavesItAlone)
{
    ShownCheckList shown(kPump);
    shown.Click(shown.Middle(1));
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("  [x] Design\n"
                                                 "> [ ] Motor\n"
                                                 "  [-] Vendor\n"
                                                 "  [x] Remarks"));
}

TEST(CheckListClicks, AClickOnTheMarkOfAnotherEntrySelectsAndChecksBeforeItIsToldOnce)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(0);
    QString seen;
    QObject::connect(shown.list, &CheckList::Clicked, &shown.window, [&] { seen = Drawn(*shown.list); });
    shown.Click(shown.Mark(1));
    EXPECT_EQ(seen, QStringLiteral("  [x] Design\n"
                                   "> [x] Motor\n"
                                   "  [-] Vendor\n"
                                   "  [x] Remarks"));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
}

TEST(CheckListClicks, AClickOnTheMarkOfTheSelectedEntryChecksIt)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(0);
    shown.Click(shown.Mark(0));
    EXPECT_FALSE(shown.list->Checked(0));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
}

TEST(CheckListClicks, AClickOnAMarkThatCannotBeCheckedSelectsOnly)
{
    ShownCheckList shown(kPump);
    shown.Click(shown.Mark(2));
    EXPECT_EQ(shown.list->CurrentRow(), 2);
    EXPECT_EQ(MarkOf(*shown.list, 2), QStringLiteral("[-]"));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
}

TEST(CheckListClicks, BothClicksOfADoubleClickOnAMarkCount)
{
    ShownCheckList shown(kPump);
    shown.Click(shown.Mark(1));
    QTest::mouseDClick(shown.list->viewport(), Qt::LeftButton, {}, shown.Mark(1));
    shown.Release(shown.Mark(1));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked clicked"));
    EXPECT_FALSE(shown.list->Checked(1));
}

TEST(CheckListClicks, AMarkIsCheckedWhenTheButtonIsReleasedOnIt)
{
    ShownCheckList shown(kPump);
    shown.Press(shown.Mark(1));
    EXPECT_FALSE(shown.list->Checked(1));
    shown.Release(shown.Mark(1));
    EXPECT_TRUE(shown.list->Checked(1));
}

TEST(CheckListClicks, ReleasedElsewhereAMarkIsNotClicked)
{
    ShownCheckList shown(kPump);
    const QString before = Drawn(*shown.list);
    for (const QPoint elsewhere : {shown.Mark(0), shown.Middle(1), shown.Mark(3)}) {
        shown.Press(shown.Mark(1));
        shown.Release(elsewhere);
        EXPECT_EQ(Drawn(*shown.list), before);
        EXPECT_EQ(shown.Told(), QString());
    }
}

TEST(CheckListClicks, AClickBelowTheEntriesDoesNothing)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(1);
    shown.Click({20, shown.Place(3).bottom() + 10});
    EXPECT_EQ(shown.list->CurrentRow(), 1);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListClicks, OtherButtonsDoNothing)
{
    ShownCheckList shown(kPump);
    shown.Click(shown.Middle(1), Qt::RightButton);
    shown.Click(shown.Mark(1), Qt::RightButton);
    EXPECT_EQ(shown.list->CurrentRow(), -1);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListClicks, ModifiersNeverTakeTheSelectionAway)
{
    ShownCheckList shown(kPump);
    QTest::mouseClick(shown.list->viewport(), Qt::LeftButton, Qt::ControlModifier, shown.Middle(1));
    QTest::mouseClick(shown.list->viewport(), Qt::LeftButton, Qt::ControlModifier, shown.Middle(1));
    shown.Key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(shown.list->CurrentRow(), 1);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked clicked"));
}

TEST(CheckListClicks, APartlyVisibleEntryDoesNotMoveAwayFromTheMouse)
{
    ShownCheckList shown(NumberedEntries(50), {200, 155});
    const int bottom = shown.list->viewport()->height() - 1;
    shown.Click({shown.Middle(0).x(), bottom});
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
    EXPECT_EQ(shown.TopRow(), 0);
}

TEST(CheckListClicks, ADisabledListDoesNotReact)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(0);
    shown.list->setEnabled(false);
    const QString before = Drawn(*shown.list);
    shown.Click(shown.Middle(1));
    shown.Click(shown.Mark(1));
    shown.Key(Qt::Key_Down);
    shown.Key(Qt::Key_Space);
    shown.Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Drawn(*shown.list), before);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListClicks, TheReceiverMayDeleteTheList)
{
    for (const auto act : {+[](ShownCheckList& shown) { shown.Press(shown.Middle(1)); },
                           +[](ShownCheckList& shown) { shown.Click(shown.Mark(1)); },
                           +[](ShownCheckList& shown) { shown.Key(Qt::Key_Down); },
                           +[](ShownCheckList& shown) { shown.Key(Qt::Key_Space); }})
    {
        ShownCheckList shown(kPump);
        const QPointer<CheckList> alive(shown.list);
        QObject::connect(shown.list, &CheckList::Clicked, &shown.window, [&] { delete shown.list; });
        act(shown);
        EXPECT_TRUE(alive.isNull());
    }
}

TEST(CheckListKeys, ArrowsSelectAndTellEachStepOnce)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(0);
    shown.Key(Qt::Key_Down);
    EXPECT_EQ(shown.list->CurrentRow(), 1);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
    shown.Key(Qt::Key_Up);
    EXPECT_EQ(shown.list->CurrentRow(), 0);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
}

TEST(CheckListKeys, AtTheEndsArrowsDoNothing)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(0);
    shown.Key(Qt::Key_Up);
    shown.list->SetCurrentRow(3);
    shown.Key(Qt::Key_Down);
    EXPECT_EQ(shown.list->CurrentRow(), 3);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListKeys, WithNothingSelectedTheFirstKeySelectsTheFirstEntry)
{
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp}) {
        ShownCheckList shown(kPump);
        shown.Key(key);
        EXPECT_EQ(shown.list->CurrentRow(), 0) << key;
        EXPECT_EQ(shown.Told(), QStringLiteral("clicked")) << key;
    }
}

TEST(CheckListKeys, HomeEndAndPagesSelect)
{
    ShownCheckList shown(NumberedEntries(50));
    shown.Key(Qt::Key_End);
    EXPECT_EQ(shown.list->CurrentRow(), 49);
    shown.Key(Qt::Key_Home);
    EXPECT_EQ(shown.list->CurrentRow(), 0);
    shown.Key(Qt::Key_PageDown);
    const int page = shown.list->CurrentRow();
    EXPECT_GT(page, 2);
    shown.Key(Qt::Key_PageUp);
    EXPECT_LT(shown.list->CurrentRow(), page);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked clicked clicked clicked"));
}

TEST(CheckListKeys, TypingSelectsTheEntryThatStartsSo)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(0);
    QTest::keyClicks(shown.list, QStringLiteral("re"));
    EXPECT_EQ(shown.list->CurrentRow(), 3);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked")) << "the second letter changes nothing";
}

TEST(CheckListKeys, SpaceChecksTheSelectedEntryBeforeItIsTold)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(1);
    bool seen = false;
    QObject::connect(shown.list, &CheckList::Clicked, &shown.window, [&] { seen = shown.list->Checked(1); });
    shown.Key(Qt::Key_Space);
    EXPECT_TRUE(seen);
    shown.Key(Qt::Key_Space);
    EXPECT_FALSE(shown.list->Checked(1));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked clicked"));
}

TEST(CheckListKeys, SpaceOnAMarkThatCannotBeCheckedDoesNothing)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(2);
    shown.Key(Qt::Key_Space);
    EXPECT_EQ(MarkOf(*shown.list, 2), QStringLiteral("[-]"));
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListKeys, WithNothingSelectedSpaceSelectsAndChecksTheEntryWithTheFocus)
{
    ShownCheckList shown(QStringLiteral("[ ] Design\n[ ] Motor"));
    shown.Key(Qt::Key_Space);
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("> [x] Design\n  [ ] Motor"));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
}

TEST(CheckListKeys, KeysOnAnEmptyListDoNothing)
{
    ShownCheckList shown({});
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_End, Qt::Key_PageDown})
        shown.Key(key);
    shown.Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListKeys, AltAndAnArrowAskForAMoveAndChangeNothing)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(1);
    const QString before = Drawn(*shown.list);
    shown.Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(shown.Told(), QStringLiteral("1->2"));
    shown.Key(Qt::Key_Up, Qt::AltModifier | Qt::KeypadModifier);
    EXPECT_EQ(shown.Told(), QStringLiteral("1->0"));
    EXPECT_EQ(Drawn(*shown.list), before);
}

TEST(CheckListKeys, TheFirstEntryIsNotAskedToMoveUpNorTheLastDown)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(0);
    shown.Key(Qt::Key_Up, Qt::AltModifier);
    shown.list->SetCurrentRow(3);
    shown.Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(shown.list->CurrentRow(), 3);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListKeys, WithNothingSelectedNoMoveIsAskedFor)
{
    ShownCheckList shown(kPump);
    shown.Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListKeys, NoMoveIsAskedForWhileMovingIsOff)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(1);
    shown.list->SetMovable(false);
    shown.Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(shown.list->CurrentRow(), 1) << "it does not select either";
    EXPECT_EQ(shown.Told(), QString());
    shown.list->SetMovable(true);
    shown.Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(shown.Told(), QStringLiteral("1->2"));
}

TEST(CheckListKeys, AltWithOtherModifiersAsksForNoMove)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(1);
    shown.Key(Qt::Key_Down, Qt::AltModifier | Qt::ControlModifier);
    EXPECT_FALSE(shown.Told().contains(u'>'));
}

TEST(CheckListKeys, EscapeAndEnterAreLeftToTheWindow)
{
    ShownCheckList shown(kPump);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(shown.list, &event);
        EXPECT_FALSE(event.isAccepted()) << key;
    }
}

} // namespace schedules::testing
