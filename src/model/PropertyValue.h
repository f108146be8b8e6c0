#pragma once

#include <QString>

#include <memory>
#include <variant>

namespace schedules {

/// The value of a property: a text, a number, a Boolean, or a reference to an object. What comes from a file is text.
using PropertyValue = std::variant<QString, double, bool, std::shared_ptr<void>>;

/// The value as it is written: a number with at most 15 digits, a Boolean as "-1" or "0". Throws `Error` (type
/// mismatch) for an object.
QString TextOf(const PropertyValue& value);

/// The value as a Boolean; a text as `BooleanOf` takes it, a number is true unless it is 0. Throws `Error` (type
/// mismatch) for anything else.
bool FlagOf(const PropertyValue& value);

} // namespace schedules
