#pragma once

#include "framework/IMsgRouter.h"
#include "host/tools/Crossing.h"

#include <QHash>
#include <QObject>

#include <functional>

namespace schedules::host {

/// The name under which tools reach this host.
inline const QString kOwner = QStringLiteral("schedhost");

/// Delivers what tools send to whoever answers it, and tells about every message that crossed.
class HostRouter : public QObject, public IMsgRouter
{
    Q_OBJECT

public:
    using Answer = std::function<QString(const Message&)>;

    /// Messages of that name get the reply that `answer` gives. A message that nobody answers gets an empty reply.
    /// When `answer` throws, the send has failed.
    void Answers(const QString& name, Answer answer);

    /// Messages of that name are no longer answered.
    void NoLongerAnswers(const QString& name);

    bool IsAnswered(const QString& name) const { return m_answers.contains(name); }

    QString Send(const Envelope& envelope) override;

Q_SIGNALS:
    void Crossed(const schedules::host::Crossing& crossing);

private:
    void Deliver(Crossing& crossing) const;

    QHash<QString, Answer> m_answers;
};

} // namespace schedules::host
