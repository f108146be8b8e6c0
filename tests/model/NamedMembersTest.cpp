#include "model/NamedMembers.h"

#include "model/MemberKinds.h"

#include <limits>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr int kLargest = std::numeric_limits<int>::max();

template <class Kind>
struct NamedMembersTest : MembersFixture<Kind>
{
};

} // namespace

TYPED_TEST_SUITE(NamedMembersTest, MemberKinds, MemberKindNames);

TYPED_TEST(NamedMembersTest, AreEmptyAtFirst)
{
    EXPECT_EQ(this->members.Count(), 0);
    EXPECT_TRUE(this->members.NewEnum().empty());
}

TYPED_TEST(NamedMembersTest, AddNewNumbersFromOneAndTrimsTheName)
{
    const auto added = this->members.AddNew("  A ");
    EXPECT_EQ(added, this->members.Item("A"));
    EXPECT_EQ(this->Order(), "1 A");
}

TYPED_TEST(NamedMembersTest, AddNewGivesNothingForANameThatIsTakenInAnyCase)
{
    this->Fill({"A"});
    EXPECT_EQ(this->members.AddNew("a"), nullptr);
    EXPECT_EQ(this->members.AddNew(" A "), nullptr);
    EXPECT_EQ(this->Order(), "1 A");
    EXPECT_EQ(Seen(this->user), "");
}

TYPED_TEST(NamedMembersTest, AddNewGivesNothingForABlankName)
{
    EXPECT_EQ(this->members.AddNew(""), nullptr);
    EXPECT_EQ(this->members.AddNew("   "), nullptr);
    EXPECT_EQ(this->members.Count(), 0);
    EXPECT_EQ(Seen(this->user), "");
}

TYPED_TEST(NamedMembersTest, WhatIsRefusedTakesNoNumber)
{
    this->Fill({"A"});
    this->members.AddNew("A");
    this->members.AddNew(" ");
    this->Fill({"B"});
    EXPECT_EQ(this->Order(), "1 A, 2 B");
}

TYPED_TEST(NamedMembersTest, OtherWhiteSpaceThanSpacesIsAName)
{
    this->Fill({"\t", "\u00A0", "A\n"});
    EXPECT_EQ(this->members.Count(), 3);
    EXPECT_EQ(this->members.Item("A"), nullptr);
}

TYPED_TEST(NamedMembersTest, NumbersGoOnAfterClearAndRemove)
{
    this->Fill({"A", "B", "C"});
    this->members.Clear();
    EXPECT_EQ(this->members.Count(), 0);
    this->Fill({"A"});
    this->members.Remove("A");
    this->Fill({"B"});
    EXPECT_EQ(this->Order(), "5 B");
}

TYPED_TEST(NamedMembersTest, APositionIsAPlaceAndATextAName)
{
    this->Fill({"A", "B", "2"});
    EXPECT_EQ(NameOf(this->members.Item(Position(2))), "B");
    EXPECT_EQ(NameOf(this->members.Item("2")), "2");
    EXPECT_EQ(this->members.Item("1"), nullptr);
}

TYPED_TEST(NamedMembersTest, APositionThatThereIsNotGivesNothing)
{
    this->Fill({"A", "B"});
    for (const int place : {0, 3, -1, std::numeric_limits<int>::min(), kLargest})
        EXPECT_EQ(this->members.Item(Position(place)), nullptr) << place;
}

TYPED_TEST(NamedMembersTest, AreFoundWithoutRegardToCaseInAnyScript)
{
    this->Fill({"Größe", "НАСОС", "𐐀"});
    EXPECT_EQ(NameOf(this->members.Item("GRÖßE")), "Größe");
    EXPECT_EQ(NameOf(this->members.Item("насос")), "НАСОС");
    EXPECT_EQ(NameOf(this->members.Item("𐐨")), "𐐀");
    EXPECT_EQ(this->members.Item("Grosse"), nullptr);
}

TYPED_TEST(NamedMembersTest, AKeyIsNotTrimmed)
{
    this->Fill({"A"});
    EXPECT_EQ(this->members.Item(" A"), nullptr);
    EXPECT_EQ(this->members.Item(""), nullptr);
}

TYPED_TEST(NamedMembersTest, AreFoundByTheirNumber)
{
    this->Fill({"A", "B", "C"});
    this->members.Remove("A");
    EXPECT_EQ(NameOf(TypeParam::ById(this->members, 3)), "C");
    EXPECT_EQ(TypeParam::PositionOf(this->members, 3), 2);
}

TYPED_TEST(NamedMembersTest, ANumberThatThereIsNotGivesNothing)
{
    for (const int id : {0, 1, -1, kLargest}) {
        EXPECT_EQ(TypeParam::ById(this->members, id), nullptr) << id;
        EXPECT_EQ(TypeParam::PositionOf(this->members, id), -1) << id;
    }
    this->Fill({"A"});
    EXPECT_EQ(TypeParam::ById(this->members, 2), nullptr);
    EXPECT_EQ(TypeParam::PositionOf(this->members, 2), -1);
}

