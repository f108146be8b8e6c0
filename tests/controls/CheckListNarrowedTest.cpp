// A check list that shows only some of its entries.

#include "controls/ShownCheckList.h"
#include "controls/lists/CheckList.h"

namespace schedules::testing {

namespace {

const QString kPump = QStringLiteral("[x] Design\n"
                                     "[ ] Motor\n"
                                     "[-] Vendor\n"
                                     "[x] Remarks");

} // namespace

TEST(CheckListNarrowed, ShowsOnlyWhatContainsTheTextWithoutRegardToCase)
{
    const ShownCheckList shown(kPump);
    shown.list->ShowOnly(QStringLiteral("R"));
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("  [ ] Motor\n"
                                                 "  [-] Vendor\n"
                                                 "  [x] Remarks"));
    shown.list->ShowOnly(QStringLiteral("tor"));
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("  [ ] Motor"));
    shown.list->ShowOnly({});
    EXPECT_EQ(Drawn(*shown.list).count(u'\n'), 3);
}

TEST(CheckListNarrowed, AlsoHidesWhatIsAddedOrRenamedLater)
{
    const ShownCheckList shown(kPump);
    shown.list->ShowOnly(QStringLiteral("mo"));
    shown.list->AddEntry(QStringLiteral("Flow"), 5, true);
    shown.list->AddEntry(QStringLiteral("Mounting"), 6, true);
    shown.list->SetText(0, QStringLiteral("Model"));
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("  [x] Model\n"
                                                 "  [ ] Motor\n"
                                                 "  [x] Mounting"));
}

TEST(CheckListNarrowed, AMoveByCodeKeepsWhatIsHiddenHidden)
{
    const ShownCheckList shown(kPump);
    shown.list->ShowOnly(QStringLiteral("r"));
    shown.list->SetCurrentRow(1);
    shown.list->MoveEntry(1, 0);
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("> [ ] Motor\n"
                                                 "  [-] Vendor\n"
                                                 "  [x] Remarks"));
}

TEST(CheckListNarrowed, AHiddenEntryStaysSelected)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(0);
    shown.list->ShowOnly(QStringLiteral("mot"));
    EXPECT_EQ(shown.list->CurrentRow(), 0);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListNarrowed, ShownWholeAgainTheSelectedEntryIsVisible)
{
    const ShownCheckList shown(NumberedEntries(50));
    shown.list->SetCurrentRow(44);
    shown.list->ShowOnly(QStringLiteral("5"));
    shown.list->verticalScrollBar()->setValue(0);
    shown.list->ShowOnly({});
    EXPECT_TRUE(shown.list->viewport()->rect().contains(shown.Place(44)));
}

TEST(CheckListNarrowed, FromAHiddenEntryArrowsGoToTheNextOneShown)
{
    ShownCheckList shown(NumberedEntries(50));
    shown.list->SetCurrentRow(20);
    shown.list->ShowOnly(QStringLiteral("5"));
    shown.Key(Qt::Key_Down);
    EXPECT_EQ(shown.list->Text(shown.list->CurrentRow()), QStringLiteral("Entry 25"));
    shown.list->SetCurrentRow(20);
    shown.Key(Qt::Key_Up);
    EXPECT_EQ(shown.list->Text(shown.list->CurrentRow()), QStringLiteral("Entry 15"));
    shown.list->SetCurrentRow(0);
    shown.Key(Qt::Key_Up);
    EXPECT_EQ(shown.list->Text(shown.list->CurrentRow()), QStringLiteral("Entry 5")) << "there is none above";
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked clicked clicked"));
}

TEST(CheckListNarrowed, ArrowsSkipHiddenEntries)
{
    const ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(0);
    shown.list->ShowOnly(QStringLiteral("e"));
    shown.Key(Qt::Key_Down);
    EXPECT_EQ(shown.list->CurrentRow(), 2);
}

TEST(CheckListNarrowed, WithAllHiddenKeysDoNothing)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(1);
    shown.list->ShowOnly(QStringLiteral("nothing"));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_Space, Qt::Key_V})
        shown.Key(key);
    EXPECT_EQ(shown.list->CurrentRow(), 1);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListNarrowed, SpaceDoesNotCheckWhatIsHidden)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(1);
    shown.list->ShowOnly(QStringLiteral("des"));
    shown.Key(Qt::Key_Space);
    EXPECT_FALSE(shown.list->Checked(1));
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckListNarrowed, TypingFindsNothingHidden)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(0);
    shown.list->ShowOnly(QStringLiteral("des"));
    QTest::keyClicks(shown.list, QStringLiteral("v"));
    EXPECT_EQ(shown.list->CurrentRow(), 0);
}

TEST(CheckListNarrowed, MovingIsOffAndOnAgainWhenWhole)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(1);
    shown.list->ShowOnly(QStringLiteral("r"));
    shown.Key(Qt::Key_Down, Qt::AltModifier);
    shown.Drag(1, 3);
    shown.Release(shown.Middle(3));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked")) << "the press, and no move";
    shown.list->ShowOnly({});
    shown.Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(shown.Told(), QStringLiteral("1->2"));
}

} // namespace schedules::testing
