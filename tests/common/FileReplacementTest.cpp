#include "common/FileReplacement.h"

#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace schedules;
using schedules::testing::FileSizeLimit;
using schedules::testing::OrdinaryUser;

namespace {

QByteArray ContentOf(const QString& name)
{
    QFile file(name);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

void Put(const QString& name, const QByteArray& content)
{
    QFile file(name);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

/// What the replacement of a file by a content throws; empty when it succeeds.
std::string Failure(const QString& name, const QByteArray& content)
{
    try {
        ReplaceFile(name, content);
        return {};
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), kFileNotWrittenError);
        return error.what();
    }
}

struct ReplaceFileTest : ::testing::Test
{
    QString In(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    QStringList Files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System); }

    QTemporaryDir folder;
};

/// A file system of 64 KiB, as long as it lives.
class TinyDisk
{
public:
    explicit TinyDisk(const QString& folder) : m_folder(folder.toLocal8Bit())
    {
        mounted = ::mount("tmpfs", m_folder.constData(), "tmpfs", 0, "size=64k") == 0;
    }
    ~TinyDisk()
    {
        if (mounted)
            ::umount(m_folder.constData());
    }
    Q_DISABLE_COPY_MOVE(TinyDisk)

    bool mounted = false;

private:
    QByteArray m_folder;
};

} // namespace

TEST_F(ReplaceFileTest, MakesANewFile)
{
    ReplaceFile(In("new.xls"), "content");
    EXPECT_EQ(ContentOf(In("new.xls")), "content");
    EXPECT_EQ(Files(), QStringList{"new.xls"}) << "nothing is left beside it";
}

TEST_F(ReplaceFileTest, ReplacesAFileOfAnotherLength)
{
    Put(In("plan.xls"), "a much longer content than what follows");
    ReplaceFile(In("plan.xls"), "short");
    EXPECT_EQ(ContentOf(In("plan.xls")), "short");
}

TEST_F(ReplaceFileTest, WritesWhatACallWrites)
{
    ReplaceFile(In("plan.xls"), [](QFileDevice& device) {
        WriteAll(device, "one ");
        WriteAll(device, "two");
    });
    EXPECT_EQ(ContentOf(In("plan.xls")), "one two");
}

TEST_F(ReplaceFileTest, WritesThroughTheHandleToo)
{
    ReplaceFile(In("plan.xls"), [](QFileDevice& device) { ASSERT_EQ(::write(device.handle(), "by handle", 9), 9); });
    EXPECT_EQ(ContentOf(In("plan.xls")), "by handle");
}

