#pragma once

#include <QString>

namespace schedules {

class CTemplate;

/// A template as the text of an XML element, without a declaration or any layout. Throws `Error` when a property's name
/// is no XML name, has a prefix that is not declared, or moves the element into a namespace, and when a text has
/// characters that no XML can hold.
QString TemplateXml(const CTemplate& source);

} // namespace schedules
