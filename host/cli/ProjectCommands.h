#pragma once

#include "host/cli/CommandLine.h"

namespace schedules::host {

class Project;
struct ValueEdit;

/// Makes a project.
int RunNew(const CommandLine& commandLine);

/// Imports tables into a project, and prints a line for each of them.
int RunImport(const CommandLine& commandLine);

/// Prints the categories of a project, or the tags of one category.
int RunList(const CommandLine& commandLine);

/// Prints the values of a tag, or one of them.
int RunGet(const CommandLine& commandLine);

/// Stores a value. If somebody else changes it at the same moment, theirs stays, and the result says so.
int RunSet(const CommandLine& commandLine);

/// The second half of it, when the value's version has been read.
int StoreValue(Project& project, const ValueEdit& edit);

} // namespace schedules::host
