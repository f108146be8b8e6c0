#include "controls/cells/CellPainter.h"

#include "controls/DrawnSheet.h"
#include "controls/cells/SheetColors.h"

#include <QCheckBox>

#include <cmath>
#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

constexpr double kInchesPerMeter = 1 / 0.0254;

CellContent Text(const QString& text)
{
    CellContent content;
    content.text = text;
    return content;
}

QFont CellFont()
{
    return QFont(QStringLiteral("DejaVu Sans"), 9);
}

struct Picture
{
    QSize size{200, 20};
    int dpi = 96;
    QColor ground = Qt::white;
    CellLook look{};
    QRect cell{};

    QImage Of(const CellContent& content) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.setDotsPerMeterX(static_cast<int>(std::lround(dpi * kInchesPerMeter)));
        image.setDotsPerMeterY(static_cast<int>(std::lround(dpi * kInchesPerMeter)));
        image.fill(ground);
        QPainter painter(&image);
        CellFaces faces(CellFont(), image);
        CellPainter cells(painter, faces, look);
        cells.Paint(content, cell.isNull() ? image.rect() : cell, ground);
        cells.Finish();
        return image;
    }
};

/// What is not ground.
QRect InkOf(const QImage& image, const QColor& ground = Qt::white)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != ground)
                ink = ink.united(QRect(x, y, 1, 1));
        }
    }
    return ink;
}

} // namespace

TEST(CellPainter, TextsStandAtTheirEdge)
{
    CellContent content = Text(QStringLiteral("12.5"));
    content.edge = CellEdge::Far;
    EXPECT_GT(InkOf(Picture().Of(content)).left(), 150);
    content.edge = CellEdge::Near;
    EXPECT_LT(InkOf(Picture().Of(content)).left(), 10);
    content.edge = CellEdge::Center;
    EXPECT_NEAR(InkOf(Picture().Of(content)).center().x(), 100, 2);
}

TEST(CellPainter, RightToLeftExchangesTheEdges)
{
    const Picture picture{.look = {.direction = Qt::RightToLeft}};
    CellContent content = Text(QStringLiteral("12.5"));
    content.edge = CellEdge::Far;
    EXPECT_LT(InkOf(picture.Of(content)).left(), 10);
    content.edge = CellEdge::Near;
    EXPECT_GT(InkOf(picture.Of(content)).left(), 150);
}

TEST(CellPainter, TextsKeepThePaddingAtBothSides)
{
    CellContent content = Text(QStringLiteral("MM"));
    EXPECT_GE(InkOf(Picture().Of(content)).left(), 5);
    content.edge = CellEdge::Far;
    EXPECT_LE(InkOf(Picture().Of(content)).right(), 195);
}

TEST(CellPainter, HighCellsAlignTheirTextsVertically)
{
    const Picture picture{.size = {200, 100}};
    CellContent content = Text(QStringLiteral("P"));
    content.vAlign = VerticalAlignment::Top;
    EXPECT_LT(InkOf(picture.Of(content)).bottom(), 30);
    content.vAlign = VerticalAlignment::Center;
    EXPECT_NEAR(InkOf(picture.Of(content)).center().y(), 50, 4);
    content.vAlign = VerticalAlignment::Bottom;
    EXPECT_GT(InkOf(picture.Of(content)).top(), 70);
}

TEST(CellPainter, RowsOfOneLineHaveOneBaseline)
{
    CellContent content = Text(QStringLiteral("P"));
    const QImage top = Picture().Of(content);
    content.vAlign = VerticalAlignment::Bottom;
    EXPECT_EQ(Picture().Of(content), top);
    content.vAlign = VerticalAlignment::Center;
    EXPECT_EQ(Picture().Of(content), top);
}

TEST(CellPainter, BoldTextsAreWider)
{
    CellContent content = Text(QStringLiteral("Boiler feed"));
    const int regular = InkOf(Picture().Of(content)).width();
    content.bold = true;
    EXPECT_GT(InkOf(Picture().Of(content)).width(), regular + 3);
}

TEST(CellPainter, TextsThatFitTheMeasuredWidthAreNeverCutOffAtAnyResolution)
{
    for (const char* text : {"P-101A", "AVAVA To Ty office", "Flow\n(m3/h)", "a\xE2\x80\xA9\tb", "Umw\xC3\xA4lzpumpe",
                             "12,345.50", "Насос подпитки", "W"})
    {
        for (const bool bold : {false, true}) {
            Sheet sheet;
            sheet.SetFont(CellFont());
            sheet.SetSize(1, 1);
            sheet.SetText(At(1, 1), QString::fromUtf8(text));
            sheet.SetBold(Block(1, 1, 1, 1), bold);
            const int twips = sheet.WidestText(Column(1));
            for (const int dpi : {72, 84, 96, 101, 108, 120, 132, 144, 168, 192, 240, 300}) {
                const auto wide = static_cast<int>(std::lround(twips * dpi / 1440.0)) + dpi;
                Picture picture{.size = {wide, dpi / 2}, .dpi = dpi, .cell = {0, 0, wide - dpi, dpi / 2}};
                const QImage measured = picture.Of(ContentOf(sheet, At(1, 1)));
                picture.cell.setWidth(wide);
                EXPECT_EQ(measured, picture.Of(ContentOf(sheet, At(1, 1)))) << text << ' ' << dpi;
            }
        }
    }
}

