#include "host/schedule/EditedCells.h"

#include "Drawings.h"
#include "host/base/HostError.h"

#include <functional>
#include <gtest/gtest.h>

namespace schedules::host::testing {

namespace {

DataItem Item(const char* location, const char* unit)
{
    return {.location = location, .name = {}, .group = {}, .dataType = "DOUBLE", .unit = QString::fromUtf8(unit)};
}

const QList<DataItem> kItems{Item("P/Flow", "m³/h"), Item("P/Note", "")};

std::string Edits(const char* rows)
{
    return Drawn(EditedCells(QStringLiteral("<TABLE>%1</TABLE>").arg(QString::fromUtf8(rows)), kItems));
}

/// The edit of one cell of the flow.
std::string EditOf(const char* unit, const char* format, const char* text)
{
    const QString rows = QStringLiteral("<TR><TH/><TH tag='P-1'/></TR><TR><TH item='P/Flow' unit='%1' format='%2'/>"
                                        "<TD Dirty='-1'>%3</TD></TR>")
                             .arg(QString::fromUtf8(unit), format, text);
    return Edits(rows.toUtf8());
}

std::string Refusal(const std::function<void()>& read)
{
    try {
        read();
        return "nothing was refused";
    } catch (const HostError& error) {
        return error.Line().toStdString();
    }
}

} // namespace

TEST(EditedCells, AreTheMarkedOnesWithTheirTagsItemsAndVersions)
{
    EXPECT_EQ(
        Edits("<TR><TH/><TH tag='P-1'>one</TH><TH tag='P-2'>two</TH></TR>"
              "<TR><TH item='P/Flow' unit='m³/h'/><TD Dirty='-1' version='3'>12.5</TD><TD version='4'>13</TD></TR>"
              "<TR><TH>MOTOR</TH><TD/><TD/></TR>"
              "<TR><TH item='P/Note'/><TD>a</TD><TD Dirty='-1'>b &amp; c</TD></TR>"),
        "P-1 P/Flow = 12.5 (3)\n"
        "P-2 P/Note = b & c (0)");
}

TEST(EditedCells, WithTagsAsRowsAreTheSame)
{
    EXPECT_EQ(Edits("<TR><TH/><TH>MOTOR</TH><TH item='P/Flow' unit='gpm'/><TH item='P/Note'/></TR>"
                    "<TR><TH tag='P-1'/><TD/><TD Dirty='-1' version='3'>1814.0</TD><TD>a</TD></TR>"
                    "<TR><TH tag='P-2'/><TD/><TD>13</TD><TD Dirty='-1'/></TR>"),
              "P-1 P/Flow = 412.00 (3)\n"
              "P-2 P/Note =  (0)");
}

TEST(EditedCells, AreConvertedFromTheUnitThatWasShown)
{
    EXPECT_EQ(EditOf("gpm", "0.0", "1814"), "P-1 P/Flow = 412.0 (0)");
    EXPECT_EQ(EditOf("m³/h", "0.0", " 412.50 "), "P-1 P/Flow =  412.50  (0)") << "the same unit, the same text";
    EXPECT_EQ(EditOf("gpm", "0.0", "about 1800"), "P-1 P/Flow = about 1800 (0)");
}

TEST(EditedCells, LoseTheCommasOfAGroupedFormat)
{
    EXPECT_EQ(EditOf("m³/h", "#,##0.0", "1,814.0"), "P-1 P/Flow = 1814.0 (0)");
    EXPECT_EQ(EditOf("gpm", "#,##0", "1,814"), "P-1 P/Flow = 412.0 (0)");
    EXPECT_EQ(EditOf("m³/h", "0.0", "1,814"), "P-1 P/Flow = 1,814 (0)") << "may be a decimal comma";
    EXPECT_EQ(EditOf("m³/h", "#,##0", "red, green"), "P-1 P/Flow = red, green (0)");
}

TEST(EditedCells, WhatDoesNotSayWhereItBelongsIsLeftOut)
{
    EXPECT_EQ(
        Edits("<TR><TH Dirty='-1'/><TH tag='P-1' Dirty='-1'/><TH/></TR>"
              "<TR><TH/><TD Dirty='-1'>1</TD><TD Dirty='-1'>2</TD></TR>"
              "<TR><TH item='P/Flow' Dirty='-1'/><TD Dirty='0'>3</TD><TD Dirty='-1'>4</TD><TD Dirty='-1'>5</TD></TR>"),
        "");
    EXPECT_EQ(Drawn(EditedCells("<other Dirty='-1'/>", kItems)), "");
}

TEST(EditedCells, OfAnItemThatNobodyKnowsKeepTheirTexts)
{
    EXPECT_EQ(Edits("<TR><TH/><TH tag='P-1'/></TR><TR><TH item='P/Head' unit='ft'/><TD Dirty='-1'>12</TD></TR>"),
              "P-1 P/Head = 12 (0)");
}

TEST(EditedCells, KnowItemsInAnyLetterCase)
{
    EXPECT_EQ(Edits("<TR><TH/><TH tag='P-1'/></TR><TR><TH item='p/FLOW' unit='gpm'/><TD Dirty='-1'>1814</TD></TR>"),
              "P-1 p/FLOW = 412.0 (0)");
}

TEST(EditedCells, ATextThatIsNoXmlIsRefused)
{
    EXPECT_EQ(Refusal([] { EditedCells("<TABLE><TR>", {}); }),
              "the schedule is not well-formed: line 1, column 11: Premature end of document.");
    EXPECT_EQ(Refusal([] { EditedCells("", {}); }),
              "the schedule is not well-formed: line 1, column 0: Premature end of document.");
    EXPECT_EQ(Refusal([] { SelectedTags("<Tags><Tag>"); }),
              "the list of tags is not well-formed: line 1, column 11: Premature end of document.");
    EXPECT_EQ(Refusal([] { SelectedTags(""); }),
              "the list of tags is not well-formed: line 1, column 0: Premature end of document.");
}

} // namespace schedules::host::testing
