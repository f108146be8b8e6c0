// What the component could do at all: what it does not import it cannot call, whatever the data.

#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

/// What the library takes from others, a line each.
QStringList Imports()
{
    QProcess reader;
    reader.start("nm", {"--dynamic", "--undefined-only", "--demangle", SCHEDULES_BIN_DIR "/libSchedules.so"});
    EXPECT_TRUE(reader.waitForFinished() && reader.exitCode() == 0) << reader.readAllStandardError().constData();
    QStringList names;
    for (const QByteArray& line : reader.readAllStandardOutput().split('\n'))
        names += QString::fromUtf8(line.trimmed().mid(2));
    EXPECT_GT(names.size(), 500);
    return names;
}

std::string ImportsOf(const char* pattern)
{
    return Imports().filter(QRegularExpression(pattern)).join('\n').toStdString();
}

} // namespace

TEST(SecurityImports, AreNothingThatStartsAThread)
{
    EXPECT_EQ(ImportsOf("^(pthread_create|thrd_create|clone)\\b|\\bstd::(thread|jthread|async|__future_base)\\b|"
                        "\\bQThread(Pool)?::(start|create|tryStart|globalInstance)|\\bQtConcurrent\\b|^g_thread_"),
              "");
}

TEST(SecurityImports, AreNothingThatStartsAProcess)
{
    EXPECT_EQ(ImportsOf("^(v?fork|exec[a-z]+|posix_spawnp?|system|popen|wordexp)\\b|\\bQProcess\\b|"
                        "\\bQDesktopServices\\b|^g_(spawn|app_info)_"),
              "");
}

TEST(SecurityImports, AreNothingThatReachesTheNetwork)
{
    EXPECT_EQ(
        ImportsOf("^(socket|connect|bind|listen|accept4?|send(to|msg)?|recv(from|msg)?|getaddrinfo|"
                  "gethostby[a-z]+)\\b|\\bQ(Tcp|Udp|Ssl|Local|Abstract)Socket\\b|\\bQNetwork|^xmlNano|^g_socket_"),
        "");
}

} // namespace schedules::testing
