#include "tools/schedule/picking/TagTable.h"

#include "support/SheetDrawing.h"

#include <gtest/gtest.h>

namespace schedules {

namespace {

/// A sheet with these texts, row by row, headers included.
std::unique_ptr<Sheet> SheetOf(const std::vector<std::vector<const char*>>& rows)
{
    auto sheet = std::make_unique<Sheet>();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t column = 0; column < rows[row].size(); ++column)
            sheet->SetText({Column(static_cast<int>(column)), Row(static_cast<int>(row))},
                           QString::fromUtf8(rows[row][column]));
    }
    sheet->SetSize(sheet->DataColumnCount(), sheet->DataRowCount());
    return sheet;
}

std::string Told(const SelectedTags& selected)
{
    return std::to_string(selected.count) + " " + selected.xml.toStdString();
}

} // namespace

TEST(TagTable, WithoutATagTheDocumentIsEmpty)
{
    EXPECT_EQ(Told(TickedTags(Sheet(), Tags::AreRows)), "0 <Tags/>");
    EXPECT_EQ(Told(TickedTags(*SheetOf({{"", "1"}, {"Tag", "P-1"}, {"Select", "0"}}), Tags::AreColumns)), "0 <Tags/>");
}

TEST(TagTable, ReadsTagsFromColumnsOrRows)
{
    EXPECT_EQ(Told(TickedTags(*SheetOf({{"", "1", "2", "3"}, {"Tag", "a", "b", "c"}, {"Select", "1", "0", "1"}}),
                              Tags::AreColumns)),
              "2 <Tags><Tag><Id>a</Id></Tag><Tag><Id>c</Id></Tag></Tags>");
    EXPECT_EQ(Told(TickedTags(*SheetOf({{"", "Tag", "Select"}, {"1", "a", "1"}, {"2", "b", "0"}, {"3", "c", "1"}}),
                              Tags::AreRows)),
              "2 <Tags><Tag><Id>a</Id></Tag><Tag><Id>c</Id></Tag></Tags>");
}

TEST(TagTable, EscapesIdentifiersAndSkipsEmptyOnes)
{
    EXPECT_EQ(Told(TickedTags(*SheetOf({{"", "Tag", "Select"}, {"1", "", "1"}, {"2", "<&>", "1"}}), Tags::AreRows)),
              "1 <Tags><Tag><Id>&lt;&amp;&gt;</Id></Tag></Tags>");
}

} // namespace schedules
