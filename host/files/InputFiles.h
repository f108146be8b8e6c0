#pragma once

#include <QStringList>

namespace schedules::host {

/// Throws `HostError` when a file that is to be written is one of those that are read.
void KeepInputs(const QStringList& inputs, const QStringList& outputs);

} // namespace schedules::host
