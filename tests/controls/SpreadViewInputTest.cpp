#include "controls/ShownView.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMenuBar>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

constexpr auto kControl = Qt::ControlModifier;
constexpr auto kShift = Qt::ShiftModifier;

void Wheel(ShownView& shown, QPoint pixels, QPoint angle, Qt::ScrollPhase phase = Qt::NoScrollPhase)
{
    const QPointF at(50, 50);
    QWheelEvent event(at, shown.view.viewport()->mapToGlobal(at), pixels, angle, Qt::NoButton, Qt::NoModifier, phase,
                      false);
    QApplication::sendEvent(shown.view.viewport(), &event);
}

Cell Emitted(const QSignalSpy& spy)
{
    return spy.isEmpty() ? At(-9, -9) : spy.last().front().value<Cell>();
}

} // namespace

TEST(SpreadViewKeys, TheFirstKeyGoesToTheFirstVisibleDataCell)
{
    ShownView shown(NumberedSheet(5, 5));
    shown.sheet->SetHidden(Column(1), true);
    shown.Key(Qt::Key_Down);
    EXPECT_EQ(shown.sheet->ActiveCell(), At(2, 1));
}

TEST(SpreadViewKeys, EveryKeyMovesTheActiveCell)
{
    struct Step
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        Cell to;
    };
    ShownView shown(NumberedSheet(5, 100));
    shown.sheet->SetActiveCell(At(3, 3));
    const int page = (shown.view.viewport()->height() / shown.view.CellRect(At(1, 1)).height()) - 1;
    for (const Step& step : std::initializer_list<Step>{{Qt::Key_Left, {}, At(2, 3)},
                                                        {Qt::Key_Right, {}, At(3, 3)},
                                                        {Qt::Key_Up, {}, At(3, 2)},
                                                        {Qt::Key_Down, {}, At(3, 3)},
                                                        {Qt::Key_Home, {}, At(1, 3)},
                                                        {Qt::Key_End, {}, At(5, 3)},
                                                        {Qt::Key_PageDown, {}, At(5, 3 + page)},
                                                        {Qt::Key_PageUp, {}, At(5, 3)},
                                                        {Qt::Key_Left, kControl, At(1, 3)},
                                                        {Qt::Key_Right, kControl, At(5, 3)},
                                                        {Qt::Key_Down, kControl, At(5, 100)},
                                                        {Qt::Key_Up, kControl, At(5, 1)},
                                                        {Qt::Key_End, kControl, At(5, 100)},
                                                        {Qt::Key_Home, kControl, At(1, 1)}})
    {
        shown.Key(step.key, step.modifiers);
        EXPECT_EQ(shown.sheet->ActiveCell(), step.to) << step.key;
        EXPECT_EQ(shown.view.SeenRect(step.to), shown.view.CellRect(step.to)) << "it is in view";
    }
}

TEST(SpreadViewKeys, PageKeysScrollByThePage)
{
    ShownView shown(EmptySheet(2, 200));
    shown.sheet->SetActiveCell(At(1, 5));
    const QRect before = shown.view.CellRect(At(1, 5));
    shown.Key(Qt::Key_PageDown);
    EXPECT_EQ(shown.view.CellRect(shown.sheet->ActiveCell()), before);
}

TEST(SpreadViewKeys, ArrowsGoAsSeenFromRightToLeft)
{
    ShownView shown(NumberedSheet(5, 5));
    shown.view.setLayoutDirection(Qt::RightToLeft);
    shown.sheet->SetActiveCell(At(3, 3));
    shown.Key(Qt::Key_Left);
    EXPECT_EQ(shown.sheet->ActiveCell(), At(4, 3));
}

TEST(SpreadViewKeys, FrozenAndScrollingPanesHaveOneCursor)
{
    ShownView shown(NumberedSheet(5, 100));
    shown.sheet->SetFrozenRows(2);
    shown.view.verticalScrollBar()->setValue(500);
    shown.sheet->SetActiveCell(At(1, 2));
    shown.Key(Qt::Key_Down);
    EXPECT_EQ(shown.sheet->ActiveCell(), At(1, 3));
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 0) << "the next row comes into view";
    shown.Key(Qt::Key_Up);
    EXPECT_EQ(shown.sheet->ActiveCell(), At(1, 2));
}

