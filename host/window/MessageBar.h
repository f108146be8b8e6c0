#pragma once

#include <QFrame>

class QLabel;
class QToolButton;

namespace schedules::host {

/// A line above what is shown, which tells what went wrong or needs the user, and which he can close. It is hidden
/// while it has nothing to tell. With an offer it has a button that does something about it.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent = nullptr);

    /// In place of what it told before.
    void Tell(const QString& text, const QString& offer = {});

Q_SIGNALS:
    void OfferTaken();

private:
    QLabel* m_text;
    QToolButton* m_offer;
};

} // namespace schedules::host
