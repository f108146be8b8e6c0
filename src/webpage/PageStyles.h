#pragma once

#include "spread/CellEdge.h"
#include "webpage/PaperColumns.h"

#include <compare>
#include <map>
#include <optional>
#include <string>

namespace schedules {

/// How a cell of a page looks.
struct PageLook
{
    static constexpr std::uint32_t kNoFill = 0xFFFFFFFF;
    static constexpr std::uint32_t kFaceFill = 0xFF000000; ///< that of headers, which follows the reader's system

    std::uint32_t fill = kNoFill; ///< else 0x00BBGGRR
    bool bold = false;
    CellEdge edge = CellEdge::Near;
    VerticalAlignment vAlign = VerticalAlignment::Top;

    auto operator<=>(const PageLook&) const = default;
};

/// What a back color is on a page.
std::uint32_t PageFill(std::optional<std::uint32_t> backColor);

/// The class of the table for a group of columns.
std::string GroupClass(std::size_t number);

/// The style sheet of a page, and the classes by which cells refer to it.
class PageStyles
{
public:
    explicit PageStyles(const Sheet& sheet);

    /// The classes of a cell, blanks between; empty for one that looks like most.
    std::string ClassesOf(const PageLook& look) const;

    /// The rules for all cells, on screens and on paper.
    std::string Rules() const;

    /// The rules for the columns on paper.
    static std::string PaperRules(const PaperColumns& paper);

private:
    std::map<std::uint32_t, std::string> m_colorClasses;
};

} // namespace schedules
