#include "host/window/Warning.h"

#include "host/base/HostError.h"

#include <QPointer>

namespace schedules::host {

QMessageBox::StandardButton Warn(QWidget& window, const QString& text, QMessageBox::StandardButtons buttons,
                                 QMessageBox::StandardButton preferred)
{
    const QPointer box = new QMessageBox(QMessageBox::Warning, window.windowTitle(), text, buttons, &window);
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(preferred);
    const auto answer = static_cast<QMessageBox::StandardButton>(box->exec());
    delete box;
    return answer;
}

bool DoneOrWarned(QWidget& window, const std::function<void()>& step)
{
    try {
        step();
        return true;
    } catch (const HostError& error) {
        Warn(window, error.Line());
        return false;
    }
}

} // namespace schedules::host
