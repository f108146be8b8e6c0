#pragma once

#include "support/OrdinaryUser.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace schedules::testing {

/// A folder of its own for each test. Names are bytes here, as the system has them; what the tested code is handed is
/// text.
class TestFolder
{
public:
    TestFolder() { ::chmod(Bytes("").c_str(), 0755); }
    /// Qt does not remove files whose names are no text.
    ~TestFolder() { std::filesystem::remove_all(Bytes("")); }
    Q_DISABLE_COPY_MOVE(TestFolder)

    /// The path of a name that is plain text, also of a pattern.
    QString Text(const QString& name) const { return m_folder.path() + '/' + name; }
    std::string Bytes(const std::string& name) const { return m_folder.path().toStdString() + '/' + name; }

    void File(const std::string& name, const std::string& content = {}) const
    {
        const int handle = Created(name);
        EXPECT_EQ(::write(handle, content.data(), content.size()), static_cast<ssize_t>(content.size()));
        ::close(handle);
    }
    void Files(std::initializer_list<const char*> names) const
    {
        for (const char* name : names)
            File(name);
    }
    /// All of it a hole, so that it takes no place on the disk.
    void FileOfSize(const std::string& name, std::int64_t size) const
    {
        const int handle = Created(name);
        EXPECT_EQ(::ftruncate(handle, size), 0);
        ::close(handle);
    }
    /// Another name of the same file: the cheapest file there is.
    void HardLink(const std::string& target, const std::string& name) const
    {
        EXPECT_EQ(::link(Bytes(target).c_str(), Bytes(name).c_str()), 0) << name;
    }
    void Folder(const std::string& name) const { EXPECT_EQ(::mkdir(Bytes(name).c_str(), 0755), 0) << name; }
    void Link(const std::string& target, const std::string& name) const
    {
        EXPECT_EQ(::symlink(target.c_str(), Bytes(name).c_str()), 0) << name;
    }
    void Mode(const std::string& name, mode_t mode) const { EXPECT_EQ(::chmod(Bytes(name).c_str(), mode), 0) << name; }
    void Remove(const std::string& name) const { EXPECT_EQ(::unlink(Bytes(name).c_str()), 0) << name; }

    /// Of a link its own.
    void Times(const std::string& name, timespec accessed, timespec written) const
    {
        const timespec times[]{accessed, written};
        EXPECT_EQ(::utimensat(AT_FDCWD, Bytes(name).c_str(), times, AT_SYMLINK_NOFOLLOW), 0) << name;
    }

    /// Links count, wherever they lead.
    bool Has(const std::string& name) const
    {
        struct stat status;
        return ::lstat(Bytes(name).c_str(), &status) == 0;
    }

private:
    int Created(const std::string& name) const
    {
        const int handle = ::open(Bytes(name).c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
        EXPECT_GE(handle, 0) << name;
        return handle;
    }

    QTemporaryDir m_folder;
};

} // namespace schedules::testing
