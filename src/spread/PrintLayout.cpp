#include "spread/PrintLayout.h"

#include "common/Error.h"
#include "spread/Sheet.h"

#include <algorithm>
#include <cmath>

namespace schedules {

namespace {

constexpr int kLeastRoom = 720;
constexpr int kLeastFlowDivisor = 4;

PaperSize Upright(PaperSize paper)
{
    return {std::min(paper.width, paper.height), std::max(paper.width, paper.height)};
}

PaperSize Turned(PaperSize paper)
{
    return {paper.height, paper.width};
}

int RoomAcross(PaperSize paper, const PrintSetup& setup)
{
    return paper.width - setup.Margin(PageEdge::Left) - setup.Margin(PageEdge::Right);
}

int RoomDown(PaperSize paper, const PrintSetup& setup)
{
    return paper.height - setup.Margin(PageEdge::Top) - setup.Margin(PageEdge::Bottom);
}

int RequiredRoom(int twips)
{
    if (twips < kLeastRoom)
        throw Error(kUnexpectedError, QStringLiteral("The paper is too small for its margins and its header."));
    return twips;
}

int Unscaled(int twips, double scale)
{
    return static_cast<int>(std::lround(twips / scale));
}

} // namespace

AxisPages::AxisPages(const Axis& axis, const Room& room) : m_axis(&axis), m_room(room)
{
    const int flowStart = ChooseFlowStart();
    m_fixed = {axis.Offset(room.header ? 0 : 1), axis.Offset(flowStart)};
    m_flowRoom = room.size - (m_fixed.end - m_fixed.start);
    const std::int64_t end = axis.Offset(axis.Count() + 1);
    for (std::int64_t at = m_fixed.end; at < end; at = m_stretches.back().end)
        m_stretches.push_back({at, EndOf(at)});
    if (m_stretches.empty())
        m_stretches.push_back({end, end});
}

std::int64_t AxisPages::WholeSize(const Axis& axis, bool header)
{
    return axis.Offset(axis.Count() + 1) - axis.Offset(header ? 0 : 1);
}

int AxisPages::ChooseFlowStart() const
{
    const int first = m_room.header ? 0 : 1;
    for (const int flowStart : {1 + std::min(m_room.frozen, m_axis->Count()), 1}) {
        const std::int64_t left = m_room.size - (m_axis->Offset(flowStart) - m_axis->Offset(first));
        if (left >= m_room.size / kLeastFlowDivisor)
            return flowStart;
    }
    return first;
}

std::int64_t AxisPages::EndOf(std::int64_t start) const
{
    const std::int64_t limit = start + m_flowRoom;
    if (limit >= m_axis->Offset(m_axis->Count() + 1))
        return m_axis->Offset(m_axis->Count() + 1);
    const int crossing = m_axis->PositionAt(limit);
    if (m_axis->Offset(crossing) > start)
        return m_axis->Offset(crossing);
    return m_room.cuts ? limit : m_axis->Offset(crossing + 1);
}

std::vector<PrintTrack> AxisPages::TracksOn(int page) const
{
    std::vector<PrintTrack> tracks;
    Append(tracks, m_fixed);
    Append(tracks, m_stretches[static_cast<std::size_t>(page)]);
    return tracks;
}

void AxisPages::Append(std::vector<PrintTrack>& tracks, const Stretch& stretch) const
{
    int start = tracks.empty() ? 0 : tracks.back().End();
    std::int64_t at = stretch.start;
    while (at < stretch.end) {
        const int position = m_axis->PositionAt(at);
        const std::int64_t end = std::min(m_axis->Offset(position + 1), stretch.end);
        const int item = m_axis->ItemAt(position);
        const int size = std::min(static_cast<int>(end - at), m_room.size - start);
        tracks.push_back(
            {position, item, start, size, static_cast<int>(at - m_axis->Offset(position)), m_axis->Size(item)});
        start += size;
        at = end;
    }
}

struct PrintLayout::Fit
{
    PageOrientation orientation;
    PaperSize paper;
    int room; ///< of the table, before scaling
    double scale = 1;
};

PrintLayout::Fit PrintLayout::FitOf(const Sheet& sheet, PaperSize upright, const PrintSetup& setup)
{
    const PaperSize across = Turned(upright);
    const Fit uprightFit{PageOrientation::Upright, upright, RequiredRoom(RoomAcross(upright, setup))};
    const Fit acrossFit{PageOrientation::Across, across, RequiredRoom(RoomAcross(across, setup))};
    const Fit& plain = setup.orientation == PageOrientation::Across ? acrossFit : uprightFit;
    if (setup.action == PrintAction::Plain)
        return plain;
    const std::int64_t width = AxisPages::WholeSize(sheet.Columns(), setup.Prints(PrintOption::RowHeaders));
    for (const Fit& fit : {uprightFit, acrossFit}) {
        if (width <= fit.room)
            return fit;
    }
    const double scale = static_cast<double>(acrossFit.room) / static_cast<double>(width);
    return scale < kSmallestScale ? plain : Fit{PageOrientation::Across, across, static_cast<int>(width), scale};
}

PrintLayout::PrintLayout(const Sheet& sheet, PaperSize paper, const PrintSetup& setup, const HeaderHeight& headerHeight)
    : PrintLayout(sheet, setup, headerHeight, FitOf(sheet, Upright(paper), setup))
{
}

PrintLayout::PrintLayout(const Sheet& sheet, const PrintSetup& setup, const HeaderHeight& headerHeight, const Fit& fit)
    : m_orientation(fit.orientation),
      m_paper(fit.paper),
      m_scale(fit.scale),
      m_columns(sheet.Columns(), {.header = setup.Prints(PrintOption::RowHeaders),
                                  .frozen = sheet.FrozenColumns(),
                                  .size = fit.room,
                                  .cuts = true}),
      m_rows(sheet.Rows(),
             {.header = setup.Prints(PrintOption::ColumnHeaders),
              .frozen = sheet.FrozenRows(),
              .size = Unscaled(RequiredRoom(RoomDown(fit.paper, setup) - headerHeight(RoomAcross(fit.paper, setup))),
                               fit.scale)})
{
}

PrintPage PrintLayout::Page(int number) const
{
    return {m_columns.TracksOn(number % m_columns.Count()), m_rows.TracksOn(number / m_columns.Count())};
}

} // namespace schedules