TEST(CellPainter, TextsThatDoNotFitEndInAnEllipsis)
{
    const QString text = QStringLiteral("spare in store, see data sheet");
    const QImage whole = Picture{.size = {400, 20}}.Of(Text(text));
    const QImage narrow = Picture{.size = {400, 20}, .cell = {0, 0, 80, 20}}.Of(Text(text));
    EXPECT_LE(InkOf(narrow).right(), 76);
    EXPECT_EQ(whole.copy(0, 0, 40, 20), narrow.copy(0, 0, 40, 20));
    const QString elided = CellFaces(CellFont(), narrow).Elided(text, false, 70);
    EXPECT_EQ(narrow, (Picture{.size = {400, 20}}.Of(Text(elided))));
}

TEST(CellPainter, TextsOfLowRowsStayInTheirCells)
{
    const Picture picture{.size = {200, 40}, .cell = {0, 10, 200, 8}};
    const QRect ink = InkOf(picture.Of(Text(QStringLiteral("Pump (g)"))));
    EXPECT_GE(ink.top(), 10);
    EXPECT_LE(ink.bottom(), 17);
    EXPECT_GE(ink.height(), 3);
}

TEST(CellPainter, WrappedTextsTakeSeveralLines)
{
    CellContent content = Text(QStringLiteral("spare in store, see data sheet"));
    content.wraps = true;
    const QRect ink = InkOf(Picture{.size = {100, 80}}.Of(content));
    EXPECT_GT(ink.height(), 20);
    EXPECT_LE(ink.right(), 96);
    content.text = QStringLiteral("a\nb");
    EXPECT_GT(InkOf(Picture{.size = {100, 80}}.Of(content)).height(), 15);
}

TEST(CellPainter, FastTextsLookLikeLaidOutOnes)
{
    for (const char* text : {"P-101A", "AVAVA To Ty", "1,234.50", "spare in store"}) {
        CellContent content = Text(QString::fromLatin1(text));
        const QImage fast = Picture().Of(content);
        EXPECT_EQ(fast, (Picture{.look = {.drawing = TextDrawing::AsText}}.Of(content))) << text;
    }
}

TEST(CellPainter, TextsAreLegibleOnAnyGroundInAnyPalette)
{
    for (const QColor preferred : {QColor(Qt::black), QColor(Qt::white)}) {
        Picture picture{.size = {60, 40}};
        picture.look.palette.setColor(QPalette::Text, preferred);
        for (const int number : {0x000000, 0xFFFFFF, 0x0000C0, 0xC00000, 0x00FFFF, 0x808080, 0x777777}) {
            picture.ground = ColorOf(static_cast<std::uint32_t>(number), {});
            const QImage image = picture.Of(Text(QStringLiteral("███")));
            EXPECT_GE(Contrast(picture.ground, image.pixelColor(12, 16)), kLegibleContrast) << number;
        }
    }
}

TEST(CellPainter, TheCellsColorIsItsGround)
{
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    CellFaces faces(CellFont(), image);
    const CellLook look;
    const CellPainter cells(painter, faces, look);
    CellContent content;
    EXPECT_EQ(cells.GroundOf(content, Qt::gray), QColor(Qt::gray));
    content.backColor = 0xFF;
    EXPECT_EQ(cells.GroundOf(content, Qt::gray), QColor(Qt::red));
}

TEST(CellPainter, CheckBoxesStandInTheMiddle)
{
    const QCheckBox widget;
    CellContent content = Text(QStringLiteral("0"));
    content.style.type = CellType::CheckBox;
    for (const QWidget* drawnBy : std::initializer_list<const QWidget*>{&widget, nullptr}) {
        const Picture picture{.size = {101, 31}, .look = {.widget = drawnBy}};
        content.text = QStringLiteral("0");
        const QImage empty = picture.Of(content);
        const QRect box = InkOf(empty);
        EXPECT_NEAR(box.center().x(), 50, 1);
        EXPECT_NEAR(box.center().y(), 15, 1);
        EXPECT_EQ(box.width(), box.height());
        EXPECT_EQ(empty.pixelColor(box.center()), QColor(Qt::white));
        content.text = QStringLiteral("1");
        EXPECT_NE(picture.Of(content).copy(box.adjusted(3, 3, -3, -3)), empty.copy(box.adjusted(3, 3, -3, -3)));
    }
}

TEST(CellPainter, CheckBoxesAreSeenOnDarkGrounds)
{
    const QCheckBox widget;
    Picture picture{.size = {101, 31}, .ground = QColor(30, 30, 30), .look = {.widget = &widget}};
    picture.look.palette.setColor(QPalette::Text, Qt::white);
    CellContent content = Text(QStringLiteral("0"));
    content.style.type = CellType::CheckBox;
    const QImage image = picture.Of(content);
    const QRect box = InkOf(image, picture.ground);
    EXPECT_GE(Contrast(image.pixelColor(box.left(), box.center().y()), picture.ground), 2.5);
}

} // namespace schedules::testing
