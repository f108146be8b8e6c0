#pragma once

#include "spread/CellStyle.h"

#include <string_view>

namespace schedules {

/// Some kinds of cells stand where their table says. Aligned by their data, values of a type of numbers and texts that
/// read as numbers stand at the far edge, other texts at the near one. A type that is a code says nothing about that.
CellEdge EdgeOf(HorizontalAlignment alignment, CellStyle style, std::string_view utf8);

} // namespace schedules
