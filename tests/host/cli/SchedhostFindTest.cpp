#include "host/HostProgram.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <fcntl.h>
#include <unistd.h>

namespace schedules::host::testing {

namespace {

struct SchedhostFind : HostProgram
{
    QByteArray Found(const QString& pattern)
    {
        auto environment = Bare();
        environment.insert("TZ", "UTC");
        const Outcome run = Schedhost({"find", pattern}, environment);
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.err, "");
        return run.out;
    }

    /// The values of one member of all matches.
    QVariantList All(const QString& member, const QString& pattern)
    {
        QVariantList values;
        for (const QJsonValue match : QJsonDocument::fromJson(Found(pattern)).array())
            values << match[member].toVariant();
        return values;
    }

    QString WrittenAt(const QString& name, const QByteArray& bytes, const QDateTime& time) const
    {
        QFile file(Path(Written(name, bytes)));
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
        return name;
    }
};

} // namespace

TEST_F(SchedhostFind, PrintsTheMatches)
{
    const QDateTime time(QDate(2024, 3, 31), QTime(4, 5, 9), Qt::UTC);
    WrittenAt("a.tar.gz", "12345", time);
    WrittenAt("насос 水.gz", "", time);
    const QByteArray folder = QDir(Path(QString())).canonicalPath().toUtf8();
    QByteArray expected = R"([
{"name":"a.tar.gz","title":"a","path":"a.tar.gz","url":"file://FOLDER/a.tar.gz","attributes":128,"length":5,"lastWrite":"2024, 03, 31 04:05:09"},
{"name":"насос 水.gz","title":"насос 水","path":"насос 水.gz","url":"file://FOLDER/насос 水.gz","attributes":128,"length":0,"lastWrite":"2024, 03, 31 04:05:09"}
]
)";
    EXPECT_EQ(Found("*.gz").toStdString(), expected.replace("FOLDER", folder).toStdString());
}

TEST_F(SchedhostFind, NothingIsAnEmptyArray)
{
    EXPECT_EQ(Found("absent*"), "[]\n");
    EXPECT_EQ(Found("no/folder/*"), "[]\n");
}

TEST_F(SchedhostFind, MatchesComeInTheOrderOfNames)
{
    for (const char* name : {"b", "A", "c", "a"})
        Written(name, "");
    EXPECT_EQ(All("name", "?"), (QVariantList{".", "A", "a", "b", "c"}));
}

TEST_F(SchedhostFind, AnEmptyPatternMatchesEverything)
{
    Written("a", "");
    EXPECT_EQ(All("name", ""), (QVariantList{".", "..", "a"}));
}

TEST_F(SchedhostFind, ThePathIsThatOfThePattern)
{
    ASSERT_TRUE(QDir(Path(QString())).mkpath("папка/b"));
    Written("папка/b/x", "");
    EXPECT_EQ(All("path", "папка/b/x"), QVariantList{"папка/b/x"});
    EXPECT_EQ(All("path", "папка\\b\\x"), QVariantList{"папка\\b\\x"});
    EXPECT_EQ(All("path", Path("папка/b/x")), QVariantList{Path("папка/b/x")});
}

TEST_F(SchedhostFind, AttributesAreASum)
{
    ASSERT_TRUE(QDir(Path(QString())).mkdir("folder"));
    QFile::setPermissions(Path(Written(".hidden", "")), QFileDevice::ReadOwner);
    EXPECT_EQ(All("attributes", "folder"), QVariantList{16});
    EXPECT_EQ(All("attributes", ".hidden"), QVariantList{3});
}

TEST_F(SchedhostFind, NamesAreEscaped)
{
    Written("a \"b\"\n", "");
    EXPECT_TRUE(Found("a*").contains(R"("name":"a \"b\"\n")")) << Found("a*").constData();
}

TEST_F(SchedhostFind, WhatIsNoTextInANameIsTheReplacementCharacter)
{
    const QByteArray name = Path("a").toUtf8() + "\xFF.txt";
    const int handle = ::open(name.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
    ASSERT_GE(handle, 0);
    ::close(handle);
    EXPECT_TRUE(Found("*.txt").contains("\"name\":\"a\uFFFD.txt\",\"title\":\"a\uFFFD\",\"path\":\"a\uFFFD.txt\""))
        << Found("*.txt").constData();
    ::unlink(name.constData());
}

TEST_F(SchedhostFind, NeedsNoPlatform)
{
    auto environment = Bare();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    EXPECT_EQ(Schedhost({"find", "absent"}, environment).out, "[]\n");
}

} // namespace schedules::host::testing
