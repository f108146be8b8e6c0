#pragma once

#include <QImage>
#include <QString>

namespace schedules::host {

class HostedSchedule;

/// The view drawn with everything that is on it, as large as its grid, within limits. A title is written above it as a
/// heading.
QImage PictureOf(HostedSchedule& view, const QString& title);

/// Throws `HostError` when the file cannot be written; it is then as it was.
void WritePng(const QImage& picture, const QString& fileName);

} // namespace schedules::host
