// A window of its own process whose user follows orders: a line each on standard input, its words parted by tabs, and
// for each a line on standard output once it has been done.

#include "../OpenWindow.h"
#include "host/tools/HostRouter.h"
#include "host/tools/HostedSchedule.h"
#include "host/window/ConflictDialog.h"

#include <QApplication>
#include <QComboBox>
#include <QInputDialog>
#include <QMessageBox>
#include <QSettings>
#include <QTableWidget>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <iostream>
#include <optional>

namespace schedules::host::testing {

namespace {

class Client
{
public:
    Client()
    {
        QObject::connect(&m_watch, &QTimer::timeout, [this] { AnswerDialogs(); });
        m_watch.start(1);
    }

    /// What came of an order, and what was told meanwhile.
    QString Follow(const QStringList& order)
    {
        m_noted.clear();
        try {
            const QString done = DeedOf(order.first())(order.sliced(1));
            QCoreApplication::processEvents();
            NoteMessage();
            m_noted.prepend(done);
        } catch (const HostError& error) {
            m_noted.prepend(QStringLiteral("failed: ") + error.Line());
        }
        m_noted.removeAll(QString());
        return m_noted.join(QStringLiteral("; "));
    }

private:
    using Words = const QStringList&;
    using Deed = std::function<QString(Words)>;

    const Deed& DeedOf(const QString& name) const
    {
        const auto deed = m_deeds.find(name);
        if (deed == m_deeds.end())
            throw HostError(QStringLiteral("there is no order ") + name);
        return *deed;
    }

    WindowUser& User()
    {
        if (!m_open)
            throw HostError(QStringLiteral("no window is open"));
        return m_open->User();
    }

    QString Save()
    {
        User().Save();
        return QString::fromStdString(User().Status());
    }

    QString Shown() { return QString::fromStdString(User().Grid().Drawn()).replace(u'\n', QLatin1String(" / ")); }

    /// What the bar tells, which is closed then.
    void NoteMessage()
    {
        if (!m_open || User().Told().empty())
            return;
        m_noted << QStringLiteral("told: ") + QString::fromStdString(User().Told());
        User().CloseMessage();
    }

    /// Ends without any clean-up when a message comes, or has been answered.
    void DieAt(const QString& message, bool after)
    {
        HostRouter& router = m_open->Host().Router();
        if (!after)
            return router.Answers(message, [](const Message&) -> QString { return ::raise(SIGKILL), QString(); });
        QObject::connect(&router, &HostRouter::Crossed, [message](const Crossing& crossing) {
            if (crossing.message && crossing.message->name == message)
                ::raise(SIGKILL);
        });
    }

    /// Not while one is being answered, since mouse and keyboard let timers run.
    void AnswerDialogs()
    {
        m_watch.stop();
        try {
            Answer(QApplication::activeModalWidget());
        } catch (const HostError& error) {
            m_noted << QStringLiteral("failed: ") + error.Line();
        }
        m_watch.start();
    }

    void Answer(QWidget* modal)
    {
        auto* question = qobject_cast<QInputDialog*>(modal);
        if (auto* conflicts = qobject_cast<ConflictDialog*>(modal))
            Decide(*conflicts);
        else if (auto* box = qobject_cast<QMessageBox*>(modal))
            Confirm(*box);
        else if (question && question->textEchoMode() == QLineEdit::Password)
            LogIn(*question);
    }

    void Confirm(QMessageBox& box)
    {
        m_noted << QStringLiteral("box: ") + box.text();
        const auto wanted = {QMessageBox::Yes, QMessageBox::Save, QMessageBox::Ok};
        Click(*box.button(*std::ranges::find_if(wanted, [&](auto button) { return box.button(button); })));
    }

    void LogIn(QInputDialog& question)
    {
        m_noted << QStringLiteral("asked: ") + question.labelText().replace(u'\n', u' ');
        if (m_password.isEmpty())
            return ClickCaption(question, QStringLiteral("Cancel"));
        Type(m_password);
        ClickCaption(question, QStringLiteral("OK"));
    }

    void Decide(ConflictDialog& dialog)
    {
        const auto& table = Part<QTableWidget>(dialog, "lstConflicts");
        for (int row = 0; row < table.rowCount(); ++row) {
            const auto cell = [&](int column) { return table.item(row, column)->text(); };
            m_noted << QStringLiteral("%1 %2: theirs %3, mine %4").arg(cell(0), cell(1), cell(2), cell(3));
            if (!m_insisted.contains(cell(0) + u' ' + cell(1)))
                continue;
            table.cellWidget(row, 4)->setFocus();
            Press(Qt::Key_Down);
        }
        ClickCaption(dialog, QStringLiteral("OK"));
    }

    std::optional<OpenWindow> m_open;
    QTimer m_watch;
    QStringList m_noted;    ///< what the window and its dialogs have said
    QStringList m_insisted; ///< "tag item" of each cell in conflict that keeps his own value
    QString m_password;     ///< none cancels the question

    // What he is told before he does something.
    const QHash<QString, Deed> m_deeds{
        {"insist", [this](Words cells) { return m_insisted = cells, "understood"; }},
        {"login", [this](Words words) { return m_password = words[0], "understood"; }},
        {"die", [this](Words words) { return DieAt(words[0], words[1] == QLatin1String("after")), "understood"; }},
        // What he looks at.
        {"shown", [this](Words) { return Shown(); }},
        {"unsaved", [this](Words) { return m_open->Window().View()->Dirty() ? "yes" : "no"; }},
        // What he does.
        {"open", [this](Words words) { return m_open.emplace(words[0]), "opened"; }},
        {"open file", [this](Words words) { return User().OpenFile(words[0]), "done"; }},
        {"open server", [this](Words words) { return User().OpenServer(words[0]), "done"; }},
        {"pick", [this](Words tags) { return User().Pick(tags), "picked"; }},
        {"edit", [this](Words words) { return User().Edit(words[0], words[1], words[2]), "edited"; }},
        {"save", [this](Words) { return Save(); }},
        {"refresh", [this](Words) { return User().Refresh(), "refreshed"; }},
        {"come back", [this](Words) { return User().LookElsewhere(), "back"; }},
        {"customize", [this](Words) { return User().Customize(), "open"; }},
        {"rename", [this](Words words) { return User().Rename(words[0], words[1], words[2]), "renamed"; }},
        {"apply", [this](Words) { return User().Apply(), "applied"; }},
        {"save as", [this](Words words) { return User().SaveAs(words[0]), "saved as"; }},
    };
};

} // namespace

} // namespace schedules::host::testing

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("schedhost"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, qEnvironmentVariable("XDG_CONFIG_HOME"));
    schedules::host::testing::Client client;
    for (std::string line; std::getline(std::cin, line);)
        std::cout << client.Follow(QString::fromStdString(line).split(u'\t')).toStdString() << std::endl;
    return 0;
}
