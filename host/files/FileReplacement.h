#pragma once

#include <QByteArray>
#include <QString>

namespace schedules::host {

/// Gives a file new content, or makes it. The old content stays until the new one is safe on the disk beside it, and
/// for good when anything fails. What is no file, such as a device, is written to as it is. Throws `HostError`.
void ReplaceFile(const QString& fileName, const QByteArray& content);

} // namespace schedules::host
