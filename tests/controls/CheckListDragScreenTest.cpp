// What a drag in a check list paints and scrolls.

#include "controls/ShownCheckList.h"

namespace schedules::testing {

namespace {

QImage Grabbed(const ShownCheckList& shown)
{
    return shown.list->viewport()->grab().toImage();
}

/// Whether a row of pixels, the outermost ones left aside, is of the color of texts.
bool HasLineAt(const QImage& image, int y)
{
    const QRgb line = QApplication::palette().color(QPalette::Text).rgb();
    for (int x = 2; x < image.width() - 2; ++x) {
        if (image.pixel(x, y) != line)
            return false;
    }
    return true;
}

} // namespace

TEST(CheckListDragScreen, ALineShowsWhereADraggedEntryWouldLand)
{
    ShownCheckList shown(NumberedEntries(6));
    shown.Drag(2, 4);
    EXPECT_TRUE(HasLineAt(Grabbed(shown), shown.Place(4).bottom())) << "downwards: behind the entry";
    shown.MoveTo(shown.Middle(0));
    EXPECT_TRUE(HasLineAt(Grabbed(shown), shown.Place(0).top())) << "upwards: before the entry";
    EXPECT_FALSE(HasLineAt(Grabbed(shown), shown.Place(4).bottom()));
    shown.MoveTo(shown.Middle(2));
    EXPECT_FALSE(HasLineAt(Grabbed(shown), shown.Place(2).top())) << "its own place";
    EXPECT_FALSE(HasLineAt(Grabbed(shown), shown.Place(2).bottom()));
}

TEST(CheckListDragScreen, TheDraggedEntryKeepsAFrame)
{
    ShownCheckList shown(NumberedEntries(6));
    shown.list->SetCurrentRow(4);
    const QImage before = Grabbed(shown).copy(shown.Place(1));
    shown.Drag(1, 4);
    const QImage dragged = Grabbed(shown).copy(shown.Place(1));
    EXPECT_NE(dragged, before);
    const QRect inside = before.rect().adjusted(1, 1, -1, -1);
    EXPECT_EQ(dragged.copy(inside), before.copy(inside));
}

TEST(CheckListDragScreen, NothingIsPaintedOfItWhenItHasEnded)
{
    ShownCheckList shown(NumberedEntries(6));
    shown.list->SetCurrentRow(1);
    const QImage before = Grabbed(shown);
    shown.Drag(1, 4);
    shown.Key(Qt::Key_Escape);
    EXPECT_EQ(Grabbed(shown), before);
}

TEST(CheckListDragScreen, NearTheLowerEdgeTheListScrollsToItsEnd)
{
    ShownCheckList shown(NumberedEntries(20));
    const QPoint edge(shown.Middle(1).x(), shown.list->viewport()->height() - 2);
    shown.Press(shown.Middle(1));
    shown.MoveTo(edge);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.list->CurrentRow() == 19; }));
    shown.Release(edge);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked 1->19"));
}

TEST(CheckListDragScreen, NearTheUpperEdgeTheListScrollsToItsStart)
{
    ShownCheckList shown(NumberedEntries(20));
    shown.list->verticalScrollBar()->setValue(10);
    const QPoint edge(shown.Middle(12).x(), 1);
    shown.Press(shown.Middle(12));
    shown.MoveTo(edge);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.list->CurrentRow() == 0; }));
    shown.Release(edge);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked 12->0"));
}

TEST(CheckListDragScreen, ScrollingStopsAwayFromTheEdgesAndWhenItEnds)
{
    const auto isScrolling = [](const ShownCheckList& shown) {
        const int top = shown.TopRow();
        return QTest::qWaitFor([&] { return shown.TopRow() != top; }, 200);
    };
    ShownCheckList shown(NumberedEntries(500));
    const QPoint edge(shown.Middle(1).x(), shown.list->viewport()->height() - 2);
    shown.Press(shown.Middle(1));
    shown.MoveTo(edge);
    EXPECT_TRUE(isScrolling(shown));
    shown.MoveTo({edge.x(), edge.y() / 2});
    EXPECT_FALSE(isScrolling(shown));
    shown.MoveTo(edge);
    EXPECT_TRUE(isScrolling(shown));
    shown.Key(Qt::Key_Escape);
    EXPECT_FALSE(isScrolling(shown));
    EXPECT_TRUE(shown.list->viewport()->rect().contains(shown.Place(1))) << "the dragged entry is seen again";
}

TEST(CheckListDragScreen, ADropAfterScrollingScrollsNoFurther)
{
    ShownCheckList shown(NumberedEntries(500));
    QObject::connect(shown.list, &CheckList::MoveRequested, shown.list, &CheckList::MoveEntry);
    const QPoint edge(shown.Middle(1).x(), shown.list->viewport()->height() - 2);
    shown.Press(shown.Middle(1));
    shown.MoveTo(edge);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.TopRow() > 5; }));
    shown.MoveTo({edge.x(), edge.y() / 2});
    const int top = shown.TopRow();
    shown.Release({edge.x(), edge.y() / 2});
    EXPECT_EQ(shown.TopRow(), top);
    EXPECT_EQ(shown.list->Id(shown.list->CurrentRow()), 2);
}

} // namespace schedules::testing