TEST_F(ReplaceFileTest, TheOldFileStandsUntilTheNewOneIsComplete)
{
    Put(In("plan.xls"), "old");
    ReplaceFile(In("plan.xls"), [&](QFileDevice& device) {
        WriteAll(device, QByteArray(100'000, 'x'));
        EXPECT_EQ(ContentOf(In("plan.xls")), "old");
    });
    EXPECT_EQ(ContentOf(In("plan.xls")).size(), 100'000);
}

TEST_F(ReplaceFileTest, LetsPassWhatTheCallThrows)
{
    Put(In("plan.xls"), "old");
    const auto write = [](QFileDevice& device) {
        WriteAll(device, "half of it");
        throw Error(1234, QStringLiteral("too many rows"));
    };
    EXPECT_THROW(ReplaceFile(In("plan.xls"), write), Error);
    EXPECT_EQ(ContentOf(In("plan.xls")), "old");
    EXPECT_EQ(Files(), QStringList{"plan.xls"});
}

TEST_F(ReplaceFileTest, KeepsThePermissionsOfTheFile)
{
    Put(In("plan.xls"), "old");
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    ASSERT_TRUE(QFile::setPermissions(In("plan.xls"), permissions));
    const auto before = QFile::permissions(In("plan.xls"));
    ReplaceFile(In("plan.xls"), "new");
    EXPECT_EQ(QFile::permissions(In("plan.xls")), before);
}

TEST_F(ReplaceFileTest, AFolderThatIsGoneIsAnError)
{
    EXPECT_THAT(Failure(In("gone/plan.xls"), "new"), ::testing::HasSubstr("No such file or directory"));
    EXPECT_EQ(Files(), QStringList());
}

TEST_F(ReplaceFileTest, AnUnwritableFolderIsAnError)
{
    Put(In("plan.xls"), "old");
    ASSERT_EQ(::chmod(folder.path().toLocal8Bit().constData(), 0555), 0);
    {
        const OrdinaryUser user;
        EXPECT_THAT(Failure(In("plan.xls"), "new"), ::testing::HasSubstr("Permission denied"));
        EXPECT_THAT(Failure(In("other.xls"), "new"), ::testing::HasSubstr("Permission denied"));
    }
    ASSERT_EQ(::chmod(folder.path().toLocal8Bit().constData(), 0700), 0);
    EXPECT_EQ(ContentOf(In("plan.xls")), "old");
    EXPECT_EQ(Files(), QStringList{"plan.xls"});
}

TEST_F(ReplaceFileTest, AReadOnlyFileSystemIsAnError)
{
    EXPECT_NE(Failure(QStringLiteral("/proc/schedule.xls"), "new"), "");
}

TEST_F(ReplaceFileTest, TheNameOfAFolderIsAnError)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir("plan.xls"));
    EXPECT_THAT(Failure(In("plan.xls"), "new"), ::testing::HasSubstr("Is a directory"));
    EXPECT_TRUE(QFileInfo(In("plan.xls")).isDir());
}

TEST_F(ReplaceFileTest, APipeIsNotReplaced)
{
    ASSERT_EQ(::mkfifo(In("pipe").toLocal8Bit().constData(), 0600), 0);
    EXPECT_THAT(Failure(In("pipe"), "new"), ::testing::HasSubstr("Not a regular file"));
    EXPECT_EQ(Files(), QStringList{"pipe"});
}

TEST_F(ReplaceFileTest, LinksStayAndWhatTheyLeadToIsReplaced)
{
    Put(In("plan.xls"), "old");
    ASSERT_TRUE(QFile::link(In("plan.xls"), In("near.xls")));
    ASSERT_TRUE(QFile::link(In("near.xls"), In("far.xls")));
    ReplaceFile(In("far.xls"), "new");
    EXPECT_EQ(ContentOf(In("plan.xls")), "new");
    EXPECT_TRUE(QFileInfo(In("near.xls")).isSymLink());
    EXPECT_TRUE(QFileInfo(In("far.xls")).isSymLink());
}

TEST_F(ReplaceFileTest, ALinkToNothingMakesTheFileThatItNames)
{
    ASSERT_TRUE(QFile::link(In("plan.xls"), In("link.xls")));
    ReplaceFile(In("link.xls"), "new");
    EXPECT_EQ(ContentOf(In("plan.xls")), "new");
    EXPECT_TRUE(QFileInfo(In("link.xls")).isSymLink());
}

TEST_F(ReplaceFileTest, LinksInACircleAreAnError)
{
    ASSERT_EQ(::symlink("two", In("one").toLocal8Bit().constData()), 0);
    ASSERT_EQ(::symlink("one", In("two").toLocal8Bit().constData()), 0);
    EXPECT_THAT(Failure(In("one"), "new"), ::testing::HasSubstr("Not a regular file"));
}

TEST_F(ReplaceFileTest, AWriteThatIsCutShortIsAnError)
{
    Put(In("plan.xls"), "old");
    std::string failure;
    {
        const FileSizeLimit limit(50'000);
        failure = Failure(In("plan.xls"), QByteArray(60'000, 'x'));
    }
    EXPECT_THAT(failure, ::testing::HasSubstr("File too large"));
    EXPECT_EQ(ContentOf(In("plan.xls")), "old");
    EXPECT_EQ(Files(), QStringList{"plan.xls"});
}

TEST_F(ReplaceFileTest, ContentThatOnlyTheLastFlushWritesIsChecked)
{
    Put(In("plan.xls"), "old");
    std::string failure;
    {
        const FileSizeLimit limit(5);
        failure = Failure(In("plan.xls"), "more than five");
    }
    EXPECT_THAT(failure, ::testing::HasSubstr("File too large"));
    EXPECT_EQ(ContentOf(In("plan.xls")), "old");
}

TEST_F(ReplaceFileTest, AFullDiskIsAnErrorAndKeepsTheOldFile)
{
    const TinyDisk disk(folder.path());
    if (!disk.mounted)
        GTEST_SKIP() << "this user may not mount";
    Put(In("plan.xls"), QByteArray(20'000, 'o'));
    EXPECT_THAT(Failure(In("plan.xls"), QByteArray(60'000, 'x')), ::testing::HasSubstr("No space left on device"));
    EXPECT_THAT(Failure(In("plan.xls"), QByteArray(200'000, 'x')), ::testing::HasSubstr("No space left on device"));
    EXPECT_EQ(ContentOf(In("plan.xls")), QByteArray(20'000, 'o'));
    EXPECT_EQ(Files(), QStringList{"plan.xls"});
    EXPECT_EQ(Failure(In("plan.xls"), QByteArray(30'000, 'n')), "") << "there is room for this one";
}

TEST_F(ReplaceFileTest, AFullDeviceTakesNothing)
{
    QFile full(QStringLiteral("/dev/full"));
    if (!full.open(QFile::WriteOnly | QFile::Unbuffered))
        GTEST_SKIP() << "no such device here";
    EXPECT_THROW(WriteAll(full, "anything"), Error);
}
