#pragma once

#include "host/cli/CommandLine.h"

namespace schedules::host {

/// Opens the options editor in a window and returns when it is closed, or draws it.
int RunOptions(const CommandLine& commandLine);

} // namespace schedules::host
