#pragma once

#include "common/Error.h"
#include "common/MemberId.h"
#include "common/MemberKey.h"
#include "common/PieceList.h"

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace schedules {

/// The form in which keys are compared: case folded, character by character.
QString FoldedKey(const QString& key);

/// Members that can be found by a number, which may change while they are in a collection.
template <class Member>
concept Identified = requires(const Member& member)
{
    {
        member.Identity()
        } -> std::same_as<const MemberId&>;
};

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
        const Node* node = FindOrNothing([&] { return NodeOfId(id); });
        return node ? node->element.member : Pointer();
    }

    std::optional<Position> PlaceOfId(int id) const noexcept requires Identified<Member>
    {
        return PlaceOfNode(FindOrNothing([&] { return NodeOfId(id); }));
    }

    /// All of them in order, as they are now: what is changed while somebody walks over them does not disturb him.
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
        IndexKey(node);
        IndexId(node, isLast);
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
        LearnKeys();
        const auto found = m_byKey.find(FoldedKey(name));
        return found == m_byKey.end() ? nullptr : found->second;
    }

    void LearnKeys() const
    {
        if (!m_byKey.empty())
            return;
        std::unordered_map<QString, const Node*> byKey;
        for (const Node& node : m_order)
            byKey.emplace(FoldedKey(node.element.key), &node);
        m_byKey = std::move(byKey);
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

    const Node* NodeOfId(int id) const
    {
        LearnIds();
        const auto found = m_byId.find(id);
        return found == m_byId.end() ? nullptr : found->second;
    }

    void LearnIds() const
    {
        if (!m_idsKnown)
            m_idsKnown = std::make_shared<bool>(false);
        if (*m_idsKnown)
            return;
        m_byId.clear();
        for (const Node& node : m_order)
            LearnId(node);
        *m_idsKnown = true;
    }

    /// Whether no member before it has the same number.
    bool LearnId(const Node& node) const
    {
        const MemberId& id = node.element.member->Identity();
        id.ForgetOnWrite(m_idsKnown);
        return m_byId.emplace(id.Value(), &node).second;
    }

    /// An index that cannot take the node in is made anew when it is needed.
    void IndexKey(const Node& node) noexcept
    {
        bool isIndexed = m_byKey.empty();
        IgnoringErrors([&] { isIndexed = isIndexed || m_byKey.emplace(FoldedKey(node.element.key), &node).second; });
        if (!isIndexed)
            m_byKey.clear();
    }

    void IndexId(const Node& node, bool isLast) noexcept
    {
        if constexpr (Identified<Member>) {
            if (!m_idsKnown || !*m_idsKnown)
                return;
            bool isIndexed = false;
            IgnoringErrors([&] { isIndexed = LearnId(node) || isLast; });
            *m_idsKnown = isIndexed;
        }
    }

    void RemoveNode(const Node& node)
    {
        ForgetId(node);
        if (!m_byKey.empty())
            m_byKey.erase(FoldedKey(node.element.key));
        const Pointer member = node.element.member; // ends after the collection is in order again
        m_order.Remove(node);
    }

    void ForgetId(const Node& node)
    {
        if constexpr (Identified<Member>) {
            if (!m_idsKnown || !*m_idsKnown)
                return;
            const bool allDiffer = m_byId.size() == m_order.Size();
            const auto found = m_byId.find(node.element.member->Identity().Value());
            if (found->second == &node)
                m_byId.erase(found);
            *m_idsKnown = allDiffer;
        }
    }

    PieceList<Entry> m_order;
    mutable std::unordered_map<QString, const Node*> m_byKey; ///< empty until it is needed
    mutable std::unordered_map<int, const Node*> m_byId;
    mutable std::shared_ptr<bool> m_idsKnown; ///< whether `m_byId` is right; nothing until it is needed
};

} // namespace schedules
