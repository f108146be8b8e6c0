#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

namespace schedules {

/// A sequence in which an element is inserted, removed, and found by its index in next to no time, and which knows the
/// index of any of its nodes: it is kept in pieces of a few hundred, so that hardly anything moves. Nodes stay where
/// they are in memory until they are taken out.
template <class Element>
class PieceList
{
    struct Piece;

public:
    class Node
    {
    public:
        explicit Node(Element given) : element(std::move(given)) {}

        Element element;

    private:
        friend PieceList;
        Piece* m_piece = nullptr;
    };

    std::size_t Size() const { return m_size; }

    /// `index` is less than the size.
    Node& At(std::size_t index) const
    {
        const auto [piece, place] = Find(index);
        return *m_pieces[piece]->nodes[place];
    }

    std::size_t IndexOf(const Node& node) const
    {
        std::size_t before = 0;
        for (auto piece = m_pieces.begin(); piece->get() != node.m_piece; ++piece)
            before += (*piece)->nodes.size();
        return before + node.m_piece->PlaceOf(node);
    }

    /// `index` is at most the size.
    Node& Insert(std::size_t index, Element element)
    {
        auto node = std::make_unique<Node>(std::move(element));
        if (m_pieces.empty())
            m_pieces.push_back(std::make_unique<Piece>());
        auto [piece, place] = Find(index);
        if (m_pieces[piece]->nodes.size() == kMostNodes) {
            Split(piece);
            std::tie(piece, place) = Find(index);
        }
        node->m_piece = m_pieces[piece].get();
        auto& nodes = m_pieces[piece]->nodes;
        Node& inserted = **nodes.insert(nodes.begin() + static_cast<std::ptrdiff_t>(place), std::move(node));
        ++m_size;
        return inserted;
    }

    /// The node is gone afterwards.
    void Remove(const Node& node)
    {
        Piece& piece = *node.m_piece;
        piece.nodes.erase(piece.nodes.begin() + static_cast<std::ptrdiff_t>(piece.PlaceOf(node)));
        --m_size;
        if (piece.nodes.empty())
            std::erase_if(m_pieces, [&piece](const auto& known) { return known.get() == &piece; });
    }

    class Iterator;

    /// From the first node to the last. Nothing may be inserted or removed on the way.
    Iterator begin() const { return Iterator(*this, 0); }
    Iterator end() const { return Iterator(*this, m_pieces.size()); }

private:
    static constexpr std::size_t kMostNodes = 512;
    static constexpr std::size_t kFewNodes = 8; ///< most sequences are short

    struct Piece
    {
        Piece() { nodes.reserve(kFewNodes); }

        std::size_t PlaceOf(const Node& wanted) const
        {
            const auto found = std::ranges::find(nodes, &wanted, [](const auto& node) { return node.get(); });
            return static_cast<std::size_t>(found - nodes.begin());
        }

        std::vector<std::unique_ptr<Node>> nodes;
    };

    /// The piece, and the place in it; behind the last node for the size itself.
    std::pair<std::size_t, std::size_t> Find(std::size_t index) const
    {
        const std::size_t inLast = m_pieces.back()->nodes.size();
        if (index >= m_size - inLast) // where most are added, and where all are removed
            return {m_pieces.size() - 1, index - (m_size - inLast)};
        std::size_t piece = 0;
        while (piece + 1 < m_pieces.size() && index >= m_pieces[piece]->nodes.size())
            index -= m_pieces[piece++]->nodes.size();
        return {piece, index};
    }

    /// The latter half of a piece becomes one of its own.
    void Split(std::size_t index)
    {
        m_pieces.reserve(m_pieces.size() + 1); // nothing must fail once nodes have moved
        auto latter = std::make_unique<Piece>();
        auto& nodes = m_pieces[index]->nodes;
        const auto middle = nodes.begin() + kMostNodes / 2;
        latter->nodes.assign(std::move_iterator(middle), std::move_iterator(nodes.end()));
        for (const auto& node : latter->nodes)
            node->m_piece = latter.get();
        nodes.erase(middle, nodes.end());
        m_pieces.insert(m_pieces.begin() + static_cast<std::ptrdiff_t>(index) + 1, std::move(latter));
    }

    std::vector<std::unique_ptr<Piece>> m_pieces;
    std::size_t m_size = 0;
};

template <class Element>
class PieceList<Element>::Iterator
{
public:
    using difference_type = std::ptrdiff_t;
    using value_type = Node;

    Iterator() = default;
    Iterator(const PieceList& list, std::size_t piece) : m_list(&list), m_piece(piece) {}

    Node& operator*() const { return *m_list->m_pieces[m_piece]->nodes[m_place]; }

    Iterator& operator++()
    {
        if (++m_place == m_list->m_pieces[m_piece]->nodes.size()) {
            ++m_piece;
            m_place = 0;
        }
        return *this;
    }

    Iterator operator++(int)
    {
        const Iterator before = *this;
        ++*this;
        return before;
    }

    bool operator==(const Iterator& other) const = default;

private:
    const PieceList* m_list = nullptr;
    std::size_t m_piece = 0;
    std::size_t m_place = 0;
};

} // namespace schedules
