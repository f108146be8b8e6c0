#include "model/CProperties.h"

#include "model/FailingAllocation.h"
#include "model/ModelDrawing.h"

#include <gtest/gtest.h>
#include <random>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct CPropertiesTest : ::testing::Test
{
    /// Adds properties without values.
    void Fill(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            EXPECT_TRUE(properties.Add(name, "")) << name;
    }

    ScriptedUserInterface user;
    CProperties properties{user};
};

} // namespace

TEST_F(CPropertiesTest, AreEmptyAtFirst)
{
    EXPECT_EQ(properties.Count(), 0);
    EXPECT_TRUE(properties.NewEnum().empty());
    EXPECT_EQ(properties.Item(Position(1)), nullptr);
    EXPECT_EQ(properties.Item("A"), nullptr);
}

TEST_F(CPropertiesTest, AreFoundWithoutRegardToCaseAndBlanksWhenTheyWereAdded)
{
    const auto added = properties.Add("  Width ", "10");
    EXPECT_EQ(properties.Item("width"), added);
    EXPECT_EQ(Drawn(properties), "Width='10'");
}

TEST_F(CPropertiesTest, AKeyIsNotTrimmed)
{
    Fill({"Width"});
    EXPECT_EQ(properties.Item(" Width "), nullptr);
}

TEST_F(CPropertiesTest, AreFoundWithoutRegardToCaseInAnyScript)
{
    Fill({"Größe", "НАСОС", "𐐀"});
    EXPECT_EQ(NameOf(properties.Item("GRÖßE")), "Größe");
    EXPECT_EQ(NameOf(properties.Item("насос")), "НАСОС");
    EXPECT_EQ(NameOf(properties.Item("𐐨")), "𐐀");
}

TEST_F(CPropertiesTest, TheFirstValueOfANameWins)
{
    properties.Add("Width", "10");
    EXPECT_EQ(properties.Add("Width", "20"), nullptr);
    EXPECT_EQ(properties.Add(" WIDTH ", "30"), nullptr);
    EXPECT_EQ(Drawn(properties), "Width='10'");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CPropertiesTest, ABlankNameAddsNothing)
{
    EXPECT_EQ(properties.Add("", "10"), nullptr);
    EXPECT_EQ(properties.Add("   ", "10"), nullptr);
    EXPECT_EQ(properties.Count(), 0);
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CPropertiesTest, OtherWhiteSpaceIsAName)
{
    EXPECT_NE(properties.Add("\t", "10"), nullptr);
    EXPECT_NE(properties.Add("\u00A0", "10"), nullptr);
    EXPECT_EQ(properties.Count(), 2);
}

TEST_F(CPropertiesTest, TheIdIsTheNumberOfPropertiesWhenItWasAdded)
{
    Fill({"A", "B", "C"});
    properties.Remove("B");
    Fill({"D"});
    EXPECT_EQ(Listed(properties), "1 A, 3 C, 3 D");
}

TEST_F(CPropertiesTest, TheIdStartsAgainAfterClear)
{
    Fill({"A", "B"});
    properties.Clear();
    EXPECT_EQ(properties.Count(), 0);
    Fill({"C"});
    EXPECT_EQ(Listed(properties), "1 C");
}

TEST_F(CPropertiesTest, APositionIsAPlaceAndATextAName)
{
    Fill({"A", "2", "C"});
    EXPECT_EQ(NameOf(properties.Item(Position(3))), "C");
    EXPECT_EQ(NameOf(properties.Item("2")), "2");
    properties.Remove("2");
    EXPECT_EQ(NameOf(properties.Item(Position(2))), "C");
    EXPECT_EQ(properties.Item("2"), nullptr);
}

