#pragma once

#include <QString>

namespace schedules::host {

/// What `--help` prints.
QString HelpText();

} // namespace schedules::host
