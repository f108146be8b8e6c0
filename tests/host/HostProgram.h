#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::host::testing {

/// What a finished program left behind.
struct Outcome
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

/// Runs the real program in a folder of its own, without a display.
class HostProgram : public ::testing::Test
{
protected:
    Outcome Schedhost(const QStringList& arguments, const QProcessEnvironment& environment = Bare())
    {
        QProcess program;
        program.setProgram(QStringLiteral(SCHEDULES_BIN_DIR "/schedhost"));
        program.setArguments(arguments);
        program.setWorkingDirectory(m_folder.path());
        program.setProcessEnvironment(environment);
        program.start();
        EXPECT_TRUE(program.waitForFinished(120'000)) << qPrintable(program.errorString());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
    }

    /// The environment of a machine that has no display and names no platform.
    static QProcessEnvironment Bare()
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_LOGGING_RULES", "LANG", "LC_ALL"})
            environment.remove(QLatin1String(name));
        return environment;
    }

    QString Path(const QString& name) const { return m_folder.filePath(name); }

    QString Written(const QString& name, const QByteArray& bytes) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(file.fileName());
        file.write(bytes);
        return name;
    }

    QByteArray Read(const QString& name) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        return file.readAll();
    }

    static QString Sample(const QString& name) { return QStringLiteral(SCHEDULES_SOURCE_DIR "/samples/") + name; }

    static constexpr auto kSmallTable = "<TABLE><TR><TH>h</TH><TH>a</TH><TH>b</TH></TR>"
                                        "<TR><TH>r</TH><TD>1</TD><TD>2</TD></TR>"
                                        "<TR><TH>s</TH><TD>3</TD><TD>4</TD></TR></TABLE>";

private:
    QTemporaryDir m_folder;
};

} // namespace schedules::host::testing
