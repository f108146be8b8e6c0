#include "common/FilePath.h"

#include <QFile>
#include <QTemporaryDir>

#include <filesystem>
#include <gtest/gtest.h>

using namespace schedules;

TEST(PlatformPath, SeparatesFoldersAsTheFileSystemDoes)
{
    EXPECT_EQ(PlatformPath(QStringLiteral("\\srv\\templates\\Pumps.xml")), QStringLiteral("/srv/templates/Pumps.xml"));
    EXPECT_EQ(PlatformPath(QStringLiteral("/srv/templates\\Pumps.xml")), QStringLiteral("/srv/templates/Pumps.xml"));
    EXPECT_EQ(PlatformPath(QStringLiteral("Насос 1.xml")), QStringLiteral("Насос 1.xml"));
    EXPECT_EQ(PlatformPath({}), QString());
}

TEST(PlaceInside, IsWhereAPathLeadsWithinTheFolder)
{
    namespace fs = std::filesystem;
    const QTemporaryDir around;
    const QString folder = around.filePath(QStringLiteral("in"));
    const auto path = [&](const char* name) { return folder + u'/' + QLatin1String(name); };
    fs::create_directories(path("sub").toStdString());
    fs::create_directory(folder.toStdString() + "-old");
    for (const QString& name : {path("a"), path("sub/b"), path("../outside"), folder + QStringLiteral("-old/c")})
        EXPECT_TRUE(QFile(name).open(QFile::WriteOnly));
    fs::create_symlink("a", path("near").toStdString());
    fs::create_symlink("../outside", path("out").toStdString());
    fs::create_symlink("nothing", path("dangling").toStdString());
    fs::create_directory_symlink(folder.toStdString(), around.filePath(QStringLiteral("link")).toStdString());

    EXPECT_EQ(PlaceInside(folder, path("a")), path("a"));
    EXPECT_EQ(PlaceInside(folder + u'\\', folder + QStringLiteral("\\sub\\b")), path("sub/b"));
    EXPECT_EQ(PlaceInside(folder, path("sub/../near")), path("a"));
    EXPECT_EQ(PlaceInside(around.filePath(QStringLiteral("link")), path("a")), path("a"));
    EXPECT_EQ(PlaceInside(QStringLiteral("/"), path("a")), path("a"));
    for (const char* name : {"../outside", "..\\outside", "out", "../in-old/c", "dangling", "none", "", "."})
        EXPECT_EQ(PlaceInside(folder, path(name)), std::nullopt) << name;
    EXPECT_EQ(PlaceInside({}, path("a")), std::nullopt);
}
