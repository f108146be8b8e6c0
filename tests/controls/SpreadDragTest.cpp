#include "controls/grid/SpreadDrag.h"

#include "controls/ShownView.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

/// A view whose column 1 sweeps, and what it told, as a sentence: "+" starts, "x" is a click, "!" a moved active cell.
struct SweepingView : ShownView
{
    explicit SweepingView(std::unique_ptr<Sheet> shown) : ShownView(std::move(shown))
    {
        view.SetSweeps([this](Cell cell) {
            asked.append(Named(cell));
            return cell.column == Column(1);
        });
        Note(&SpreadView::SweepStarted, u'+');
        Note(&SpreadView::SweptOver, u' ');
        Note(&SpreadView::CellClicked, u'x');
        Note(&SpreadView::CellDoubleClicked, u'X');
        Note(&SpreadView::ActiveCellMoved, u'!');
    }

    static QString Named(Cell cell) { return QStringLiteral("%1,%2").arg(cell.column.Value()).arg(cell.row.Value()); }

    void Note(void (SpreadView::*signal)(Cell), QChar mark)
    {
        QObject::connect(&view, signal, &view, [this, mark](Cell cell) { told.append(mark + Named(cell)); });
    }

    QString Told() { return std::exchange(told, {}).join(u' ').simplified(); }

    QStringList told;
    QStringList asked;
};

} // namespace

TEST(SpreadSweep, StartsAtThePressAndMakesTheCellTheActiveOne)
{
    SweepingView shown(EmptySheet(3, 10));
    shown.Press(shown.Middle(At(1, 3)));
    EXPECT_EQ(shown.Told(), QStringLiteral("+1,3"));
    EXPECT_EQ(shown.sheet->ActiveCell(), At(1, 3));
    shown.Release(shown.Middle(At(1, 3)));
    EXPECT_EQ(shown.Told(), QString()) << "neither a click nor a move";
}

TEST(SpreadSweep, IsAskedForAtEachPressOfTheLeftButtonOnDataWithoutShift)
{
    SweepingView shown(EmptySheet(3, 10));
    shown.Click(At(1, 2));
    shown.Click(At(2, 2));
    shown.Click(At(1, 4), Qt::ShiftModifier);
    shown.Click(At(1, 4), Qt::NoModifier, Qt::RightButton);
    shown.Click(At(1, 0));
    shown.Click(At(0, 1));
    EXPECT_EQ(shown.asked.join(u' '), QStringLiteral("1,2 2,2"));
}

TEST(SpreadSweep, OtherCellsAreClickedAndSelectedAsEver)
{
    SweepingView shown(EmptySheet(3, 10));
    shown.Click(At(2, 2));
    EXPECT_EQ(shown.Told(), QStringLiteral("!2,2 x2,2"));
    shown.Press(shown.Middle(At(2, 2)));
    shown.MoveTo(shown.Middle(At(1, 4)));
    shown.Release(shown.Middle(At(1, 4)));
    EXPECT_EQ(shown.Told(), QString());
    EXPECT_EQ(shown.view.Selection(), Block(1, 2, 2, 4));
}

TEST(SpreadSweep, TellsEachCellThatTheMouseComesTo)
{
    SweepingView shown(EmptySheet(3, 10));
    const QPoint start = shown.Middle(At(1, 3));
    shown.Press(start);
    shown.MoveTo(start + QPoint(1, 1));
    EXPECT_EQ(shown.Told(), QStringLiteral("+1,3")) << "it has not left the cell";
    shown.MoveTo(shown.Middle(At(1, 4)));
    EXPECT_EQ(shown.Told(), QStringLiteral("1,4"));
    shown.MoveTo(start);
    EXPECT_EQ(shown.Told(), QStringLiteral("1,3")) << "back again";
    shown.Release(start);
    shown.MoveTo(shown.Middle(At(1, 5)));
    EXPECT_EQ(shown.Told(), QString()) << "the button is up";
}

TEST(SpreadSweep, AFastMouseLeavesNoGaps)
{
    SweepingView shown(EmptySheet(3, 10));
    shown.sheet->SetHidden(Row(3), true);
    shown.Press(shown.Middle(At(1, 1)));
    shown.MoveTo(shown.Middle(At(2, 5)));
    EXPECT_EQ(shown.Told(), QStringLiteral("+1,1 2,1 1,2 2,2 1,4 2,4 1,5 2,5")) << "row 3 is hidden";
    shown.MoveTo(shown.Middle(At(2, 2)));
    EXPECT_EQ(shown.Told(), QStringLiteral("2,2 2,4"));
    shown.Release(shown.Middle(At(2, 2)));
}

