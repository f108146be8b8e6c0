#pragma once

#include <QProcess>
#include <QStringList>

#include <csignal>
#include <functional>
#include <gtest/gtest.h>

namespace schedules::host::testing {

/// A window in a process of its own, whose user does what he is told: tests/host/journey/client.
class WindowClient
{
public:
    /// `home` is where he has his own files. `asUser` is run in the process before its program.
    explicit WindowClient(const QString& home, const std::function<void()>& asUser = {})
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home);
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home);
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        m_process.setProcessEnvironment(environment);
        m_process.setChildProcessModifier(asUser);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(SCHEDULES_BIN_DIR "/journey_client"), {});
        EXPECT_TRUE(m_process.waitForStarted()) << qPrintable(m_process.errorString());
    }
    ~WindowClient()
    {
        m_process.closeWriteChannel();
        ExpectEnd();
    }
    Q_DISABLE_COPY_MOVE(WindowClient)

    /// Gives an order without waiting for what comes of it.
    void Order(const QStringList& words)
    {
        m_process.write(words.join(u'\t').toUtf8() + '\n');
        m_process.waitForBytesWritten();
    }

    /// What came of the order that has not been asked about for the longest time; empty when the process is gone.
    std::string Answer()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(60'000))
            continue;
        return m_process.readLine().trimmed().toStdString();
    }

    std::string Done(const QStringList& words)
    {
        Order(words);
        return Answer();
    }

    /// Kills it, unless it is gone.
    void Kill() { m_process.kill(); }

    /// What it has answered before it was killed; all of it has been read then.
    QStringList LastWords()
    {
        ExpectEnd();
        EXPECT_EQ(m_process.exitStatus(), QProcess::CrashExit) << "it was to be killed";
        const QString rest = QString::fromUtf8(m_process.readAllStandardOutput());
        return rest.left(rest.lastIndexOf(u'\n') + 1).split(u'\n', Qt::SkipEmptyParts);
    }

private:
    void ExpectEnd()
    {
        EXPECT_TRUE(m_process.state() == QProcess::NotRunning || m_process.waitForFinished()) << "it goes on";
    }

    QProcess m_process;
};

} // namespace schedules::host::testing
