#pragma once

#include "model/CGroups.h"
#include "model/Inside.h"
#include "model/ModelDrawing.h"

#include <gtest/gtest.h>

namespace schedules::testing {

/// Groups of a template and items of a group do the same under different names.
struct Groups
{
    using Collection = CGroups;
    using Member = CGroup;
    static constexpr auto kTypeName = "CGroups";

    static std::shared_ptr<Member> ById(const Collection& groups, int id) { return groups.ItemByGroupID(id); }
    static int PositionOf(const Collection& groups, int id) { return groups.GetGroupPosition(id); }
    static void SetId(Member& group, int id) { group.SetID(id, Inside()); }
};

struct Items
{
    using Collection = CElements;
    using Member = CElement;
    static constexpr auto kTypeName = "CElements";

    static std::shared_ptr<Member> ById(const Collection& items, int id) { return items.ItemByElementID(id); }
    static int PositionOf(const Collection& items, int id) { return items.GetElementPosition(id); }
    static void SetId(Member& item, int id) { item.SetID(id); }
};

using MemberKinds = ::testing::Types<Groups, Items>;

struct MemberKindNames
{
    template <class Kind>
    static std::string GetName(int)
    {
        return Kind::kTypeName;
    }
};

template <class Kind>
struct MembersFixture : ::testing::Test
{
    using Member = typename Kind::Member;
    using Pointer = std::shared_ptr<Member>;

    /// Makes members of these names; those of an empty collection get the numbers from 1.
    void Fill(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            EXPECT_TRUE(members.AddNew(name)) << name;
    }

    /// A member that is in no collection.
    Pointer Loose(const QString& name)
    {
        const auto member = std::make_shared<Member>(user);
        member->SetName(name);
        return member;
    }

    /// Takes a member out, as the first half of a move.
    Pointer Taken(const QString& name)
    {
        const Pointer member = members.Item(name);
        members.Remove(name);
        return member;
    }

    std::string Order() const { return Listed(members); }

    ScriptedUserInterface user;
    typename Kind::Collection members{user};
};

} // namespace schedules::testing
