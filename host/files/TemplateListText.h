#pragma once

#include <QString>

namespace schedules::host {

/// Throws `HostError` for a text that is no XML document.
void RequireXml(const QString& text);

/// A host's list of templates without the entries whose file has that name: those that have it exactly, or, when there
/// are none, those that differ in letter case. A line that held nothing but an entry goes with it; every other
/// character stays as it is. Throws `HostError` when the list is no XML, and when its root is such an entry.
QString WithoutEntries(const QString& list, const QString& fileName);

} // namespace schedules::host
