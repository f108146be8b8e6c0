#include "controls/lists/FilteredList.h"

#include "controls/ShownCheckList.h"

#include <QSignalSpy>

namespace schedules::testing {

namespace {

/// A filtered list on screen.
struct ShownFilteredList
{
    explicit ShownFilteredList(int entries)
    {
        window.resize(220, 300);
        (new QVBoxLayout(&window))->addWidget(filtered);
        Fill(*list, NumberedEntries(entries));
        window.show();
        QApplication::setActiveWindow(&window);
        filtered->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QLineEdit* Line() const { return &filtered->Line(); }
    bool HasLine() const { return Line()->isVisible(); }

    void Type(const QString& text) const
    {
        Line()->setFocus();
        QTest::keyClicks(Line(), text);
    }

    QWidget window;
    CheckList* list = new CheckList;
    FilteredList* filtered = new FilteredList(list);
    QSignalSpy narrowed{filtered, &FilteredList::Narrowed};
};

bool IsAccepted(QWidget* receiver, QEvent::Type type, Qt::Key key)
{
    QKeyEvent event(type, key, Qt::NoModifier);
    event.ignore();
    QApplication::sendEvent(receiver, &event);
    return event.isAccepted();
}

} // namespace

TEST(FilteredList, ShowsTheLineForMoreThan20Entries)
{
    EXPECT_FALSE(ShownFilteredList(0).HasLine());
    EXPECT_FALSE(ShownFilteredList(20).HasLine());
    EXPECT_TRUE(ShownFilteredList(21).HasLine());
}

TEST(FilteredList, ShowsTheLineAboveTheList)
{
    const ShownFilteredList shown(21);
    EXPECT_EQ(shown.list->parentWidget(), shown.filtered);
    EXPECT_LT(shown.Line()->geometry().bottom(), shown.list->geometry().top());
}

TEST(FilteredList, TheLineComesAndGoesWithTheEntries)
{
    const ShownFilteredList shown(20);
    shown.list->AddEntry(QStringLiteral("Flow"), 21, true);
    EXPECT_TRUE(shown.HasLine());
    shown.list->Clear();
    EXPECT_FALSE(shown.HasLine());
}

TEST(FilteredList, TakesAListThatIsFull)
{
    auto* const list = new CheckList;
    Fill(*list, NumberedEntries(21));
    const FilteredList filtered(list);
    EXPECT_FALSE(filtered.Line().isHidden());
}

TEST(FilteredList, TheLineSaysWhatItIsFor)
{
    const ShownFilteredList shown(21);
    EXPECT_EQ(shown.Line()->placeholderText(), QStringLiteral("Filter"));
    EXPECT_EQ(shown.Line()->accessibleName(), QStringLiteral("Filter"));
    EXPECT_TRUE(shown.Line()->isClearButtonEnabled());
}

TEST(FilteredList, TypingNarrowsAndTellsItOnce)
{
    const ShownFilteredList shown(25);
    shown.Type(QStringLiteral("eNTRY 2"));
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("  [ ] Entry 2\n"
                                                 "  [ ] Entry 20\n"
                                                 "  [ ] Entry 21\n"
                                                 "  [ ] Entry 22\n"
                                                 "  [ ] Entry 23\n"
                                                 "  [ ] Entry 24\n"
                                                 "  [ ] Entry 25"));
    EXPECT_TRUE(shown.filtered->IsNarrowed());
    EXPECT_EQ(shown.filtered->property("narrowed"), QVariant(true));
    ASSERT_EQ(shown.narrowed.count(), 1);
    EXPECT_EQ(shown.narrowed.front(), QVariantList{true});
}

TEST(FilteredList, EscapeShowsAllAgainAndTellsIt)
{
    ShownFilteredList shown(25);
    shown.Type(QStringLiteral("25"));
    shown.narrowed.clear();
    EXPECT_TRUE(IsAccepted(shown.Line(), QEvent::ShortcutOverride, Qt::Key_Escape));
    EXPECT_TRUE(IsAccepted(shown.Line(), QEvent::KeyPress, Qt::Key_Escape));
    EXPECT_EQ(shown.Line()->text(), QString());
    EXPECT_EQ(Drawn(*shown.list).count(u'\n'), 24);
    EXPECT_FALSE(shown.filtered->IsNarrowed());
    ASSERT_EQ(shown.narrowed.count(), 1);
    EXPECT_EQ(shown.narrowed.front(), QVariantList{false});
}

TEST(FilteredList, EscapeInAnEmptyLineIsLeftToTheWindow)
{
    const ShownFilteredList shown(25);
    EXPECT_FALSE(IsAccepted(shown.Line(), QEvent::KeyPress, Qt::Key_Escape));
}

TEST(FilteredList, DownGoesToTheList)
{
    const ShownFilteredList shown(25);
    shown.Type(QStringLiteral("5"));
    QTest::keyClick(shown.Line(), Qt::Key_Down);
    EXPECT_TRUE(shown.list->hasFocus());
    QTest::keyClick(shown.list, Qt::Key_Down);
    EXPECT_EQ(shown.list->Text(shown.list->CurrentRow()), QStringLiteral("Entry 5"));
}

TEST(FilteredList, HidingTheLineEmptiesIt)
{
    ShownFilteredList shown(25);
    shown.Type(QStringLiteral("25"));
    shown.list->Clear();
    Fill(*shown.list, NumberedEntries(25));
    EXPECT_EQ(shown.Line()->text(), QString());
    EXPECT_EQ(Drawn(*shown.list).count(u'\n'), 24);
    EXPECT_EQ(shown.narrowed.count(), 2);
}

TEST(FilteredList, AnEntryThatIsFilteredOutStaysTheSelectedOne)
{
    ShownFilteredList shown(25);
    QSignalSpy clicked(shown.list, &CheckList::Clicked);
    shown.list->SetCurrentRow(0);
    shown.Type(QStringLiteral("25"));
    EXPECT_EQ(shown.list->CurrentRow(), 0);
    EXPECT_TRUE(shown.list->isRowHidden(0));
    EXPECT_EQ(clicked.count(), 0);
}

TEST(FilteredList, MovingIsOffWhileNarrowed)
{
    ShownFilteredList shown(25);
    QSignalSpy moves(shown.list, &CheckList::MoveRequested);
    shown.list->SetCurrentRow(4);
    shown.Type(QStringLiteral("5"));
    QTest::keyClick(shown.list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(moves.count(), 0);
    QTest::keyClick(shown.Line(), Qt::Key_Escape);
    QTest::keyClick(shown.list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(moves.count(), 1);
}

TEST(FilteredList, MovingThatTheOwnerSwitchedOffStaysOff)
{
    ShownFilteredList shown(25);
    QSignalSpy moves(shown.list, &CheckList::MoveRequested);
    shown.list->SetCurrentRow(4);
    shown.list->SetMovable(false);
    shown.Type(QStringLiteral("5"));
    QTest::keyClick(shown.Line(), Qt::Key_Escape);
    QTest::keyClick(shown.list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(moves.count(), 0);
}

TEST(FilteredList, TheLineIsDisabledWithTheList)
{
    const ShownFilteredList shown(25);
    shown.list->setEnabled(false);
    EXPECT_FALSE(shown.Line()->isEnabled());
    shown.list->setEnabled(true);
    EXPECT_TRUE(shown.Line()->isEnabled());
}

TEST(FilteredList, TheFocusGoesToTheList)
{
    const ShownFilteredList shown(5);
    EXPECT_TRUE(shown.list->hasFocus());
}

} // namespace schedules::testing
