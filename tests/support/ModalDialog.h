#pragma once

#include <QApplication>
#include <QTimer>

namespace schedules::testing {

/// Runs an action on the next modal dialog of a class, as a user would.
template <class Dialog, class Action>
void OnceModal(Action action)
{
    auto* const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, action] {
        if (auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            timer->stop();
            action(*dialog);
        }
    });
    timer->start(1);
}

} // namespace schedules::testing
