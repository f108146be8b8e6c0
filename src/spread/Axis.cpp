#include "spread/Axis.h"

#include <algorithm>

namespace schedules {

void Axis::SetCount(int count)
{
    m_count = std::max(count, 0);
    m_itemAt.clear();
    m_positionOf.clear();
    m_offsets.clear();
}

void Axis::SetDefaultSize(int twips)
{
    m_defaultSize = twips;
    m_offsets.clear();
}

int Axis::Size(int item) const
{
    const int own = item >= 0 && item < std::ssize(m_sizes) ? m_sizes[item] : kOfDefaultSize;
    return own == kOfDefaultSize ? m_defaultSize : own;
}

void Axis::SetSize(int item, int twips)
{
    if (item < 0 || Size(item) == twips)
        return;
    if (item >= std::ssize(m_sizes))
        m_sizes.resize(item + 1, kOfDefaultSize);
    m_sizes[item] = std::max(twips, 0);
    m_offsets.clear();
}

bool Axis::Hidden(int item) const
{
    return item >= 0 && item < std::ssize(m_hidden) && m_hidden[item];
}

void Axis::SetHidden(int item, bool hidden)
{
    if (item < 0 || Hidden(item) == hidden)
        return;
    if (item >= std::ssize(m_hidden))
        m_hidden.resize(item + 1);
    m_hidden[item] = hidden;
    m_offsets.clear();
}

void Axis::Reset()
{
    m_sizes.clear();
    m_hidden.clear();
    SetOrder({});
}

void Axis::SetOrder(std::vector<int> items)
{
    m_itemAt = std::move(items);
    m_positionOf.assign(m_itemAt.size(), 0);
    for (int index = 0; index < std::ssize(m_itemAt); ++index)
        m_positionOf[m_itemAt[index] - 1] = index + 1;
    m_offsets.clear();
}

int Axis::ItemAt(int position) const
{
    return position > 0 && position <= std::ssize(m_itemAt) ? m_itemAt[position - 1] : position;
}

int Axis::PositionOf(int item) const
{
    return item > 0 && item <= std::ssize(m_positionOf) ? m_positionOf[item - 1] : item;
}

std::int64_t Axis::Offset(int position) const
{
    EnsureOffsets();
    return m_offsets[std::clamp(position, 0, m_count + 1)];
}

int Axis::PositionAt(std::int64_t offset) const
{
    EnsureOffsets();
    const auto end = std::ranges::upper_bound(m_offsets, std::max<std::int64_t>(offset, 0));
    const int position = std::clamp(static_cast<int>(end - m_offsets.begin()) - 1, 0, m_count);
    const int forward = VisibleFrom(position, 1);
    return forward >= 0 && offset < m_offsets.back() ? forward : VisibleFrom(position, -1);
}

int Axis::VisibleFrom(int position, int step) const
{
    while (position >= 0 && position <= m_count && Hidden(ItemAt(position)))
        position += step;
    return position >= 0 && position <= m_count ? position : -1;
}

int Axis::VisibleBefore(int position) const
{
    int hidden = 0;
    for (int item = 0; item < std::ssize(m_hidden) && item <= m_count; ++item)
        hidden += m_hidden[item] && PositionOf(item) < position ? 1 : 0;
    return position - hidden;
}

void Axis::EnsureOffsets() const
{
    if (!m_offsets.empty())
        return;
    m_offsets.resize(static_cast<std::size_t>(m_count) + 2);
    // Most axes have few items of their own size, and those at the start.
    const auto special = Ordered() ? m_offsets.size() : std::max(m_sizes.size(), m_hidden.size());
    std::int64_t offset = 0;
    for (int position = 0; position <= m_count; ++position) {
        m_offsets[position] = offset;
        offset += static_cast<std::size_t>(position) < special ? ShownSize(ItemAt(position)) : m_defaultSize;
    }
    m_offsets[m_count + 1] = offset;
}

} // namespace schedules
