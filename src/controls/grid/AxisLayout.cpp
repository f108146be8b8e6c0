#include "controls/grid/AxisLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace schedules {

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kLeastScrollingTwips = 720;

} // namespace

AxisLayout::AxisLayout(const Axis& axis, const AxisWindow& window)
    : m_axis(&axis), m_dpi(window.dpi), m_extent(window.extent)
{
    m_fixedCount = ChooseFixedCount(window.frozen);
    m_fixedEnd = static_cast<int>(Pixels(m_axis->Offset(m_fixedCount)));
    m_scroll = std::clamp(window.scroll, 0, MaximumScroll());
}

int AxisLayout::ChooseFixedCount(int frozen) const
{
    const int wanted = std::clamp(frozen, 0, m_axis->Count()) + 1;
    if (LeavesRoom(wanted))
        return wanted;
    return LeavesRoom(1) ? 1 : 0;
}

bool AxisLayout::LeavesRoom(int fixedCount) const
{
    const std::int64_t needed = m_axis->Offset(fixedCount) + kLeastScrollingTwips;
    return Total() <= m_extent || Pixels(needed) <= m_extent;
}

std::int64_t AxisLayout::Pixels(std::int64_t twips) const
{
    return static_cast<std::int64_t>(std::floor(static_cast<double>(twips) * m_dpi / kTwipsPerInch + 0.5));
}

std::int64_t AxisLayout::Total() const
{
    return Pixels(m_axis->Offset(m_axis->Count() + 1));
}

int AxisLayout::MaximumScroll() const
{
    return static_cast<int>(std::clamp<std::int64_t>(Total() - m_extent, 0, std::numeric_limits<int>::max()));
}

int AxisLayout::ShownEnd() const
{
    return static_cast<int>(std::min<std::int64_t>(Total() - m_scroll, m_extent));
}

Span AxisLayout::SpanOf(int position) const
{
    const int scroll = position < m_fixedCount ? 0 : m_scroll;
    return {static_cast<int>(Pixels(m_axis->Offset(position)) - scroll),
            static_cast<int>(Pixels(m_axis->Offset(position + 1)) - scroll)};
}

Span AxisLayout::SeenSpanOf(int position) const
{
    const Span span = SpanOf(position);
    const int start = std::max(span.start, position < m_fixedCount ? 0 : m_fixedEnd);
    return {start, std::max(start, std::min(span.end, m_extent))};
}

int AxisLayout::Distance(int from, int to) const
{
    return static_cast<int>(Pixels(m_axis->Offset(to)) - Pixels(m_axis->Offset(from)));
}

int AxisLayout::PositionAt(int pixel) const
{
    const int position = NearestTo(pixel);
    return position >= 0 && SeenSpanOf(position).Contains(pixel) ? position : -1;
}

int AxisLayout::NearestTo(int pixel) const
{
    // The edges are rounded: a position covers a pixel when it starts before the pixel's middle.
    const double middle = pixel + 0.5 + (pixel < m_fixedEnd ? 0 : m_scroll);
    return m_axis->PositionAt(static_cast<std::int64_t>(std::ceil(middle * kTwipsPerInch / m_dpi)) - 1);
}

std::vector<Track> AxisLayout::Tracks() const
{
    std::vector<Track> tracks;
    AppendTracks(tracks, m_axis->VisibleFrom(0, 1), m_fixedCount);
    if (const int first = NearestTo(m_fixedEnd); first >= m_fixedCount)
        AppendTracks(tracks, first, m_axis->Count() + 1);
    return tracks;
}

void AxisLayout::AppendTracks(std::vector<Track>& tracks, int from, int end) const
{
    for (int position = from; position >= 0 && position < end; position = Next(position)) {
        const Span span = SpanOf(position);
        if (span.start >= m_extent)
            return;
        if (SeenSpanOf(position).Length() > 0)
            tracks.push_back({position, m_axis->ItemAt(position), span});
    }
}

int AxisLayout::ScrollToShow(int position) const
{
    if (position < m_fixedCount)
        return m_scroll;
    const Span span = SpanOf(position);
    const int before = span.start - m_fixedEnd;
    const int behind = span.end - m_extent;
    if (before < 0)
        return m_scroll + before;
    return behind > 0 ? m_scroll + std::min(behind, before) : m_scroll;
}

int AxisLayout::Next(int position) const
{
    const std::int64_t end = m_axis->Offset(position + 1);
    return end < m_axis->Offset(m_axis->Count() + 1) ? m_axis->PositionAt(end) : -1;
}

} // namespace schedules
