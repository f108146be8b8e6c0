#include "controls/ShownView.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWindow>

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

/// What the view told of clicks, in order.
struct ClickedView : ShownView
{
    explicit ClickedView(std::unique_ptr<Sheet> shown) : ShownView(std::move(shown))
    {
        Note(&SpreadView::ActiveCellMoved, QStringLiteral("moved"));
        Note(&SpreadView::CellClicked, QStringLiteral("clicked"));
        Note(&SpreadView::CellDoubleClicked, QStringLiteral("double"));
        Note(&SpreadView::SweepStarted, QStringLiteral("swept"));
    }

    void Note(void (SpreadView::*signal)(Cell), const QString& name)
    {
        QObject::connect(&view, signal, &view, [this, name](Cell cell) {
            told.append(QStringLiteral("%1 %2,%3").arg(name).arg(cell.column.Value()).arg(cell.row.Value()));
        });
    }

    void DoubleClick(Cell cell, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {})
    {
        const QPoint middle = Middle(cell);
        QTest::mouseDClick(view.viewport(), button, modifiers, middle);
        QTest::mouseRelease(view.viewport(), button, modifiers, middle);
    }

    QString Told() { return std::exchange(told, {}).join(QStringLiteral("; ")); }

    QStringList told;
};

/// The points at which a view asked for a menu.
struct MenuView : ShownView
{
    explicit MenuView(std::unique_ptr<Sheet> shown) : ShownView(std::move(shown))
    {
        view.setContextMenuPolicy(Qt::CustomContextMenu);
        QObject::connect(&view, &QWidget::customContextMenuRequested, &view, [this](QPoint at) { asked.append(at); });
    }

    /// The key as the window system tells it; the toolkit then looks for the widget and the point.
    void MenuKey()
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(view.window()->windowHandle(), &event);
    }

    QList<QPoint> asked;
};

} // namespace

TEST(SpreadViewDoubleClick, IsToldOnceAndAfterItsSecondClick)
{
    ClickedView shown(NumberedSheet(5, 5));
    shown.Click(At(2, 3));
    EXPECT_EQ(shown.Told(), QStringLiteral("moved 2,3; clicked 2,3"));
    const QPoint middle = shown.Middle(At(2, 3));
    QTest::mouseDClick(shown.view.viewport(), Qt::LeftButton, {}, middle);
    EXPECT_EQ(shown.Told(), QString()) << "the button is still down";
    shown.Release(middle);
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked 2,3; double 2,3"));
    shown.Click(At(2, 3));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked 2,3")) << "a third click is a single one";
}

TEST(SpreadViewDoubleClick, OnlyTheLeftButtonOnOneDataCellCounts)
{
    ClickedView shown(NumberedSheet(5, 5));
    shown.DoubleClick(At(2, 0));
    shown.DoubleClick(At(0, 2));
    shown.DoubleClick(At(2, 2), Qt::RightButton);
    shown.DoubleClick(At(3, 3), Qt::LeftButton, Qt::ShiftModifier);
    QTest::mouseDClick(shown.view.viewport(), Qt::LeftButton, {}, shown.Middle(At(2, 2)));
    shown.MoveTo(shown.Middle(At(3, 3)));
    shown.Release(shown.Middle(At(3, 3)));
    EXPECT_EQ(shown.Told(), QString());
}

TEST(SpreadViewDoubleClick, OfTheRightButtonMakesNoneOfAPressWithTheLeftOne)
{
    ClickedView shown(NumberedSheet(5, 5));
    shown.Press(shown.Middle(At(2, 2)));
    shown.DoubleClick(At(2, 2), Qt::RightButton);
    shown.Release(shown.Middle(At(2, 2)));
    EXPECT_EQ(shown.Told(), QStringLiteral("moved 2,2; clicked 2,2"));
}

TEST(SpreadViewClick, DoesWhatTheMouseDoes)
{
    ClickedView shown(NumberedSheet(5, 5));
    shown.view.clearFocus();
    shown.view.Click(At(2, 3));
    EXPECT_EQ(shown.sheet->ActiveCell(), At(2, 3));
    EXPECT_TRUE(shown.view.hasFocus());
    EXPECT_EQ(shown.Told(), QStringLiteral("moved 2,3; clicked 2,3"));
    shown.view.Click(At(2, 3));
    EXPECT_EQ(shown.Told(), QStringLiteral("clicked 2,3"));
    shown.view.SetSweeps([](Cell) { return true; });
    shown.view.Click(At(3, 3));
    EXPECT_EQ(shown.Told(), QStringLiteral("swept 3,3"));
}

TEST(SpreadViewClick, BringsTheCellIntoView)
{
    ShownView shown(EmptySheet(20, 100));
    shown.view.Click(At(15, 80));
    EXPECT_EQ(shown.view.SeenRect(At(15, 80)), shown.view.CellRect(At(15, 80)));
    EXPECT_FALSE(shown.view.SeenRect(At(15, 80)).isEmpty());
}