TYPED_TEST(NamedMembersTest, OfTheSameNumberTheFirstInOrderIsFound)
{
    this->Fill({"A", "B", "C", "D"});
    TypeParam::SetId(*this->members.Item("D"), 7);
    TypeParam::SetId(*this->members.Item("B"), 7);
    EXPECT_EQ(NameOf(TypeParam::ById(this->members, 7)), "B");
    EXPECT_EQ(TypeParam::PositionOf(this->members, 7), 2);
    this->members.Remove("B");
    EXPECT_EQ(NameOf(TypeParam::ById(this->members, 7)), "D");
    EXPECT_EQ(TypeParam::PositionOf(this->members, 7), 3);
}

TYPED_TEST(NamedMembersTest, ANumberThatIsWrittenLaterCounts)
{
    this->Fill({"A", "B"});
    ASSERT_EQ(NameOf(TypeParam::ById(this->members, 2)), "B");
    TypeParam::SetId(*this->members.Item("B"), 9);
    EXPECT_EQ(NameOf(TypeParam::ById(this->members, 9)), "B");
    EXPECT_EQ(TypeParam::ById(this->members, 2), nullptr);
    TypeParam::SetId(*this->members.Item("A"), 9);
    EXPECT_EQ(NameOf(TypeParam::ById(this->members, 9)), "A");
}

TYPED_TEST(NamedMembersTest, AMemberOfTwoCollectionsIsFoundByItsNewNumberInBoth)
{
    typename TypeParam::Collection others(this->user);
    this->Fill({"A"});
    auto shared = this->members.Item("A");
    others.Add(shared);
    ASSERT_EQ(TypeParam::ById(this->members, 1), shared);
    ASSERT_EQ(TypeParam::ById(others, 1), shared);
    TypeParam::SetId(*shared, 5);
    EXPECT_EQ(TypeParam::ById(this->members, 5), shared);
    EXPECT_EQ(TypeParam::ById(others, 5), shared);
}

TYPED_TEST(NamedMembersTest, AddAppendsAndGivesNoNumber)
{
    this->Fill({"A"});
    auto added = this->Loose("B");
    this->members.Add(added);
    EXPECT_EQ(this->Order(), "1 A, 0 B");
    EXPECT_EQ(this->members.Item("b"), added);
}

TYPED_TEST(NamedMembersTest, AddLeavesTheNextNumberAlone)
{
    auto added = this->Loose("A");
    TypeParam::SetId(*added, 70);
    this->members.Add(added);
    this->Fill({"B"});
    EXPECT_EQ(this->Order(), "70 A, 1 B");
}

TYPED_TEST(NamedMembersTest, AddPutsDirectlyBeforeAMember)
{
    for (const MemberKey& place : {MemberKey("b"), MemberKey(Position(2))}) {
        this->members.Clear();
        this->Fill({"A", "B", "C"});
        auto added = this->Loose("X");
        this->members.Add(added, place);
        EXPECT_EQ(this->members.Item(Position(2)), added);
        EXPECT_EQ(NameOf(this->members.Item(Position(3))), "B");
    }
}

TYPED_TEST(NamedMembersTest, AddPutsDirectlyBehindAMember)
{
    for (const MemberKey& place : {MemberKey("b"), MemberKey(Position(2))}) {
        this->members.Clear();
        this->Fill({"A", "B", "C"});
        auto added = this->Loose("X");
        this->members.Add(added, {}, place);
        EXPECT_EQ(this->members.Item(Position(3)), added);
        EXPECT_EQ(NameOf(this->members.Item(Position(4))), "C");
    }
}

TYPED_TEST(NamedMembersTest, AddPutsBeforeTheFirstAndBehindTheLast)
{
    this->Fill({"A", "B"});
    auto first = this->Loose("X");
    auto last = this->Loose("Y");
    this->members.Add(first, Position(1));
    this->members.Add(last, {}, Position(3));
    EXPECT_EQ(this->Order(), "0 X, 1 A, 2 B, 0 Y");
}

TYPED_TEST(NamedMembersTest, AddWithAPlaceThatThereIsNotAddsNothing)
{
    this->Fill({"A", "B"});
    auto added = this->Loose("X");
    for (const MemberKey& place :
         {MemberKey("C"), MemberKey(""), MemberKey("1"), MemberKey(Position(0)), MemberKey(Position(3))})
    {
        this->members.Add(added, place);
        this->members.Add(added, {}, place);
    }
    EXPECT_EQ(this->Order(), "1 A, 2 B");
    EXPECT_EQ(Seen(this->user), "");
}

