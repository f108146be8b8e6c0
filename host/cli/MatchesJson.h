#pragma once

#include <QByteArray>
#include <QString>

namespace schedules::host {

/// The files that match a pattern as a JSON array in UTF-8, with a line of its own for every match, in the order of the
/// search.
QByteArray MatchesJson(const QString& pattern);

} // namespace schedules::host
