// The same at every size.

#include "common/KeyedCollection.h"
#include "common/Pumps.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// Every number, name and place of `FilledWith` is found.
void ExpectAllFound(const Pumps& pumps, int count)
{
    ASSERT_EQ(pumps.Count(), count);
    for (int number = 1; number <= count; ++number) {
        const QString name = QStringLiteral("P%1").arg(number);
        ASSERT_EQ(NameOf(pumps.Item(name)), name);
        ASSERT_EQ(NameOf(pumps.Item(name.toLower())), name);
        ASSERT_EQ(NameOf(pumps.Item(Position(number))), name);
        ASSERT_EQ(NameOf(pumps.ItemById(number)), name);
        ASSERT_EQ(pumps.PlaceOf(name), Position(number));
        ASSERT_EQ(pumps.PlaceOf(Position(number)), Position(number));
        ASSERT_EQ(pumps.PlaceOfId(number), Position(number));
    }
}

/// Where comparing with all keys gives way to an index, and where the order is kept in more than one piece.
class AtSize : public ::testing::TestWithParam<int>
{
};

} // namespace

TEST_P(AtSize, FindsEachMemberInEachWay)
{
    ExpectAllFound(FilledWith(GetParam()), GetParam());
}

TEST_P(AtSize, FindsNothingForWhatIsNoPlace)
{
    const int size = GetParam();
    const Pumps pumps = FilledWith(size);
    for (const int place : {0, -1, size + 1, size + 2, -size, kSmallest, kSmallest + 1, kLargest}) {
        EXPECT_FALSE(pumps.Item(Position(place))) << place;
        EXPECT_EQ(pumps.PlaceOf(Position(place)), std::nullopt) << place;
    }
    EXPECT_TRUE(pumps.Item(Position(size)));
}

TEST_P(AtSize, FindsNothingForWhatIsNoKeyAndNoNumber)
{
    const int size = GetParam();
    const Pumps pumps = FilledWith(size);
    for (const char* key : {"", "P", "P0", " P1", "P1 ", "1", "P01"}) {
        EXPECT_FALSE(pumps.Item(Text(key))) << key;
        EXPECT_EQ(pumps.PlaceOf(Text(key)), std::nullopt) << key;
    }
    for (const int number : {0, -1, size + 1, kSmallest, kLargest}) {
        EXPECT_FALSE(pumps.ItemById(number)) << number;
        EXPECT_EQ(pumps.PlaceOfId(number), std::nullopt) << number;
    }
}

TEST_P(AtSize, NothingChangesWhenAKeyIsInUse)
{
    const int size = GetParam();
    Pumps pumps = FilledWith(size);
    for (const bool isLookedUp : {false, true}) {
        if (isLookedUp)
            ExpectAllFound(pumps, size);
        for (const int number : {1, size / 2 + 1, size}) {
            EXPECT_FALSE(Inserts(pumps, Position(1), QStringLiteral("p%1").arg(number)));
            EXPECT_FALSE(Inserts(pumps, Position(size + 1), QStringLiteral("P%1").arg(number)));
        }
    }
    ExpectAllFound(pumps, size);
}

TEST_P(AtSize, GrowsOverItAndShrinksAgain)
{
    const int size = GetParam();
    Pumps pumps = FilledWith(size);
    ExpectAllFound(pumps, size);
    for (int number = size + 1; number <= size + 3; ++number)
        pumps.Append(QStringLiteral("P%1").arg(number), NewPump(QStringLiteral("P%1").arg(number), number));
    ExpectAllFound(pumps, size + 3);
    for (int number = size + 3; number > size - 1; --number)
        EXPECT_TRUE(pumps.Remove(QStringLiteral("p%1").arg(number)));
    ExpectAllFound(pumps, size - 1);
    EXPECT_FALSE(pumps.Item(QStringLiteral("P%1").arg(size)));
    EXPECT_FALSE(pumps.ItemById(size));
}

TEST_P(AtSize, EachMemberMovesToTheFront)
{
    const int size = GetParam();
    Pumps pumps = FilledWith(size);
    for (int number = 1; number <= size; ++number) {
        const auto pump = pumps.ItemById(number);
        pumps.Remove(pump->Name());
        pumps.Insert(Position(1), pump->Name(), pump);
    }
    ASSERT_EQ(pumps.Count(), size);
    for (int number = 1; number <= size; ++number) {
        const Position place(size + 1 - number);
        ASSERT_EQ(pumps.PlaceOf(QStringLiteral("p%1").arg(number)), place);
        ASSERT_EQ(pumps.PlaceOfId(number), place);
    }
}

TEST_P(AtSize, IsEmptiedFromEitherEnd)
{
    const int size = GetParam();
    Pumps fromFront = FilledWith(size);
    for (int number = 1; number <= size; ++number) {
        ASSERT_EQ(fromFront.PlaceOfId(number), Position(1));
        ASSERT_TRUE(fromFront.Remove(fromFront.Item(Position(1))->Name()));
    }
    EXPECT_EQ(fromFront.Count(), 0);

    Pumps cleared = FilledWith(size);
    EXPECT_TRUE(cleared.Item(Text("P1")));
    EXPECT_TRUE(cleared.ItemById(1));
    cleared.Clear();
    EXPECT_EQ(cleared.Count(), 0);
    EXPECT_FALSE(cleared.Item(Text("P1")));
    EXPECT_FALSE(cleared.ItemById(1));
    EXPECT_TRUE(Inserts(cleared, Position(1), Text("P1")));
}

INSTANTIATE_TEST_SUITE_P(KeyedCollection, AtSize,
                         ::testing::Values(1, 2, 14, 15, 16, 17, 18, 511, 512, 513, 1023, 1024, 1025, 1600));
