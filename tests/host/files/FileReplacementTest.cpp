#include "host/files/FileReplacement.h"

#include "host/base/HostError.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>

namespace schedules::host {

namespace {

struct FileReplacement : ::testing::Test
{
    QString Path(const QString& name) const { return folder.filePath(name); }

    QByteArray Content(const QString& name) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    /// What is told of the failure.
    static std::string Failure(const QString& fileName, const QByteArray& content)
    {
        try {
            ReplaceFile(fileName, content);
        } catch (const HostError& error) {
            return error.Line().toStdString();
        }
        return "(written)";
    }

    QStringList Files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir folder;
};

/// A disk of a few pages, for whoever may mount one.
class SmallDisk
{
public:
    explicit SmallDisk(const QString& folder)
        : m_folder(folder.toLocal8Bit()), m_there(mount("tmpfs", m_folder, "tmpfs", 0, "size=16k") == 0)
    {
    }
    ~SmallDisk()
    {
        if (m_there)
            umount(m_folder);
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)

    bool IsThere() const { return m_there; }

private:
    QByteArray m_folder;
    bool m_there;
};

} // namespace

TEST_F(FileReplacement, MakesAFileAndGivesItNewContent)
{
    ReplaceFile(Path("a"), "one, and longer");
    EXPECT_EQ(Content("a"), "one, and longer");
    ReplaceFile(Path("a"), "two");
    EXPECT_EQ(Content("a"), "two");
    EXPECT_EQ(Files(), QStringList{"a"}) << "nothing is left beside it";
}

TEST_F(FileReplacement, TheOldFileIsNeverWrittenTo)
{
    ReplaceFile(Path("a"), "old");
    QFile reader(Path("a"));
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    ReplaceFile(Path("a"), "new");
    EXPECT_EQ(reader.readAll(), "old") << "whoever has it open still reads it whole";
}

TEST_F(FileReplacement, PermissionsAndLinksStay)
{
    ReplaceFile(Path("a"), "old");
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    ASSERT_TRUE(QFile::setPermissions(Path("a"), permissions) && QFile::link(Path("a"), Path("link")));
    ReplaceFile(Path("link"), "new");
    EXPECT_EQ(Content("a"), "new");
    EXPECT_TRUE(QFileInfo(Path("link")).isSymLink());
    EXPECT_EQ(QFileInfo(Path("a")).permissions(), permissions);
}

TEST_F(FileReplacement, AFolderThatIsNotThereIsTold)
{
    EXPECT_EQ(Failure(Path("absent/a"), "x"),
              "cannot write " + Path("absent/a").toStdString() + ": No such file or directory");
}

TEST_F(FileReplacement, AFolderIsNotReplaced)
{
    EXPECT_TRUE(Failure(folder.path(), "x").starts_with("cannot write " + folder.path().toStdString() + ": "));
    EXPECT_TRUE(QFileInfo(folder.path()).isDir());
}

TEST_F(FileReplacement, AFolderThatCannotBeWrittenLeavesTheFileAsItWas)
{
    ReplaceFile(Path("a"), "old");
    const auto readable = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    QFile::setPermissions(folder.path(), readable);
    {
        const schedules::testing::OrdinaryUser user;
        EXPECT_TRUE(Failure(Path("a"), "new").starts_with("cannot write "));
    }
    QFile::setPermissions(folder.path(), readable | QFile::WriteOwner);
    EXPECT_EQ(Content("a"), "old");
}

TEST_F(FileReplacement, AFullDiskLeavesTheFileAsItWas)
{
    const SmallDisk disk(folder.path());
    if (!disk.IsThere())
        GTEST_SKIP() << "this user cannot mount a small disk";
    ReplaceFile(Path("a"), "old");
    for (const qsizetype size : {15'000, 100'000})
        EXPECT_EQ(Failure(Path("a"), QByteArray(size, 'x')),
                  "cannot write " + Path("a").toStdString() + ": No space left on device");
    EXPECT_EQ(Content("a"), "old");
    EXPECT_EQ(Files(), QStringList{"a"});
}

TEST_F(FileReplacement, WhatIsNoFileIsWrittenToAndStaysWhatItIs)
{
    const QByteArray pipe = Path("pipe").toLocal8Bit();
    ASSERT_EQ(mkfifo(pipe, 0600), 0);
    const int reader = open(pipe, O_RDONLY | O_NONBLOCK);
    ReplaceFile(Path("pipe"), "text");
    QByteArray received(10, '\0');
    EXPECT_EQ(read(reader, received.data(), 10), 4);
    EXPECT_TRUE(received.startsWith("text"));
    close(reader);
    EXPECT_FALSE(QFileInfo(Path("pipe")).isFile());
}

TEST_F(FileReplacement, AFullDeviceIsTold)
{
    EXPECT_EQ(Failure("/dev/full", "x"), "cannot write /dev/full: No space left on device");
}

} // namespace schedules::host
