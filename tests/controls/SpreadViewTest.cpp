#include "controls/grid/SpreadView.h"

#include "controls/ShownView.h"
#include "controls/cells/SheetColors.h"

#include <QScreen>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

constexpr std::uint32_t kRed = 0x000000FF;
constexpr std::uint32_t kGreen = 0x0000FF00;
constexpr std::uint32_t kButtonFace = 0x8000000F;

QPalette DarkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Button, QColor(60, 60, 60));
    return palette;
}

QColor BaseOf(const SpreadView& view)
{
    return view.palette().color(QPalette::Base);
}

/// The contrast that the text of a cell reaches against its ground.
double TextContrast(ShownView& shown, Cell cell)
{
    const QImage image = shown.Grabbed();
    const QRect rect = shown.view.SeenRect(cell).adjusted(4, 3, -4, -3);
    const QColor ground = image.pixelColor(rect.bottomRight());
    double best = 1;
    for (int x = rect.left(); x <= rect.right(); ++x) {
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            best = std::max(best, Contrast(ground, image.pixelColor(x, y)));
    }
    return best;
}

} // namespace

TEST(SpreadView, IsEmptyWithoutASheet)
{
    SpreadView view;
    EXPECT_EQ(view.TheSheet(), nullptr);
    EXPECT_EQ(view.CellAt({5, 5}), std::nullopt);
    EXPECT_EQ(view.CellRect(At(1, 1)), QRect());
    EXPECT_EQ(view.Selection(), CellRange());
    view.EnsureVisible(At(1, 1));
    view.SelectAll();
    view.Copy();
    view.grab();
}

TEST(SpreadView, OutlivesItsSheet)
{
    ShownView shown(NumberedSheet(50, 50));
    shown.sheet.reset();
    EXPECT_EQ(shown.view.TheSheet(), nullptr);
    EXPECT_EQ(shown.view.verticalScrollBar()->maximum(), 0);
    shown.Key(Qt::Key_Down);
    QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, {}, {50, 50});
    shown.view.grab();
}

TEST(SpreadView, TakesAnotherSheetAndForgetsTheFirst)
{
    ShownView shown(NumberedSheet(3, 3));
    const auto other = EmptySheet(2, 2);
    shown.view.SetSheet(other.get());
    QSignalSpy changes(&shown.view, &SpreadView::SelectionChanged);
    shown.sheet->SetActiveCell(At(2, 2));
    EXPECT_EQ(changes.count(), 0);
    other->SetActiveCell(At(2, 2));
    EXPECT_EQ(changes.count(), 1);
}

TEST(SpreadView, CellsHaveTheirSizesInTwipsAtTheScreensResolution)
{
    ShownView shown(EmptySheet(3, 3));
    const int dpiX = shown.view.logicalDpiX();
    const int dpiY = shown.view.logicalDpiY();
    shown.sheet->SetColumnWidth(Column(1), 2880);
    shown.sheet->SetRowHeight(Row(1), 720);
    EXPECT_EQ(shown.view.CellRect(At(1, 1)).size(), QSize(2 * dpiX, dpiY / 2));
    EXPECT_EQ(shown.view.CellAt(shown.Middle(At(1, 1))), At(1, 1));
}

TEST(SpreadView, GivesTheSheetItsFont)
{
    ShownView shown(EmptySheet(1, 1));
    EXPECT_EQ(shown.sheet->Font(), shown.view.font());
    QFont font = shown.view.font();
    font.setPointSize(20);
    shown.view.setFont(font);
    EXPECT_EQ(shown.sheet->Font(), font);
}

TEST(SpreadView, PaintsColorsOfCellsAndOfThePalette)
{
    ShownView shown(EmptySheet(3, 3));
    shown.sheet->SetBackColor(WholeRow(1), kRed);
    shown.sheet->SetBackColor(WholeColumn(2), kGreen);
    shown.sheet->SetBackColor(Block(0, 1, 0, 3), kButtonFace);
    const QColor button = shown.view.palette().color(QPalette::Button);
    EXPECT_EQ(shown.GroundOf(At(1, 1)), QColor(Qt::red));
    EXPECT_EQ(shown.GroundOf(At(2, 1)), QColor(Qt::green));
    EXPECT_EQ(shown.GroundOf(At(2, 0)), QColor(Qt::green)) << "headers take colors, too";
    EXPECT_EQ(shown.GroundOf(At(0, 1)), button);
    EXPECT_EQ(shown.GroundOf(At(1, 0)), button) << "a header without a color";
    EXPECT_EQ(shown.GroundOf(At(1, 2)), BaseOf(shown.view));
}

