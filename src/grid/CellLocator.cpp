#include "grid/CellLocator.h"

#include "common/PlainXml.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace schedules {

namespace {

constexpr std::size_t kNoCell = std::numeric_limits<std::size_t>::max();

} // namespace

std::optional<CellSpans> CellSpans::Of(const QByteArray& utf8)
{
    auto locator = ReadEitherWay<CellLocator>(utf8);
    return locator ? std::optional(locator->Take()) : std::nullopt;
}

std::optional<CellSpan> CellSpans::Find(Sheet::TablePlace place) const
{
    const auto found = std::ranges::lower_bound(m_entries, place, {}, &Entry::place);
    return found != m_entries.end() && found->place == place ? std::optional(found->span) : std::nullopt;
}

void CellLocator::StartElement(const XmlStartTag& tag)
{
    ScheduleReader::StartElement(tag);
    const auto place = OpenCell();
    m_open.push_back(place ? m_spans.m_entries.size() : kNoCell);
    if (place)
        m_spans.m_entries.push_back({*place, {static_cast<std::uint32_t>(tag.start), 0}});
}

void CellLocator::EndElement(std::size_t end)
{
    ScheduleReader::EndElement(end);
    if (m_open.back() != kNoCell)
        m_spans.m_entries[m_open.back()].span.end = static_cast<std::uint32_t>(end);
    m_open.pop_back();
}

CellSpans CellLocator::Take()
{
    // Only tables inside of cells bring them in another order.
    if (!std::ranges::is_sorted(m_spans.m_entries, {}, &CellSpans::Entry::place))
        std::ranges::sort(m_spans.m_entries, {}, &CellSpans::Entry::place);
    return std::move(m_spans);
}

} // namespace schedules
