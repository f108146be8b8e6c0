// The numbers of members, which change while they are in collections, and how long members last.

#include "common/KeyedCollection.h"
#include "common/Pumps.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

TEST(KeyedCollection, NumbersThatWereWrittenLaterAreFound)
{
    const Pumps pumps = Filled("A B C");
    EXPECT_EQ(NameOf(pumps.ItemById(2)), Text("B"));
    pumps.Item(Text("C"))->SetId(70);
    EXPECT_EQ(NameOf(pumps.ItemById(70)), Text("C"));
    EXPECT_FALSE(pumps.ItemById(3));
    pumps.Item(Text("C"))->SetId(71);
    pumps.Item(Text("A"))->SetId(70);
    EXPECT_EQ(pumps.PlaceOfId(70), Position(1));
    EXPECT_EQ(pumps.PlaceOfId(71), Position(3));
}

TEST(KeyedCollection, AnyNumberIsFound)
{
    const Pumps pumps = Filled("A B C D");
    const std::vector numbers{0, -1, kSmallest, kLargest};
    for (std::size_t index = 0; index < numbers.size(); ++index)
        pumps.Item(Position::OfIndex(index))->SetId(numbers[index]);
    for (std::size_t index = 0; index < numbers.size(); ++index)
        EXPECT_EQ(pumps.PlaceOfId(numbers[index]), Position::OfIndex(index)) << numbers[index];
    EXPECT_EQ(pumps.PlaceOfId(1), std::nullopt);
}

TEST(KeyedCollection, OfMembersWithTheSameNumberTheFirstIsFound)
{
    Pumps pumps = Filled("A B C D");
    pumps.Item(Text("D"))->SetId(2);
    EXPECT_EQ(NameOf(pumps.ItemById(2)), Text("B"));
    pumps.Item(Text("A"))->SetId(2);
    EXPECT_EQ(NameOf(pumps.ItemById(2)), Text("A"));
    pumps.Item(Text("A"))->SetId(1);
    EXPECT_EQ(NameOf(pumps.ItemById(2)), Text("B"));
    pumps.Remove(Text("B"));
    EXPECT_EQ(NameOf(pumps.ItemById(2)), Text("D"));
    pumps.Remove(Text("D"));
    EXPECT_FALSE(pumps.ItemById(2));
}

TEST(KeyedCollection, AMemberInsertedBeforeOneWithTheSameNumberIsFoundInItsPlace)
{
    Pumps pumps = Filled("A B C");
    EXPECT_EQ(NameOf(pumps.ItemById(2)), Text("B"));
    pumps.Append(Text("D"), NewPump(Text("D"), 2));
    EXPECT_EQ(NameOf(pumps.ItemById(2)), Text("B"));
    pumps.Insert(Position(1), Text("X"), NewPump(Text("X"), 2));
    EXPECT_EQ(NameOf(pumps.ItemById(2)), Text("X"));
}

TEST(KeyedCollection, TheFirstWithANumberIsAnotherWhenMembersMove)
{
    Pumps pumps = Filled("A B C");
    const auto moved = pumps.Item(Text("C"));
    moved->SetId(1);
    EXPECT_EQ(NameOf(pumps.ItemById(1)), Text("A"));
    pumps.Remove(Text("C"));
    pumps.Insert(Position(1), Text("C"), moved);
    EXPECT_EQ(NameOf(pumps.ItemById(1)), Text("C"));
    pumps.Remove(Text("C"));
    EXPECT_EQ(NameOf(pumps.ItemById(1)), Text("A"));
    pumps.Append(Text("C"), moved);
    EXPECT_EQ(NameOf(pumps.ItemById(1)), Text("A"));
}

