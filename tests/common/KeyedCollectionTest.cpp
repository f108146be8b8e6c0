#include "common/KeyedCollection.h"

#include "common/Pumps.h"

#include <gtest/gtest.h>
#include <type_traits>

using namespace schedules;
using namespace schedules::testing;

namespace {

using Texts = KeyedCollection<QString>;

template <class Collection>
concept FindsById = requires(const Collection& collection)
{
    collection.ItemById(1);
};

} // namespace

// A number alone could be a place or a name.
static_assert(!std::is_convertible_v<int, MemberKey>);
static_assert(!std::is_constructible_v<MemberKey, int>);
static_assert(!std::is_constructible_v<MemberKey, std::size_t>);
static_assert(!std::is_constructible_v<MemberKey, double>);
static_assert(!std::is_constructible_v<MemberKey, bool>);
static_assert(!std::is_convertible_v<int, Position>);
static_assert(std::is_convertible_v<Position, MemberKey>);
static_assert(std::is_convertible_v<QString, MemberKey>);

static_assert(FindsById<Pumps>);
static_assert(!FindsById<Texts>);
static_assert(noexcept(std::declval<const Pumps&>().Item(std::declval<const MemberKey&>())));
static_assert(noexcept(std::declval<const Pumps&>().PlaceOf(std::declval<const MemberKey&>())));
static_assert(noexcept(std::declval<const Pumps&>().ItemById(1)));
static_assert(noexcept(std::declval<const Pumps&>().PlaceOfId(1)));

TEST(Position, CountsFromOne)
{
    EXPECT_EQ(Position(1).Index(), 0U);
    EXPECT_EQ(Position(7).Value(), 7);
    EXPECT_EQ(Position::OfIndex(0), Position(1));
    EXPECT_EQ(Position::OfIndex(6).Value(), 7);
    EXPECT_EQ(Position(7).Next(), Position(8));
    EXPECT_LT(Position(2), Position(10));
}

TEST(Position, WhatIsNoPlaceHasAnIndexBeyondAllOthers)
{
    for (const int value : {0, -1, -2, kSmallest})
        EXPECT_GT(Position(value).Index(), Position(kLargest).Index()) << value;
}

TEST(KeyedCollection, StartsEmpty)
{
    const Pumps pumps;
    EXPECT_EQ(pumps.Count(), 0);
    EXPECT_TRUE(pumps.Members().empty());
    EXPECT_FALSE(pumps.Item(Text("A")));
    EXPECT_FALSE(pumps.Item(Position(1)));
    EXPECT_FALSE(pumps.ItemById(0));
    EXPECT_EQ(pumps.PlaceOf(Text("A")), std::nullopt);
    EXPECT_EQ(pumps.PlaceOf(Position(1)), std::nullopt);
    EXPECT_EQ(pumps.PlaceOfId(0), std::nullopt);
}

TEST(KeyedCollection, KeepsTheOrderInWhichMembersAreAppended)
{
    EXPECT_EQ(Drawn(Filled("C A B")), Text("C A B"));
}

TEST(KeyedCollection, InsertsAtAnyPlace)
{
    Pumps pumps = Filled("A B C");
    pumps.Insert(Position(1), Text("X"), NewPump(Text("X")));
    EXPECT_EQ(Drawn(pumps), Text("X A B C"));
    pumps.Insert(Position(3), Text("Y"), NewPump(Text("Y")));
    EXPECT_EQ(Drawn(pumps), Text("X A Y B C"));
    pumps.Insert(Position(6), Text("Z"), NewPump(Text("Z")));
    EXPECT_EQ(Drawn(pumps), Text("X A Y B C Z"));
}

TEST(KeyedCollection, InsertsBesideAMemberThatIsFound)
{
    Pumps pumps = Filled("A B C");
    pumps.Insert(*pumps.PlaceOf(Text("b")), Text("X"), NewPump(Text("X")));
    pumps.Insert(pumps.PlaceOf(Text("b"))->Next(), Text("Y"), NewPump(Text("Y")));
    EXPECT_EQ(Drawn(pumps), Text("A X B Y C"));
}

TEST(KeyedCollection, ATextOfDigitsIsAName)
{
    const Pumps pumps = Filled("2 1 3");
    EXPECT_EQ(NameOf(pumps.Item(Text("2"))), Text("2"));
    EXPECT_EQ(NameOf(pumps.Item(Position(2))), Text("1"));
    EXPECT_EQ(pumps.PlaceOf(Text("2")), Position(1));
    EXPECT_FALSE(pumps.Item(Text("4")));
}

TEST(KeyedCollection, AKeyIsNeitherTrimmedNorCompletedNorNormalised)
{
    const Pumps pumps = Filled("Pump");
    for (const char* other : {"", " Pump", "Pump ", "Pum", "Pumps", "\tPump", "P\u0443mp"})
        EXPECT_FALSE(pumps.Item(Text(other))) << other;
    const Pumps accented = Filled("\u00E9");
    EXPECT_FALSE(accented.Item(Text("e\u0301")));
}

