#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <functional>

namespace schedules::testing {

/// A user at the desktop's own dialogs, one after the other. At one of them something else happens before he answers.
class DialogUser : public QObject
{
public:
    using Deed = std::function<void()>;
    using Answer = std::function<void(QDialog& dialog, int number)>;

    /// `at` is the number of that dialog; they count from 1.
    DialogUser(int at, Deed deed, Answer answer) : m_at(at), m_deed(std::move(deed)), m_answer(std::move(answer))
    {
        Watch();
    }

    /// How many dialogs there were.
    int Count() const { return m_count; }

private:
    /// What happens at a dialog may bring up another one, so that this goes on meanwhile.
    void Watch()
    {
        QTimer::singleShot(1, this, [this] {
            Watch();
            Look();
        });
    }

    void Look()
    {
        const QPointer dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || dialog == m_seen)
            return;
        m_seen = dialog;
        const int number = ++m_count;
        if (number == m_at)
            m_deed();
        if (dialog)
            m_answer(*dialog, number);
    }

    int m_at;
    Deed m_deed;
    Answer m_answer;
    int m_count = 0;
    QPointer<QDialog> m_seen;
};

} // namespace schedules::testing
