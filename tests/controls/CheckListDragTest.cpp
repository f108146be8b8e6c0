#include "controls/lists/CheckListDrag.h"

#include "controls/ShownCheckList.h"

namespace schedules::testing {

namespace {

/// A drag from row 1 to row 3 that has started.
struct Dragged : ShownCheckList
{
    Dragged() : ShownCheckList(NumberedEntries(6))
    {
        list->SetCurrentRow(1);
        Drag(1, 3);
        EXPECT_EQ(Told(), QStringLiteral("clicked"));
        EXPECT_EQ(list->CurrentRow(), 3);
    }

    /// Expects that nothing is left of it.
    void ExpectCancelled()
    {
        EXPECT_EQ(list->CurrentRow(), 1);
        MoveTo(Middle(4));
        EXPECT_EQ(list->CurrentRow(), 1);
        Release(Middle(4));
        EXPECT_EQ(list->CurrentRow(), 1);
        EXPECT_EQ(Told(), QString());
    }
};

} // namespace

TEST(CheckListDrag, ADropOnAnEntryBelowAsksForItsPlace)
{
    ShownCheckList shown(NumberedEntries(6));
    shown.Drag(1, 4);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked")) << "the press has selected";
    shown.Release(shown.Middle(4));
    EXPECT_EQ(shown.Told(), QStringLiteral("1->4"));
}

TEST(CheckListDrag, ADropOnAnEntryAboveAsksForItsPlace)
{
    ShownCheckList shown(NumberedEntries(6));
    shown.Drag(4, 0);
    shown.Release(shown.Middle(0));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked 4->0"));
}

TEST(CheckListDrag, TheListItselfMovesNothingAndSelectsTheDraggedEntryAgain)
{
    ShownCheckList shown(NumberedEntries(3));
    int selected = -1;
    QObject::connect(shown.list, &CheckList::MoveRequested, &shown.window,
                     [&] { selected = shown.list->CurrentRow(); });
    shown.Drag(0, 2);
    shown.Release(shown.Middle(2));
    EXPECT_EQ(selected, 0) << "before the owner is asked";
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("> [ ] Entry 1\n"
                                                 "  [ ] Entry 2\n"
                                                 "  [ ] Entry 3"));
}

TEST(CheckListDrag, TheOwnerMovesTheEntryWhichStaysSelected)
{
    ShownCheckList shown(NumberedEntries(3));
    QObject::connect(shown.list, &CheckList::MoveRequested, shown.list, &CheckList::MoveEntry);
    shown.Drag(0, 2);
    shown.Release(shown.Middle(2));
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("  [ ] Entry 2\n"
                                                 "  [ ] Entry 3\n"
                                                 "> [ ] Entry 1"));
}

TEST(CheckListDrag, SelectsTheEntryUnderTheMouseWithoutTelling)
{
    ShownCheckList shown(NumberedEntries(6));
    shown.Press(shown.Middle(1));
    shown.Told();
    for (const int row : {3, 5, 0, 1}) {
        shown.MoveTo(shown.Middle(row));
        EXPECT_EQ(shown.list->CurrentRow(), row);
    }
    shown.Release(shown.Middle(1));
    EXPECT_EQ(shown.Told(), QString()) << "the place has not changed";
}

TEST(CheckListDrag, StartsAtThePlatformsDragDistance)
{
    ShownCheckList shown(NumberedEntries(6));
    const int distance = QApplication::startDragDistance();
    const QPoint edge(shown.Middle(1).x(), shown.Place(1).bottom());
    shown.Press(edge);
    shown.MoveTo(edge + QPoint(0, distance - 1));
    EXPECT_EQ(shown.list->CurrentRow(), 1);
    shown.MoveTo(edge + QPoint(0, distance));
    EXPECT_EQ(shown.list->CurrentRow(), 2);
    shown.Release(edge + QPoint(0, distance));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked 1->2"));
}

TEST(CheckListDrag, ReleasedWithinThatDistanceItIsAClick)
{
    ShownCheckList shown(NumberedEntries(6));
    const QPoint edge(shown.Middle(1).x(), shown.Place(1).bottom());
    shown.Press(edge);
    shown.Release(edge + QPoint(0, QApplication::startDragDistance() - 1));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
    EXPECT_EQ(shown.list->CurrentRow(), 1);
}

TEST(CheckListDrag, BelowTheLastEntryItsPlaceIsMeant)
{
    ShownCheckList shown(NumberedEntries(3));
    const QPoint below(shown.Middle(0).x(), shown.Place(2).bottom() + 15);
    shown.Press(shown.Middle(0));
    shown.MoveTo(below);
    EXPECT_EQ(shown.list->CurrentRow(), 2);
    shown.Release(below);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked 0->2"));
}

TEST(CheckListDrag, TheReleaseCountsWhereItIsNotWhereTheMouseWasLastSeen)
{
    Dragged shown;
    shown.Release(shown.Middle(5));
    EXPECT_EQ(shown.Told(), QStringLiteral("1->5"));
}

TEST(CheckListDrag, AMarkIsNeverDraggedAndADragTogglesNone)
{
    ShownCheckList shown(NumberedEntries(6));
    const QString before = Drawn(*shown.list);
    shown.Press(shown.Mark(1));
    shown.MoveTo(shown.Mark(3));
    EXPECT_EQ(shown.list->CurrentRow(), -1);
    shown.Release(shown.Mark(3));
    EXPECT_EQ(Drawn(*shown.list), before);
    shown.Press(shown.Middle(1));
    shown.MoveTo(shown.Mark(3));
    shown.Release(shown.Mark(3));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked 1->3"));
    EXPECT_EQ(Drawn(*shown.list).count(QStringLiteral("[x]")), 0);
}