TEST(KeyedCollection, TheEmptyTextIsAKey)
{
    Pumps pumps = Filled("A");
    EXPECT_FALSE(pumps.Item(QString()));
    pumps.Append({}, NewPump(Text("Empty")));
    EXPECT_EQ(NameOf(pumps.Item(QString())), Text("Empty"));
    EXPECT_EQ(NameOf(pumps.Item(Text(""))), Text("Empty"));
    EXPECT_FALSE(Inserts(pumps, Position(1), Text("")));
}

TEST(KeyedCollection, TheKeyIsWhatWasSaidAndNotTheName)
{
    Pumps pumps;
    pumps.Append(Text("key"), NewPump(Text("name")));
    EXPECT_EQ(NameOf(pumps.Item(Text("KEY"))), Text("name"));
    EXPECT_FALSE(pumps.Item(Text("name")));
}

TEST(KeyedCollection, KeepsAnyMembers)
{
    Texts texts;
    texts.Append(Text("a"), std::make_shared<QString>(Text("first")));
    texts.Insert(Position(1), Text("b"), std::make_shared<QString>(Text("second")));
    EXPECT_EQ(*texts.Item(Text("A")), Text("first"));
    EXPECT_EQ(*texts.Item(Position(1)), Text("second"));
    EXPECT_TRUE(texts.Remove(Text("B")));
    EXPECT_EQ(texts.Count(), 1);
}

TEST(KeyedCollection, SharesMembers)
{
    Pumps pumps;
    const auto pump = NewPump(Text("A"));
    pumps.Append(Text("A"), pump);
    EXPECT_EQ(pumps.Item(Text("A")), pump);
    EXPECT_EQ(pump.use_count(), 2);
    pumps.Remove(Text("A"));
    EXPECT_EQ(pump.use_count(), 1);
    pumps.Append(Text("B"), pump);
    EXPECT_EQ(pumps.Item(Text("B")), pump) << "one that is added again is the same";
}

TEST(KeyedCollection, MembersAreAsTheyWere)
{
    Pumps pumps = Filled("A B C");
    QString walked;
    for (const auto& pump : pumps.Members()) {
        walked += pump->Name();
        pumps.Remove(pump->Name());
    }
    EXPECT_EQ(walked, Text("ABC"));
    EXPECT_EQ(pumps.Count(), 0);
}

TEST(KeyedCollection, RemovesByKeyInAnyCase)
{
    Pumps pumps = Filled("A b C");
    EXPECT_TRUE(pumps.Remove(Text("B")));
    EXPECT_EQ(Drawn(pumps), Text("A C"));
    EXPECT_FALSE(pumps.Remove(Text("B")));
    EXPECT_FALSE(pumps.Remove(Text("2")));
    EXPECT_FALSE(pumps.Remove(QString()));
    EXPECT_EQ(Drawn(pumps), Text("A C"));
}

TEST(KeyedCollection, AKeyThatWasRemovedIsFree)
{
    Pumps pumps = Filled("A B C");
    pumps.Remove(Text("A"));
    EXPECT_TRUE(Inserts(pumps, Position(3), Text("a")));
    EXPECT_EQ(Drawn(pumps), Text("B C a"));
}

TEST(KeyedCollection, IsFilledAgainAfterItWasCleared)
{
    Pumps pumps = Filled("A B C");
    pumps.Clear();
    EXPECT_EQ(pumps.Count(), 0);
    EXPECT_FALSE(pumps.Item(Text("A")));
    EXPECT_FALSE(pumps.ItemById(1));
    pumps.Clear();
    pumps.Append(Text("B"), NewPump(Text("B"), 2));
    EXPECT_EQ(Drawn(pumps), Text("B"));
    EXPECT_EQ(pumps.PlaceOfId(2), Position(1));
}

TEST(KeyedCollection, AKeyInUseIsRefusedInAnyCase)
{
    Pumps pumps = Filled("Насос");
    const auto other = NewPump(Text("other"), 9);
    EXPECT_FALSE(pumps.Append(Text("НАСОС"), other));
    EXPECT_FALSE(pumps.Insert(Position(1), Text("насос"), other));
    EXPECT_EQ(Drawn(pumps), Text("Насос"));
    EXPECT_FALSE(pumps.ItemById(9));
    EXPECT_EQ(other.use_count(), 1) << "nobody keeps what was refused";
    EXPECT_TRUE(pumps.Append(Text("Насос 2"), other));
}

TEST(KeyedCollection, WalksOverAllInOrder)
{
    const Pumps pumps = FilledWith(1100);
    std::vector<std::shared_ptr<Pump>> walked;
    pumps.ForEach([&walked](const std::shared_ptr<Pump>& pump) { walked.push_back(pump); });
    EXPECT_EQ(walked, pumps.Members());
    EXPECT_EQ(walked.size(), 1100U);
    Pumps().ForEach([](const std::shared_ptr<Pump>&) { FAIL() << "there is none"; });
}
