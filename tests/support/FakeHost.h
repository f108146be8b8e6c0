#pragma once

#include "framework/IMsgRouter.h"
#include "framework/Message.h"

#include <QMap>
#include <QSet>
#include <QStringList>

#include <functional>
#include <optional>
#include <stdexcept>
#include <vector>

namespace schedules::testing {

/// A host that remembers every envelope, answers messages by name from a script and throws where it is told to.
class FakeHost : public IMsgRouter
{
public:
    struct Sent
    {
        Envelope envelope;
        std::optional<Message> message; ///< nothing when the body was no message
        QString reply;
    };

    QString Send(const Envelope& envelope) override
    {
        const auto message = ParseMessage(envelope.body.toString());
        const QString name = message ? message->name : QString();
        sent.push_back({envelope, message, replies.value(name)});
        if (onSend)
            onSend(name);
        if (failing.contains(name) || failing.contains(kEverything))
            throw std::runtime_error("The host does not listen to " + name.toStdString());
        return sent.back().reply;
    }

    /// All that was sent, one message after the other: "event ctlSchedule -> Host: UnloadSchedule 8 9 [8 Cancel=True]".
    QStringList Log() const
    {
        QStringList log;
        for (const auto& each : sent)
            log += Drawn(each);
        return log;
    }

    QStringList Names() const
    {
        QStringList names;
        for (const auto& each : sent)
            names += each.message ? each.message->name : QStringLiteral("?");
        return names;
    }

    static inline const QString kEverything = QStringLiteral("*");

    QMap<QString, QString> replies;
    QSet<QString> failing;
    std::function<void(const QString& name)> onSend;
    std::vector<Sent> sent;

private:
    static QString Drawn(const Sent& each)
    {
        const QString kind =
            each.envelope.kind == MessageKind::Event ? QStringLiteral("event") : QStringLiteral("request");
        QString text = kind + ' ' + each.envelope.sender + QStringLiteral(" -> ") + each.envelope.recipient + ": ";
        if (!each.message)
            return text + '?';
        text += QStringLiteral("%1 %2 %3")
                    .arg(each.message->name)
                    .arg(each.message->firstCode)
                    .arg(each.message->secondCode);
        for (const auto& parameter : each.message->parameters.Items())
            text += QStringLiteral(" [%1 ").arg(static_cast<int>(parameter.type)) + parameter.name + '=' +
                    parameter.value.toString() + ']';
        return text;
    }
};

} // namespace schedules::testing
