#include "host/window/GuardedSteps.h"

#include "host/base/HostError.h"
#include "host/tools/Crossing.h"
#include "host/window/MessageBar.h"

namespace schedules::host {

void GuardedSteps::Do(const std::function<void()>& step)
{
    try {
        step();
    } catch (const HostError& error) {
        m_bar.Tell(error.Line());
    } catch (const std::exception& error) {
        m_bar.Tell(QString::fromUtf8(error.what()));
    }
}

void GuardedSteps::DoLater(std::function<void()> step)
{
    QMetaObject::invokeMethod(
        this, [this, step = std::move(step)] { Do(step); }, Qt::QueuedConnection);
}

void GuardedSteps::Note(const Crossing& crossing)
{
    if (!crossing.failure.isEmpty()) {
        m_failure = crossing.failure;
        m_bar.Tell(crossing.failure);
    } else if (const bool tellsError = !FailureOf(crossing).isEmpty(); !tellsError) {
        m_failure.clear();
    }
}

void GuardedSteps::TellError(const QString& error)
{
    m_bar.Tell(error.contains(m_failure) ? error : error + u' ' + m_failure);
}

} // namespace schedules::host
