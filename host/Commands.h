#pragma once

#include "host/CommandLine.h"

namespace schedules::host {

/// Exit codes of the program.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;

// Each command needs an application and throws `HostError` when it cannot do what it was asked.

/// Opens the window and returns when it is closed.
int RunWindow(const CommandLine& commandLine);

/// Prints the loaded grid on standard output.
int RunDump(const CommandLine& commandLine);

/// Reads a template and prints what it is saved as.
int RunTemplate(const CommandLine& commandLine);

/// Prints the catalogue of templates that two lists and a folder make. What the component reports in making it is told
/// in a line each.
int RunCatalogue(const CommandLine& commandLine);

/// Prints the files that match a pattern.
int RunFind(const CommandLine& commandLine);

/// Opens the options editor in a window and returns when it is closed, or draws it.
int RunOptions(const CommandLine& commandLine);

/// Draws the view into a file and prints the file's name.
int RunRender(const CommandLine& commandLine);

} // namespace schedules::host
