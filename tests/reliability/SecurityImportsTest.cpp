// What the component could do at all: what it does not import it cannot call, whatever the data.

#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

constexpr auto kLibrary = SCHEDULES_BIN_DIR "/libSchedules.so";

/// What a program tells of the library, a line each.
QStringList Told(const char* program, const QStringList& arguments)
{
    QProcess reader;
    reader.start(program, QStringList(arguments) << kLibrary);
    EXPECT_TRUE(reader.waitForFinished() && reader.exitCode() == 0) << reader.readAllStandardError().constData();
    return QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n');
}

/// The names, without their versions, of what the library takes from others.
QStringList Imports()
{
    QStringList names;
    for (const QString& line : Told("nm", {"--dynamic", "--undefined-only", "--demangle"}))
        names += line.trimmed().mid(2).section(u'@', 0, 0);
    EXPECT_GT(names.size(), 500);
    return names;
}

std::string ImportsOf(const char* pattern)
{
    return Imports().filter(QRegularExpression(pattern)).join('\n').toStdString();
}

/// The names, without their versions, of those others.
QStringList Libraries()
{
    static const QRegularExpression needed(R"(\(NEEDED\).*\[(.*)\.so\b)");
    QStringList names;
    for (const QString& line : Told("readelf", {"--dynamic", "--wide"})) {
        if (const auto match = needed.match(line); match.hasMatch())
            names += match.captured(1);
    }
#ifdef __SANITIZE_ADDRESS__
    // The sanitizers' own, and those that the linker then keeps although nothing of them is used.
    const QStringList besides{"libasan", "libubsan", "libGLX", "libOpenGL", "libglib-2.0", "libz"};
    names.removeIf([&](const QString& name) { return besides.contains(name); });
#endif
    names.sort();
    return names;
}

} // namespace

/// None of these is for threads, processes or the network alone; what they have of that is not imported, see below.
TEST(SecurityImports, AreOfTheseLibrariesAlone)
{
    EXPECT_EQ(Libraries().join('\n').toStdString(), "libQt6Core\n"
                                                    "libQt6Gui\n"
                                                    "libQt6PrintSupport\n"
                                                    "libQt6Svg\n"
                                                    "libQt6Widgets\n"
                                                    "libc\n"
                                                    "libgcc_s\n"
                                                    "libgobject-2.0\n"
                                                    "libgsf-1\n"
                                                    "libm\n"
                                                    "libstdc++\n"
                                                    "libxlsxwriter\n"
                                                    "libxml2");
}

/// By these anything could be called that is in no list. The one that is there keeps a library in memory that is in use
/// already, since what it has registered stays; it is told to load nothing.
TEST(SecurityImports, AreNothingThatFindsOtherFunctionsButTheOneThatKeepsALibrary)
{
    EXPECT_EQ(ImportsOf("^dl(m?open|v?sym)\\b|^syscall\\b|\\bQ(Library|PluginLoader|FactoryLoader)\\b|^g_module_"),
              "dlopen");
}

TEST(SecurityImports, AreNothingThatStartsAThread)
{
    EXPECT_EQ(ImportsOf("^(pthread_create|thrd_create|clone3?)\\b|\\bstd::(thread|jthread|async|__future_base)\\b|"
                        "\\bQThread(Pool)?::(start|create|tryStart|globalInstance)|\\bQtConcurrent\\b|^g_thread_|"
                        "^timer_create\\b"),
              "");
}

TEST(SecurityImports, AreNothingThatStartsAProcess)
{
    EXPECT_EQ(ImportsOf("^(v?fork|forkpty|daemon|f?exec[a-z]+|posix_spawnp?|system|popen|wordexp)\\b|\\bQProcess\\b|"
                        "\\bQDesktopServices\\b|^g_(spawn|app_info|subprocess)_"),
              "");
}

TEST(SecurityImports, AreNothingThatReachesTheNetwork)
{
    EXPECT_EQ(ImportsOf("^(socket(pair)?|connect|bind|listen|accept4?|send(to|m?msg)?|recv(from|m?msg)?|"
                        "get(addr|name)info|gethostby[a-z]+|res_n?[a-z]+)\\b|"
                        "\\bQ[A-Z][A-Za-z]*(Socket|Server|Multicast)[A-Za-z]*\\b|"
                        "\\bQ(HostInfo|HostAddress|DnsLookup|Http|Network|Ssl|DBus|Remote|WebEngine|WebView)|"
                        "^xml(Nano|IO(HTTP|FTP))|^g_(socket|network|resolver|tcp|inet|dbus)_"),
              "");
}

/// Another file than the one that it was given is what a document could name.
TEST(SecurityImports, AreNothingThatLetsTheXmlParserOpenAFile)
{
    EXPECT_EQ(ImportsOf("^(xml|html)[A-Za-z0-9]*(File|Filename|URL|URI|Uri|Entity|Catalog|DTD|XInclude|IORead)"), "");
}

} // namespace schedules::testing