TEST(KeyedCollection, InsertedAndAppendedNumbersAreFoundAfterALookup)
{
    Pumps pumps = Filled("A B");
    EXPECT_FALSE(pumps.ItemById(9));
    pumps.Append(Text("C"), NewPump(Text("C"), 9));
    EXPECT_EQ(NameOf(pumps.ItemById(9)), Text("C"));
    pumps.Insert(Position(1), Text("D"), NewPump(Text("D"), 8));
    EXPECT_EQ(NameOf(pumps.ItemById(8)), Text("D"));
    pumps.Item(Text("D"))->SetId(7);
    pumps.Item(Text("C"))->SetId(6);
    EXPECT_EQ(pumps.PlaceOfId(7), Position(1));
    EXPECT_EQ(pumps.PlaceOfId(6), Position(4));
    EXPECT_FALSE(pumps.ItemById(8));
    EXPECT_FALSE(pumps.ItemById(9));
}

TEST(KeyedCollection, AMemberMayStandInItTwice)
{
    Pumps pumps = Filled("A B");
    const auto pump = NewPump(Text("X"), 5);
    pumps.Append(Text("X"), pump);
    pumps.Insert(Position(1), Text("Y"), pump);
    EXPECT_EQ(pumps.PlaceOfId(5), Position(1));
    pumps.Remove(Text("Y"));
    EXPECT_EQ(pumps.PlaceOfId(5), Position(3));
    pump->SetId(6);
    EXPECT_EQ(pumps.PlaceOfId(6), Position(3));
    pumps.Remove(Text("X"));
    EXPECT_EQ(pumps.PlaceOfId(6), std::nullopt);
}

TEST(KeyedCollection, AMemberOfTwoCollectionsIsFoundByItsNewNumberInBoth)
{
    Pumps first = Filled("A B");
    Pumps second = Filled("C D E");
    const auto shared = NewPump(Text("X"), 50);
    first.Append(Text("X"), shared);
    second.Insert(Position(1), Text("Y"), shared);
    for (const int number : {50, 51, 52}) {
        shared->SetId(number);
        EXPECT_EQ(first.PlaceOfId(number), Position(3));
        EXPECT_EQ(second.PlaceOfId(number), Position(1));
        EXPECT_FALSE(first.ItemById(number - 1));
        EXPECT_FALSE(second.ItemById(number - 1));
    }
    first.Remove(Text("X"));
    EXPECT_FALSE(first.ItemById(52));
    shared->SetId(53);
    EXPECT_EQ(second.PlaceOfId(53), Position(1));
    EXPECT_FALSE(first.ItemById(53));
}

TEST(KeyedCollection, AMemberMayOutliveItsCollection)
{
    const auto pump = NewPump(Text("A"), 1);
    {
        Pumps pumps;
        pumps.Append(Text("A"), pump);
        EXPECT_EQ(pumps.ItemById(1), pump);
    }
    EXPECT_EQ(pump.use_count(), 1);
    pump->SetId(2);
    Pumps another;
    another.Append(Text("A"), pump);
    EXPECT_EQ(another.ItemById(2), pump);
}

TEST(KeyedCollection, AMemberEndsWithItsCollection)
{
    int ended = 0;
    {
        Pumps pumps;
        for (const char* name : {"A", "B", "C"})
            pumps.Append(Text(name), std::make_shared<Pump>(Text(name), [&ended] { ++ended; }));
        EXPECT_TRUE(pumps.ItemById(0));
        pumps.Remove(Text("B"));
        EXPECT_EQ(ended, 1);
    }
    EXPECT_EQ(ended, 3);
}

TEST(KeyedCollection, IsInOrderWhenAMemberEnds)
{
    Pumps pumps = FilledWith(20);
    QString seen;
    const auto look = [&] {
        seen += QStringLiteral("%1%2%3 ")
                    .arg(pumps.Count())
                    .arg(NameOf(pumps.Item(Text("end"))), NameOf(pumps.ItemById(0)));
    };
    pumps.Append(Text("end"), std::make_shared<Pump>(Text("end"), look));
    EXPECT_EQ(NameOf(pumps.ItemById(0)), Text("end"));
    pumps.Remove(Text("END"));
    EXPECT_EQ(seen, Text("20nothingnothing "));

    pumps.Insert(Position(1), Text("end"), std::make_shared<Pump>(Text("end"), look));
    pumps.Clear();
    EXPECT_EQ(seen, Text("20nothingnothing 0nothingnothing "));
}
