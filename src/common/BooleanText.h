#pragma once

#include <QString>

namespace schedules {

/// "-1" for true, "0" for false.
QString BooleanText(bool value);

/// The Boolean that a text means: "True" and "False" in any case, or a number, which is true unless it is 0; blanks
/// around it do not count. Throws `Error` (type mismatch) for any other text.
bool BooleanOf(const QString& text);

} // namespace schedules
