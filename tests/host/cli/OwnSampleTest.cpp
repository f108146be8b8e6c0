// The window that is opened without a project or a file.

#include "host/cli/OwnSample.h"

#include "host/HostProgram.h"
#include "host/base/HostError.h"
#include "host/project/Project.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <functional>

namespace schedules::host::testing {

namespace {

struct OwnSampleTest : HostProgram
{
    /// Starts a window without a file.
    void Start(QProcess& window) const
    {
        window.setProcessEnvironment(WithDataFolder(Path(QStringLiteral("data"))));
        window.setProgram(QStringLiteral(SCHEDULES_BIN_DIR "/schedhost"));
        window.setArguments({"--messages", Path(QStringLiteral("messages"))});
        window.start();
        EXPECT_TRUE(window.waitForStarted());
    }

    static void WaitUntil(QProcess& window, const std::function<bool()>& isSo)
    {
        for (QDeadlineTimer deadline(60'000); !isSo() && !deadline.hasExpired();)
            window.waitForFinished(20);
        EXPECT_TRUE(isSo());
    }

    bool ShowsAView() const
    {
        QFile file(Path(QStringLiteral("messages")));
        return file.open(QIODevice::ReadOnly) && file.readAll().contains("InitializeSchedule");
    }

    /// Starts one and leaves it when the tags of the first category are shown.
    void StartWindow()
    {
        QProcess window;
        Start(window);
        WaitUntil(window, [this] { return ShowsAView(); });
        window.kill();
        window.waitForFinished();
        QFile::remove(Path(QStringLiteral("messages")));
    }

    std::unique_ptr<Project> Own() const { return Project::Open(Path(own)); }

    bool IsWhole() const { return Own()->Categories().size() == 6 && Own()->Tags().size() >= 300; }

    static QProcessEnvironment WithDataFolder(const QString& folder)
    {
        auto environment = Bare();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), folder);
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder);
        return environment;
    }

    const QString own = QStringLiteral("data/schedhost/sample.schedules");
    const QString unfinished = QStringLiteral("data/schedhost/unfinished.schedules");
};

} // namespace

TEST_F(OwnSampleTest, TheFirstStartMakesASampleProjectThatMayBeEdited)
{
    StartWindow();
    EXPECT_TRUE(IsWhole());
    EXPECT_TRUE(QFileInfo(Path(own)).isWritable());
    EXPECT_FALSE(QFileInfo::exists(Path(unfinished)));
}

TEST_F(OwnSampleTest, LaterStartsShowItAsItIs)
{
    StartWindow();
    const QString flow = QStringLiteral("PUMPS/Design/Flow");
    Own()->Save({{"P-101A", flow, "7", Own()->Values({"P-101A"}, {flow}).first().first().version}});
    StartWindow();
    EXPECT_EQ(Own()->Values({"P-101A"}, {flow}).first().first().text, "7");
}

TEST_F(OwnSampleTest, WhatAStartThatWasCutShortLeftIsMadeAnew)
{
    ASSERT_TRUE(QDir(Path(QString())).mkpath(QStringLiteral("data/schedhost")));
    Written(unfinished, "part of a database");
    StartWindow();
    EXPECT_TRUE(IsWhole());
    EXPECT_FALSE(QFileInfo::exists(Path(unfinished)));
}

TEST_F(OwnSampleTest, AStartThatIsKilledLeavesNoPartOfASample)
{
    QProcess window;
    Start(window);
    WaitUntil(window, [this] { return QFileInfo::exists(Path(unfinished)) || QFileInfo::exists(Path(own)); });
    window.kill();
    window.waitForFinished();
    EXPECT_TRUE(!QFileInfo::exists(Path(own)) || IsWhole());
    StartWindow();
    EXPECT_TRUE(IsWhole());
}

TEST_F(OwnSampleTest, TwoStartsAtOnceShareOneSample)
{
    QProcess first;
    QProcess second;
    Start(first);
    Start(second);
    const auto bothShow = [this] {
        QFile file(Path(QStringLiteral("messages")));
        return file.open(QIODevice::ReadOnly) && file.readAll().count("InitializeSchedule") == 2;
    };
    WaitUntil(first, bothShow);
    EXPECT_EQ(first.state(), QProcess::Running);
    EXPECT_EQ(second.state(), QProcess::Running);
    EXPECT_TRUE(IsWhole());
    for (QProcess* window : {&first, &second}) {
        window->kill();
        window->waitForFinished();
    }
}

TEST_F(OwnSampleTest, AFolderThatCannotBeMadeIsTold)
{
    const QString file = Path(Written(QStringLiteral("file"), "x"));
    const Outcome run = Schedhost({}, WithDataFolder(file));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.endsWith(("cannot make the folder " + file + "/schedhost\n").toLocal8Bit()))
        << run.err.constData();
}

TEST_F(OwnSampleTest, TheTemplateInUseIsKeptInTheSettings)
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, Path(QStringLiteral("config")));
    KeepOwnCurrentTemplate(QStringLiteral("Fänge, 1.xml"));
    const QSettings kept(Path(QStringLiteral("config/schedhost/options.ini")), QSettings::IniFormat);
    EXPECT_EQ(kept.value(QStringLiteral("CurrentTemplate")), QStringLiteral("Fänge, 1.xml"));
}

TEST_F(OwnSampleTest, SettingsThatCannotBeWrittenAreTold)
{
    Written(QStringLiteral("file"), "x");
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, Path(QStringLiteral("file")));
    EXPECT_THROW(KeepOwnCurrentTemplate(QStringLiteral("Fans.xml")), HostError);
}

} // namespace schedules::host::testing
