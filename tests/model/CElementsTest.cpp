#include "model/CElements.h"

#include "model/MemberKinds.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

using CElementsTest = MembersFixture<Items>;

} // namespace

TEST_F(CElementsTest, FindItemsByNumberAndTellTheirPlace)
{
    Fill({"Flow", "Head"});
    EXPECT_EQ(NameOf(members.ItemByElementID(2)), "Head");
    EXPECT_EQ(members.GetElementPosition(2), 2);
    EXPECT_EQ(members.ItemByElementID(3), nullptr);
    EXPECT_EQ(members.GetElementPosition(3), -1);
}

TEST_F(CElementsTest, KeepTheNumbersThatAnybodyGives)
{
    Fill({"Flow", "Head"});
    members.Item("Flow")->SetID(-1);
    Fill({"Duty"});
    EXPECT_EQ(Order(), "-1 Flow, 2 Head, 3 Duty");
}
