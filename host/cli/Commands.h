#pragma once

#include "host/cli/CommandLine.h"

namespace schedules::host {

class Project;
struct ValueEdit;

/// Exit codes of the program.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;
inline constexpr int kInConflict = 3;

// Each command needs an application and throws `HostError` when it cannot do what it was asked.

/// Opens the window on a project or on a file with a table, and returns when it is closed.
int RunWindow(const CommandLine& commandLine);

/// Makes a project.
int RunNew(const CommandLine& commandLine);

/// Imports tables into a project, and prints a line for each of them.
int RunImport(const CommandLine& commandLine);

/// Prints the categories of a project, or the tags of one category.
int RunList(const CommandLine& commandLine);

/// Writes the schedule of a category.
int RunSchedule(const CommandLine& commandLine);

/// Prints the values of a tag, or one of them.
int RunGet(const CommandLine& commandLine);

/// Stores a value. When somebody else stores another one at the same moment it is left, and the result says so.
int RunSet(const CommandLine& commandLine);

/// The second half of it, when the value's version has been read.
int StoreValue(Project& project, const ValueEdit& edit);

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
