#include "webpage/PaperColumns.h"

#include <QFont>

#include <gtest/gtest.h>

using namespace schedules;

namespace {

/// A sheet of columns that are each an inch wide on the screen.
struct PaperColumnsTest : ::testing::Test
{
    void Make(int columns)
    {
        sheet.SetFont(QFont(QStringLiteral("Liberation Sans"), 12));
        sheet.SetSize(columns, 1);
        for (Column column{0}; column.Value() <= columns; ++column)
            sheet.SetColumnWidth(column, 1440);
    }

    /// The numbers of the columns, groups parted by "|".
    std::string Groups() const
    {
        std::string drawn;
        for (const ColumnGroup& group : PaperColumnsOf(sheet).groups) {
            drawn += drawn.empty() ? "" : " |";
            for (const Column column : group.columns)
                drawn += " " + std::to_string(column.Value());
        }
        return drawn;
    }

    Sheet sheet;
};

} // namespace

TEST_F(PaperColumnsTest, FewColumnsStandSideBySideInTheUsualSize)
{
    Make(3);
    EXPECT_EQ(Groups(), " 0 1 2 3");
    EXPECT_EQ(PaperColumnsOf(sheet).points, 7);
    EXPECT_NEAR(PaperColumnsOf(sheet).groups[0].widths[0], 72 * 7 / 12.0 * 1.1, 0.01);
}

TEST_F(PaperColumnsTest, ALittleMoreThanFitAreMadeSmaller)
{
    Make(18);
    EXPECT_EQ(Groups(), " 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18");
    EXPECT_NEAR(PaperColumnsOf(sheet).points, 5.74, 0.01);
    EXPECT_NEAR(PaperColumnsOf(sheet).groups[0].width, 720, 0.01);
}

TEST_F(PaperColumnsTest, ManyMoreAreGroupsWithTheRowHeadersInFront)
{
    Make(30);
    EXPECT_EQ(Groups(), " 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 |"
                        " 0 15 16 17 18 19 20 21 22 23 24 25 26 27 28 |"
                        " 0 29 30");
    EXPECT_EQ(PaperColumnsOf(sheet).points, 7);
}

TEST_F(PaperColumnsTest, HiddenColumnsAreInNoGroup)
{
    Make(30);
    for (const int column : {0, 1, 8, 9, 10, 11, 12})
        sheet.SetHidden(Column(column), true);
    EXPECT_EQ(Groups(), " 2 3 4 5 6 7 13 14 15 16 17 18 19 20 21 | 22 23 24 25 26 27 28 29 30");
}

TEST_F(PaperColumnsTest, AColumnWiderThanPaperIsAGroupOfPapersWidth)
{
    Make(2);
    sheet.SetColumnWidth(Column(1), 100'000);
    sheet.SetColumnWidth(Column(2), 100'000);
    EXPECT_EQ(Groups(), " 0 1 | 0 2");
}

TEST_F(PaperColumnsTest, ASheetThatShowsNoColumnHasAGroupOfNone)
{
    Make(0);
    sheet.SetHidden(Column(0), true);
    EXPECT_EQ(Groups(), "");
    EXPECT_EQ(PaperColumnsOf(sheet).groups.size(), 1u);
}
