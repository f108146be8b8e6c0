#include "host/tools/Crossing.h"

namespace schedules::host {

namespace {

QString Element(const char* name, const QString& text)
{
    return QStringLiteral("<%1>%2</%1>").arg(QLatin1String(name), EscapedXml(text));
}

} // namespace

QString ParameterText(const Message& message, const QString& name)
{
    for (const Parameter& parameter : message.parameters.Items()) {
        if (parameter.name == name)
            return parameter.value.toString();
    }
    return {};
}

QString FailureOf(const Crossing& crossing)
{
    if (!crossing.failure.isEmpty() || !crossing.message || crossing.message->name != QLatin1String("ErrorMessage"))
        return crossing.failure;
    return ParameterText(*crossing.message, QStringLiteral("ErrorDescription"));
}

QString LogLine(const Crossing& crossing)
{
    const Envelope& envelope = crossing.envelope;
    const QString body = crossing.message ? crossing.message->Text() : EscapedXml(envelope.body.toString());
    const QString end =
        crossing.failure.isEmpty() ? Element("reply", crossing.reply) : Element("failure", crossing.failure);
    return QStringLiteral("<sent from=\"%1\" to=\"%2\" kind=\"%3\">%4%5</sent>")
        .arg(EscapedXml(envelope.sender), EscapedXml(envelope.recipient),
             QString::number(static_cast<int>(envelope.kind)), body, end);
}

} // namespace schedules::host
