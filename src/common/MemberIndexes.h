#pragma once

#include "common/Error.h"
#include "common/MemberId.h"

#include <QString>

#include <memory>
#include <unordered_map>

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

/// Which node of a collection has which key. It is made when it is first needed.
template <class Node>
class KeyIndex
{
public:
    template <class Nodes>
    const Node* Find(const QString& name, const Nodes& nodes)
    {
        Learn(nodes);
        const auto found = m_byKey.find(FoldedKey(name));
        return found == m_byKey.end() ? nullptr : found->second;
    }

    /// An index that cannot take the node in is made again when it is needed.
    void Add(const Node& node) noexcept
    {
        bool isIndexed = m_byKey.empty();
        IgnoringErrors([&] { isIndexed = isIndexed || m_byKey.emplace(FoldedKey(node.element.key), &node).second; });
        if (!isIndexed)
            m_byKey.clear();
    }

    void Remove(const Node& node)
    {
        if (!m_byKey.empty())
            m_byKey.erase(FoldedKey(node.element.key));
    }

private:
    template <class Nodes>
    void Learn(const Nodes& nodes)
    {
        if (!m_byKey.empty())
            return;
        std::unordered_map<QString, const Node*> byKey;
        for (const Node& node : nodes)
            byKey.emplace(FoldedKey(node.element.key), &node);
        m_byKey = std::move(byKey);
    }

    std::unordered_map<QString, const Node*> m_byKey; ///< empty until it is needed
};

/// Which node of a collection is the first with a number. It is made when it is first needed, and again after a number
/// has changed.
template <class Node>
class IdIndex
{
public:
    template <class Nodes>
    const Node* Find(int id, const Nodes& nodes)
    {
        Learn(nodes);
        const auto found = m_byId.find(id);
        return found == m_byId.end() ? nullptr : found->second;
    }

    /// `isLast`: no node stands behind it.
    void Add(const Node& node, bool isLast) noexcept
    {
        if (!m_isRight || !*m_isRight)
            return;
        bool isIndexed = false;
        IgnoringErrors([&] { isIndexed = Take(node) || isLast; });
        *m_isRight = isIndexed;
    }

    /// `count`: how many nodes there are, this one included.
    void Remove(const Node& node, std::size_t count)
    {
        if (!m_isRight || !*m_isRight)
            return;
        const bool allDiffer = m_byId.size() == count;
        const auto found = m_byId.find(node.element.member->Identity().Value());
        if (found->second == &node)
            m_byId.erase(found);
        *m_isRight = allDiffer;
    }

private:
    template <class Nodes>
    void Learn(const Nodes& nodes)
    {
        if (!m_isRight)
            m_isRight = std::make_shared<bool>(false);
        if (*m_isRight)
            return;
        m_byId.clear();
        for (const Node& node : nodes)
            Take(node);
        *m_isRight = true;
    }

    /// Whether no node before it has the same number.
    bool Take(const Node& node)
    {
        const MemberId& id = node.element.member->Identity();
        id.ForgetOnWrite(m_isRight);
        return m_byId.emplace(id.Value(), &node).second;
    }

    std::unordered_map<int, const Node*> m_byId;
    std::shared_ptr<bool> m_isRight; ///< whether `m_byId` is right; nothing until it is needed
};

} // namespace schedules
