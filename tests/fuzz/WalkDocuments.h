#pragma once

#include <QString>

namespace schedules::testing {

/// The document of that number: one of those that are drawn for the walks, or from `kDrawnDocuments` on one at random,
/// in which every data cell may be edited.
QString WalkDocument(unsigned number);

inline constexpr unsigned kDrawnDocuments = 10;

/// Whether it is a schedule in no cell of which there is a table.
bool IsFlatSchedule(const QString& xml);

} // namespace schedules::testing
