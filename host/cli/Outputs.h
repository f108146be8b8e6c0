#pragma once

#include "host/cli/CommandLine.h"

namespace schedules::host {

class LoadedTool;
class ProgressLine;

/// Writes what a view shows into a file, and prints the file's name in place of the progress. Throws `HostError`, which
/// names the file.
void WriteOutput(LoadedTool& loaded, const Output& output, const RenderOptions& options, ProgressLine& progress);

} // namespace schedules::host