TEST(SpreadSweep, GoesByTheOrderShown)
{
    SweepingView shown(EmptySheet(2, 4));
    shown.sheet->SetRowOrder({4, 2, 3, 1});
    shown.Press(shown.Middle(At(1, 4)));
    shown.MoveTo(shown.Middle(At(1, 3)));
    EXPECT_EQ(shown.Told(), QStringLiteral("+1,4 1,2 1,3"));
    shown.Release(shown.Middle(At(1, 3)));
}

TEST(SpreadSweep, SelectsNothingMeanwhile)
{
    SweepingView shown(EmptySheet(3, 10));
    shown.Press(shown.Middle(At(1, 1)));
    QSignalSpy changes(&shown.view, &SpreadView::SelectionChanged);
    shown.MoveTo(shown.Middle(At(2, 5)));
    shown.Release(shown.Middle(At(2, 5)));
    EXPECT_EQ(shown.view.Selection(), Block(1, 1, 1, 1));
    EXPECT_EQ(changes.count(), 0);
}

TEST(SpreadSweep, BeyondTheEdgeItScrollsOnAndMissesNothing)
{
    SweepingView shown(EmptySheet(1, 60));
    shown.Press(shown.Middle(At(1, 1)));
    shown.MoveTo({150, shown.view.viewport()->height() + 60});
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.told.contains(QStringLiteral(" 1,60")); }));
    QStringList everyRow{QStringLiteral("+1,1")};
    for (int row = 2; row <= 60; ++row)
        everyRow.append(QStringLiteral("1,%1").arg(row));
    EXPECT_EQ(shown.Told(), everyRow.join(u' '));
    shown.Release({150, shown.view.viewport()->height() + 60});
}

TEST(SpreadSweep, HeadersAreNotSweptOver)
{
    SweepingView shown(EmptySheet(3, 10));
    shown.Press(shown.Middle(At(1, 2)));
    shown.MoveTo(shown.Middle(At(0, 0)));
    EXPECT_EQ(shown.Told(), QStringLiteral("+1,2 1,1"));
    shown.Release(shown.Middle(At(0, 0)));
}

TEST(SpreadSweep, ADoubleClickSweepsTwice)
{
    SweepingView shown(EmptySheet(3, 10));
    shown.Click(At(1, 2));
    QTest::mouseDClick(shown.view.viewport(), Qt::LeftButton, {}, shown.Middle(At(1, 2)));
    shown.Release(shown.Middle(At(1, 2)));
    EXPECT_EQ(shown.Told(), QStringLiteral("+1,2 +1,2"));
}

TEST(SpreadSweep, ACellThatIsCutOffComesWhollyIntoViewAfterwards)
{
    SweepingView shown(EmptySheet(3, 100));
    shown.view.verticalScrollBar()->setValue(7);
    shown.Press(shown.Middle(At(1, 1)));
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 7) << "not beneath the mouse";
    shown.Release(shown.Middle(At(1, 1)));
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 0);
}

TEST(SpreadSweep, EndsWhenTheViewIsHidden)
{
    SweepingView shown(EmptySheet(3, 10));
    const QPoint other = shown.Middle(At(1, 4));
    shown.Press(shown.Middle(At(1, 2)));
    shown.view.hide();
    shown.MoveTo(other);
    shown.view.show();
    shown.MoveTo(other);
    shown.Release(other);
    EXPECT_EQ(shown.Told(), QStringLiteral("+1,2"));
}

TEST(SpreadSweep, OutlivesASlotThatTakesTheSheetAway)
{
    SweepingView shown(EmptySheet(3, 10));
    QObject::connect(&shown.view, &SpreadView::SweptOver, &shown.view, [&] { shown.view.SetSheet(nullptr); });
    const QPoint other = shown.Middle(At(1, 4));
    shown.Press(shown.Middle(At(1, 2)));
    shown.MoveTo(other);
    shown.MoveTo(other + QPoint(0, 20));
    shown.Release(other);
    EXPECT_EQ(shown.Told(), QStringLiteral("+1,2 1,3 1,4"));
}

} // namespace schedules::testing
