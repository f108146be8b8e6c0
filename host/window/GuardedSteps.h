#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace schedules::host {

class MessageBar;
struct Crossing;

/// What a window does step by step, with its failures told in a bar.
class GuardedSteps : public QObject
{
    Q_OBJECT

public:
    /// The bar must outlive this object.
    GuardedSteps(MessageBar& bar, QObject* parent) : QObject(parent), m_bar(bar) {}

    void Do(const std::function<void()>& step);

    /// When the message that asked for it is over.
    void DoLater(std::function<void()> step);

    /// Tells that a message was not answered.
    void Note(const Crossing& crossing);

    /// What a tool could not do, and why, when this host has just failed to answer it.
    void TellError(const QString& error);

private:
    MessageBar& m_bar;
    QString m_failure; ///< why the last message but for errors was not answered
};

} // namespace schedules::host
