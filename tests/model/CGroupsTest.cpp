#include "model/CGroups.h"

#include "model/MemberKinds.h"

#include <type_traits>

using namespace schedules;
using namespace schedules::testing;

namespace {

using CGroupsTest = MembersFixture<Groups>;

} // namespace

TEST_F(CGroupsTest, FindGroupsByNumberAndTellTheirPlace)
{
    Fill({"Design", "Motor"});
    EXPECT_EQ(NameOf(members.ItemByGroupID(2)), "Motor");
    EXPECT_EQ(members.GetGroupPosition(2), 2);
    EXPECT_EQ(members.ItemByGroupID(3), nullptr);
    EXPECT_EQ(members.GetGroupPosition(3), -1);
}

TEST_F(CGroupsTest, KeepAGroupWithItsItemsWhenItMoves)
{
    Fill({"Design", "Motor"});
    members.Item("Motor")->Elements().AddNew("Power");
    auto moved = Taken("Motor");
    members.Add(moved, Position(1));
    EXPECT_EQ(Listed(members.Item(Position(1))->Elements()), "1 Power");
}

TEST_F(CGroupsTest, CountTheItemsOfEachGroupByThemselves)
{
    Fill({"Design", "Motor"});
    for (const auto& group : members.NewEnum())
        group->Elements().AddNew("Flow");
    EXPECT_EQ(Listed(members.Item("Design")->Elements()), "1 Flow");
    EXPECT_EQ(Listed(members.Item("Motor")->Elements()), "1 Flow");
}

TEST(MemberKey, NoNumberIsTakenForAPositionOrAName)
{
    EXPECT_FALSE((std::is_convertible_v<int, MemberKey>));
    EXPECT_FALSE((std::is_convertible_v<short, MemberKey>));
    EXPECT_FALSE((std::is_convertible_v<double, MemberKey>));
    EXPECT_TRUE((std::is_convertible_v<Position, MemberKey>));
    EXPECT_TRUE((std::is_convertible_v<QString, MemberKey>));
}
