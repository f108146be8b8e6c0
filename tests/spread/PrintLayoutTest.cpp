#include "spread/PrintLayout.h"

#include "common/Error.h"
#include "spread/Sheet.h"
#include "support/SheetDrawing.h"

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

constexpr int kInch = 1440;

/// Ten inches by fourteen with margins of an inch: eight by twelve are left, or twelve by eight.
constexpr PaperSize kPaper{10 * kInch, 14 * kInch};

int NoHeader(int)
{
    return 0;
}

/// Columns with widths in inches, the header column first, and rows of one inch, the header row included.
struct Table
{
    Table(std::initializer_list<double> widths, int rows)
    {
        sheet.SetSize(static_cast<int>(widths.size()) - 1, rows);
        for (int column = 0; const double width : widths)
            sheet.SetColumnWidth(Column(column++), static_cast<int>(width * kInch));
        for (int row = 0; row <= rows; ++row)
            sheet.SetRowHeight(Row(row), kInch);
        setup.margins.fill(kInch);
    }

    Table& Smart()
    {
        setup.action = PrintAction::Smart;
        return *this;
    }

    Table& Without(PrintOption option)
    {
        setup.options[static_cast<std::size_t>(option)] = false;
        return *this;
    }

    PrintLayout Layout() const { return PrintLayout(sheet, kPaper, setup, NoHeader); }

    Sheet sheet;
    PrintSetup setup;
};

QString Inches(int twips)
{
    return QString::number(static_cast<double>(twips) / kInch);
}

/// "0 3@2.5 4@3[1+8]": the items, those that do not follow the one before with where they start, those that are cut
/// with what is skipped and what is shown of them. Runs of whole items that follow each other read "3-7".
QString Drawn(const std::vector<PrintTrack>& tracks)
{
    QStringList drawn;
    int end = 0;
    for (const PrintTrack& track : tracks) {
        QString text = QString::number(track.item);
        if (track.start != end)
            text += '@' + Inches(track.start);
        if (track.Cut())
            text += '[' + Inches(track.skipped) + '+' + Inches(track.size) + ']';
        drawn << text;
        end = track.End();
    }
    return drawn.join(' ');
}

/// A line for the paper, then one for each page: columns | rows.
std::string Drawn(const PrintLayout& layout)
{
    const bool across = layout.Orientation() == PageOrientation::Across;
    QString drawn = across ? "across" : "upright";
    if (layout.Scale() != 1)
        drawn += " at " + QString::number(layout.Scale());
    for (int number = 0; number < layout.PageCount(); ++number) {
        const PrintPage page = layout.Page(number);
        drawn += '\n' + Drawn(page.columns) + " | " + Drawn(page.rows);
    }
    return drawn.toStdString();
}

std::string Drawn(const Table& table)
{
    return Drawn(table.Layout());
}

/// All orders of the visible rows, page by page.
std::vector<int> RowsOf(const PrintLayout& layout)
{
    std::vector<int> rows;
    for (int number = 0; number < layout.PageCount(); ++number) {
        for (const PrintTrack& row : layout.Page(number).rows)
            rows.push_back(row.item);
    }
    return rows;
}

} // namespace

TEST(PrintLayout, WhatFitsIsOnePage)
{
    EXPECT_EQ(Drawn(Table({2, 3, 3}, 3)), "upright\n"
                                          "0 1 2 | 0 1 2 3");
}

TEST(PrintLayout, TheHeaderRowIsOnEveryPage)
{
    EXPECT_EQ(Drawn(Table({1, 1}, 25)), "upright\n"
                                        "0 1 | 0 1 2 3 4 5 6 7 8 9 10 11\n"
                                        "0 1 | 0 12 13 14 15 16 17 18 19 20 21 22\n"
                                        "0 1 | 0 23 24 25");
}

TEST(PrintLayout, PagesGoLeftToRightThenDownWithTheHeaderColumnOnEach)
{
    EXPECT_EQ(Drawn(Table({2, 3, 3, 3, 3}, 13)), "upright\n"
                                                 "0 1 2 | 0 1 2 3 4 5 6 7 8 9 10 11\n"
                                                 "0 3 4 | 0 1 2 3 4 5 6 7 8 9 10 11\n"
                                                 "0 1 2 | 0 12 13\n"
                                                 "0 3 4 | 0 12 13");
}

TEST(PrintLayout, WithoutHeadersTheirRoomIsForData)
{
    Table table({2, 3, 3, 2}, 12);
    table.Without(PrintOption::RowHeaders).Without(PrintOption::ColumnHeaders);
    EXPECT_EQ(Drawn(table), "upright\n"
                            "1 2 3 | 1 2 3 4 5 6 7 8 9 10 11 12");
}

