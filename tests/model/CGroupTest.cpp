#include "model/CGroup.h"

#include "model/Inside.h"
#include "model/ModelDrawing.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// An object that tells its end.
std::shared_ptr<void> Telling(const char* name, std::string& ends)
{
    return {nullptr, [name, &ends](void*) { ends.append(name).append(" "); }};
}

struct CGroupTest : ::testing::Test
{
    ScriptedUserInterface user;
};

} // namespace

TEST_F(CGroupTest, IsEmptyWhenItIsNew)
{
    const CGroup group(user);
    EXPECT_EQ(group.Name(), "");
    EXPECT_EQ(group.ID(), 0);
    EXPECT_EQ(group.Properties().Count(), 0);
    EXPECT_EQ(group.Elements().Count(), 0);
}

TEST_F(CGroupTest, ItsNameLosesBlanksAtTheEnds)
{
    CGroup group(user);
    group.SetName("  Design  data ");
    EXPECT_EQ(group.Name(), "Design  data");
    group.SetName("\tA\u00A0");
    EXPECT_EQ(group.Name(), "\tA\u00A0");
}

TEST_F(CGroupTest, ItsIdIsWrittenInside)
{
    CGroup group(user);
    group.SetID(5, Inside());
    EXPECT_EQ(group.ID(), 5);
}

TEST_F(CGroupTest, OwnsItsPropertiesAndItems)
{
    CGroup group(user);
    group.SetName("Design");
    group.Properties().Add("ShowThisGroup", "-1");
    group.Elements().AddNew("Flow")->SetLocation("P/F");
    EXPECT_EQ(DrawnGroup(group), "  0 Design: ShowThisGroup='-1'\n    1 Flow:  -> P/F\n");
}

TEST_F(CGroupTest, ItsItemsEndBeforeItsProperties)
{
    std::string ends;
    {
        CGroup group(user);
        group.Properties().Add("Object", Telling("group", ends));
        group.Elements().AddNew("Flow")->Properties().Add("Object", Telling("item", ends));
    }
    EXPECT_EQ(ends, "item group ");
}

TEST_F(CGroupTest, AnItemThatSomebodyHoldsOutlivesItsGroup)
{
    std::shared_ptr<CElement> held;
    {
        CGroup group(user);
        held = group.Elements().AddNew("Flow");
        held->Properties().Add("DisplayName", "Design flow");
    }
    EXPECT_EQ(DrawnItem(*held), "    1 Flow: DisplayName='Design flow' -> \n");
    held->SetID(2);
    EXPECT_EQ(held->ID(), 2);
}
