#pragma once

#include <QByteArray>
#include <QString>

namespace schedules::host {

/// The component's `ReplaceFile`, which throws `HostError`; and what is no file, such as a device, is written to as it
/// is.
void ReplaceFile(const QString& fileName, const QByteArray& content);

} // namespace schedules::host
