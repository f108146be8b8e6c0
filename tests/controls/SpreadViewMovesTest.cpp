#include "controls/ShownView.h"

#include <QSignalSpy>
#include <QStyleFactory>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace schedules::testing {

namespace {

struct Action
{
    const char* name;
    std::function<void(ShownView&)> act;
};

/// Whether the view tells that cells have moved.
bool TellsMoves(const Action& action)
{
    ShownView shown(EmptySheet(20, 100));
    shown.sheet->SetActiveCell(At(2, 2));
    QApplication::processEvents();
    QSignalSpy moved(&shown.view, &SpreadView::CellsMoved);
    action.act(shown);
    QApplication::processEvents();
    const bool tells = !moved.isEmpty();
    shown.view.setStyle(nullptr);
    return tells;
}

} // namespace

TEST(SpreadViewMoves, AreToldWheneverCellsMayBeElsewhere)
{
    const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("Windows")));
    for (const Action& action : std::initializer_list<Action>{
             {"scrolls down", [](ShownView& shown) { shown.view.verticalScrollBar()->setValue(7); }},
             {"scrolls across", [](ShownView& shown) { shown.view.horizontalScrollBar()->setValue(7); }},
             {"is resized", [](ShownView& shown) { shown.view.resize(400, 200); }},
             {"is hidden", [](ShownView& shown) { shown.view.hide(); }},
             {"has another font", [](ShownView& shown) { shown.view.setFont(QFont(QString(), 20)); }},
             {"has another style", [&](ShownView& shown) { shown.view.setStyle(style.get()); }},
             {"turns around", [](ShownView& shown) { shown.view.setLayoutDirection(Qt::RightToLeft); }},
             {"has a wider column", [](ShownView& shown) { shown.sheet->SetColumnWidth(Column(1), 3000); }},
             {"has a hidden row", [](ShownView& shown) { shown.sheet->SetHidden(Row(1), true); }},
             {"has another order", [](ShownView& shown) { shown.sheet->SetRowOrder({}); }},
             {"freezes", [](ShownView& shown) { shown.sheet->SetFrozenRows(1); }},
             {"has no sheet", [](ShownView& shown) { shown.view.SetSheet(nullptr); }},
             {"loses its sheet", [](ShownView& shown) { shown.sheet.reset(); }}})
        EXPECT_TRUE(TellsMoves(action)) << action.name;
}

TEST(SpreadViewMoves, AreNotToldWhenCellsStayWhereTheyAre)
{
    for (const Action& action : std::initializer_list<Action>{
             {"a text", [](ShownView& shown) { shown.sheet->SetText(At(1, 1), QStringLiteral("new")); }},
             {"a style", [](ShownView& shown) { shown.sheet->SetStyle(At(1, 1), {.edited = true}); }},
             {"the selection", [](ShownView& shown) { shown.view.Select(At(1, 1), At(2, 3)); }},
             {"the focus", [](ShownView& shown) { shown.view.clearFocus(); }},
             {"the colors", [](ShownView& shown) { shown.view.setPalette(QPalette(Qt::darkGreen)); }},
             {"being enabled", [](ShownView& shown) { shown.view.setEnabled(false); }},
             {"the active window", [](ShownView&) { QApplication::setActiveWindow(nullptr); }},
             {"a scroll as far as to the same place", [](ShownView& shown) { shown.view.EnsureVisible(At(2, 2)); }}})
        EXPECT_FALSE(TellsMoves(action)) << action.name;
}

TEST(SpreadViewMoves, WhileTheSheetDoesNotRepaintAreToldAtItsEnd)
{
    ShownView shown(EmptySheet(20, 100));
    QSignalSpy moved(&shown.view, &SpreadView::CellsMoved);
    shown.sheet->SetRepainting(false);
    shown.sheet->SetColumnWidth(Column(1), 3000);
    EXPECT_EQ(moved.count(), 0);
    shown.sheet->SetRepainting(true);
    EXPECT_EQ(moved.count(), 1);
}

TEST(SpreadViewMoves, ColorsAreFollowedWithoutALayout)
{
    ShownView shown(EmptySheet(3, 3));
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::darkGreen);
    shown.view.setPalette(palette);
    EXPECT_EQ(shown.GroundOf(At(1, 1)), QColor(Qt::darkGreen));
}

} // namespace schedules::testing
