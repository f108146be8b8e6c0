#pragma once

#include <QString>

#include <string_view>

namespace schedules {

/// The text without the blanks at its ends. Blanks are spaces (U+0020) alone: other white space may be part of a name.
QString TrimmedOfBlanks(const QString& text);

/// Whether a text is empty or white space alone, which a table takes for no text: blanks, tabs and line ends, as in
/// XML. Other spaces, such as U+00A0 and U+3000, are text.
bool IsWhiteSpaceAlone(std::string_view utf8);
bool IsWhiteSpaceAlone(QStringView text);

} // namespace schedules
