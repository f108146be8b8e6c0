#include "host/Crossing.h"

namespace schedules::host {

QString LogLine(const Crossing& crossing)
{
    const Envelope& envelope = crossing.envelope;
    const QString body = crossing.message ? crossing.message->Text() : EscapedXml(envelope.body.toString());
    return QStringLiteral("<sent from=\"%1\" to=\"%2\" kind=\"%3\">%4<reply>%5</reply></sent>")
        .arg(EscapedXml(envelope.sender), EscapedXml(envelope.recipient),
             QString::number(static_cast<int>(envelope.kind)), body, EscapedXml(crossing.reply));
}

} // namespace schedules::host
