#pragma once

#include "host/cli/CommandLine.h"

class QCommandLineParser;

namespace schedules::host {

/// What files of these formats are called in options and at the ends of names. The first one is written when none is
/// named.
inline const QStringList kFormats{"png", "pdf", "xls", "xlsx", "csv", "html"};

/// The form that a command's name stands for; a window for any other word.
Form FormOf(const QString& word);

/// The names of the options that a form takes.
QStringList OptionsOf(Form form);

/// Tells the parser of every option there is.
void AddOptions(QCommandLineParser& parser);

} // namespace schedules::host
