#pragma once

#include "spread/CellKind.h"

#include <QString>

#include <cstdint>
#include <string_view>

namespace schedules {

enum class DataType : std::uint8_t
{
    Text,
    Integer,
    Long,
    Single,
    Double,
    Currency,
    CheckBox,
    Number
};

/// Whether a data type is one of numbers.
constexpr bool IsNumeric(DataType type)
{
    return type != DataType::Text && type != DataType::CheckBox;
}

/// What a cell is, beside its text. Few different ones occur in a table, however large it is.
struct CellStyle
{
    CellType type = CellType::StaticText;
    DataType dataType = DataType::Text;
    bool allowEdit = false;
    bool userDefined = false;
    bool edited = false; ///< changed by the user and not yet saved

    bool operator==(const CellStyle&) const = default;
};

constexpr const CellKind& KindOf(CellStyle style)
{
    return kCellKinds[static_cast<std::size_t>(style.type)];
}

/// Whether the text of a cell says that it is ticked; only one that toggles can be.
constexpr bool IsTicked(CellStyle style, std::string_view utf8)
{
    return KindOf(style).Toggles() && utf8 == "1";
}

/// The text of a cell that toggles.
inline QString StateText(bool ticked)
{
    return ticked ? QStringLiteral("1") : QStringLiteral("0");
}

/// The numbers are those of the grid's alignment options.
enum class HorizontalAlignment : std::uint8_t
{
    Left = 0,
    Data = 1, ///< numbers at the far edge, other texts at the near one
    Center = 2
};

enum class VerticalAlignment : std::uint8_t
{
    Top = 0,
    Bottom = 1,
    Center = 2
};

} // namespace schedules
