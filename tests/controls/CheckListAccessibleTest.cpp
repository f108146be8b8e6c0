// Check lists for assistive programs and in languages that run from right to left.

#include "controls/ShownCheckList.h"

#include <QAccessible>

namespace schedules::testing {

namespace {

const QString kPump = QStringLiteral("[x] Design\n"
                                     "[ ] Motor\n"
                                     "[-] Vendor");

QAccessibleInterface* EntryOf(const ShownCheckList& shown, int row)
{
    return QAccessible::queryAccessibleInterface(shown.list)->child(row);
}

} // namespace

TEST(CheckListAccessible, IsAListOfItsEntries)
{
    const ShownCheckList shown(kPump);
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(shown.list);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::List);
    ASSERT_EQ(list->childCount(), 3);
    EXPECT_EQ(EntryOf(shown, 0)->role(), QAccessible::ListItem);
    EXPECT_EQ(EntryOf(shown, 0)->text(QAccessible::Name), QStringLiteral("Design"));
    EXPECT_EQ(EntryOf(shown, 2)->text(QAccessible::Name), QStringLiteral("Vendor"));
}

TEST(CheckListAccessible, TellsWhatIsCheckedSelectedAndEnabled)
{
    const ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(1);
    EXPECT_TRUE(EntryOf(shown, 0)->state().checked);
    EXPECT_FALSE(EntryOf(shown, 1)->state().checked);
    EXPECT_FALSE(EntryOf(shown, 2)->state().checked);
    EXPECT_TRUE(EntryOf(shown, 1)->state().selected);
    EXPECT_FALSE(EntryOf(shown, 0)->state().selected);
    shown.list->SetChecked(1, true);
    EXPECT_TRUE(EntryOf(shown, 1)->state().checked);
}

TEST(CheckListAccessible, FollowsAMove)
{
    const ShownCheckList shown(kPump);
    shown.list->MoveEntry(0, 2);
    EXPECT_EQ(EntryOf(shown, 2)->text(QAccessible::Name), QStringLiteral("Design"));
    EXPECT_TRUE(EntryOf(shown, 2)->state().checked);
    EXPECT_FALSE(EntryOf(shown, 0)->state().checked);
}

TEST(CheckListAccessible, AnAssistiveProgramThatSelectsIsAUser)
{
    ShownCheckList shown(kPump);
    QAccessibleTableInterface* const table = QAccessible::queryAccessibleInterface(shown.list)->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_TRUE(table->selectRow(1));
    EXPECT_EQ(shown.list->CurrentRow(), 1);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked"));
}

TEST(CheckListRightToLeft, TheMarkIsOnTheRightAndIsClickedThere)
{
    ShownCheckList shown(kPump);
    const QPoint left = shown.Mark(1);
    shown.list->setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(shown.Mark(1).x(), shown.Place(1).center().x());
    shown.Click(left);
    EXPECT_FALSE(shown.list->Checked(1));
    shown.Click(shown.Mark(1));
    EXPECT_TRUE(shown.list->Checked(1));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked clicked"));
}

TEST(CheckListRightToLeft, DragsAsEver)
{
    ShownCheckList shown(kPump);
    shown.list->setLayoutDirection(Qt::RightToLeft);
    shown.Drag(0, 2);
    shown.Release(shown.Middle(2));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked 0->2"));
}

} // namespace schedules::testing
