#pragma once

#include "spread/Axis.h"

#include <vector>

namespace schedules {

/// A stretch of pixels along one direction; the end is not part of it.
struct Span
{
    int start = 0;
    int end = 0;

    int Length() const { return end - start; }
    bool Contains(int pixel) const { return start <= pixel && pixel < end; }
    bool operator==(const Span&) const = default;
};

/// A column or a row that is seen: where it stands in display order, which item it shows, and its pixels.
struct Track
{
    int position = 0;
    int item = 0;
    Span span;

    bool operator==(const Track&) const = default;
};

/// Through what an axis is looked at. `extent` and `scroll` are pixels, `frozen` counts the items behind the header.
struct AxisWindow
{
    double dpi = 96;
    int extent = 0;
    int frozen = 0;
    int scroll = 0;
};

/// Where the columns or the rows of an axis stand on screen, in pixels from the edge at which the axis starts.
///
/// The header and the frozen items stay in place, the others scroll beneath them. Edges are rounded from their distance
/// to the start of the axis, so neighbours share them exactly. Where the frozen items would leave hardly any room to
/// scroll in, they scroll as well, and so does, in the end, the header: everything can be reached in any window.
class AxisLayout
{
public:
    /// The axis must outlive the layout. A scroll value beyond the limits is brought back into them.
    AxisLayout(const Axis& axis, const AxisWindow& window);

    /// How many of the first positions stay in place, the header being one.
    int FixedCount() const { return m_fixedCount; }

    /// Where the part that scrolls begins.
    int FixedEnd() const { return m_fixedEnd; }

    /// Where the shown part ends: at the last item or at the edge of the window.
    int ShownEnd() const;

    /// The size of the window.
    int Extent() const { return m_extent; }

    int Scroll() const { return m_scroll; }
    int MaximumScroll() const;

    /// Pixels that the whole axis takes.
    std::int64_t Total() const;

    /// Distances of the axis in pixels.
    std::int64_t Pixels(std::int64_t twips) const;

    /// Where a position is; it may lie outside of the window or beneath what stays in place.
    Span SpanOf(int position) const;

    /// The part of it that is seen; empty when nothing is.
    Span SeenSpanOf(int position) const;

    /// From the start of a position to that of another, as far as these scroll.
    int Distance(int from, int to) const;

    /// The position shown at a pixel; -1 beside the items.
    int PositionAt(int pixel) const;

    /// The visible position nearest to a pixel; -1 when nothing is visible.
    int NearestTo(int pixel) const;

    /// Everything that is seen, in display order.
    std::vector<Track> Tracks() const;

    /// The scroll value, changed as little as possible, at which a position is wholly seen, or its start is.
    int ScrollToShow(int position) const;

    /// The next visible position; -1 behind the last.
    int Next(int position) const;

private:
    bool LeavesRoom(int fixedCount) const;
    int ChooseFixedCount(int frozen) const;
    void AppendTracks(std::vector<Track>& tracks, int from, int end) const;

    const Axis* m_axis;
    double m_dpi;
    int m_extent;
    int m_fixedCount = 0;
    int m_fixedEnd = 0;
    int m_scroll = 0;
};

} // namespace schedules
