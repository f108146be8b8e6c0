#pragma once

#include <cstdint>
#include <vector>

namespace schedules {

/// The columns or the rows of a sheet along one direction: sizes, hidden flags and the order in which they are shown.
///
/// Items are counted from 0, the header. A position says where an item is shown; without an order of its own the item
/// at position n is item n. Sizes and offsets are twips; a hidden item takes no room.
class Axis
{
public:
    explicit Axis(int defaultSize) : m_defaultSize(defaultSize) {}

    /// Number of items beside the header.
    int Count() const { return m_count; }
    void SetCount(int count);

    int DefaultSize() const { return m_defaultSize; }
    void SetDefaultSize(int twips);

    /// The size that the item has when it is shown; 0 is a size, too. Sizes below are taken for 0.
    int Size(int item) const;
    void SetSize(int item, int twips);

    bool Hidden(int item) const;
    void SetHidden(int item, bool hidden);

    /// Everything visible, in natural order and of default size again.
    void Reset();

    /// `items` says which item each position from 1 on shows; empty for the natural order. It must be a permutation
    /// of 1 to `Count()`.
    void SetOrder(std::vector<int> items);
    bool Ordered() const { return !m_itemAt.empty(); }
    int ItemAt(int position) const;
    int PositionOf(int item) const;

    /// Where a position starts, in twips from the start of the header; `Count() + 1` gives the end of the axis.
    std::int64_t Offset(int position) const;

    /// The position that covers an offset; the nearest visible one when it lies outside. -1 when nothing is visible.
    int PositionAt(std::int64_t offset) const;

    /// The next visible position from `position` on, going by `step` (1 or -1), `position` itself included; -1 when
    /// there is none.
    int VisibleFrom(int position, int step) const;

    /// How many positions before this one are visible.
    int VisibleBefore(int position) const;

private:
    static constexpr int kOfDefaultSize = -1;

    int ShownSize(int item) const { return Hidden(item) ? 0 : Size(item); }
    void EnsureOffsets() const;

    int m_count = 0;
    int m_defaultSize;
    std::vector<int> m_sizes; ///< by item; shorter than the axis when the rest is of default size
    std::vector<bool> m_hidden;
    std::vector<int> m_itemAt;
    std::vector<int> m_positionOf;
    mutable std::vector<std::int64_t> m_offsets;
};

} // namespace schedules
