#include "spread/CellEdge.h"

#include <gtest/gtest.h>

using namespace schedules;

namespace {

CellEdge EdgeOfData(DataType type, const char* text)
{
    return EdgeOf(HorizontalAlignment::Data, {.dataType = type}, text);
}

} // namespace

TEST(CellEdge, TextsStandAtTheNearEdgeNumbersAtTheFarOne)
{
    EXPECT_EQ(EdgeOfData(DataType::Text, "12"), CellEdge::Far);
    EXPECT_EQ(EdgeOfData(DataType::Text, "\u00A012.5\u3000"), CellEdge::Far);
    EXPECT_EQ(EdgeOfData(DataType::Text, "spare"), CellEdge::Near);
    EXPECT_EQ(EdgeOfData(DataType::Text, ""), CellEdge::Near);
}

TEST(CellEdge, ValuesOfANamedTypeOfNumbersStandAtTheFarEdge)
{
    for (const DataType type :
         {DataType::Integer, DataType::Long, DataType::Single, DataType::Double, DataType::Currency})
        EXPECT_EQ(EdgeOfData(type, "n/a"), CellEdge::Far);
}

TEST(CellEdge, ATypeThatIsACodeLeavesItToTheText)
{
    EXPECT_EQ(EdgeOfData(DataType::Number, "n/a"), CellEdge::Near);
    EXPECT_EQ(EdgeOfData(DataType::Number, "12"), CellEdge::Far);
}

TEST(CellEdge, OtherAlignmentsDoNotLookAtData)
{
    constexpr CellStyle kNumber{.dataType = DataType::Double};
    EXPECT_EQ(EdgeOf(HorizontalAlignment::Left, kNumber, "12"), CellEdge::Near);
    EXPECT_EQ(EdgeOf(HorizontalAlignment::Center, kNumber, "12"), CellEdge::Center);
}

TEST(CellEdge, CheckBoxesStandInTheMiddle)
{
    constexpr CellStyle kBox{.type = CellType::CheckBox, .dataType = DataType::CheckBox};
    EXPECT_EQ(EdgeOf(HorizontalAlignment::Left, kBox, "1"), CellEdge::Center);
}
