#pragma once

#include "host/cli/CommandLine.h"

namespace schedules::host {

/// Draws the view into a file and prints the file's name.
int RunRender(const CommandLine& commandLine);

} // namespace schedules::host
