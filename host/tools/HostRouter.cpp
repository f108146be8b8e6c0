#include "host/tools/HostRouter.h"

#include <exception>
#include <utility>

namespace schedules::host {

void HostRouter::Answers(const QString& name, Answer answer)
{
    m_answers.insert(name, std::move(answer));
}

void HostRouter::NoLongerAnswers(const QString& name)
{
    m_answers.remove(name);
}

QString HostRouter::Send(const Envelope& envelope)
{
    Crossing crossing{QDateTime::currentDateTime(), envelope, ParseMessage(envelope.body.toString()), {}, {}};
    try {
        Deliver(crossing);
    } catch (const std::exception& error) {
        crossing.failure = QString::fromUtf8(error.what());
        Q_EMIT Crossed(crossing);
        throw;
    }
    Q_EMIT Crossed(crossing);
    return crossing.reply;
}

void HostRouter::Deliver(Crossing& crossing) const
{
    if (!crossing.message)
        return;
    // A copy: what is done for the answer may take it back.
    if (const Answer answer = m_answers.value(crossing.message->name))
        crossing.reply = answer(*crossing.message);
}

} // namespace schedules::host
