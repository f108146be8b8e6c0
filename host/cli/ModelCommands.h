#pragma once

#include "host/cli/CommandLine.h"

namespace schedules::host {

/// Reads a template and prints what it is saved as.
int RunTemplate(const CommandLine& commandLine);

/// Prints the catalogue of templates that two lists and a folder make, and whatever the component reports
/// meanwhile, each on a line of its own.
int RunCatalogue(const CommandLine& commandLine);

/// Prints the files that match a pattern.
int RunFind(const CommandLine& commandLine);

} // namespace schedules::host
