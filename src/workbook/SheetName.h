#pragma once

#include <QString>

namespace schedules {

/// A name made legal for the sheet of a workbook: at most 31 characters, none of `[]:*?/\` or control characters (each
/// becomes "_"), no apostrophe at its ends, no blanks around. Never empty.
QString LegalSheetName(const QString& name);

} // namespace schedules
