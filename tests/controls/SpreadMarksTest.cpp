#include "controls/grid/SpreadMarks.h"

#include "controls/ShownView.h"
#include "controls/cells/SheetColors.h"

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

constexpr CellStyle kEditable{.allowEdit = true};
constexpr CellStyle kEdited{.edited = true};

QPalette Palette(QColor base, QColor text)
{
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, Blend(base, text, 0.1));
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    return palette;
}

const QPalette kLight = Palette(Qt::white, Qt::black);
const QPalette kDark = Palette(QColor(30, 30, 30), Qt::white);

QColor AccentOf(const ShownView& shown)
{
    return shown.view.palette().color(QPalette::Highlight);
}

std::uint32_t NumberOf(const QColor& color)
{
    return static_cast<std::uint32_t>(color.blue() << 16 | color.green() << 8 | color.red());
}

/// Where two pictures differ.
QRect Difference(const QImage& one, const QImage& other)
{
    QRect difference;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                difference = difference.united(QRect(x, y, 1, 1));
        }
    }
    return difference;
}

/// What giving a cell a style changes in the picture.
QRect MarkOf(ShownView& shown, Cell cell, CellStyle style)
{
    const QImage before = shown.Grabbed();
    shown.sheet->SetStyle(cell, style);
    return Difference(before, shown.Grabbed());
}

/// What the arrow in the header of a column changes in the picture.
QRect ArrowOf(ShownView& shown, SortMark mark)
{
    shown.view.ShowSortMark(std::nullopt);
    const QImage before = shown.Grabbed();
    shown.view.ShowSortMark(mark);
    return Difference(before, shown.Grabbed());
}

/// How many pixels of a line are not of the ground that stands at the line's start.
int InkIn(const QImage& image, int y)
{
    int ink = 0;
    for (int x = 0; x < image.width(); ++x)
        ink += image.pixel(x, y) != image.pixel(0, y) ? 1 : 0;
    return ink;
}

} // namespace

TEST(SpreadMarks, EditableDataCellsAreTintedQuietlyWhenAskedFor)
{
    for (const QPalette& palette : {kLight, kDark}) {
        ShownView shown(EmptySheet(3, 3));
        shown.view.setPalette(palette);
        const QColor base = palette.color(QPalette::Base);
        for (const Cell cell : {At(1, 1), At(2, 0), At(0, 2)})
            shown.sheet->SetStyle(cell, kEditable);
        const QImage plain = shown.Grabbed();
        EXPECT_EQ(shown.GroundOf(At(1, 1)), base) << "at first nothing is tinted";
        shown.view.ShowEditable(true);
        const QColor tint = shown.GroundOf(At(1, 1));
        EXPECT_EQ(tint, Blend(base, AccentOf(shown), 0.07));
        EXPECT_GT(Contrast(tint, base), 1.02);
        EXPECT_LT(Contrast(tint, base), 1.3);
        EXPECT_EQ(Difference(plain, shown.Grabbed()), shown.view.CellRect(At(1, 1)).adjusted(0, 0, -1, -1))
            << "headers and other cells are as before";
        shown.view.ShowEditable(false);
        EXPECT_EQ(shown.Grabbed(), plain);
    }
}

TEST(SpreadMarks, TheTintLiesOnTheCellsColorAndBeneathTheSelection)
{
    ShownView shown(EmptySheet(3, 3));
    shown.view.ShowEditable(true);
    shown.sheet->SetBackColor(WholeColumn(2), NumberOf(Qt::red));
    shown.sheet->SetStyle(At(2, 2), kEditable);
    const QColor tinted = Blend(Qt::red, AccentOf(shown), 0.07);
    EXPECT_EQ(shown.GroundOf(At(2, 2)), tinted);
    shown.view.Select(At(1, 1), At(2, 2));
    EXPECT_EQ(shown.GroundOf(At(2, 2)), Blend(tinted, AccentOf(shown), 0.22));
}

TEST(SpreadMarks, TextsStayLegibleOnTheTint)
{
    for (const QPalette& palette : {kLight, kDark}) {
        ShownView shown(EmptySheet(1, 1));
        shown.view.setPalette(palette);
        shown.view.ShowEditable(true);
        shown.sheet->SetText(At(1, 1), QStringLiteral("████"));
        shown.sheet->SetStyle(At(1, 1), kEditable);
        const QImage image = shown.Grabbed();
        const QRect cell = shown.view.CellRect(At(1, 1));
        const QColor text = image.pixelColor(cell.left() + 12, cell.center().y());
        EXPECT_GE(Contrast(shown.GroundOf(At(1, 1)), text), kLegibleContrast);
    }
}