TEST(SpreadViewKeys, ShiftExtendsTheSelectionAndLeavesTheActiveCell)
{
    ShownView shown(NumberedSheet(5, 50));
    shown.sheet->SetActiveCell(At(3, 3));
    shown.Key(Qt::Key_Right, kShift);
    shown.Key(Qt::Key_Down, kShift);
    shown.Key(Qt::Key_Down, kShift);
    EXPECT_EQ(shown.sheet->ActiveCell(), At(3, 3));
    EXPECT_EQ(shown.view.Selection(), Block(3, 3, 4, 5));
    shown.Key(Qt::Key_Home, kShift | kControl);
    EXPECT_EQ(shown.view.Selection(), Block(1, 1, 3, 3));
    shown.Key(Qt::Key_Down);
    EXPECT_EQ(shown.view.Selection(), Block(3, 4, 3, 4));
}

TEST(SpreadViewKeys, ControlASelectsEverything)
{
    ShownView shown(NumberedSheet(5, 50));
    shown.Key(Qt::Key_A, kControl);
    EXPECT_EQ(shown.view.Selection(), Block(1, 1, 5, 50));
}

TEST(SpreadViewKeys, ControlCCopiesTheSelection)
{
    ShownView shown(NumberedSheet(5, 5));
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    shown.Key(Qt::Key_C, kControl);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("before")) << "nothing is selected";
    shown.view.Select(At(2, 2), At(3, 3));
    shown.Key(Qt::Key_C, kControl);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("c2r2\tc3r2\nc2r3\tc3r3\n"));
}

TEST(SpreadViewKeys, MenusDoNotTakeCopyAway)
{
    ShownView shown(NumberedSheet(5, 5));
    QAction copy(&shown.view);
    copy.setShortcut(QKeySequence::Copy);
    shown.view.addAction(&copy);
    QSignalSpy taken(&copy, &QAction::triggered);
    shown.view.Select(At(1, 1), At(1, 1));
    shown.Key(Qt::Key_C, kControl);
    EXPECT_EQ(taken.count(), 0);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("c1r1\n"));
}

TEST(SpreadViewKeys, KeysOfOthersReachTheParent)
{
    struct Parent : QWidget
    {
        void keyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }
        QList<int> keys;
    } parent;
    const auto sheet = NumberedSheet(2, 2);
    SpreadView view(&parent);
    view.SetSheet(sheet.get());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_F2, Qt::Key_Space, Qt::Key_Down, Qt::Key_Escape})
        QTest::keyClick(&view, key);
    EXPECT_EQ(parent.keys, (QList<int>{Qt::Key_Return, Qt::Key_F2, Qt::Key_Space, Qt::Key_Escape}));
}

TEST(SpreadViewKeys, TabLeavesTheView)
{
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    auto* const view = new SpreadView;
    auto* const next = new QLineEdit;
    layout->addWidget(view);
    layout->addWidget(next);
    const auto sheet = NumberedSheet(2, 2);
    view->SetSheet(sheet.get());
    window.show();
    QApplication::setActiveWindow(&window);
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
    view->SetSheet(nullptr);
}

TEST(SpreadViewKeys, MovesAreToldButExtendingAndProgramsAreNot)
{
    ShownView shown(NumberedSheet(5, 5));
    QSignalSpy moved(&shown.view, &SpreadView::ActiveCellMoved);
    QSignalSpy changed(&shown.view, &SpreadView::SelectionChanged);
    shown.sheet->SetActiveCell(At(2, 2));
    EXPECT_EQ(moved.count(), 0);
    EXPECT_EQ(changed.count(), 1);
    shown.Key(Qt::Key_Down, kShift);
    EXPECT_EQ(moved.count(), 0);
    EXPECT_EQ(changed.count(), 2);
    shown.Key(Qt::Key_Down);
    EXPECT_EQ(moved.count(), 1);
    EXPECT_EQ(Emitted(moved), At(2, 3));
    shown.Key(Qt::Key_Home, kControl);
    shown.Key(Qt::Key_Left);
    EXPECT_EQ(moved.count(), 2) << "there was nothing to the left";
}

