#include "controls/ShownView.h"
#include "controls/grid/SpreadView.h"

#include <gtest/gtest.h>

namespace schedules::testing {

TEST(SpreadViewScrolling, ScrollBarsGoByPixelsStepsAndPages)
{
    ShownView shown(EmptySheet(3, 100));
    const QScrollBar& bar = *shown.view.verticalScrollBar();
    const int height = shown.view.viewport()->height();
    EXPECT_EQ(bar.maximum(), 101 * 20 - height);
    EXPECT_EQ(bar.pageStep(), height - 20);
    EXPECT_NEAR(bar.singleStep(), 20, 6);
    EXPECT_EQ(shown.view.horizontalScrollBar()->maximum(), 0);
    shown.view.resize(500, 200);
    EXPECT_EQ(bar.maximum(), 101 * 20 - shown.view.viewport()->height());
}

TEST(SpreadViewScrolling, AMillionRowsScrollToTheLast)
{
    auto sheet = std::make_unique<Sheet>();
    sheet->SetSize(2, 1'000'000);
    ShownView shown(std::move(sheet));
    shown.view.EnsureVisible(At(1, 1'000'000));
    const int bottom = shown.view.SeenRect(At(1, 1'000'000)).bottom();
    EXPECT_EQ(bottom, shown.view.viewport()->height() - 1);
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), shown.view.verticalScrollBar()->maximum());
}

TEST(SpreadViewScrolling, NoScrollBarWhereEverythingFits)
{
    ShownView shown(EmptySheet(3, 13), {4 * 96, 14 * 20});
    EXPECT_EQ(shown.view.viewport()->size(), QSize(4 * 96, 14 * 20));
    shown.view.resize(200, 100);
    QApplication::processEvents();
    shown.view.resize(4 * 96, 14 * 20);
    QApplication::processEvents();
    EXPECT_EQ(shown.view.viewport()->size(), QSize(4 * 96, 14 * 20));
}

TEST(SpreadViewScrolling, EnsuresThatACellIsVisibleByScrollingAsLittleAsPossible)
{
    ShownView shown(EmptySheet(20, 100));
    shown.view.EnsureVisible(At(2, 2));
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 0);
    shown.view.EnsureVisible(At(10, 50));
    EXPECT_EQ(shown.view.SeenRect(At(10, 50)), shown.view.CellRect(At(10, 50)));
    EXPECT_EQ(shown.view.CellRect(At(10, 50)).bottom(), shown.view.viewport()->height() - 1);
    shown.view.EnsureVisible(At(1, 20));
    EXPECT_EQ(shown.view.CellRect(At(1, 20)).top(), 20) << "right below the header row";
}

TEST(SpreadViewScrolling, EnsuresThatACellIsVisibleAcrossAsWell)
{
    ShownView shown(EmptySheet(20, 100));
    const QScrollBar& bar = *shown.view.horizontalScrollBar();
    shown.view.EnsureVisible(At(10, 1));
    EXPECT_EQ(shown.view.SeenRect(At(10, 1)), shown.view.CellRect(At(10, 1)));
    EXPECT_EQ(shown.view.CellRect(At(10, 1)).right(), shown.view.viewport()->width() - 1);
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 0);
    const int scrolled = bar.value();
    shown.view.EnsureVisible(At(8, 1));
    EXPECT_EQ(bar.value(), scrolled) << "it was seen";
    shown.view.EnsureVisible(At(3, 1));
    EXPECT_EQ(shown.view.CellRect(At(3, 1)).left(), 96) << "right beside the header column";
    shown.view.EnsureVisible(At(20, 100));
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), shown.view.verticalScrollBar()->maximum());
    shown.view.EnsureVisible(At(1, 1));
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 0);
}

TEST(SpreadViewScrolling, EnsuresThatACellIsVisibleBesideWhatIsFrozen)
{
    ShownView shown(EmptySheet(20, 100));
    shown.sheet->SetFrozenColumns(2);
    shown.sheet->SetFrozenRows(3);
    shown.view.EnsureVisible(At(12, 50));
    const QPoint scrolled{shown.view.horizontalScrollBar()->value(), shown.view.verticalScrollBar()->value()};
    shown.view.EnsureVisible(At(2, 3));
    EXPECT_EQ(shown.view.horizontalScrollBar()->value(), scrolled.x()) << "what is frozen is always seen";
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), scrolled.y());
    shown.view.EnsureVisible(At(5, 10));
    EXPECT_EQ(shown.view.CellRect(At(5, 10)).topLeft(), QPoint(3 * 96, 4 * 20)) << "right beside what is frozen";
    EXPECT_EQ(shown.view.SeenRect(At(5, 10)), shown.view.CellRect(At(5, 10)));
}

TEST(SpreadViewScrolling, EnsuresThatACellIsVisibleFromRightToLeft)
{
    ShownView shown(EmptySheet(20, 100));
    shown.view.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    shown.view.EnsureVisible(At(10, 50));
    EXPECT_EQ(shown.view.CellRect(At(10, 50)).bottomLeft(), QPoint(0, shown.view.viewport()->height() - 1));
    shown.view.EnsureVisible(At(3, 20));
    EXPECT_EQ(shown.view.CellRect(At(3, 20)).right(), shown.view.viewport()->width() - 1 - 96);
    EXPECT_EQ(shown.view.CellRect(At(3, 20)).top(), 20);
}

TEST(SpreadViewScrolling, ACellLargerThanTheViewIsSeenFromItsStart)
{
    ShownView shown(EmptySheet(20, 100));
    shown.sheet->SetColumnWidth(Column(5), 20 * 1440);
    shown.view.EnsureVisible(At(5, 1));
    EXPECT_EQ(shown.view.CellRect(At(5, 1)).left(), 96);
    shown.view.EnsureVisible(At(10, 1));
    shown.view.EnsureVisible(At(5, 1));
    EXPECT_EQ(shown.view.CellRect(At(5, 1)).left(), 96);
}

} // namespace schedules::testing
