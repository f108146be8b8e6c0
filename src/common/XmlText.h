#pragma once

#include <QString>

#include <string>

namespace schedules {

/// Whether a text is a name without a prefix, such as an element or an attribute can have.
bool IsXmlName(const QString& text);

/// Appends a text as the content of an element: escaped so that a parser gives it back as it is. Throws `Error` when it
/// has characters that no XML can hold.
void AppendXmlText(std::u16string& xml, QStringView text);

/// Appends a blank and an attribute; line breaks and tabs of the value are escaped, too, since a parser would give
/// blanks for them. `name` is written as it is. Throws like `AppendXmlText`.
void AppendXmlAttribute(std::u16string& xml, QStringView name, QStringView value);

} // namespace schedules