TEST(CheckListDrag, DoesNotStartWhileMovingIsOff)
{
    ShownCheckList shown(NumberedEntries(6));
    shown.list->SetMovable(false);
    shown.Drag(1, 3);
    EXPECT_EQ(shown.list->CurrentRow(), 1);
    shown.Release(shown.Middle(3));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
}

TEST(CheckListDrag, DoesNotStartBelowTheEntries)
{
    ShownCheckList shown(NumberedEntries(2));
    shown.Press({20, shown.Place(1).bottom() + 10});
    shown.MoveTo(shown.Middle(0));
    shown.Release(shown.Middle(0));
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListDrag, EscapeCancelsItAndReachesNobodyElse)
{
    Dragged shown;
    QKeyEvent before(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
    before.ignore();
    QApplication::sendEvent(shown.list, &before);
    EXPECT_TRUE(before.isAccepted());
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(shown.list, &escape);
    EXPECT_TRUE(escape.isAccepted());
    shown.ExpectCancelled();
}

TEST(CheckListDrag, OtherKeysWaitUntilItEnds)
{
    Dragged shown;
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Space, Qt::Key_E})
        shown.Key(key);
    shown.Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(shown.list->CurrentRow(), 3);
    EXPECT_EQ(shown.Told(), QString());
    shown.Release(shown.Middle(3));
    EXPECT_EQ(shown.Told(), QStringLiteral("1->3"));
}

TEST(CheckListDrag, AReleaseOutsideCancelsIt)
{
    for (const QPoint outside : {QPoint(-20, 30), QPoint(300, 30), QPoint(30, -20), QPoint(30, 400)}) {
        Dragged shown;
        shown.MoveTo(outside);
        EXPECT_EQ(shown.list->CurrentRow(), 1) << "which is shown while the mouse is there";
        shown.Release(outside);
        EXPECT_EQ(shown.list->CurrentRow(), 1);
        EXPECT_EQ(shown.Told(), QString());
    }
}

TEST(CheckListDrag, GoesOnWhenTheMouseComesBack)
{
    Dragged shown;
    shown.MoveTo({-20, 30});
    shown.MoveTo(shown.Middle(2));
    EXPECT_EQ(shown.list->CurrentRow(), 2);
    shown.Release(shown.Middle(2));
    EXPECT_EQ(shown.Told(), QStringLiteral("1->2"));
}

TEST(CheckListDrag, LosingTheFocusCancelsIt)
{
    Dragged shown;
    shown.button->setFocus();
    shown.ExpectCancelled();
}

TEST(CheckListDrag, DisablingCancelsIt)
{
    Dragged shown;
    shown.list->setEnabled(false);
    EXPECT_EQ(shown.list->CurrentRow(), 1);
    shown.list->setEnabled(true);
    shown.ExpectCancelled();
}

TEST(CheckListDrag, DisablingItsWindowCancelsIt)
{
    Dragged shown;
    shown.window.setEnabled(false);
    EXPECT_EQ(shown.list->CurrentRow(), 1);
    shown.window.setEnabled(true);
    shown.ExpectCancelled();
}

TEST(CheckListDrag, HidingCancelsIt)
{
    Dragged shown;
    shown.list->hide();
    EXPECT_EQ(shown.list->CurrentRow(), 1);
    shown.list->show();
    shown.ExpectCancelled();
}

TEST(CheckListDrag, SwitchingMovingOffCancelsIt)
{
    Dragged shown;
    shown.list->SetMovable(false);
    shown.ExpectCancelled();
}

TEST(CheckListDrag, NarrowingCancelsIt)
{
    Dragged shown;
    shown.list->ShowOnly(QStringLiteral("Entry"));
    shown.ExpectCancelled();
}

TEST(CheckListDrag, ClearingEndsIt)
{
    Dragged shown;
    shown.list->Clear();
    EXPECT_EQ(shown.list->CurrentRow(), -1);
    Fill(*shown.list, NumberedEntries(6));
    shown.MoveTo(shown.Middle(4));
    shown.Release(shown.Middle(4));
    EXPECT_EQ(shown.list->CurrentRow(), -1);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListDrag, MovingAnEntryByCodeCancelsIt)
{
    Dragged shown;
    shown.list->MoveEntry(5, 4);
    shown.ExpectCancelled();
}

TEST(CheckListDrag, SelectingByCodeEndsItWithThatSelection)
{
    Dragged shown;
    shown.list->SetCurrentRow(5);
    shown.MoveTo(shown.Middle(2));
    shown.Release(shown.Middle(2));
    EXPECT_EQ(shown.list->CurrentRow(), 5);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListDrag, AMoveWithoutTheButtonMeansThatTheReleaseWasMissed)
{
    Dragged shown;
    const QPointF point = shown.Middle(4);
    QMouseEvent move(QEvent::MouseMove, point, shown.list->viewport()->mapToGlobal(point), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(shown.list->viewport(), &move);
    shown.ExpectCancelled();
}

TEST(CheckListDrag, TheListMayBeDeletedMeanwhile)
{
    Dragged shown;
    shown.MoveTo({shown.Middle(0).x(), 1});
    delete shown.list;
    QTest::mouseMove(&shown.window, {50, 50});
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListDrag, TheReceiverMayDeleteTheList)
{
    Dragged shown;
    const QPointer<CheckList> alive(shown.list);
    QObject::connect(shown.list, &CheckList::MoveRequested, &shown.window, [&] { delete shown.list; });
    shown.Release(shown.Middle(3));
    EXPECT_TRUE(alive.isNull());
}

} // namespace schedules::testing
