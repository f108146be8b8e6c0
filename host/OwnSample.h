#pragma once

#include <QString>

namespace schedules::host {

/// The user's own copy of the sample schedule, which he may edit: made in his data folder when it is not there yet.
/// Throws `HostError` when it cannot be made.
QString OwnSample();

} // namespace schedules::host
