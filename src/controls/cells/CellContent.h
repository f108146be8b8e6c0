#pragma once

#include "controls/cells/Place.h"
#include "spread/CellEdge.h"

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
    HorizontalAlignment hAlign = HorizontalAlignment::Left;
    CellEdge edge = CellEdge::Near;
    VerticalAlignment vAlign = VerticalAlignment::Top;
    bool bold = false;
    bool wraps = false;

    bool IsCheckBox() const { return style.type == CellType::CheckBox; }
    bool Ticked() const { return IsCheckBox() && text == QLatin1String("1"); }
};

CellContent ContentOf(const Sheet& sheet, Cell cell);

/// Whether the content stands at the far edge.
inline bool IsNumber(const CellContent& content)
{
    return content.edge == CellEdge::Far;
}

} // namespace schedules
