#include "common/MemberId.h"

#include <gtest/gtest.h>

using namespace schedules;

namespace {

std::shared_ptr<bool> Known()
{
    return std::make_shared<bool>(true);
}

} // namespace

TEST(MemberId, IsZeroUntilItIsWritten)
{
    MemberId id;
    EXPECT_EQ(id.Value(), 0);
    id.Set(7);
    EXPECT_EQ(id.Value(), 7);
    id.Set(-3);
    EXPECT_EQ(id.Value(), -3);
}

TEST(MemberId, WritingMakesForgotten)
{
    MemberId id;
    const auto known = Known();
    id.ForgetOnWrite(known);
    EXPECT_TRUE(*known);
    id.Set(1);
    EXPECT_FALSE(*known);
}

TEST(MemberId, MakesForgottenWhereverItIsKnown)
{
    MemberId id;
    const auto first = Known();
    const auto second = Known();
    const auto third = Known();
    for (const auto& known : {first, second, first, third})
        id.ForgetOnWrite(known);
    id.Set(1);
    EXPECT_FALSE(*first);
    EXPECT_FALSE(*second);
    EXPECT_FALSE(*third);
}

TEST(MemberId, TellsOnceUnlessAskedAgain)
{
    MemberId id;
    const auto known = Known();
    id.ForgetOnWrite(known);
    id.Set(1);
    *known = true;
    id.Set(2);
    EXPECT_TRUE(*known);
    id.ForgetOnWrite(known);
    id.Set(3);
    EXPECT_FALSE(*known);
}

TEST(MemberId, WhoeverAskedMayBeGone)
{
    MemberId id;
    auto gone = Known();
    const auto stays = Known();
    id.ForgetOnWrite(gone);
    id.ForgetOnWrite(stays);
    gone.reset();
    id.Set(1);
    EXPECT_FALSE(*stays);
}

TEST(MemberId, DoesNotKeepAliveWhoeverAsked)
{
    MemberId id;
    auto known = Known();
    const std::weak_ptr<bool> watched = known;
    id.ForgetOnWrite(known);
    known.reset();
    EXPECT_TRUE(watched.expired());
}
