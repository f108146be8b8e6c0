#pragma once

#include <QString>

namespace schedules {

/// Why no file directly in a folder can have that name, as a text for the user; empty when one can.
QString FileNameFlaw(const QString& fileName);

} // namespace schedules
