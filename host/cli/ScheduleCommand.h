#pragma once

#include "host/cli/CommandLine.h"

namespace schedules::host {

/// Writes the schedule of a category.
int RunSchedule(const CommandLine& commandLine);

} // namespace schedules::host