TEST(PrintLayout, HiddenColumnsAndRowsAreLeftOut)
{
    Table table({2, 3, 9, 3}, 5);
    table.sheet.SetHidden(Column(2), true);
    for (const int row : {1, 3, 5})
        table.sheet.SetHidden(Row(row), true);
    EXPECT_EQ(Drawn(table), "upright\n"
                            "0 1 3 | 0 2 4");
}

TEST(PrintLayout, HiddenHeadersAreLeftOut)
{
    Table table({2, 3}, 1);
    table.sheet.SetHidden(Column(0), true);
    table.sheet.SetHidden(Row(0), true);
    EXPECT_EQ(Drawn(table), "upright\n"
                            "1 | 1");
}

TEST(PrintLayout, HiddenRowsAtTheEndMakeNoFurtherPage)
{
    Table table({2, 3}, 20);
    for (int row = 12; row <= 20; ++row)
        table.sheet.SetHidden(Row(row), true);
    EXPECT_EQ(Drawn(table), "upright\n"
                            "0 1 | 0 1 2 3 4 5 6 7 8 9 10 11");
}

TEST(PrintLayout, RowsComeInDisplayOrder)
{
    Table table({2, 3}, 4);
    table.sheet.SetRowOrder({3, 1, 4, 2});
    EXPECT_EQ(Drawn(table), "upright\n"
                            "0 1 | 0 3 1 4 2");
}

TEST(PrintLayout, FrozenColumnsAndRowsAreOnEveryPage)
{
    Table table({1, 1, 5, 5}, 22);
    table.sheet.SetFrozenColumns(1);
    table.sheet.SetFrozenRows(1);
    EXPECT_EQ(Drawn(table), "upright\n"
                            "0 1 2 | 0 1 2 3 4 5 6 7 8 9 10 11\n"
                            "0 1 3 | 0 1 2 3 4 5 6 7 8 9 10 11\n"
                            "0 1 2 | 0 1 12 13 14 15 16 17 18 19 20 21\n"
                            "0 1 3 | 0 1 12 13 14 15 16 17 18 19 20 21\n"
                            "0 1 2 | 0 1 22\n"
                            "0 1 3 | 0 1 22");
}

TEST(PrintLayout, FrozenColumnsThatLeaveNoRoomAreOnTheirPageAlone)
{
    Table table({1, 5.5, 3, 4}, 1);
    table.sheet.SetFrozenColumns(1);
    EXPECT_EQ(Drawn(table), "upright\n"
                            "0 1 | 0 1\n"
                            "0 2 3 | 0 1");
}

TEST(PrintLayout, AHeaderColumnThatLeavesNoRoomIsOnItsPageAlone)
{
    EXPECT_EQ(Drawn(Table({6.5, 3, 4}, 1)), "upright\n"
                                            "0 | 0 1\n"
                                            "1 2 | 0 1");
}

TEST(PrintLayout, MoreFrozenRowsThanThereAreMatterNot)
{
    Table table({1, 1}, 2);
    table.sheet.SetFrozenRows(50);
    EXPECT_EQ(Drawn(table), "upright\n"
                            "0 1 | 0 1 2");
}

TEST(PrintLayout, ARowIsNeverSplit)
{
    Table table({2, 3}, 3);
    table.sheet.SetRowHeight(Row(2), 8 * kInch);
    table.sheet.SetRowHeight(Row(3), 4 * kInch);
    EXPECT_EQ(Drawn(table), "upright\n"
                            "0 1 | 0 1 2\n"
                            "0 1 | 0 3");
}

TEST(PrintLayout, ARowHigherThanAPageEndsAtItsEdge)
{
    Table table({2, 3}, 3);
    table.sheet.SetRowHeight(Row(2), 30 * kInch);
    EXPECT_EQ(Drawn(table), "upright\n"
                            "0 1 | 0 1\n"
                            "0 1 | 0 2[0+11]\n"
                            "0 1 | 0 3");
}

TEST(PrintLayout, AColumnWiderThanAPageGoesOnInTheNext)
{
    EXPECT_EQ(Drawn(Table({2, 3, 14, 2, 4}, 1)), "upright\n"
                                                 "0 1 | 0 1\n"
                                                 "0 2[0+6] | 0 1\n"
                                                 "0 2[6+6] | 0 1\n"
                                                 "0 2[12+2] 3 | 0 1\n"
                                                 "0 4 | 0 1");
}

TEST(PrintLayout, ASheetWithoutRowsPrintsItsHeaders)
{
    EXPECT_EQ(Drawn(Table({2, 3}, 0)), "upright\n"
                                       "0 1 | 0");
}

