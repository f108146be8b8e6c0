#include "spread/CellEdge.h"

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

CellStyle StyleOf(CellType type)
{
    CellStyle style;
    style.type = type;
    return style;
}

const CellKind& Kind(CellType type)
{
    return KindOf(StyleOf(type));
}

} // namespace

TEST(CellKind, TextsAreShownAndEditedAsTheyStand)
{
    const CellKind& text = Kind(CellType::StaticText);
    EXPECT_TRUE(text.showsText);
    EXPECT_FALSE(text.hasSymbol);
    EXPECT_FALSE(text.Toggles());
    EXPECT_FALSE(text.holdsNumber);
    EXPECT_EQ(text.edge, std::nullopt);
    EXPECT_EQ(text.role, QAccessible::Cell);
}

TEST(CellKind, CheckBoxesAreSymbolsInTheMiddleThatAClickChanges)
{
    const CellKind& box = Kind(CellType::CheckBox);
    EXPECT_FALSE(box.showsText);
    EXPECT_TRUE(box.hasSymbol);
    EXPECT_TRUE(box.Toggles());
    EXPECT_TRUE(box.holdsNumber);
    EXPECT_EQ(box.edge, CellEdge::Center);
    EXPECT_EQ(box.role, QAccessible::Cell);
}

TEST(CellKind, StandsAtItsEdgeWhateverTheAlignment)
{
    for (const auto alignment : {HorizontalAlignment::Left, HorizontalAlignment::Data, HorizontalAlignment::Center})
        EXPECT_EQ(EdgeOf(alignment, StyleOf(CellType::CheckBox), "1"), CellEdge::Center);
    EXPECT_EQ(EdgeOf(HorizontalAlignment::Left, StyleOf(CellType::StaticText), "1"), CellEdge::Near);
}

TEST(CellKind, OnlyACellThatTogglesIsTicked)
{
    EXPECT_TRUE(IsTicked(StyleOf(CellType::CheckBox), "1"));
    for (const char* text : {"", "0", "-1", "11", "yes"})
        EXPECT_FALSE(IsTicked(StyleOf(CellType::CheckBox), text)) << text;
    EXPECT_FALSE(IsTicked(StyleOf(CellType::StaticText), "1"));
    for (const bool ticked : {false, true})
        EXPECT_EQ(IsTicked(StyleOf(CellType::CheckBox), StateText(ticked).toStdString()), ticked);
}

} // namespace schedules::testing