TEST(SpreadView, FollowsThePalette)
{
    ShownView shown(EmptySheet(3, 3));
    shown.sheet->SetBackColor(Block(0, 1, 0, 3), kButtonFace);
    shown.view.setPalette(DarkPalette());
    EXPECT_EQ(shown.GroundOf(At(0, 1)), QColor(60, 60, 60));
    EXPECT_EQ(shown.GroundOf(At(1, 1)), QColor(30, 30, 30));
}

TEST(SpreadView, TextsAreLegibleOnColorsInLightAndDarkSelectedOrNot)
{
    for (const QPalette& palette : {QPalette(), DarkPalette()}) {
        ShownView shown(NumberedSheet(3, 3));
        shown.view.setPalette(palette);
        for (const std::uint32_t color : {0x000000U, 0xFFFFFFU, 0x0000C0U, 0x808080U, 0xC08040U, 0x00FFFFU}) {
            shown.sheet->SetBackColor(WholeColumn(2), color);
            shown.sheet->SetBold(WholeColumn(2), true);
            shown.view.Select(At(1, 2), At(3, 3));
            for (int row = 0; row <= 3; ++row)
                EXPECT_GE(TextContrast(shown, At(2, row)), kLegibleContrast) << color << ' ' << row;
        }
    }
}

TEST(SpreadView, BesideTheDataIsThePlainBase)
{
    ShownView shown(EmptySheet(1, 1));
    const QImage image = shown.Grabbed();
    EXPECT_EQ(image.pixelColor(400, 20), BaseOf(shown.view));
    EXPECT_EQ(image.pixelColor(50, 250), BaseOf(shown.view));
    EXPECT_EQ(shown.view.CellAt({400, 20}), std::nullopt);
}

TEST(SpreadView, LinesPartCellsAndAStrongerOneWhatIsFrozen)
{
    ShownView shown(EmptySheet(3, 3));
    shown.sheet->SetFrozenColumns(1);
    const QImage image = shown.Grabbed();
    const auto lineBehind = [&](int column) {
        const QRect rect = shown.view.CellRect(At(column, 2));
        return Contrast(image.pixelColor(rect.right(), rect.center().y()), BaseOf(shown.view));
    };
    EXPECT_GT(lineBehind(2), 1.2);
    EXPECT_GT(lineBehind(1), lineBehind(2) * 1.5);
    EXPECT_GT(lineBehind(0), lineBehind(2) * 1.5);
    const QRect cell = shown.view.CellRect(At(2, 2));
    EXPECT_NE(image.pixelColor(cell.center().x(), cell.bottom()), BaseOf(shown.view));
}

TEST(SpreadView, HiddenColumnsAndRowsTakeNoRoom)
{
    ShownView shown(EmptySheet(3, 3));
    const QRect before = shown.view.CellRect(At(1, 1));
    shown.sheet->SetBackColor(WholeColumn(2), kRed);
    shown.sheet->SetBackColor(WholeRow(2), kRed);
    shown.sheet->SetHidden(Column(2), true);
    shown.sheet->SetHidden(Row(2), true);
    EXPECT_TRUE(shown.view.CellRect(At(2, 2)).isEmpty());
    EXPECT_EQ(shown.view.CellRect(At(3, 3)).topLeft(), before.bottomRight() + QPoint(1, 1));
    const QImage image = shown.Grabbed();
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            ASSERT_NE(image.pixelColor(x, y), QColor(Qt::red));
    }
}

TEST(SpreadView, HeadersCanBeHidden)
{
    ShownView shown(EmptySheet(3, 3));
    shown.sheet->SetHidden(Column(0), true);
    shown.sheet->SetHidden(Row(0), true);
    EXPECT_EQ(shown.view.CellRect(At(1, 1)).topLeft(), QPoint(0, 0));
    EXPECT_EQ(shown.view.CellAt({2, 2}), At(1, 1));
}

