#include "host/cli/GridJson.h"

#include "spread/Sheet.h"

#include <gtest/gtest.h>
#include <string>

namespace schedules::host {

namespace {

struct GridJsonTest : ::testing::Test
{
    GridJsonTest()
    {
        sheet.SetSize(2, 1);
        for (int column = 0; column <= 2; ++column)
            sheet.SetColumnWidth(Column(column), 1000 + column);
    }

    std::string Json() const { return GridJson(sheet, 0, false).toStdString(); }

    /// The document with only these cells.
    static std::string WithCells(const std::string& cells)
    {
        return R"({"columns":2,"rows":1,"orientation":0,"transposed":false,
"columnWidths":[1000,1001,1002],
"hiddenColumns":[],
"hiddenRows":[],
"cells":)" + cells +
               "}\n";
    }

    Sheet sheet;
};

constexpr Cell At(int column, int row)
{
    return {Column(column), Row(row)};
}

} // namespace

TEST_F(GridJsonTest, AnEmptyGridHasNoCells)
{
    EXPECT_EQ(Json(), WithCells("[]"));
}

TEST_F(GridJsonTest, RowsThatAreShownInAnOrderOfTheirOwnAreListed)
{
    sheet.SetSize(2, 3);
    EXPECT_EQ(Json().find("rowOrder"), std::string::npos);
    sheet.SetRowOrder({3, 1, 2});
    EXPECT_NE(Json().find("\n\"hiddenRows\":[],\n\"rowOrder\":[3,1,2],\n\"cells\":"), std::string::npos) << Json();
}

TEST_F(GridJsonTest, CellsComeRowByRowWithTheirHeaders)
{
    sheet.SetText(At(1, 1), QStringLiteral("d"));
    sheet.SetText(At(2, 0), QStringLiteral("b"));
    sheet.SetText(At(0, 1), QStringLiteral("c"));
    sheet.SetText(At(1, 0), QStringLiteral("a"));
    EXPECT_EQ(Json(), WithCells(R"([
{"column":1,"row":0,"text":"a","type":"text","bold":false,"backColor":null},
{"column":2,"row":0,"text":"b","type":"text","bold":false,"backColor":null},
{"column":0,"row":1,"text":"c","type":"text","bold":false,"backColor":null},
{"column":1,"row":1,"text":"d","type":"text","bold":false,"backColor":null}
])"));
}

TEST_F(GridJsonTest, AnEmptyCheckBoxIsACell)
{
    sheet.SetStyle(At(1, 1), {.type = CellType::CheckBox});
    EXPECT_EQ(Json(), WithCells(R"([
{"column":1,"row":1,"text":"","type":"checkbox","bold":false,"backColor":null}
])"));
}

TEST_F(GridJsonTest, AnEmptyBoldCellIsACell)
{
    sheet.SetBold(CellRange::Of(Column(2), Row(1)), true);
    EXPECT_EQ(Json(), WithCells(R"([
{"column":2,"row":1,"text":"","type":"text","bold":true,"backColor":null}
])"));
}

TEST_F(GridJsonTest, AnEmptyCellWithAColourIsACellAndColoursAreUnsigned)
{
    sheet.SetBackColor(CellRange::Of(Column(1), Row(1)), 0x8000000F);
    sheet.SetBackColor(CellRange::Of(Column(2), Row(1)), 0);
    EXPECT_EQ(Json(), WithCells(R"([
{"column":1,"row":1,"text":"","type":"text","bold":false,"backColor":2147483663},
{"column":2,"row":1,"text":"","type":"text","bold":false,"backColor":0}
])"));
}

TEST_F(GridJsonTest, CellsBeyondTheSizeAreLeftOut)
{
    sheet.SetText(At(3, 1), QStringLiteral("right"));
    sheet.SetText(At(1, 2), QStringLiteral("below"));
    EXPECT_EQ(Json(), WithCells("[]"));
}

TEST_F(GridJsonTest, TextsAreEscaped)
{
    sheet.SetText(At(1, 1), QStringLiteral("say \"水\"\n\\ \t"));
    EXPECT_EQ(Json(), WithCells(R"([
{"column":1,"row":1,"text":"say \"水\"\n\\ \t","type":"text","bold":false,"backColor":null}
])"));
}

TEST_F(GridJsonTest, HiddenOnesAreListedInOrderAndKeepTheirWidths)
{
    sheet.SetHidden(Column(2), true);
    sheet.SetHidden(Column(0), true);
    sheet.SetHidden(Column(3), true);
    sheet.SetHidden(Row(1), true);
    EXPECT_EQ(GridJson(sheet, 1, true), QByteArray(R"({"columns":2,"rows":1,"orientation":1,"transposed":true,
"columnWidths":[1000,1001,1002],
"hiddenColumns":[0,2],
"hiddenRows":[1],
"cells":[]}
)"));
}

} // namespace schedules::host
