#include "model/CElement.h"

#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct CElementTest : ::testing::Test
{
    ScriptedUserInterface user;
};

} // namespace

TEST_F(CElementTest, IsEmptyWhenItIsNew)
{
    const CElement item(user);
    EXPECT_EQ(item.ID(), 0);
    EXPECT_EQ(item.Name(), "");
    EXPECT_EQ(item.Location(), "");
    EXPECT_EQ(item.Properties().Count(), 0);
}

TEST_F(CElementTest, ItsNameLosesBlanksAtTheEnds)
{
    CElement item(user);
    item.SetName("  Design  flow ");
    EXPECT_EQ(item.Name(), "Design  flow");
    item.SetName("\nA\u3000");
    EXPECT_EQ(item.Name(), "\nA\u3000");
}

TEST_F(CElementTest, ItsLocationIsKeptAsItIs)
{
    CElement item(user);
    item.SetLocation("  PUMPS/Flow\t ");
    EXPECT_EQ(item.Location(), "  PUMPS/Flow\t ");
}

TEST_F(CElementTest, ItsIdIsWrittenByEverybody)
{
    CElement item(user);
    item.SetID(-3);
    EXPECT_EQ(item.ID(), -3);
}

TEST_F(CElementTest, ReleasesWhatItsPropertiesHold)
{
    auto object = std::make_shared<int>(5);
    const std::weak_ptr<int> seen = object;
    {
        CElement item(user);
        item.Properties().Add("Object", std::shared_ptr<void>(std::move(object)));
        EXPECT_FALSE(seen.expired());
    }
    EXPECT_TRUE(seen.expired());
}
