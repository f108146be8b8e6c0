#pragma once

#include "UserFiles.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace schedules::host::testing {

/// What a program that ran to its end left behind.
struct Outcome
{
    int exitCode = -1;
    QString out;
    QString err;
};

inline Outcome Run(const QString& program, const QStringList& arguments, const QString& folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(120'000)) << qPrintable(process.errorString());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

/// Among a user's own files.
class JourneyFolder : public ::testing::Test
{
protected:
    QString Path(const QString& name) const { return files.Path(name); }

    Outcome Run(const QString& program, const QStringList& arguments) const
    {
        return testing::Run(program, arguments, Path(QStringLiteral(".")));
    }

    Outcome Schedhost(const QStringList& arguments) const
    {
        return Run(QStringLiteral(SCHEDULES_BIN_DIR "/schedhost"), arguments);
    }

    UserFiles files;
};

} // namespace schedules::host::testing