TEST(SpreadViewKeys, NothingMovesWhereThereIsNoData)
{
    ShownView shown(NumberedSheet(0, 0));
    shown.Key(Qt::Key_Down);
    shown.Key(Qt::Key_A, kControl);
    EXPECT_EQ(shown.sheet->ActiveCell(), At(0, 0));
    shown.sheet->SetSize(3, 3);
    shown.sheet->SetRepainting(false);
    shown.Key(Qt::Key_Down);
    EXPECT_EQ(shown.sheet->ActiveCell(), At(0, 0)) << "nothing is shown that could move";
}

TEST(SpreadViewMouse, AClickActivatesACellAndIsToldAtItsEnd)
{
    ShownView shown(NumberedSheet(5, 5));
    QSignalSpy moved(&shown.view, &SpreadView::ActiveCellMoved);
    QSignalSpy clicked(&shown.view, &SpreadView::CellClicked);
    shown.Press(shown.Middle(At(2, 3)));
    EXPECT_EQ(shown.sheet->ActiveCell(), At(2, 3));
    EXPECT_EQ(moved.count() + clicked.count(), 0);
    shown.Release(shown.Middle(At(2, 3)));
    EXPECT_EQ(Emitted(moved), At(2, 3));
    EXPECT_EQ(Emitted(clicked), At(2, 3));
    shown.Click(At(2, 3));
    EXPECT_EQ(moved.count(), 1);
    EXPECT_EQ(clicked.count(), 2);
}

TEST(SpreadViewMouse, BothClicksOfADoubleClickCount)
{
    ShownView shown(NumberedSheet(5, 5));
    QSignalSpy clicked(&shown.view, &SpreadView::CellClicked);
    shown.Click(At(2, 3));
    QTest::mouseDClick(shown.view.viewport(), Qt::LeftButton, {}, shown.Middle(At(2, 3)));
    shown.Release(shown.Middle(At(2, 3)));
    EXPECT_EQ(clicked.count(), 2);
}

TEST(SpreadViewMouse, ShiftClickExtends)
{
    ShownView shown(NumberedSheet(5, 5));
    QSignalSpy clicked(&shown.view, &SpreadView::CellClicked);
    shown.Click(At(2, 2));
    shown.Click(At(1, 4), kShift);
    EXPECT_EQ(shown.sheet->ActiveCell(), At(2, 2));
    EXPECT_EQ(shown.view.Selection(), Block(1, 2, 2, 4));
    EXPECT_EQ(clicked.count(), 1);
}

TEST(SpreadViewMouse, DraggingExtends)
{
    ShownView shown(NumberedSheet(3, 5));
    QSignalSpy clicked(&shown.view, &SpreadView::CellClicked);
    shown.Press(shown.Middle(At(2, 2)));
    shown.MoveTo(shown.Middle(At(3, 4)));
    EXPECT_EQ(shown.view.Selection(), Block(2, 2, 3, 4));
    shown.MoveTo(shown.Middle(At(0, 0)));
    EXPECT_EQ(shown.view.Selection(), Block(1, 1, 2, 2)) << "headers are not selected";
    shown.Release(shown.Middle(At(0, 0)));
    shown.MoveTo(shown.Middle(At(3, 4)));
    EXPECT_EQ(shown.view.Selection(), Block(1, 1, 2, 2));
    EXPECT_EQ(clicked.count(), 0);
}

TEST(SpreadViewMouse, DraggingBeyondTheEdgesScrollsOnAndBack)
{
    ShownView shown(EmptySheet(3, 100));
    QScrollBar& bar = *shown.view.verticalScrollBar();
    shown.Press(shown.Middle(At(1, 2)));
    shown.MoveTo({150, shown.view.viewport()->height() + 60});
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() == bar.maximum(); }));
    EXPECT_EQ(shown.view.Selection(), Block(1, 2, 1, 100));
    shown.MoveTo({150, -60});
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() == 0; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.view.Selection() == Block(1, 1, 1, 2); }));
    shown.Release({150, -60});
}

