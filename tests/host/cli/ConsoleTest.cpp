#include "host/ProjectProgram.h"

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

struct Console : ProjectProgram
{
    /// What a command shows on a terminal; what it prints goes elsewhere.
    QString OnTerminal(const QStringList& arguments, const QByteArray& printed)
    {
        Terminal terminal;
        QProcess program;
        program.setWorkingDirectory(Path(QStringLiteral(".")));
        program.setProcessEnvironment(Bare());
        program.setStandardErrorFile(terminal.Name());
        program.start(QStringLiteral(SCHEDULES_BIN_DIR "/schedhost"), arguments);
        EXPECT_TRUE(program.waitForFinished(60'000));
        EXPECT_EQ(program.readAllStandardOutput(), printed) << "nothing of it goes elsewhere";
        return QString::fromUtf8(terminal.Received());
    }
};

} // namespace

TEST_F(Console, ATerminalShowsTheProgressInOneLineThatGoes)
{
    const QString received = OnTerminal({"render", Written(QStringLiteral("a.xml"), kSmallTable),
                                         Written(QStringLiteral("b.xml"), "<TABLE/>"), "--out", "o", "--as", "csv,xls"},
                                        "o/a.csv\no/a.xls\n");
    const QString message = received.section(u'\n', 0, 0).section(QStringLiteral("\r\033[K"), -1);
    EXPECT_EQ(received, QStringLiteral("[1/2] a.xml: reading\r\033[K[1/2] a.xml: csv\r\033[K[1/2] a.xml: xls\r\033[K"
                                       "[2/2] b.xml: reading\r\033[K%1\n")
                            .arg(message));
    EXPECT_TRUE(message.startsWith(QStringLiteral("b.xml: "))) << qPrintable(message);
}

TEST_F(Console, ATerminalShowsHowFarAScheduleIs)
{
    EXPECT_EQ(OnTerminal({"schedule", kProject, "--category", "PUMPS", "--csv", "o.csv", "--html", "o.html"},
                         "o.csv\no.html\n"),
              "building the schedule of PUMPS\r\033[Kwriting o.csv\r\033[Kwriting o.html\r\033[K");
}

TEST_F(Console, ATerminalShowsWhichTableIsImported)
{
    const QString first = Written(QStringLiteral("1.csv"), "name\nVALVES\n");
    const QString second = Written(QStringLiteral("2.csv"), "name\nTANKS\n");
    EXPECT_EQ(OnTerminal({"import", kProject, first, second}, "1.csv: 1 category, 0 data items, 0 tags, 0 values\n"
                                                              "2.csv: 1 category, 0 data items, 0 tags, 0 values\n"),
              "importing 1.csv\r\033[Kimporting 2.csv\r\033[K");
}

} // namespace schedules::host::testing
