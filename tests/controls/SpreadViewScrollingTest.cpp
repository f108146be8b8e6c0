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

} // namespace schedules::testing
