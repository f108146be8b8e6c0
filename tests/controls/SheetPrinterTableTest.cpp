// What the cells of a printed page look like.

#include "controls/paper/SheetPrinterTable.h"

#include "controls/PrintedSheet.h"

#include <QApplication>
#include <QPalette>

namespace schedules::testing {

TEST(SheetPrinterTable, WithoutAHeaderTheTableStartsAtTheMargin)
{
    Printed printed(kPumps);
    const QImage picture = printed.Picture();
    EXPECT_EQ(Ink(picture, {0, 0, picture.width(), 34}), 0);
    EXPECT_LT(Darkest(picture, {100, 34}, {100, 38}), 128);
}

TEST(SheetPrinterTable, HiddenRowsAndColumnsAreNotPrinted)
{
    Printed printed(kPumps);
    printed.sheet->SetHidden(Column(1), true);
    printed.sheet->SetHidden(Row(2), true);
    EXPECT_EQ(printed.Text(), "Pump Remarks\nP-1 Резерв\nPage 1 of 1");
}

TEST(SheetPrinterTable, OptionsLeaveOutHeaders)
{
    EXPECT_EQ(Printed(kPumps).With(PrintOption::ColumnHeaders, false).Text(),
              "P-1 12.5 Резерв\nP-2 7 上海\nPage 1 of 1");
    EXPECT_EQ(Printed(kPumps).With(PrintOption::RowHeaders, false).Text(),
              "Flow Remarks\n12.5 Резерв\n7 上海\nPage 1 of 1");
}

TEST(SheetPrinterTable, TheBorderIsAnOption)
{
    EXPECT_LT(LineBefore(Printed(kPumps).Picture(), 0, 1), 100);
    EXPECT_EQ(LineBefore(Printed(kPumps).With(PrintOption::Border, false).Picture(), 0, 1), 255);
}

TEST(SheetPrinterTable, TheGridIsAnOption)
{
    EXPECT_LT(LineBefore(Printed(kPumps).Picture(), 2, 1), 240);
    const QImage without = Printed(kPumps).With(PrintOption::Grid, false).Picture();
    EXPECT_EQ(LineBefore(without, 2, 1), 255);
    EXPECT_EQ(LineBefore(without, 1, 1), 255);
    EXPECT_LT(LineBefore(without, 0, 1), 100) << "the border is another option";
}

TEST(SheetPrinterTable, HeadersStandOutFromTheData)
{
    const QImage picture = Printed(kPumps).Picture();
    EXPECT_LT(LineBefore(picture, 1, 1), LineBefore(picture, 2, 1));
}

TEST(SheetPrinterTable, ShadingIsOfHeadersAlone)
{
    Printed printed(kPumps);
    const QImage plain = printed.Picture();
    const QImage shaded = printed.With(PrintOption::Shading, true).Picture();
    EXPECT_EQ(Ground(plain, 0, 1), QColor(Qt::white));
    EXPECT_EQ(Ground(plain, 1, 0), QColor(Qt::white));
    EXPECT_NE(Ground(shaded, 0, 1), QColor(Qt::white));
    EXPECT_NE(Ground(shaded, 1, 0), QColor(Qt::white));
    EXPECT_EQ(Ground(shaded, 1, 1), QColor(Qt::white));
}

TEST(SheetPrinterTable, AHeadersSystemColorIsShadingItsOwnColorIsNot)
{
    Printed printed(kPumps);
    printed.sheet->SetBackColor(Block(0, 1, 0, 1), 0x8000000F);
    printed.sheet->SetBackColor(Block(0, 2, 0, 2), 0x0000FF00);
    const QImage picture = printed.Picture();
    EXPECT_EQ(Ground(picture, 0, 1), QColor(Qt::white));
    EXPECT_EQ(Ground(picture, 0, 2), QColor(0, 255, 0));
}

TEST(SheetPrinterTable, CellsHaveTheirColors)
{
    Printed printed(kPumps);
    printed.sheet->SetBackColor(Block(1, 1, 1, 1), 0x00C0E0FF);
    const QImage picture = printed.Picture();
    EXPECT_EQ(Ground(picture, 1, 1), QColor(0xFF, 0xE0, 0xC0));
    EXPECT_EQ(Ground(picture, 2, 1), QColor(Qt::white));
}

TEST(SheetPrinterTable, TextOnADarkCellIsLight)
{
    Printed printed(QStringLiteral("|\n|MMMM"));
    printed.sheet->SetBackColor(Block(1, 1, 1, 1), 0x00400000);
    const QImage picture = printed.Bare().Picture();
    int lightest = 0;
    for (int x = CellRect(1, 1).left() + 4; x < CellRect(1, 1).right() - 4; ++x) {
        for (int y = CellRect(1, 1).top() + 4; y < CellRect(1, 1).bottom() - 4; ++y)
            lightest = std::max(lightest, qGray(picture.pixel(x, y)));
    }
    EXPECT_GT(lightest, 200);
}

TEST(SheetPrinterTable, PaperIsLightWhateverTheDesktopsPalette)
{
    Printed printed(kPumps);
    printed.With(PrintOption::Shading, true);
    const QImage light = printed.Picture();
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30), QColor(0x10, 0x10, 0x10)));
    const QImage dark = printed.Picture();
    QApplication::setPalette(before);
    EXPECT_EQ(light, dark);
}