TEST(SpreadView, HeadersAndFrozenCellsStayWhenTheRestScrolls)
{
    ShownView shown(EmptySheet(20, 50));
    shown.sheet->SetFrozenColumns(1);
    shown.sheet->SetFrozenRows(2);
    shown.sheet->SetBackColor(Block(1, 1, 1, 1), kRed);
    shown.sheet->SetBackColor(Block(2, 3, 2, 3), kGreen);
    const QPoint corner = shown.Corner(At(1, 1));
    const QPoint scrolling = shown.Corner(At(2, 3));
    EXPECT_EQ(shown.Grabbed().pixelColor(scrolling), QColor(Qt::green));
    shown.view.horizontalScrollBar()->setValue(480);
    shown.view.verticalScrollBar()->setValue(400);
    const QImage image = shown.Grabbed();
    EXPECT_EQ(image.pixelColor(corner), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(scrolling), BaseOf(shown.view));
    EXPECT_EQ(shown.view.CellAt(corner), At(1, 1));
    EXPECT_EQ(shown.view.CellAt(scrolling), At(7, 23));
    EXPECT_EQ(shown.view.CellAt({scrolling.x(), 5}), At(7, 0)) << "the header row scrolls in step";
    EXPECT_EQ(shown.view.CellAt({5, scrolling.y()}), At(0, 23)) << "the header column scrolls in step";
}

TEST(SpreadView, FreezingActsAtOnce)
{
    ShownView shown(EmptySheet(20, 50));
    shown.view.verticalScrollBar()->setValue(400);
    EXPECT_TRUE(shown.view.SeenRect(At(1, 1)).isEmpty());
    shown.sheet->SetFrozenRows(1);
    EXPECT_FALSE(shown.view.SeenRect(At(1, 1)).isEmpty());
}

TEST(SpreadView, RightToLeftStartsAtTheRight)
{
    ShownView shown(EmptySheet(2, 2));
    shown.sheet->SetBackColor(Block(1, 1, 1, 1), kRed);
    shown.view.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    const int width = shown.view.viewport()->width();
    EXPECT_EQ(shown.view.CellAt({width - 5, 5}), At(0, 0));
    EXPECT_EQ(shown.view.CellRect(At(1, 1)).right(), width - 1 - 96);
    EXPECT_EQ(shown.GroundOf(At(1, 1)), QColor(Qt::red));
}

TEST(SpreadView, BoldTextsAreHeavier)
{
    ShownView shown(DrawnSheet(QStringLiteral("| a\n| Boiler\n| Boiler")));
    shown.sheet->SetBold(WholeRow(2), true);
    const QImage image = shown.Grabbed();
    const auto inkOf = [&](int row) {
        const QRect rect = shown.view.CellRect(At(1, row)).adjusted(2, 1, -3, -3);
        int ink = 0;
        for (int x = rect.left(); x <= rect.right(); ++x) {
            for (int y = rect.top(); y <= rect.bottom(); ++y)
                ink += 255 - image.pixelColor(x, y).lightness();
        }
        return ink;
    };
    EXPECT_GT(inkOf(2), inkOf(1) * 11 / 10);
}

TEST(SpreadView, CheckBoxCellsShowABoxAndNoText)
{
    ShownView shown(DrawnSheet(QStringLiteral("| a\n| [x]\n| [ ]\n| 1")));
    const QImage image = shown.Grabbed();
    const auto middleOf = [&](int row) {
        return image.copy(QRect(shown.Middle(At(1, row)) - QPoint(10, 8), QSize(20, 16)));
    };
    const QImage ticked = middleOf(1);
    EXPECT_NE(ticked, middleOf(2));
    EXPECT_NE(middleOf(2), middleOf(3));
    shown.sheet->SetText(At(1, 2), QStringLiteral("1"));
    const QImage after = shown.Grabbed();
    EXPECT_EQ(after.copy(QRect(shown.Middle(At(1, 2)) - QPoint(10, 8), QSize(20, 16))), ticked);
}

