#pragma once

#include "host/cli/CommandLine.h"

class QCommandLineParser;

namespace schedules::host {

// Each throws `HostError`, in the words of the command line, for what may not be asked together or is missing.

/// Whether every option belongs to the form, and to the view.
void CheckOptions(const QCommandLineParser& parser, Form form, const QString& view);

/// Whether what follows the command is what it needs.
void CheckArguments(const QStringList& arguments, Form form);

/// What `render` is to write.
void CheckRendering(const QCommandLineParser& parser, const CommandLine& commandLine);

/// What `options` is to open.
void CheckEditor(const CommandLine& commandLine);

/// What a new project is to have.
void CheckNew(const CommandLine& commandLine);

/// What `schedule` is to write.
void CheckSchedule(const QCommandLineParser& parser, const CommandLine& commandLine);

} // namespace schedules::host
