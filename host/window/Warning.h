#pragma once

#include <QMessageBox>

#include <functional>

namespace schedules::host {

/// Shows a warning over a window. The text is plain: it may tell names and values, which nobody's markup is to be read
/// from.
QMessageBox::StandardButton Warn(QWidget& window, const QString& text,
                                 QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                 QMessageBox::StandardButton preferred = QMessageBox::NoButton);

/// Whether a step could be done. When it throws `HostError`, a warning tells why not.
bool DoneOrWarned(QWidget& window, const std::function<void()>& step);

} // namespace schedules::host
