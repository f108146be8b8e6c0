#pragma once

#include "spread/CellEdge.h"
#include "spread/Sheet.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace schedules {

/// What a cell shows and how, as it is painted on screen or paper and told to a screen reader.
struct CellContent
{
    QString text; ///< without characters that move a line on; blanks stand in their places unless the cell wraps
    CellStyle style;
    std::optional<std::uint32_t> backColor;
    CellEdge edge = CellEdge::Near;
    VerticalAlignment vAlign = VerticalAlignment::Top;
    bool bold = false;
    bool wraps = false;

    const CellKind& Kind() const { return KindOf(style); }
    bool Ticked() const { return IsTicked(style, std::string_view(text.toUtf8())); }
};

CellContent ContentOf(const Sheet& sheet, Cell cell);

} // namespace schedules
