#pragma once

#include <QString>

namespace schedules {

/// How a unit is written beside a caption: "(ft)" for the unit "ft", nothing for no unit.
QString UnitLabel(const QString& unit);

} // namespace schedules
