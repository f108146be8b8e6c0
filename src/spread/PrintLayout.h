#pragma once

#include "spread/PrintSetup.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace schedules {

class Axis;

/// Twips.
struct PaperSize
{
    int width = 0;
    int height = 0;

    bool operator==(const PaperSize&) const = default;
};

/// A column or a row on a page. A column that is wider than a page stands on several, each showing another part of it.
struct PrintTrack
{
    int position = 0; ///< in display order
    int item = 0;
    int start = 0;   ///< from the edge of the table, before scaling
    int size = 0;    ///< as far as it is on this page
    int skipped = 0; ///< what the pages before have shown of it
    int whole = 0;

    int End() const { return start + size; }
    bool Cut() const { return size != whole; }
    bool operator==(const PrintTrack&) const = default;
};

/// The table of one page.
struct PrintPage
{
    std::vector<PrintTrack> columns;
    std::vector<PrintTrack> rows;

    int Width() const { return columns.empty() ? 0 : columns.back().End(); }
    int Height() const { return rows.empty() ? 0 : rows.back().End(); }
};

/// How the visible columns, or the rows, of an axis are shared out among pages. The header and the frozen items are on
/// every page, as long as they leave at least a quarter of it.
class AxisPages
{
public:
    struct Room
    {
        bool header = true; ///< whether the header is printed
        int frozen = 0;
        int size = 0;      ///< twips that a page has
        bool cuts = false; ///< whether an item that is larger than a page is cut; it ends at the page's edge otherwise
    };

    /// The axis must outlive the pages, and must not change meanwhile.
    AxisPages(const Axis& axis, const Room& room);

    int Count() const { return static_cast<int>(m_stretches.size()); }
    std::vector<PrintTrack> TracksOn(int page) const;

    /// The size of all that is printed of an axis.
    static std::int64_t WholeSize(const Axis& axis, bool header);

private:
    /// From one distance to another along the axis.
    struct Stretch
    {
        std::int64_t start = 0;
        std::int64_t end = 0;
    };

    int ChooseFlowStart() const;
    std::int64_t EndOf(std::int64_t start) const;
    void Append(std::vector<PrintTrack>& tracks, const Stretch& stretch) const;

    const Axis* m_axis;
    Room m_room;
    Stretch m_fixed;
    std::int64_t m_flowRoom = 0;
    std::vector<Stretch> m_stretches;
};

/// What a page's header takes of a page's height, in twips, when it is set in a width.
using HeaderHeight = std::function<int(int width)>;

/// Which cells of a sheet stand where on which page. Hidden columns and rows are left out; rows keep their display
/// order, and are never split. Pages go from the first columns to the last, then on to further rows.
///
/// Laying out costs the number of pages, not that of cells; a page's tracks are made when it is asked for.
class PrintLayout
{
public:
    /// The sheet must outlive the layout, and must not change meanwhile. The paper is taken upright, whichever of its
    /// sides is given as its width. Throws `Error` when margins and header leave next to no room on it.
    PrintLayout(const Sheet& sheet, PaperSize paper, const PrintSetup& setup, const HeaderHeight& headerHeight);

    PageOrientation Orientation() const { return m_orientation; }

    /// The paper as it is turned.
    PaperSize Paper() const { return m_paper; }

    /// By how much the table is scaled; the header is not.
    double Scale() const { return m_scale; }

    /// At least 1.
    int PageCount() const { return m_columns.Count() * m_rows.Count(); }

    /// Pages are counted from 0.
    PrintPage Page(int number) const;

    /// Smart printing goes no smaller than that.
    static constexpr double kSmallestScale = 0.5;

private:
    struct Fit;

    PrintLayout(const Sheet& sheet, const PrintSetup& setup, const HeaderHeight& headerHeight, const Fit& fit);

    static Fit FitOf(const Sheet& sheet, PaperSize upright, const PrintSetup& setup);

    PageOrientation m_orientation;
    PaperSize m_paper;
    double m_scale;
    AxisPages m_columns;
    AxisPages m_rows;
};

} // namespace schedules
