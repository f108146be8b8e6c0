#pragma once

#include <QString>

namespace schedules::host {

/// Where files of a kind ("samples", "languages") lie: beside the program, or below ../share once it is installed.
/// Gives the place beside the program when there is neither. Needs an application.
QString DataFolder(const QString& kind);

} // namespace schedules::host
