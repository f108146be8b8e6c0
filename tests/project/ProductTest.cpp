// What is told about the component as a product, against what it is: public headers, version, the guide's host.

#include "ProjectTexts.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

using namespace schedules::testing;

namespace {

QStringList IncludedBy(const QString& file)
{
    return Captured(ContentOf(file), R"re(^#include "([^"]+)")re");
}

/// The headers that are installed.
QStringList PublicHeaders()
{
    const QString list = ContentOf("src/component/CMakeLists.txt");
    return Captured(list.section("set(public_headers", 1).section(')', 0, 0), R"re(^\s+(\S+\.h))re");
}

QStringList SourcesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator found(kProject + '/' + folder, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        files << QDir(kProject).relativeFilePath(found.next());
    return files;
}

QString Version()
{
    return Captured(ContentOf("CMakeLists.txt"), R"re(^\s+VERSION (\S+))re").value(0);
}

} // namespace

TEST(PublicHeaders, IncludeOnlyEachOther)
{
    const QStringList headers = PublicHeaders();
    ASSERT_GT(headers.size(), 30);
    for (const QString& header : headers) {
        for (const QString& included : IncludedBy("src/" + header))
            EXPECT_TRUE(headers.contains(included)) << header.toStdString() << " includes " << included.toStdString();
    }
}

TEST(PublicHeaders, AreAllThatTheReferenceHostIncludes)
{
    const QStringList headers = PublicHeaders();
    for (const QString& source : SourcesBelow("host")) {
        for (const QString& included : IncludedBy(source)) {
            EXPECT_TRUE(!QFile::exists(kProject + "/src/" + included) || headers.contains(included))
                << source.toStdString() << " includes " << included.toStdString();
        }
    }
}

TEST(PublicHeaders, LeaveOutWhatIsForTheComponentAlone)
{
    EXPECT_FALSE(PublicHeaders().contains("model/Inside.h"));
}

TEST(PublicHeaders, AreTheHeadersOfTheContractAndMore)
{
    for (const QString& source : SourcesBelow("src/framework")) {
        if (source.endsWith(".h")) {
            EXPECT_TRUE(PublicHeaders().contains(source.mid(4))) << source.toStdString();
        }
    }
}

TEST(Product, TellsOneVersionEverywhere)
{
    const QString version = Version();
    ASSERT_FALSE(version.isEmpty());
    EXPECT_TRUE(ContentOf("CHANGELOG.md").contains("## [" + version + "]"));
    EXPECT_TRUE(ContentOf("packaging/changelog").startsWith("schedules (" + version + "-1)"));
    EXPECT_TRUE(ContentOf("packaging/schedhost.1").contains("\"schedhost " + version + "\""));
    EXPECT_TRUE(ContentOf("packaging/schedhost.metainfo.xml").contains("<release version=\"" + version + "\""));
}

TEST(Product, TheGuideShowsTheHostThatIsCompiledAndRun)
{
    const QString host = ContentOf("tests/consumers/minimal_host.cpp");
    ASSERT_FALSE(host.isEmpty());
    EXPECT_TRUE(ContentOf("docs/embedding.md").contains("```cpp\n" + host + "```\n"));
}