TYPED_TEST(NamedMembersTest, AddLooksAtBeforeFirst)
{
    this->Fill({"A", "B", "C"});
    auto added = this->Loose("X");
    this->members.Add(added, "C", "A");
    EXPECT_EQ(this->Order(), "1 A, 2 B, 0 X, 3 C");
    auto other = this->Loose("Y");
    this->members.Add(other, "missing", "A");
    EXPECT_EQ(this->members.Count(), 4);
}

TYPED_TEST(NamedMembersTest, AddOfANameThatIsTakenAddsNothing)
{
    this->Fill({"A", "B"});
    auto added = this->Loose("a");
    this->members.Add(added);
    this->members.Add(added, Position(1));
    this->members.Add(added, {}, Position(1));
    EXPECT_EQ(this->Order(), "1 A, 2 B");
    EXPECT_NE(this->members.Item("A"), added);
    EXPECT_EQ(Seen(this->user), "");
}

TYPED_TEST(NamedMembersTest, AddWithoutAMemberMakesAnEmptyOneAndTellsIt)
{
    this->Fill({"A"});
    typename TestFixture::Pointer made;
    this->members.Add(made);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(this->members.Item(Position(2)), made);
    EXPECT_EQ(this->Order(), "1 A, 0 ");
}

TYPED_TEST(NamedMembersTest, AddTellsTheMemberThatItMadeAlsoWhenItIsNotAdded)
{
    typename TestFixture::Pointer first;
    this->members.Add(first);
    typename TestFixture::Pointer second;
    this->members.Add(second);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second, first);
    EXPECT_EQ(this->members.Count(), 1);
}

TYPED_TEST(NamedMembersTest, TheSecondOfThreeMovesToTheFront)
{
    this->Fill({"A", "B", "C"});
    const auto moved = this->members.Item("B");
    auto taken = this->Taken("B");
    this->members.Add(taken, Position(1));
    EXPECT_EQ(this->Order(), "2 B, 1 A, 3 C");
    EXPECT_EQ(this->members.Item("B"), moved);
}

TYPED_TEST(NamedMembersTest, RenamingDoesNotChangeTheKeyUntilItIsAddedAgain)
{
    this->Fill({"A", "B"});
    auto renamed = this->members.Item("A");
    renamed->SetName("New");
    EXPECT_EQ(this->members.Item("A"), renamed);
    EXPECT_EQ(this->members.Item("New"), nullptr);
    EXPECT_NE(this->members.AddNew("new"), nullptr);
    EXPECT_EQ(this->members.AddNew("a"), nullptr);
}

TYPED_TEST(NamedMembersTest, ARenamedMemberThatIsAddedAgainHasTheNewKey)
{
    this->Fill({"A", "B"});
    auto renamed = this->Taken("A");
    renamed->SetName("New");
    this->members.Add(renamed, "B");
    EXPECT_EQ(this->members.Item("A"), nullptr);
    EXPECT_EQ(this->members.Item("new"), renamed);
    EXPECT_EQ(this->Order(), "1 New, 2 B");
}

TYPED_TEST(NamedMembersTest, RemoveGoesByTheNameAsItIsNow)
{
    this->Fill({"A", "B"});
    this->members.Item("A")->SetName("C");
    this->members.Remove("A");
    EXPECT_EQ(this->Order(), "1 C, 2 B");
    this->members.Item("A")->SetName("b");
    this->members.Remove(Position(1));
    EXPECT_EQ(this->Order(), "1 b");
}

TYPED_TEST(NamedMembersTest, RemoveOfWhatThereIsNotDoesNothing)
{
    this->Fill({"A"});
    for (const MemberKey& key : {MemberKey("B"), MemberKey(""), MemberKey("1"), MemberKey(Position(2))})
        this->members.Remove(key);
    EXPECT_EQ(this->Order(), "1 A");
    EXPECT_EQ(Seen(this->user), "");
}

TYPED_TEST(NamedMembersTest, RemoveTakesANameInAnyCaseOrAPosition)
{
    this->Fill({"A", "B", "C"});
    this->members.Remove("a");
    this->members.Remove(Position(2));
    EXPECT_EQ(this->Order(), "2 B");
}

TYPED_TEST(NamedMembersTest, ClearRemovesRenamedMembersAndThoseWithoutAName)
{
    this->Fill({"A", "B"});
    this->members.Item("A")->SetName("B");
    typename TestFixture::Pointer nameless;
    this->members.Add(nameless);
    this->members.Clear();
    EXPECT_EQ(this->members.Count(), 0);
    EXPECT_EQ(this->members.Item("A"), nullptr);
    EXPECT_EQ(TypeParam::ById(this->members, 1), nullptr);
}

TYPED_TEST(NamedMembersTest, TheyCanBeTakenOutWhileTheyAreWalkedOver)
{
    this->Fill({"A", "B", "C"});
    std::string walked;
    for (const auto& member : this->members.NewEnum()) {
        walked.append(NameOf(member));
        this->members.Clear();
    }
    EXPECT_EQ(walked, "ABC");
}
