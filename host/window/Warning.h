#pragma once

#include <QMessageBox>

namespace schedules::host {

/// Shows a warning over a window. The text is plain: it may tell names and values, which nobody's markup is to be read
/// from.
QMessageBox::StandardButton Warn(QWidget& window, const QString& text,
                                 QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                 QMessageBox::StandardButton preferred = QMessageBox::NoButton);

} // namespace schedules::host