TEST(SpreadMarks, AnEditedCellBearsASmallTriangleInItsFarTopCorner)
{
    for (const QPalette& palette : {kLight, kDark}) {
        ShownView shown(EmptySheet(3, 3));
        shown.view.setPalette(palette);
        const QRect mark = MarkOf(shown, At(2, 2), kEdited);
        const QRect cell = shown.view.CellRect(At(2, 2));
        EXPECT_EQ(mark.topRight(), cell.topRight() - QPoint(1, 0)) << "inside of the lines";
        EXPECT_EQ(mark.width(), mark.height());
        EXPECT_GE(mark.width(), 5);
        EXPECT_LE(mark.width(), 9);
        const QImage image = shown.Grabbed();
        EXPECT_EQ(image.pixelColor(mark.topRight()), AccentOf(shown));
        EXPECT_EQ(image.pixelColor(mark.bottomLeft()), shown.GroundOf(At(1, 1))) << "the other half is empty";
    }
}

TEST(SpreadMarks, TheFrameOfTheActiveCellLeavesTheTriangleFree)
{
    ShownView shown(EmptySheet(3, 3));
    shown.sheet->SetActiveCell(At(2, 2));
    const int whole = MarkOf(shown, At(1, 1), kEdited).width();
    const QRect mark = MarkOf(shown, At(2, 2), kEdited);
    EXPECT_EQ(mark.width(), whole);
    EXPECT_TRUE(shown.view.CellRect(At(2, 2)).contains(mark));
}

TEST(SpreadMarks, TheTriangleIsAtTheLeftFromRightToLeft)
{
    ShownView shown(EmptySheet(3, 3));
    shown.view.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    const QRect mark = MarkOf(shown, At(2, 2), kEdited);
    EXPECT_EQ(mark.topLeft(), shown.view.CellRect(At(2, 2)).topLeft() + QPoint(1, 0));
    EXPECT_EQ(shown.Grabbed().pixelColor(mark.topLeft()), AccentOf(shown));
}

TEST(SpreadMarks, TheTriangleFollowsTheFontAndStaysInItsCell)
{
    ShownView shown(EmptySheet(3, 3));
    const int small = MarkOf(shown, At(1, 1), kEdited).width();
    QFont font = shown.view.font();
    font.setPointSize(2 * font.pointSize());
    shown.view.setFont(font);
    EXPECT_NEAR(MarkOf(shown, At(2, 1), kEdited).width(), 2 * small, 2);
    shown.sheet->SetRowHeight(Row(2), 105);
    EXPECT_LE(MarkOf(shown, At(2, 2), kEdited).height(), 4);
}

TEST(SpreadMarks, TheTriangleIsSeenOnAnyGround)
{
    for (const QPalette& palette : {kLight, kDark}) {
        ShownView shown(EmptySheet(3, 3));
        shown.view.setPalette(palette);
        for (const QColor ground : {AccentOf(shown), QColor(Qt::white), QColor(Qt::black), QColor(Qt::gray)}) {
            shown.sheet->SetStyle(At(2, 2), {});
            shown.sheet->SetBackColor(WholeColumn(2), NumberOf(ground));
            const QRect mark = MarkOf(shown, At(2, 2), kEdited);
            EXPECT_GE(Contrast(shown.Grabbed().pixelColor(mark.topRight()), ground), kMarkContrast);
        }
    }
}

TEST(SpreadMarks, TheTriangleScrollsBeneathWhatIsFrozen)
{
    ShownView shown(EmptySheet(20, 50));
    shown.sheet->SetStyle(At(1, 1), kEdited);
    const QPoint corner = shown.view.CellRect(At(1, 1)).topRight() - QPoint(1, 0);
    shown.view.verticalScrollBar()->setValue(2);
    EXPECT_NE(shown.Grabbed().pixelColor(corner - QPoint(0, 2)), AccentOf(shown));
    EXPECT_EQ(shown.Grabbed().pixelColor(corner), AccentOf(shown));
}

TEST(SpreadMarks, PaperShowsNeitherTintNorTriangle)
{
    const QColor ground(Qt::white);
    const auto painted = [&](CellStyle style) {
        QImage image(96, 20, QImage::Format_RGB32);
        image.fill(ground);
        QPainter painter(&image);
        CellFaces faces(QFont(), image);
        const CellLook look;
        CellPainter cells(painter, faces, look);
        CellContent content;
        content.text = QStringLiteral("48.0");
        content.style = style;
        EXPECT_EQ(cells.GroundOf(content, ground), ground);
        cells.Paint(content, image.rect(), ground);
        cells.Finish();
        return image;
    };
    EXPECT_EQ(painted({.allowEdit = true, .edited = true}), painted({}));
}

