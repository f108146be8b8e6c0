#pragma once

#include <QImage>
#include <QString>

class QWidget;

namespace schedules::host {

/// The tool drawn with everything that is on it, as large as its grid, within limits. A title is written above it as a
/// heading.
QImage PictureOf(QWidget& tool, const QString& title);

/// Throws `HostError` when the file cannot be written; it is then as it was.
void WritePng(const QImage& picture, const QString& fileName);

} // namespace schedules::host