TEST_F(CPropertiesTest, APositionThatThereIsNotGivesNothing)
{
    Fill({"A", "B"});
    for (const int place : {0, 3, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(properties.Item(Position(place)), nullptr) << place;
}

TEST_F(CPropertiesTest, RemoveTakesANameOrAPosition)
{
    Fill({"A", "B", "C", "D"});
    properties.Remove("c");
    properties.Remove(Position(1));
    EXPECT_EQ(Listed(properties), "2 B, 4 D");
}

TEST_F(CPropertiesTest, RemoveOfWhatThereIsNotDoesNothing)
{
    Fill({"A"});
    properties.Remove("B");
    properties.Remove(Position(0));
    properties.Remove(Position(2));
    EXPECT_EQ(Listed(properties), "1 A");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CPropertiesTest, RenamingDoesNotChangeTheKey)
{
    Fill({"A"});
    properties.Item("A")->SetName("B");
    EXPECT_EQ(NameOf(properties.Item("A")), "B");
    EXPECT_EQ(properties.Item("B"), nullptr);
}

TEST_F(CPropertiesTest, RemoveGoesByTheNameAsItIsNow)
{
    Fill({"A", "B"});
    properties.Item("A")->SetName("C");
    properties.Remove("A");
    EXPECT_EQ(Listed(properties), "1 C, 2 B");
    properties.Item("A")->SetName("b");
    properties.Remove("A");
    EXPECT_EQ(Listed(properties), "1 b");
    EXPECT_NE(properties.Item("A"), nullptr);
}

TEST_F(CPropertiesTest, HoldNumbersBooleansAndObjects)
{
    const auto object = std::make_shared<int>(5);
    properties.Add("Number", 2.5);
    properties.Add("Flag", true);
    properties.Add("Object", std::shared_ptr<void>(object));
    EXPECT_EQ(properties.Item("Number")->Value(), PropertyValue(2.5));
    EXPECT_EQ(properties.Item("Flag")->Value(), PropertyValue(true));
    EXPECT_EQ(properties.Item("Object")->Value(), PropertyValue(std::shared_ptr<void>(object)));
}

TEST_F(CPropertiesTest, ReleaseTheirObjectsWhenTheyAreRemoved)
{
    auto object = std::make_shared<int>(5);
    const std::weak_ptr<int> seen = object;
    properties.Add("Object", std::shared_ptr<void>(std::move(object)));
    properties.Remove("Object");
    EXPECT_TRUE(seen.expired());
}

TEST_F(CPropertiesTest, WhatIsRemovedLivesOnWithWhoeverHoldsIt)
{
    Fill({"A", "B"});
    const auto held = properties.Item("A");
    for (const auto& property : properties.NewEnum())
        properties.Remove(property->Name());
    EXPECT_EQ(properties.Count(), 0);
    EXPECT_EQ(held->Name(), "A");
}

TEST_F(CPropertiesTest, AFailureOfAddIsReportedAndAddsNothing)
{
    Fill({"A"});
    std::shared_ptr<CProperty> added;
    const auto look = [&] {
        EXPECT_EQ(Listed(properties), added ? "1 A, 2 B" : "1 A");
        EXPECT_EQ(Seen(user), added ? "" : "48|Schedules.CProperties.Add|Out of memory|0|\n");
        user.boxes.clear();
        properties.Remove("B");
    };
    EXPECT_GT(WithEachFailing([&] { added = properties.Add("B", "1"); }, look), 1);
    EXPECT_NE(added, nullptr);
}

TEST_F(CPropertiesTest, ThousandsAreFoundAndKeepTheirOrder)
{
    constexpr int kMany = 10'000;
    for (int number = 1; number <= kMany; ++number)
        properties.Add(QString("Property %1").arg(number), QString::number(number));
    for (int number = 1; number <= kMany; ++number) {
        const auto property = properties.Item(QString("PROPERTY %1").arg(number));
        ASSERT_EQ(property, properties.Item(Position(number)));
        ASSERT_EQ(TextOf(property->Value()), QString::number(number));
        ASSERT_EQ(property->ID(), number);
    }
}
