#pragma once

#include "spread/Sheet.h"

#include <cstdint>
#include <optional>
#include <string_view>

// How cells look in files, where there is no palette and no screen to ask.

namespace schedules {

/// Whether a text is digits with points or commas between and perhaps a sign, blanks around allowed.
bool ReadsAsNumber(std::string_view utf8);

/// Where in its cell a text stands, along the line.
enum class CellEdge : std::uint8_t
{
    Near,
    Center,
    Far
};

/// Check boxes stand in the middle; aligned by their data, numbers stand at the far edge and other texts at the near
/// one.
CellEdge EdgeOf(HorizontalAlignment alignment, CellStyle style, std::string_view utf8);

inline constexpr std::uint32_t kSystemColorFlag = 0x80000000;

/// A color as 0x00BBGGRR; in place of a system color its customary one on a light desktop.
std::uint32_t FixedColor(std::uint32_t number);

/// From 0x00BBGGRR to 0x00RRGGBB, or back.
std::uint32_t RedAndBlueSwapped(std::uint32_t color);

/// Whether white text is easier to read on this 0x00BBGGRR color than black text.
bool NeedsWhiteText(std::uint32_t color);

} // namespace schedules
