#include "host/window/HostSettings.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::host::testing {

namespace {

struct HostSettingsTest : ::testing::Test
{
    HostSettingsTest() { KeepIn(folder.path()); }

    static void KeepIn(const QString& path) { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, path); }

    QTemporaryDir folder;
    HostSettings settings;
};

} // namespace

TEST_F(HostSettingsTest, NothingIsRememberedAtFirst)
{
    EXPECT_EQ(settings.RecentProjects(), QStringList());
    EXPECT_EQ(settings.Geometry(), QByteArray());
    EXPECT_EQ(settings.Layout(), QByteArray());
    EXPECT_EQ(settings.Palette(), QString());
}

TEST_F(HostSettingsTest, AProjectThatIsOpenedAgainComesFirst)
{
    for (const char* address : {"/a.schedules", "postgresql://me@host/plant", "/Größe, 2.schedules", "/a.schedules"})
        settings.AddRecentProject(QString::fromUtf8(address));
    EXPECT_EQ(HostSettings().RecentProjects(),
              (QStringList{"/a.schedules", "/Größe, 2.schedules", "postgresql://me@host/plant"}));
}

TEST_F(HostSettingsTest, EightProjectsAreRemembered)
{
    for (int number = 1; number <= 10; ++number)
        settings.AddRecentProject(QString::number(number));
    EXPECT_EQ(settings.RecentProjects(), (QStringList{"10", "9", "8", "7", "6", "5", "4", "3"}));
}

TEST_F(HostSettingsTest, WindowAndColoursAreRememberedBesideThem)
{
    settings.AddRecentProject("/a.schedules");
    settings.SetWindow(QByteArray("\0size", 5), "layout");
    settings.SetPalette("dark");
    const HostSettings later;
    EXPECT_EQ(later.Geometry(), QByteArray("\0size", 5));
    EXPECT_EQ(later.Layout(), "layout");
    EXPECT_EQ(later.Palette(), "dark");
    EXPECT_EQ(later.RecentProjects(), QStringList{"/a.schedules"});
}

TEST_F(HostSettingsTest, WhatCannotBeWrittenIsForgotten)
{
    QFile file(folder.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    KeepIn(folder.filePath("file/below"));
    settings.SetPalette("dark");
    settings.AddRecentProject("/a.schedules");
    KeepIn(folder.path());
    EXPECT_EQ(settings.Palette(), QString());
    EXPECT_EQ(settings.RecentProjects(), QStringList());
}

} // namespace schedules::host::testing
