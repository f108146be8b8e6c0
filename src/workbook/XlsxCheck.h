#pragma once

#include <QString>

namespace schedules {

/// Whether every part of an Office Open XML workbook is there to its end. What writes such files passes over writes of
/// its own temporary files that fail, on a full disk for instance, and then packs what it has.
bool IsWholeXlsx(const QString& fileName);

} // namespace schedules
