#pragma once

#include <QString>

#include <optional>

namespace schedules::host {

/// Another unit is the first one times `factor` plus `offset`.
struct UnitConversion
{
    double factor = 1;
    double offset = 0;

    double Forward(double value) const { return value * factor + offset; }
    double Backward(double value) const { return (value - offset) / factor; }
};

/// How values in one unit become values in another; nothing when these do not measure the same, or one is not known.
/// Units are compared as they are written ("m³/h", "°F"); any unit is the same as itself.
///
/// What is measured follows from both: from "K" to "°F" temperature differences are converted, from "°C" to "°F"
/// temperatures; from "m³/h" to "gpm" flows, from "m³/h" to "gpm/psi½" the flow coefficients Kv and Cv.
std::optional<UnitConversion> ConversionBetween(const QString& from, const QString& to);

/// A value in another unit, with the digits that keep its precision: converted back and rounded to the digits that it
/// had, it is what it was. A text that is no number, and one whose units have no conversion, stays as it is.
QString Converted(const QString& text, const QString& from, const QString& to);

/// The same with a conversion that is known.
QString Converted(const QString& text, const UnitConversion& conversion);

} // namespace schedules::host
