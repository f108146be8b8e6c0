#pragma once

#include "common/Error.h"

#include <QByteArray>
#include <QFileDevice>
#include <QString>

#include <functional>

namespace schedules {

/// The number of the error that a file could not be written.
inline constexpr int kFileNotWrittenError = 75;

/// Replaces a file, or makes a new one, by what `write` writes. The content is written beside the file and takes its
/// place only when it is complete and safe on the disk; the permissions of an existing file stay. A symbolic link
/// stays, what it leads to is replaced.
///
/// Throws `Error` with the system's text when any part of it fails, and lets pass what `write` throws; a file that was
/// there is then as it was, and nothing is left beside it. `write` may use the device's `handle()`, too, as long as it
/// checks what it does there.
void ReplaceFile(const QString& fileName, const std::function<void(QFileDevice&)>& write);

/// The same for content that lies ready.
void ReplaceFile(const QString& fileName, const QByteArray& content);

/// Writes all of it; throws `Error` with the system's text when the device takes less. What a device gathers shows only
/// when it is flushed.
void WriteAll(QFileDevice& device, QByteArrayView bytes);

} // namespace schedules
