#pragma once

#include "workbook/SheetPlan.h"

#include <QString>

namespace schedules {

/// Writes what belongs to the workbook as a whole. Returns the position at which the position of the sheet's first
/// record, a `DWord`, must be put when it is known.
std::uint32_t WriteGlobals(RecordWriter& records, const SheetPlan& plan, const QString& sheetName);

} // namespace schedules
