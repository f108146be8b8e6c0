#include "TracedProgram.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>
#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

/// Where programs, libraries, fonts, languages and what they are set up by lie, and what a process learns of itself.
const QStringList kSystem{"/usr/",
                          "/lib/",
                          "/lib64/",
                          "/etc/ld.so.cache",
                          "/etc/ld.so.preload",
                          "/etc/fonts/",
                          "/etc/ssl/openssl.cnf",
                          "/etc/nsswitch.conf",
                          "/etc/passwd",
                          "/etc/localtime",
                          "/etc/timezone",
                          "/var/cache/fontconfig/",
                          "/proc/self/",
                          "/proc/filesystems",
                          "/proc/mounts",
                          "/proc/cpuinfo",
                          "/proc/sys/",
                          "/proc/stat",
                          "/proc/meminfo",
                          "/sys/devices/system/",
                          "/sys/fs/cgroup/",
                          "/dev/urandom",
                          "/dev/null",
                          SCHEDULES_BIN_DIR "/"};

/// "12345 openat(AT_FDCWD, "/etc/fonts", O_RDONLY) = 3"
SystemCall CallOf(const QString& line)
{
    static const QRegularExpression named(R"(^\d+ +(\w+)\()");
    static const QRegularExpression quoted(R"re("((?:[^"\\]|\\.)*)")re");
    SystemCall call{named.match(line).captured(1), {}, line};
    for (auto match = quoted.globalMatch(line); match.hasNext();)
        call.paths += match.next().captured(1);
    return call;
}

} // namespace

bool SystemCall::Succeeded() const
{
    static const QRegularExpression failed(R"( = -1 E\w+)");
    return !line.contains(failed);
}

bool SystemCall::StartsThread() const
{
    return name.startsWith("clone") && line.contains("CLONE_THREAD");
}

bool SystemCall::OpensForWriting() const
{
    static const QRegularExpression writing(R"(O_(WRONLY|RDWR|CREAT|TRUNC|APPEND|TMPFILE))");
    return name == "creat" || (name.startsWith("open") && line.contains(writing));
}

bool SystemCall::MakesUnnamed() const
{
    return name.startsWith("open") && line.contains("O_TMPFILE");
}

bool SystemCall::ChangesFiles() const
{
    static const QStringList changing{"rename",   "link",     "unlink",    "symlink",  "mkdir",     "rmdir",
                                      "mknod",    "truncate", "chmod",     "fchmodat", "chown",     "lchown",
                                      "fchownat", "utime",    "futimesat", "setxattr", "lsetxattr", "mount"};
    return OpensForWriting() ||
           std::ranges::any_of(changing, [this](const QString& each) { return name.startsWith(each); });
}

TracedProgram::TracedProgram()
{
    for (const char* name : {"in", "out", "temp", "home", "runtime"})
        EXPECT_TRUE(QDir(m_folder.path()).mkpath(name));
    QFile::setPermissions(PathOf("runtime"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TracedProgram::Write(const QString& name, const QByteArray& content) const
{
    QFile file(PathOf(name));
    EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(content) == content.size()) << qPrintable(name);
}

void TracedProgram::Run(const QString& program, const QStringList& arguments, int exitCode)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", PathOf("temp"));
    environment.insert("HOME", PathOf("home"));
    environment.insert("XDG_RUNTIME_DIR", PathOf("runtime"));
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    // Who is traced cannot trace itself to look for leaks.
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "LD_LIBRARY_PATH"})
        environment.remove(name);
    QProcess traced;
    traced.setProcessEnvironment(environment);
    traced.setWorkingDirectory(m_folder.path());
    const QString trace = PathOf("trace");
    m_before = Listing();
    traced.start("strace", QStringList{"-f", "-qq", "-s", "4096", "-e", "trace=%network,%process,%file,prctl", "-e",
                                       "signal=none", "-o", trace, SCHEDULES_BIN_DIR "/" + program} +
                               arguments);
    ASSERT_TRUE(traced.waitForFinished(120'000)) << qPrintable(traced.errorString());
    EXPECT_EQ(traced.exitCode(), exitCode) << traced.readAllStandardError().constData();
    QFile file(trace);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    m_calls.clear();
    for (const QByteArray& line : file.readAll().split('\n'))
        m_calls.push_back(CallOf(QString::fromUtf8(line)));
    EXPECT_TRUE(file.remove());
    EXPECT_GT(m_calls.size(), 100U) << "a program that is not watched does nothing";
}

template <class Condition>
std::string TracedProgram::Lines(Condition&& condition) const
{
    std::string lines;
    for (const SystemCall& call : m_calls) {
        if (condition(call))
            lines += call.line.toStdString() + '\n';
    }
    return lines;
}

std::string TracedProgram::Reached() const
{
    static const QStringList starting{"execve", "execveat", "fork", "vfork", "clone", "clone3"};
    const auto itself = std::ranges::find(m_calls, QString("execve"), &SystemCall::name);
    return Lines([&](const SystemCall& call) {
        if (starting.contains(call.name))
            return &call != &*itself && !call.StartsThread();
        static const QStringList talking{"socket", "connect", "bind", "sendto", "sendmsg", "sendmmsg", "socketpair"};
        return talking.contains(call.name) && !call.line.contains("AF_UNIX");
    });
}

int TracedProgram::OwnThreads() const
{
    const auto isPooled = [](const SystemCall& call) {
        return call.name == "prctl" && call.line.contains("PR_SET_NAME, \"Thread (pooled)\"");
    };
    return static_cast<int>(std::ranges::count_if(m_calls, &SystemCall::StartsThread) -
                            std::ranges::count_if(m_calls, isPooled));
}

QString TracedProgram::Whole(const QString& path) const
{
    return QDir::cleanPath(QDir(m_folder.path()).absoluteFilePath(path));
}

bool TracedProgram::IsBelow(const QString& path, const QStringList& folders) const
{
    const QString whole = Whole(path);
    return std::ranges::any_of(
        folders, [&](const QString& folder) { return whole.startsWith(folder) || whole + '/' == folder; });
}

/// A file is replaced by one of a temporary name beside it; a database has a journal there.
bool TracedProgram::IsBeside(const QString& path, const QString& named) const
{
    static const QRegularExpression ending("^(\\.[A-Za-z0-9]{6}|-journal|-wal|-shm)?$");
    const QString whole = Whole(path);
    return whole.startsWith(PathOf(named)) && ending.match(whole.mid(PathOf(named).size())).hasMatch();
}

std::string TracedProgram::Changed(const QStringList& named) const
{
    // The last one is a file that has no name yet.
    const QStringList others{PathOf("temp/"), PathOf("runtime/"), "/dev/null", "/proc/self/fd/"};
    return Lines([&](const SystemCall& call) {
        const auto mayNot = [&](const QString& path) {
            const auto isFor = [&](const QString& name) {
                return call.MakesUnnamed() ? Whole(path) == QFileInfo(PathOf(name)).path() : IsBeside(path, name);
            };
            return !IsBelow(path, others) && std::ranges::none_of(named, isFor);
        };
        return call.ChangesFiles() && std::ranges::any_of(call.paths, mayNot);
    });
}

std::string TracedProgram::ReadElsewhere() const
{
    return Lines([&](const SystemCall& call) {
        return call.name.startsWith("open") && call.Succeeded() && !call.OpensForWriting() &&
               !IsBelow(call.paths.value(0), kSystem + QStringList{PathOf("")});
    });
}

std::string TracedProgram::Mentioning(const QString& name) const
{
    return Lines([&](const SystemCall& call) {
        return call.name != "execve" &&
               std::ranges::any_of(call.paths, [&](const QString& path) { return path.contains(name); });
    });
}

std::string TracedProgram::Opened(const QString& name) const
{
    return Lines([&](const SystemCall& call) {
        return call.name.startsWith("open") && call.Succeeded() && call.paths.value(0).endsWith(name);
    });
}

QSet<QString> TracedProgram::Listing() const
{
    QSet<QString> names;
    QDirIterator files(m_folder.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        names += QDir(m_folder.path()).relativeFilePath(files.next());
    return names;
}

std::string TracedProgram::LeftBehind(const QStringList& named) const
{
    const QSet<QString> after = Listing();
    const QSet<QString> wanted(named.begin(), named.end());
    const auto drawn = [](const char* mark, const QSet<QString>& names) {
        QStringList lines = names.values();
        lines.sort();
        return lines.isEmpty() ? QString() : mark + lines.join(QLatin1String(mark));
    };
    return (drawn(" + ", after - m_before - wanted) + drawn(" - ", m_before - after - wanted) +
            drawn(" ? ", wanted - after))
        .toStdString();
}

} // namespace schedules::testing
