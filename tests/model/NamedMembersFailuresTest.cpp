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
    int failures = 0;
    for (bool hasFailed = true; hasFailed; ++failures) {
        const FailingAllocation failing(failures);
        hasFailed = !this->members.AddNew("B");
    }
    ASSERT_GT(failures, 1);
    EXPECT_EQ(Seen(this->user).substr(0, Seen(this->user).find('\n')),
              QString("48|Schedules.%1.AddNew|Out of memory|0|").arg(TypeParam::kTypeName).toStdString());
    EXPECT_EQ(NameOf(this->members.Item(Position(2))), "B");
    EXPECT_EQ(this->members.Count(), 2);
}

TYPED_TEST(NamedMembersFailures, AFailureOfAddIsReportedAndAddsNothing)
{
    this->Fill({"A"});
    auto added = this->Loose("B");
    int failures = 0;
    for (; this->members.Count() < 2; ++failures) {
        const FailingAllocation failing(failures);
        this->members.Add(added, Position(1));
    }
    ASSERT_GT(failures, 1);
    EXPECT_EQ(Seen(this->user).substr(0, Seen(this->user).find('\n')),
              QString("48|Schedules.%1.Add|Out of memory|0|").arg(TypeParam::kTypeName).toStdString());
    EXPECT_EQ(this->Order(), "0 B, 1 A");
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
