// The window that is opened without a file.

#include "host/OwnSample.h"

#include "HostProgram.h"
#include "host/HostError.h"

#include <QFileInfo>
#include <QSettings>

namespace schedules::host::testing {

namespace {

struct OwnSampleTest : HostProgram
{
    /// Starts a window without a file and leaves it when the schedule is shown.
    void StartWindow()
    {
        QProcess window;
        window.setProcessEnvironment(WithDataFolder(Path(QStringLiteral("data"))));
        window.setProgram(QStringLiteral(SCHEDULES_BIN_DIR "/schedhost"));
        window.setArguments({"--messages", Path(QStringLiteral("messages"))});
        window.start();
        const auto isShown = [this] {
            QFile file(Path(QStringLiteral("messages")));
            return file.open(QIODevice::ReadOnly) && file.readAll().contains("InitializeSchedule");
        };
        for (QDeadlineTimer deadline(60'000); !isShown() && !deadline.hasExpired();)
            window.waitForFinished(20);
        EXPECT_TRUE(isShown());
        window.kill();
        window.waitForFinished();
        QFile::remove(Path(QStringLiteral("messages")));
    }

    static QProcessEnvironment WithDataFolder(const QString& folder)
    {
        auto environment = Bare();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), folder);
        return environment;
    }

    const QString own = QStringLiteral("data/schedhost/pumps.xml");
};

} // namespace

TEST_F(OwnSampleTest, TheFirstStartMakesACopyThatMayBeEdited)
{
    StartWindow();
    QFile sample(Sample(QStringLiteral("pumps.xml")));
    ASSERT_TRUE(sample.open(QIODevice::ReadOnly));
    EXPECT_EQ(Read(own), sample.readAll());
    EXPECT_TRUE(QFileInfo(Path(own)).isWritable());
}

TEST_F(OwnSampleTest, LaterStartsShowTheCopyAsItIs)
{
    StartWindow();
    Written(own, kSmallTable);
    StartWindow();
    EXPECT_EQ(Read(own), kSmallTable);
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
