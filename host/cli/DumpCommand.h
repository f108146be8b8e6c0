#pragma once

#include "host/cli/CommandLine.h"

namespace schedules::host {

/// Prints the loaded grid on standard output.
int RunDump(const CommandLine& commandLine);

} // namespace schedules::host
