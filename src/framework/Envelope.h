#pragma once

#include <QString>
#include <QVariant>

namespace schedules {

/// The number that an envelope carries for the kind of its message.
enum class MessageKind
{
    Event = 1,
    Request = 2
};

/// What travels through the router: one message in its text form, with its sender and its recipient.
struct Envelope
{
    QString sender;
    QString recipient;
    MessageKind kind = MessageKind::Event;
    QVariant body;
};

} // namespace schedules
