#pragma once

#include "model/CElement.h"

#include <optional>

namespace schedules {

/// The value of a property as a flag; nothing when there is none of that name. A value that is no flag concerns its
/// bearer alone: it counts as false.
std::optional<bool> FlagIn(const CProperties& properties, const QString& name);

/// Gives a flag the state of its check mark. False when it has that already, and when there is no such property: then
/// nothing can be checked.
bool TakeCheckMark(CProperties& properties, const QString& name, bool checked);

/// Sets a property, and adds it where it is missing.
void SetProperty(CProperties& properties, const QString& name, const QString& value);

bool IsUserDefined(const CElement& element);

/// The value of "DisplayName"; empty when there is none.
QString DisplayNameOf(const CElement& element);

/// How a data item is listed: by its display name, with a mark directly before it when it is user-defined.
QString EntryText(const CElement& element);
QString EntryText(bool isUserDefined, const QString& displayName);

} // namespace schedules
