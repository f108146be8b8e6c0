#pragma once

#include <cstdint>

// The colours of cells in files, where there is no palette and no screen to ask.

namespace schedules {

inline constexpr std::uint32_t kSystemColorFlag = 0x80000000;

/// A color as 0x00BBGGRR; in place of a system color its customary one on a light desktop.
std::uint32_t FixedColor(std::uint32_t number);

/// From 0x00BBGGRR to 0x00RRGGBB, or back.
std::uint32_t RedAndBlueSwapped(std::uint32_t color);

/// Whether white text is easier to read on this 0x00BBGGRR color than black text.
bool NeedsWhiteText(std::uint32_t color);

} // namespace schedules
