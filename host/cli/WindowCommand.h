#pragma once

#include "host/cli/CommandLine.h"

namespace schedules::host {

/// Opens the window on a project or on a file with a table, and returns when it is closed.
int RunWindow(const CommandLine& commandLine);

} // namespace schedules::host
