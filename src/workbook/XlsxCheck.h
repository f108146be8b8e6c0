#pragma once

#include <QString>

namespace schedules {

/// Whether every part of an Office Open XML workbook is there to its end, and its sheet has so many cells. What writes
/// such files passes over writes and reads of its own temporary files that fail, on a full disk for instance, and then
/// packs what it has.
bool IsWholeXlsx(const QString& fileName, qint64 cells);

} // namespace schedules