TEST(SpreadViewClick, LeavesAloneWhatTheMouseCannotReach)
{
    ClickedView shown(NumberedSheet(5, 5));
    shown.sheet->SetHidden(Column(2), true);
    for (const Cell cell : {At(2, 2), At(0, 1), At(1, 0), At(6, 1), At(1, 6)})
        shown.view.Click(cell);
    shown.sheet->SetRepainting(false);
    shown.view.Click(At(1, 1));
    EXPECT_EQ(shown.Told(), QString());
    EXPECT_EQ(shown.sheet->ActiveCell(), At(0, 0));
    SpreadView().Click(At(1, 1));
}

TEST(SpreadViewActiveCell, TellsThatItWasClicked)
{
    ClickedView shown(NumberedSheet(5, 5));
    shown.Note(&SpreadView::ActiveCellClicked, QStringLiteral("active"));
    shown.Click(At(2, 3));
    EXPECT_EQ(shown.Told(), QStringLiteral("moved 2,3; clicked 2,3"));
    shown.Click(At(2, 3));
    EXPECT_EQ(shown.Told(), QStringLiteral("active 2,3; clicked 2,3"));
    shown.Key(Qt::Key_Right);
    EXPECT_EQ(shown.Told(), QStringLiteral("moved 3,3"));
    shown.view.Click(At(3, 3));
    EXPECT_EQ(shown.Told(), QStringLiteral("active 3,3; clicked 3,3")) << "the program clicks as the mouse does";
}

TEST(SpreadViewActiveCell, IsNotClickedAgainByADoubleClick)
{
    ClickedView shown(NumberedSheet(5, 5));
    shown.Note(&SpreadView::ActiveCellClicked, QStringLiteral("active"));
    shown.Click(At(2, 3));
    shown.DoubleClick(At(2, 3));
    EXPECT_EQ(shown.Told(), QStringLiteral("moved 2,3; clicked 2,3; clicked 2,3; double 2,3"));
}

TEST(SpreadViewActiveCell, IsNotClickedByADragAShiftASweepOrAnotherButton)
{
    ClickedView shown(NumberedSheet(5, 5));
    shown.Click(At(2, 3));
    shown.Note(&SpreadView::ActiveCellClicked, QStringLiteral("active"));
    shown.Told();
    shown.Click(At(2, 3), Qt::ShiftModifier);
    shown.Click(At(2, 3), {}, Qt::RightButton);
    shown.Press(shown.Middle(At(2, 3)));
    shown.MoveTo(shown.Middle(At(4, 4)));
    shown.Release(shown.Middle(At(4, 4)));
    EXPECT_EQ(shown.Told(), QString());
    shown.view.SetSweeps([](Cell) { return true; });
    shown.Click(At(2, 3));
    EXPECT_EQ(shown.Told(), QStringLiteral("swept 2,3"));
}

TEST(SpreadViewMenu, TheRightButtonAsksForItOnceWhereItWasPressed)
{
    MenuView shown(NumberedSheet(5, 5));
    QWindow* const window = shown.view.window()->windowHandle();
    const QPoint middle = shown.Middle(At(3, 3));
    const QPoint inWindow = shown.view.viewport()->mapTo(shown.view.window(), middle);
    QTest::mouseClick(window, Qt::RightButton, {}, inWindow);
    EXPECT_EQ(shown.asked, QList<QPoint>{middle});
    EXPECT_EQ(shown.sheet->ActiveCell(), At(3, 3));
    QTest::mouseClick(window, Qt::LeftButton, {}, inWindow);
    EXPECT_EQ(shown.asked.size(), 1);
}

TEST(SpreadViewMenu, TheKeyAsksForItOnceInTheMiddleOfTheActiveCell)
{
    MenuView shown(NumberedSheet(20, 100));
    shown.view.verticalScrollBar()->setValue(100);
    shown.sheet->SetActiveCell(At(3, 9));
    shown.MenuKey();
    EXPECT_EQ(shown.asked, QList<QPoint>{shown.Middle(At(3, 9))});
}

TEST(SpreadViewMenu, WithoutAnActiveCellInSightTheKeyAsksForItInTheMiddleOfTheView)
{
    MenuView shown(EmptySheet(20, 100));
    shown.MenuKey();
    shown.sheet->SetActiveCell(At(1, 90));
    shown.MenuKey();
    shown.sheet.reset();
    shown.MenuKey();
    const QPoint middle = shown.view.rect().center();
    ASSERT_EQ(shown.asked.size(), 3);
    for (const QPoint at : shown.asked)
        EXPECT_LE((at - middle).manhattanLength(), 2);
}

} // namespace schedules::testing