TEST(PrintLayout, NothingToPrintIsAnEmptyPage)
{
    Table table({2}, 0);
    table.Without(PrintOption::RowHeaders).Without(PrintOption::ColumnHeaders);
    EXPECT_EQ(Drawn(table), "upright\n"
                            " | ");
}

TEST(PrintLayout, TheHeaderTakesRoomFromTheRows)
{
    Table table({1, 1}, 3);
    const PrintLayout layout(table.sheet, kPaper, table.setup, [](int width) { return width + 2 * kInch; });
    EXPECT_EQ(Drawn(layout), "upright\n"
                             "0 1 | 0 1\n"
                             "0 1 | 0 2\n"
                             "0 1 | 0 3");
}

TEST(PrintLayout, ThePaperIsTakenUpright)
{
    const Table table({1, 1}, 1);
    const PaperSize turned{kPaper.height, kPaper.width};
    EXPECT_EQ(PrintLayout(table.sheet, turned, table.setup, NoHeader).Paper(), kPaper);
}

TEST(PrintLayout, PlainPrintingGoesAcrossWhenAskedTo)
{
    Table table({2, 3, 3, 3}, 8);
    table.setup.orientation = PageOrientation::Across;
    EXPECT_EQ(Drawn(table), "across\n"
                            "0 1 2 3 | 0 1 2 3 4 5 6 7\n"
                            "0 1 2 3 | 0 8");
    EXPECT_EQ(table.Layout().Paper(), (PaperSize{kPaper.height, kPaper.width}));
}

TEST(PrintLayout, SmartPrintingStaysUprightWhenAllColumnsFit)
{
    EXPECT_EQ(Drawn(Table({2, 3, 3}, 1).Smart()), "upright\n"
                                                  "0 1 2 | 0 1");
}

TEST(PrintLayout, SmartPrintingGoesAcrossWhenAllColumnsFitThen)
{
    EXPECT_EQ(Drawn(Table({2, 3, 3, 4}, 8).Smart()), "across\n"
                                                     "0 1 2 3 | 0 1 2 3 4 5 6 7\n"
                                                     "0 1 2 3 | 0 8");
}

TEST(PrintLayout, SmartPrintingScalesDownAcross)
{
    EXPECT_EQ(Drawn(Table({2, 3, 3, 8}, 10).Smart()), "across at 0.75\n"
                                                      "0 1 2 3 | 0 1 2 3 4 5 6 7 8 9\n"
                                                      "0 1 2 3 | 0 10");
}

TEST(PrintLayout, SmartPrintingScalesToHalfAtMost)
{
    EXPECT_EQ(Drawn(Table({4, 8, 12}, 1).Smart()), "across at 0.5\n"
                                                   "0 1 2 | 0 1");
}

TEST(PrintLayout, BeyondHalfSizeSmartPrintingIsAsPlain)
{
    Table table({4, 4, 4, 4, 4, 4.25}, 1);
    const std::string plain = Drawn(table);
    EXPECT_EQ(Drawn(table.Smart()), plain);
    EXPECT_EQ(plain, "upright\n"
                     "0 1 | 0 1\n"
                     "0 2 | 0 1\n"
                     "0 3 | 0 1\n"
                     "0 4 | 0 1\n"
                     "0 5[0+4] | 0 1\n"
                     "0 5[4+0.25] | 0 1");
}

TEST(PrintLayout, SmartPrintingCountsWhatIsPrintedAlone)
{
    Table table({6, 3, 3, 9}, 1);
    table.sheet.SetHidden(Column(3), true);
    table.Smart().Without(PrintOption::RowHeaders);
    EXPECT_EQ(Drawn(table), "upright\n"
                            "1 2 | 0 1");
}

TEST(PrintLayout, PaperWithoutRoomIsRefused)
{
    Table table({2, 3}, 1);
    table.setup.margins.fill(5 * kInch);
    EXPECT_THROW(table.Layout(), Error);
    const auto high = [](int) { return 12 * kInch; };
    table.setup.margins.fill(kInch);
    EXPECT_THROW(PrintLayout(table.sheet, kPaper, table.setup, high), Error);
}

TEST(PrintLayout, EveryVisibleRowOfALargeSheetIsPrintedOnce)
{
    Table table({1, 1}, 100'000);
    table.Without(PrintOption::ColumnHeaders);
    std::vector<int> expected;
    for (int row = 1; row <= 100'000; ++row) {
        table.sheet.SetHidden(Row(row), row % 7 == 0);
        if (row % 7 != 0)
            expected.push_back(row);
    }
    const PrintLayout layout = table.Layout();
    EXPECT_EQ(layout.PageCount(), 7143);
    EXPECT_EQ(RowsOf(layout), expected);
}

} // namespace schedules::testing