TEST(SpreadMarks, AnArrowInTheHeaderTellsByWhichColumnRowsAreSorted)
{
    for (const QPalette& palette : {kLight, kDark}) {
        ShownView shown(DrawnSheet(QStringLiteral("Tag | Flow | Head\nP-1 | 1 | 2")));
        shown.view.setPalette(palette);
        for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            const QRect arrow = ArrowOf(shown, {Column(2), order});
            const QRect header = shown.view.CellRect(At(2, 0));
            EXPECT_TRUE(header.contains(arrow));
            EXPECT_EQ(arrow.topRight(), header.topRight() + QPoint(-2, 1)) << "beside the line";
            EXPECT_GE(arrow.width(), 5);
            EXPECT_LE(arrow.width(), 9);
            const QImage image = shown.Grabbed().copy(arrow.adjusted(-1, 0, 0, 0));
            const bool pointsUp = InkIn(image, 0) < InkIn(image, image.height() - 1);
            EXPECT_EQ(pointsUp, order == Qt::AscendingOrder);
            EXPECT_GE(Contrast(image.pixelColor(image.width() / 2, image.height() / 2), image.pixelColor(0, 0)),
                      kMarkContrast);
        }
        EXPECT_EQ(ArrowOf(shown, {Column(9)}), QRect()) << "there is no such column";
    }
}

TEST(SpreadMarks, TheArrowIsAtTheLeftFromRightToLeft)
{
    ShownView shown(EmptySheet(3, 3));
    shown.view.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    EXPECT_EQ(ArrowOf(shown, {Column(2)}).left(), shown.view.CellRect(At(2, 0)).left() + 2);
}

TEST(SpreadMarks, TheArrowGoesWhenAsked)
{
    ShownView shown(EmptySheet(3, 3));
    const QImage before = shown.Grabbed();
    shown.view.ShowSortMark(SortMark{Column(2)});
    EXPECT_NE(shown.Grabbed(), before);
    shown.view.ShowSortMark(std::nullopt);
    EXPECT_EQ(shown.Grabbed(), before);
}

TEST(SpreadMarks, TheArrowAppearsAndGoesOnScreenAtOnce)
{
    ShownView shown(EmptySheet(3, 3));
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
    const auto repaintsFor = [&](std::optional<SortMark> mark) {
        EXPECT_TRUE(QTest::qWaitFor([&] {
            watch.painted = {};
            QApplication::processEvents();
            return watch.painted.isEmpty();
        })) << "a window manager may have the new window painted again";
        shown.view.ShowSortMark(mark);
        QApplication::processEvents();
        return watch.painted.contains(shown.view.CellRect(At(2, 0)));
    };
    EXPECT_TRUE(repaintsFor(SortMark{Column(2)}));
    EXPECT_TRUE(repaintsFor(std::nullopt));
}

TEST(SpreadMarks, TheArrowLeavesATextFreeThatJustFits)
{
    ShownView shown(DrawnSheet(QStringLiteral("| Hm\n| 1")));
    const auto covers = [&] {
        shown.sheet->SetText(At(1, 0), {});
        shown.view.ShowSortMark(std::nullopt);
        const QImage empty = shown.Grabbed();
        shown.sheet->SetText(At(1, 0), QStringLiteral("Hm"));
        const QRect text = Difference(empty, shown.Grabbed());
        return ArrowOf(shown, {Column(1)}).intersects(text);
    };
    shown.sheet->SetColumnWidth(Column(1), shown.sheet->WidestText(Column(1)));
    for (const auto alignment : {HorizontalAlignment::Center, HorizontalAlignment::Left, HorizontalAlignment::Data}) {
        shown.sheet->SetHAlign(WholeRow(0), alignment);
        EXPECT_FALSE(covers());
    }
}

TEST(SpreadMarks, HeadersThatAreNotSeenShowNoArrow)
{
    ShownView shown(EmptySheet(30, 30));
    shown.view.horizontalScrollBar()->setValue(300);
    EXPECT_EQ(ArrowOf(shown, {Column(1)}), QRect()) << "scrolled away";
    shown.sheet->SetHidden(Column(6), true);
    EXPECT_EQ(ArrowOf(shown, {Column(6)}), QRect()) << "a hidden column";
    shown.sheet->SetHidden(Row(0), true);
    EXPECT_EQ(ArrowOf(shown, {Column(5)}), QRect()) << "a hidden header row";
}

} // namespace schedules::testing
