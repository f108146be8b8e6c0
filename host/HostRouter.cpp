#include "host/HostRouter.h"

#include <utility>

namespace schedules::host {

void HostRouter::Answers(const QString& name, Answer answer)
{
    m_answers.insert(name, std::move(answer));
}

QString HostRouter::Send(const Envelope& envelope)
{
    Crossing crossing{QDateTime::currentDateTime(), envelope, ParseMessage(envelope.body.toString()), {}};
    if (crossing.message)
        crossing.reply = ReplyTo(*crossing.message);
    Q_EMIT Crossed(crossing);
    return crossing.reply;
}

QString HostRouter::ReplyTo(const Message& message) const
{
    const auto answer = m_answers.find(message.name);
    return answer == m_answers.end() ? QString() : (*answer)(message);
}

} // namespace schedules::host
