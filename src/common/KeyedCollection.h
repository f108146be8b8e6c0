#pragma once

#include "common/Error.h"
#include "common/MemberIndexes.h"
#include "common/MemberKey.h"
#include "common/PieceList.h"

#include <memory>
#include <optional>
#include <vector>

namespace schedules {

/// Members in an order, each under a key; keys are compared without regard to case. A member is shared with whoever
/// holds it, so one that is removed and added again is the same object. What a member's key is, is said when it is
/// added, and stays.
///
/// Finding by key, number or place, and adding and removing anywhere take next to no time at any size. A lookup that
/// finds nothing gives nothing, and never throws.
template <class Member>
class KeyedCollection
{
public:
    using Pointer = std::shared_ptr<Member>;

    int Count() const { return static_cast<int>(m_order.Size()); }

    Pointer Item(const MemberKey& key) const noexcept
    {
        const Node* node = FindOrNothing([&] { return NodeOf(key); });
        return node ? node->element.member : Pointer();
    }

    /// By name as `Item`, but what keeps it from looking, such as missing memory, is thrown: for whoever goes on with
    /// what is not there.
    Pointer Find(const QString& name) const
    {
        const Node* node = NodeOfName(name);
        return node ? node->element.member : Pointer();
    }

    /// The place of the member with that key.
    std::optional<Position> PlaceOf(const MemberKey& key) const noexcept
    {
        return PlaceOfNode(FindOrNothing([&] { return NodeOf(key); }));
    }

    /// The first in order with that number.
    Pointer ItemById(int id) const noexcept requires Identified<Member>
    {
        const Node* node = FindOrNothing([&] { return m_ids.Find(id, m_order); });
        return node ? node->element.member : Pointer();
    }

    std::optional<Position> PlaceOfId(int id) const noexcept requires Identified<Member>
    {
        return PlaceOfNode(FindOrNothing([&] { return m_ids.Find(id, m_order); }));
    }

    /// All of them in order, as they are now. The collection may be changed while somebody walks over them.
    std::vector<Pointer> Members() const
    {
        std::vector<Pointer> members;
        members.reserve(m_order.Size());
        ForEach([&members](const Pointer& member) { members.push_back(member); });
        return members;
    }

    /// Calls for each of them in order. Nothing may be added or removed on the way.
    template <class Call>
    void ForEach(Call&& call) const
    {
        for (const Node& node : m_order)
            call(node.element.member);
    }

    bool Append(const QString& key, Pointer member)
    {
        return Insert(Position::OfIndex(m_order.Size()), key, std::move(member));
    }

    /// `place` is where the member stands afterwards, at most one behind the last. False when the key is in use;
    /// nothing has changed then.
    bool Insert(Position place, const QString& key, Pointer member)
    {
        if (NodeOfName(key))
            return false;
        const bool isLast = place.Index() == m_order.Size();
        const Node& node = m_order.Insert(place.Index(), {key, std::move(member)});
        m_keys.Add(node);
        if constexpr (Identified<Member>)
            m_ids.Add(node, isLast);
        return true;
    }

    /// Whether there was one under that key.
    bool Remove(const QString& key)
    {
        const Node* node = NodeOfName(key);
        if (node)
            RemoveNode(*node);
        return node != nullptr;
    }

    /// Empties it, by place.
    void Clear()
    {
        while (m_order.Size() != 0)
            RemoveNode(m_order.At(m_order.Size() - 1));
    }

private:
    struct Entry
    {
        QString key;
        Pointer member;
    };
    using Node = typename PieceList<Entry>::Node;

    /// Up to here, comparing with all keys is as fast as an index of them, and needs none.
    static constexpr std::size_t kMostWithoutIndex = 16;

    template <class Find>
    static const Node* FindOrNothing(Find&& find) noexcept
    {
        const Node* node = nullptr;
        IgnoringErrors([&] { node = find(); });
        return node;
    }

    std::optional<Position> PlaceOfNode(const Node* node) const
    {
        return node ? std::optional(Position::OfIndex(m_order.IndexOf(*node))) : std::nullopt;
    }

    const Node* NodeOf(const MemberKey& key) const
    {
        if (const auto* name = std::get_if<QString>(&key))
            return NodeOfName(*name);
        const std::size_t index = std::get<Position>(key).Index();
        return index < m_order.Size() ? &m_order.At(index) : nullptr;
    }

    const Node* NodeOfName(const QString& name) const
    {
        if (m_order.Size() <= kMostWithoutIndex)
            return NodeByComparing(name);
        return m_keys.Find(name, m_order);
    }

    /// Folding does not change how long a key is.
    const Node* NodeByComparing(const QString& name) const
    {
        for (const Node& node : m_order) {
            const QString& key = node.element.key;
            if (key.size() == name.size() && key.compare(name, Qt::CaseInsensitive) == 0)
                return &node;
        }
        return nullptr;
    }

    void RemoveNode(const Node& node)
    {
        if constexpr (Identified<Member>)
            m_ids.Remove(node, m_order.Size());
        m_keys.Remove(node);
        const Pointer member = node.element.member; // ends after the collection is in order again
        m_order.Remove(node);
    }

    PieceList<Entry> m_order;
    mutable KeyIndex<Node> m_keys;
    mutable IdIndex<Node> m_ids;
};

} // namespace schedules