TEST(SpreadViewMouse, ColumnHeadersSelectColumns)
{
    ShownView shown(NumberedSheet(4, 5));
    QSignalSpy moved(&shown.view, &SpreadView::ActiveCellMoved);
    QSignalSpy header(&shown.view, &SpreadView::HeaderClicked);
    shown.Click(At(2, 0));
    EXPECT_EQ(shown.view.Selection(), Block(2, 1, 2, 5));
    EXPECT_EQ(shown.sheet->ActiveCell(), At(2, 1));
    ASSERT_EQ(header.count(), 1);
    EXPECT_EQ(header.front().front().value<Column>(), Column(2));
    EXPECT_EQ(moved.count(), 0);
    shown.Press(shown.Middle(At(2, 0)));
    shown.MoveTo(shown.Middle(At(3, 0)));
    shown.Release(shown.Middle(At(3, 0)));
    EXPECT_EQ(shown.view.Selection(), Block(2, 1, 3, 5));
    EXPECT_EQ(header.count(), 1);
}

TEST(SpreadViewMouse, RowHeadersSelectRowsAndTheCornerEverything)
{
    ShownView shown(NumberedSheet(4, 5));
    QSignalSpy header(&shown.view, &SpreadView::RowHeaderClicked);
    shown.Click(At(0, 3));
    EXPECT_EQ(shown.view.Selection(), Block(1, 3, 4, 3));
    ASSERT_EQ(header.count(), 1);
    EXPECT_EQ(header.front().front().value<Row>(), Row(3));
    shown.Click(At(0, 0));
    EXPECT_EQ(shown.view.Selection(), Block(1, 1, 4, 5));
    EXPECT_EQ(header.count(), 1);
}

TEST(SpreadViewMouse, HeadersOfATableWithoutDataAreToldTheirClicks)
{
    ShownView shown(NumberedSheet(4, 0));
    QSignalSpy header(&shown.view, &SpreadView::HeaderClicked);
    shown.Click(At(2, 0));
    EXPECT_EQ(header.count(), 1);
    EXPECT_EQ(shown.sheet->ActiveCell(), At(0, 0));
}

TEST(SpreadViewMouse, TheRightButtonKeepsASelectionThatItHits)
{
    ShownView shown(NumberedSheet(5, 5));
    shown.view.Select(At(1, 1), At(3, 3));
    shown.Click(At(2, 2), {}, Qt::RightButton);
    EXPECT_EQ(shown.view.Selection(), Block(1, 1, 3, 3));
    shown.Click(At(4, 4), {}, Qt::RightButton);
    EXPECT_EQ(shown.view.Selection(), Block(4, 4, 4, 4));
}

TEST(SpreadViewMouse, ClicksBesideTheDataDoNothing)
{
    ShownView shown(NumberedSheet(1, 1));
    shown.Click(At(1, 1));
    QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, {}, {400, 250});
    EXPECT_EQ(shown.sheet->ActiveCell(), At(1, 1));
}

TEST(SpreadViewMouse, ACellThatIsCutOffComesWhollyIntoView)
{
    ShownView shown(EmptySheet(20, 100));
    shown.view.verticalScrollBar()->setValue(7);
    shown.Click(At(1, 1));
    EXPECT_EQ(shown.view.SeenRect(At(1, 1)), shown.view.CellRect(At(1, 1)));
}

TEST(SpreadViewWheel, TurnsByRows)
{
    ShownView shown(EmptySheet(20, 100));
    Wheel(shown, {}, {0, -120});
    const int value = shown.view.verticalScrollBar()->value();
    EXPECT_GT(value, 20);
    Wheel(shown, {}, {0, 120});
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 0);
}

TEST(SpreadViewWheel, TouchpadsScrollByTheirPixels)
{
    ShownView shown(EmptySheet(20, 100));
    Wheel(shown, {-13, -37}, {-60, -120}, Qt::ScrollUpdate);
    EXPECT_EQ(shown.view.horizontalScrollBar()->value(), 13);
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 37);
    shown.view.setLayoutDirection(Qt::RightToLeft);
    Wheel(shown, {-3, 7}, {-60, 120}, Qt::ScrollUpdate);
    EXPECT_EQ(shown.view.horizontalScrollBar()->value(), 10);
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 30);
}

} // namespace schedules::testing
