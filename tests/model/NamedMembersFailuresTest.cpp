#include "model/FailingAllocation.h"
#include "model/MemberKinds.h"

#include <limits>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr int kLargest = std::numeric_limits<int>::max();

template <class Kind>
struct NamedMembersFailures : MembersFixture<Kind>
{
    static std::string OutOfMemoryIn(const char* procedure)
    {
        return QString("48|Schedules.%1.%2|Out of memory|0|\n").arg(Kind::kTypeName, procedure).toStdString();
    }

    /// What the user has seen since the last call.
    std::string Told()
    {
        const std::string told = Seen(this->user);
        this->user.boxes.clear();
        return told;
    }
};

} // namespace

TYPED_TEST_SUITE(NamedMembersFailures, MemberKinds, MemberKindNames);

TYPED_TEST(NamedMembersFailures, TheNumberBehindTheLargestOverflows)
{
    typename TypeParam::Collection nearlyFull(this->user, IdCounter(kLargest - 1));
    EXPECT_NE(nearlyFull.AddNew("A"), nullptr);
    EXPECT_EQ(Seen(this->user), "");
    EXPECT_EQ(nearlyFull.AddNew("B"), nullptr);
    EXPECT_EQ(nearlyFull.AddNew("C"), nullptr);
    EXPECT_EQ(Listed(nearlyFull), "2147483647 A");
    const auto line = QString("48|Schedules.%1.AddNew|Overflow|0|\n").arg(TypeParam::kTypeName).toStdString();
    EXPECT_EQ(Seen(this->user), line + line);
}

TYPED_TEST(NamedMembersFailures, AfterAnOverflowMembersCanStillBeAdded)
{
    typename TypeParam::Collection full(this->user, IdCounter(kLargest));
    auto added = this->Loose("A");
    full.Add(added);
    EXPECT_EQ(Listed(full), "0 A");
}

TYPED_TEST(NamedMembersFailures, AFailureOfAddNewIsReportedAndAddsNothing)
{
    this->Fill({"A"});
    typename TestFixture::Pointer added;
    const auto look = [&] {
        EXPECT_EQ(NameOf(this->members.Item("B")), added ? "B" : "nothing");
        EXPECT_EQ(this->members.Count(), added ? 2 : 1);
        EXPECT_EQ(this->Told(), added ? "" : this->OutOfMemoryIn("AddNew"));
        this->members.Remove("B");
    };
    EXPECT_GT(WithEachFailing([&] { added = this->members.AddNew("B"); }, look), 1);
    EXPECT_EQ(NameOf(added), "B");
}

TYPED_TEST(NamedMembersFailures, AFailureOfAddIsReportedAndAddsNothing)
{
    this->Fill({"A"});
    auto loose = this->Loose("B");
    std::string order;
    const auto look = [&] {
        order = this->Order();
        EXPECT_EQ(this->Told(), order == "1 A" ? this->OutOfMemoryIn("Add") : "");
        EXPECT_TRUE(order == "1 A" || order == "0 B, 1 A") << order;
        this->members.Remove("B");
    };
    EXPECT_GT(WithEachFailing([&] { this->members.Add(loose, Position(1)); }, look), 0);
    EXPECT_EQ(order, "0 B, 1 A");
}

TYPED_TEST(NamedMembersFailures, LookupsNeverFail)
{
    for (int number = 1; number <= 100; ++number)
        this->members.AddNew(QString::number(number));
    bool hasFailed = true;
    for (int step = 0; hasFailed; ++step) {
        const FailingAllocation failing(step);
        const auto byName = this->members.Item("50");
        const auto byId = TypeParam::ById(this->members, 50);
        const int place = TypeParam::PositionOf(this->members, 50);
        hasFailed = failing.HasFailed();
        EXPECT_TRUE(!byName || byName->ID() == 50);
        EXPECT_TRUE(!byId || byId->ID() == 50);
        EXPECT_TRUE(place == 50 || place == -1);
    }
    EXPECT_EQ(NameOf(this->members.Item("50")), "50");
    EXPECT_EQ(TypeParam::PositionOf(this->members, 50), 50);
    EXPECT_EQ(Seen(this->user), "");
}