TEST(SheetPrinterTable, BoldIsBold)
{
    Printed printed(QStringLiteral("|\n|MMMM"));
    const int regular = Ink(printed.Bare().Picture(), CellRect(1, 1));
    printed.sheet->SetBold(Block(1, 1, 1, 1), true);
    EXPECT_GT(Ink(printed.Picture(), CellRect(1, 1)), regular * 5 / 4);
}

TEST(SheetPrinterTable, AlignmentIsAsOnScreen)
{
    Printed printed(QStringLiteral("|\n|7"));
    printed.sheet->SetHAlign(Block(1, 1, 1, 1), HorizontalAlignment::Data);
    const QImage picture = printed.Bare().Picture();
    EXPECT_EQ(Ink(picture, CellRect(1, 1).adjusted(0, 0, -15, 0)), 0);
    EXPECT_GT(Ink(picture, CellRect(1, 1)), 0);
}

TEST(SheetPrinterTable, CheckBoxesAreBoxesWithATickOrWithout)
{
    const QImage picture = Printed(QStringLiteral("||\n|[x]|[ ]")).Bare().Picture();
    const int ticked = Ink(picture, CellRect(1, 1));
    const int empty = Ink(picture, CellRect(2, 1));
    EXPECT_GT(empty, 10);
    EXPECT_GT(ticked, empty + 5);
    EXPECT_EQ(Ink(picture, QRect(Middle(2, 1) - QPoint(2, 2), QSize(4, 4))), 0);
}

TEST(SheetPrinterTable, RowsAreInDisplayOrder)
{
    Printed printed(kPumps);
    printed.sheet->SetRowOrder({2, 1});
    EXPECT_EQ(printed.Text(), "Pump Flow Remarks\nP-2 7 上海\nP-1 12.5 Резерв\nPage 1 of 1");
}

TEST(SheetPrinterTable, FromRightToLeftTheFirstColumnIsAtTheRightMargin)
{
    Printed printed(kPumps);
    printed.job.direction = Qt::RightToLeft;
    EXPECT_EQ(printed.Text(), "Remarks Flow Pump\nРезерв 12.5 P-1\n上海 7 P-2\nPage 1 of 1");
    const QImage picture = printed.Picture();
    EXPECT_LT(Darkest(picture, {557, 60}, {561, 60}), 100);
}

TEST(SheetPrinterTable, AColumnWiderThanThePageGoesOnInTheNext)
{
    Printed printed(QStringLiteral("Pump|Remarks\nP-1|") + QStringLiteral("M").repeated(90) + QStringLiteral("."));
    printed.sheet->SetColumnWidth(Column(1), 14 * 1440);
    const PrintedPdf pdf = printed.Bare().Pdf();
    ASSERT_EQ(pdf.Info("Pages"), "3");
    const QRect row(36 + kInch, 36 + kInch / 2, 523 - kInch, kInch / 2);
    const std::array ink{Ink(pdf.Picture(1), row), Ink(pdf.Picture(2), row), Ink(pdf.Picture(3), row)};
    EXPECT_GT(ink[0], 500);
    EXPECT_GT(ink[1], 20) << "the rest of the text";
    EXPECT_LT(ink[1], ink[0]);
    EXPECT_EQ(ink[2], 0);
    EXPECT_EQ(Ink(pdf.Picture(1), {560, 0, 35, 842}), 0) << "nothing beyond the margin";
    EXPECT_EQ(Ink(pdf.Picture(2), {36, 36 + kInch / 2, kInch, kInch / 2}),
              Ink(pdf.Picture(1), {36, 36 + kInch / 2, kInch, kInch / 2}));
}

TEST(SheetPrinterTable, ATextThatIsALittleTooWideIsNarrowed)
{
    Printed printed(QStringLiteral("|\n|EPSPES EPSPES EPSPES"));
    EXPECT_EQ(printed.Text(), "EPSPES EPSPES EPSPES\nPage 1 of 1");
    const QImage picture = printed.Bare().Picture();
    EXPECT_EQ(Ink(picture, CellRect(2, 1)), 0);
}

TEST(SheetPrinterTable, ATextThatFitsItsColumnOnScreenIsWholeOnPaper)
{
    for (const char* family : {"DejaVu Sans", "DejaVu Sans Mono", "DejaVu Serif", "Liberation Sans", "Liberation Mono"})
    {
        for (const char* text : {"1234567.5", "WWWWWWWWWW", "iiiiiiiiiiii", "AVAVA"}) {
            Printed printed(QStringLiteral("|\n|") + QLatin1String(text));
            printed.sheet->SetFont(QFont(QLatin1String(family), 9));
            printed.sheet->SetColumnWidth(Column(1), printed.sheet->WidestText(Column(1)));
            EXPECT_EQ(printed.Text(), std::string(text) + "\nPage 1 of 1") << family;
        }
    }
}

TEST(SheetPrinterTable, TextsOfARowOfOneLineStandOnOneLine)
{
    Printed printed(QStringLiteral("||\n|up|down"));
    printed.sheet->SetRowHeight(Row(1), 300);
    printed.sheet->SetVAlign(Block(2, 1, 2, 1), VerticalAlignment::Bottom);
    const std::vector<double> bottoms = printed.Pdf().WordBottoms();
    ASSERT_GE(bottoms.size(), 2u);
    EXPECT_DOUBLE_EQ(bottoms[0], bottoms[1]);
    printed.sheet->SetRowHeight(Row(1), 600);
    const std::vector<double> apart = printed.Pdf().WordBottoms();
    EXPECT_NEAR(apart[1] - apart[0], 15, 2);
}

} // namespace schedules::testing