TEST(SpreadView, SelectionIsTintedAndTheActiveCellFramed)
{
    ShownView shown(EmptySheet(4, 4));
    shown.sheet->SetBackColor(WholeColumn(2), kRed);
    shown.view.Select(At(1, 1), At(2, 2));
    const QColor highlight = shown.view.palette().color(QPalette::Highlight);
    EXPECT_EQ(shown.GroundOf(At(1, 1)), BaseOf(shown.view)) << "the active cell keeps its ground";
    EXPECT_EQ(shown.GroundOf(At(1, 2)), Blend(BaseOf(shown.view), highlight, 0.22));
    EXPECT_EQ(shown.GroundOf(At(2, 2)), Blend(Qt::red, highlight, 0.22));
    EXPECT_EQ(shown.GroundOf(At(3, 3)), BaseOf(shown.view));
    EXPECT_NE(shown.GroundOf(At(1, 0)), shown.GroundOf(At(3, 0))) << "headers of the selection stand out";
    const QRect active = shown.view.CellRect(At(1, 1));
    EXPECT_EQ(shown.Grabbed().pixelColor(active.center().x(), active.bottom()), highlight);
}

TEST(SpreadView, TheFrameOfTheActiveCellShowsTheFocusAndStandsOutFromAnyColor)
{
    ShownView shown(EmptySheet(4, 4));
    const QColor highlight = shown.view.palette().color(QPalette::Highlight);
    shown.sheet->SetBackColor(
        WholeColumn(1), static_cast<std::uint32_t>(highlight.blue() << 16 | highlight.green() << 8 | highlight.red()));
    shown.sheet->SetActiveCell(At(1, 1));
    const QImage focused = shown.Grabbed();
    const QRect active = shown.view.CellRect(At(1, 1));
    EXPECT_EQ(focused.pixelColor(active.left() + 1, active.center().y()), BaseOf(shown.view));
    shown.view.clearFocus();
    EXPECT_NE(shown.Grabbed(), focused);
}

TEST(SpreadView, NothingIsRepaintedWhileTheSheetDoesNot)
{
    ShownView shown(EmptySheet(3, 3));
    shown.sheet->SetRepainting(false);
    shown.sheet->SetSize(400, 400);
    shown.sheet->SetBackColor({{kAllColumns, kAllRows}, {kAllColumns, kAllRows}}, kRed);
    EXPECT_EQ(shown.view.verticalScrollBar()->maximum(), 0);
    EXPECT_NE(shown.Grabbed().pixelColor(150, 30), QColor(Qt::red));
    shown.sheet->SetRepainting(true);
    EXPECT_GT(shown.view.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(shown.Grabbed().pixelColor(150, 30), QColor(Qt::red));
}

TEST(SpreadView, FollowsAScreenThatChangesItsResolution)
{
    ShownView shown(NumberedSheet(3, 3));
    struct Watch : QObject
    {
        bool eventFilter(QObject*, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    } watch;
    shown.view.viewport()->installEventFilter(&watch);
    Q_EMIT shown.view.screen()->logicalDotsPerInchChanged(144);
    EXPECT_TRUE(QTest::qWaitFor([&] { return watch.paints > 0; }));
}

TEST(SpreadView, OneChangedCellRepaintsItsRectangleOnly)
{
    ShownView shown(NumberedSheet(3, 3));
    QApplication::processEvents();
    struct Watch : QObject
    {
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Paint)
                painted = painted.united(static_cast<QPaintEvent*>(event)->rect());
            return false;
        }
        QRect painted;
    } watch;
    shown.view.viewport()->installEventFilter(&watch);
    const auto paintsTheCellAlone = [&] {
        watch.painted = {};
        shown.sheet->SetText(At(2, 2), QStringLiteral("new"));
        QApplication::processEvents();
        return watch.painted == shown.view.SeenRect(At(2, 2));
    };
    // A window manager may have the new window painted once more.
    EXPECT_TRUE(QTest::qWaitFor(paintsTheCellAlone));
}

TEST(SpreadView, ShowsRowsInTheirOrder)
{
    ShownView shown(EmptySheet(1, 3));
    shown.sheet->SetBackColor(WholeRow(3), kRed);
    const QRect first = shown.view.CellRect(At(1, 1));
    shown.sheet->SetRowOrder({3, 2, 1});
    EXPECT_EQ(shown.view.CellRect(At(1, 3)), first);
    EXPECT_EQ(shown.view.CellAt(first.center()), At(1, 3));
    EXPECT_EQ(shown.GroundOf(At(1, 3)), QColor(Qt::red));
}

} // namespace schedules::testing
