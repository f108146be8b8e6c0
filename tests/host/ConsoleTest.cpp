#include "HostProgram.h"

#include <pty.h>
#include <termios.h>
#include <unistd.h>

namespace schedules::host::testing {

namespace {

/// A terminal, as a program sees it.
class Terminal
{
public:
    /// One that shows bytes as they come.
    Terminal()
    {
        termios settings{};
        cfmakeraw(&settings);
        EXPECT_EQ(openpty(&m_screen, &m_line, nullptr, &settings, nullptr), 0);
    }
    ~Terminal()
    {
        close(m_line);
        close(m_screen);
    }
    Q_DISABLE_COPY_MOVE(Terminal)

    QString Name() const { return QString::fromLocal8Bit(ttyname(m_line)); }

    /// What was written to it; something must have been.
    QByteArray Received()
    {
        QByteArray text(4096, '\0');
        text.resize(qMax(0, int(read(m_screen, text.data(), std::size_t(text.size())))));
        return text;
    }

private:
    int m_screen = -1;
    int m_line = -1;
};

using Console = HostProgram;

} // namespace

TEST_F(Console, ATerminalShowsTheProgressInOneLineThatGoes)
{
    Terminal terminal;
    QProcess program;
    program.setWorkingDirectory(Path(QStringLiteral(".")));
    program.setProcessEnvironment(Bare());
    program.setStandardErrorFile(terminal.Name());
    program.start(QStringLiteral(SCHEDULES_BIN_DIR "/schedhost"),
                  {"render", Written(QStringLiteral("a.xml"), kSmallTable),
                   Written(QStringLiteral("b.xml"), "<TABLE/>"), "--out", "o", "--as", "csv,xls"});
    ASSERT_TRUE(program.waitForFinished(60'000));
    EXPECT_EQ(program.readAllStandardOutput(), "o/a.csv\no/a.xls\n") << "nothing of it goes elsewhere";
    const QString received = QString::fromUtf8(terminal.Received());
    const QString message = received.section(u'\n', 0, 0).section(QStringLiteral("\r\033[K"), -1);
    EXPECT_EQ(received, QStringLiteral("[1/2] a.xml: reading\r\033[K[1/2] a.xml: csv\r\033[K[1/2] a.xml: xls\r\033[K"
                                       "[2/2] b.xml: reading\r\033[K%1\n")
                            .arg(message));
    EXPECT_TRUE(message.startsWith(QStringLiteral("b.xml: "))) << qPrintable(message);
}

} // namespace schedules::host::testing
