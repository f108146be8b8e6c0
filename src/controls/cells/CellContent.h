#pragma once

#include "controls/cells/Place.h"

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
    VerticalAlignment vAlign = VerticalAlignment::Top;
    bool bold = false;
    bool wraps = false;

    bool IsCheckBox() const { return style.type == CellType::CheckBox; }
    bool Ticked() const { return IsCheckBox() && text == QLatin1String("1"); }
};

CellContent ContentOf(const Sheet& sheet, Cell cell);

/// Whether a text is a plain number: digits, with points or commas between, and perhaps a sign.
bool ReadsAsNumber(QStringView text);

/// Whether `HorizontalAlignment::Data` puts the content at the far edge.
bool IsNumber(const CellContent& content);

} // namespace schedules
