#pragma once

#include "spread/Sheet.h"

#include <memory>

namespace schedules::bench {

/// A sheet as it is exported, filled from column 1 and row 1 on like a schedule: a header row, tags, numbers, short
/// remarks, some of them in other scripts. The same size always gives the same sheet.
std::unique_ptr<Sheet> ExportedSheet(int columns, int rows);

} // namespace schedules::bench
