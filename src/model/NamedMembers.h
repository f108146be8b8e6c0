#pragma once

#include "common/KeyedCollection.h"
#include "common/UserInterface.h"
#include "model/IdCounter.h"

#include <optional>

namespace schedules {

/// What groups of a template and data items of a group have in common: their order is that of the schedule, their keys
/// are the names that they had when they were added, and those that are made here get a number that is not used again.
template <class Member>
class NamedMembers
{
public:
    using Pointer = std::shared_ptr<Member>;
    using Neighbour = std::optional<MemberKey>;

    Q_DISABLE_COPY_MOVE(NamedMembers)

    /// Nothing when there is none.
    Pointer Item(const MemberKey& key) const noexcept { return m_members.Item(key); }
    int Count() const { return m_members.Count(); }

    /// All of them in order, as they are now.
    std::vector<Pointer> NewEnum() const { return m_members.Members(); }

    /// Calls for each of them in order. Nothing may be added or removed on the way.
    template <class Call>
    void ForEach(Call&& call) const
    {
        m_members.ForEach(call);
    }

    /// Makes a member behind the others, with the next number. Nothing for a blank name, and for one that is taken.
    Pointer AddNew(const QString& name);

    /// Adds a member that exists, at the end or directly before or after another; its number stays. Without a member,
    /// makes an empty one and tells it. Nothing is added when the name is taken or the other is not found; when both
    /// are given, `before` holds.
    void Add(Pointer& member, const Neighbour& before = {}, const Neighbour& after = {});

    /// Removes all; the numbers go on where they were.
    void Clear();

    /// Removes what has the name that `Item` finds for the key; nothing happens when there is none.
    void Remove(const MemberKey& key);

protected:
    NamedMembers(UserInterface& userInterface, const char* typeName, IdCounter ids)
        : m_userInterface(userInterface), m_source(typeName), m_ids(ids)
    {
    }
    ~NamedMembers() = default;

    Pointer ItemById(int id) const noexcept { return m_members.ItemById(id); }

    /// -1 when there is none.
    int PositionOfId(int id) const noexcept;

private:
    Pointer Made() const { return std::make_shared<Member>(m_userInterface); }
    std::optional<Position> PlaceFor(const Neighbour& before, const Neighbour& after) const;

    UserInterface& m_userInterface;
    SourceName m_source;
    IdCounter m_ids;
    KeyedCollection<Member> m_members;
};

} // namespace schedules
