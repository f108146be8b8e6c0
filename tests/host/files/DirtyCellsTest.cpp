#include "host/files/DirtyCells.h"

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

QString Row(const char* cells)
{
    return QStringLiteral("<TABLE><TR><TH/></TR><TR>%1</TR></TABLE>").arg(QLatin1String(cells));
}

} // namespace

TEST(NewlyDirtyCells, AMarkThatWasNotThereCounts)
{
    EXPECT_EQ(NewlyDirtyCells(Row("<TD>1</TD><TD>2</TD>"), Row("<TD>1</TD><TD>2</TD>")), 0);
    EXPECT_EQ(NewlyDirtyCells(Row("<TD>1</TD><TD>2</TD>"), Row("<TD Dirty='-1'>9</TD><TD Dirty='-1'>2</TD>")), 2)
        << "also when the value is the old one";
}

TEST(NewlyDirtyCells, AMarkThatWasThereCountsWithAnotherTextOnly)
{
    const QString before = Row("<TD Dirty='-1'>1</TD><TD Dirty='-1'>2</TD>");
    EXPECT_EQ(NewlyDirtyCells(before, before), 0);
    EXPECT_EQ(NewlyDirtyCells(before, Row("<TD Dirty='-1'>1</TD><TD Dirty='-1'>3</TD>")), 1);
    EXPECT_EQ(NewlyDirtyCells(before, Row("<TD Dirty='-1'>1</TD><TD>2</TD>")), 0) << "a mark that went";
}

TEST(NewlyDirtyCells, EqualTextsAtDifferentPlacesAreDifferentCells)
{
    EXPECT_EQ(
        NewlyDirtyCells(Row("<TD Dirty='-1'>1</TD><TD>1</TD>"), Row("<TD Dirty='-1'>1</TD><TD Dirty='-1'>1</TD>")), 1);
}

TEST(NewlyDirtyCells, WhatAnEditRemovesInACellDoesNotMoveTheOthers)
{
    EXPECT_EQ(NewlyDirtyCells(Row("<TD>1<b/><i/></TD><TD Dirty='-1'>2</TD>"),
                              Row("<TD Dirty='-1'>9</TD><TD Dirty='-1'>2</TD>")),
              1);
}

TEST(NewlyDirtyCells, OtherValuesAndOtherNamesAreNoMarks)
{
    EXPECT_EQ(NewlyDirtyCells(Row("<TD/>"), Row("<TD Dirty='0'/><TD dirty='-1'/><TD>Dirty=\"-1\"</TD>")), 0);
}

} // namespace schedules::host
