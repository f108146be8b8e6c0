#pragma once

#include <QString>

namespace schedules::host {

/// How many elements of a document are marked with `Dirty="-1"` that another state of it does not have, with the same
/// mark and the same text, at the same place.
int NewlyDirtyCells(const QString& before, const QString& after);

} // namespace schedules::host
