#pragma once

#include <QString>

#include <string>

// What a load of a schedule brings about, drawn: its success, sizes, hidden lines, cells with their looks, and the
// number of the message that a failed one shows. Of columns and rows the first `looked` are drawn.

namespace schedules::testing {

/// How the engine is set up for a load.
struct LoadSetting
{
    int orientation = 0;
    bool transpose = false;
};

/// By the loader that is slow and plain.
std::string LoadedLiterally(const QString& xml, LoadSetting setting, int looked);

/// By the engine.
std::string LoadedFast(const QString& xml, LoadSetting setting, int looked);

} // namespace schedules::testing
