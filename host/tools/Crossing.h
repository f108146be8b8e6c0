#pragma once

#include "framework/Envelope.h"
#include "framework/Message.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace schedules::host {

/// One message that went through the router, and what came back.
struct Crossing
{
    QDateTime time;
    Envelope envelope;
    std::optional<Message> message; ///< nothing when the body is no message
    QString reply;
    QString failure; ///< why there is no reply, when delivering the message has failed
};

/// The text of a message's parameter; empty when it has none of that name.
QString ParameterText(const Message& message, const QString& name);

/// What has failed: the delivery, or what a tool tells of in an "ErrorMessage". Empty for all else.
QString FailureOf(const Crossing& crossing);

/// The crossing as an XML document on one line, without a line break at its end.
QString LogLine(const Crossing& crossing);

} // namespace schedules::host
