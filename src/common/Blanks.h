#pragma once

#include <QString>

namespace schedules {

/// The text without the blanks at its ends. Blanks are spaces (U+0020) alone: other white space may be part of a name.
QString TrimmedOfBlanks(const QString& text);

} // namespace schedules
