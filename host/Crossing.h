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
};

/// The crossing as an XML document on one line, without a line break at its end.
QString LogLine(const Crossing& crossing);

} // namespace schedules::host
