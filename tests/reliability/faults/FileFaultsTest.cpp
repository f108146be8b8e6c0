// Each call by which files are read, written or replaced is seen, and can be made to fail.

#include "support/FileFaults.h"

#include "FolderFiles.h"
#include "support/OwnProcess.h"

#include <QDir>
#include <QTemporaryDir>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <linux/openat2.h>
#include <string>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace schedules::testing {

namespace {

using Operation = FileOperation;

/// What a call works on: a folder with the file "old" and the empty folder "empty".
struct Place
{
    int folder;
    int old; ///< open for reading and writing
    std::string oldName;
    std::string newName;
    std::string emptyName;
    int elsewhere; ///< a file outside of the folder, open likewise
};

long Word(long argument)
{
    return argument;
}

long Word(const void* argument)
{
    return reinterpret_cast<long>(argument);
}

/// By its number, so that no library chooses another one.
template <class... Arguments>
long Called(long number, Arguments... arguments)
{
    return ::syscall(number, Word(arguments)...);
}

struct Call
{
    std::string name;
    Operation operation;
    std::function<long(const Place&)> run;

    friend void PrintTo(const Call& call, std::ostream* out) { *out << call.name; }
};

std::array<char, 4> g_bytes{'n', 'e', 'w', '\n'};
const iovec kPiece{g_bytes.data(), g_bytes.size()};
const open_how kReading{O_RDONLY, 0, 0};
const open_how kListing{O_RDONLY | O_DIRECTORY, 0, 0};

std::vector<Call> CallsOnHandles()
{
    return {
        {"read", Operation::Read, [](auto& at) { return Called(SYS_read, at.old, g_bytes.data(), 4); }},
        {"pread64", Operation::Read, [](auto& at) { return Called(SYS_pread64, at.old, g_bytes.data(), 4, 0); }},
        {"readv", Operation::Read, [](auto& at) { return Called(SYS_readv, at.old, &kPiece, 1); }},
        {"preadv", Operation::Read, [](auto& at) { return Called(SYS_preadv, at.old, &kPiece, 1, 0, 0); }},
        {"sendfile_from", Operation::Read, [](auto& at) { return Called(SYS_sendfile, at.elsewhere, at.old, 0, 4); }},
        {"write", Operation::Write, [](auto& at) { return Called(SYS_write, at.old, g_bytes.data(), 4); }},
        {"pwrite64", Operation::Write, [](auto& at) { return Called(SYS_pwrite64, at.old, g_bytes.data(), 4, 0); }},
        {"writev", Operation::Write, [](auto& at) { return Called(SYS_writev, at.old, &kPiece, 1); }},
        {"pwritev", Operation::Write, [](auto& at) { return Called(SYS_pwritev, at.old, &kPiece, 1, 0, 0); }},
        {"sendfile", Operation::Write, [](auto& at) { return Called(SYS_sendfile, at.old, at.elsewhere, 0, 4); }},
        {"fsync", Operation::Flush, [](auto& at) { return Called(SYS_fsync, at.old); }},
        {"fdatasync", Operation::Flush, [](auto& at) { return Called(SYS_fdatasync, at.old); }},
        {"syncfs", Operation::Flush, [](auto& at) { return Called(SYS_syncfs, at.old); }},
        {"ftruncate", Operation::Truncate, [](auto& at) { return Called(SYS_ftruncate, at.old, 1); }},
        {"fallocate", Operation::Truncate, [](auto& at) { return Called(SYS_fallocate, at.old, 0, 0, 100); }},
        {"close", Operation::Close, [](auto& at) { return Called(SYS_close, at.old); }},
    };
}

std::vector<Call> CallsOnNames()
{
    return {
        {"openat", Operation::Open, [](auto& at) { return Called(SYS_openat, at.folder, "old", O_RDWR | O_TRUNC, 0); }},
        {"openat_new", Operation::Open, [](auto& at) { return Called(SYS_openat, at.folder, "new", O_CREAT, 0600); }},
        {"openat_all", Operation::List, [](auto& at) { return Called(SYS_openat, at.folder, ".", O_DIRECTORY, 0); }},
        {"openat2", Operation::Open, [](auto& at) { return Called(SYS_openat2, at.folder, "old", &kReading, 24); }},
        {"openat2_all", Operation::List, [](auto& at) { return Called(SYS_openat2, at.folder, ".", &kListing, 24); }},
        {"mkdirat", Operation::Open, [](auto& at) { return Called(SYS_mkdirat, at.folder, "new", 0700); }},
        {"mknodat", Operation::Open, [](auto& at) { return Called(SYS_mknodat, at.folder, "new", S_IFREG, 0); }},
        {"symlinkat", Operation::Open, [](auto& at) { return Called(SYS_symlinkat, "old", at.folder, "new"); }},
        {"renameat", Operation::Rename,
         [](auto& at) { return Called(SYS_renameat, at.folder, "old", at.folder, "new"); }},
        {"renameat_away", Operation::Rename,
         [](auto& at) { return Called(SYS_renameat, at.folder, "old", AT_FDCWD, "/tmp/there is no such folder/a"); }},
        {"renameat2", Operation::Rename,
         [](auto& at) { return Called(SYS_renameat2, at.folder, "old", at.folder, "new", 0); }},
        {"linkat", Operation::Rename,
         [](auto& at) { return Called(SYS_linkat, at.folder, "old", at.folder, "new", 0); }},
        {"unlinkat", Operation::Delete, [](auto& at) { return Called(SYS_unlinkat, at.folder, "old", 0); }},
        {"truncate", Operation::Truncate, [](auto& at) { return Called(SYS_truncate, at.oldName.c_str(), 1); }},
    };
}

std::vector<Call> OldCallsOnNames()
{
#ifdef SYS_open // newer machines have none of these
    return {
        {"open", Operation::Open, [](auto& at) { return Called(SYS_open, at.oldName.c_str(), O_RDWR | O_TRUNC, 0); }},
        {"creat", Operation::Open, [](auto& at) { return Called(SYS_creat, at.newName.c_str(), 0600); }},
        {"mkdir", Operation::Open, [](auto& at) { return Called(SYS_mkdir, at.newName.c_str(), 0700); }},
        {"mknod", Operation::Open, [](auto& at) { return Called(SYS_mknod, at.newName.c_str(), S_IFREG, 0); }},
        {"symlink", Operation::Open, [](auto& at) { return Called(SYS_symlink, "old", at.newName.c_str()); }},
        {"rename", Operation::Rename,
         [](auto& at) { return Called(SYS_rename, at.oldName.c_str(), at.newName.c_str()); }},
        {"link", Operation::Rename, [](auto& at) { return Called(SYS_link, at.oldName.c_str(), at.newName.c_str()); }},
        {"unlink", Operation::Delete, [](auto& at) { return Called(SYS_unlink, at.oldName.c_str()); }},
        {"rmdir", Operation::Delete, [](auto& at) { return Called(SYS_rmdir, at.emptyName.c_str()); }},
    };
#else
    return {};
#endif
}

/// Their kind does not count: they may not be used.
std::vector<Call> ForeignCalls()
{
    return {
        {"preadv2", Operation::Any, [](auto& at) { return Called(SYS_preadv2, at.old, &kPiece, 1, 0, 0, 0); }},
        {"pwritev2", Operation::Any, [](auto& at) { return Called(SYS_pwritev2, at.old, &kPiece, 1, 0, 0, 0); }},
        {"copy_file_range", Operation::Any,
         [](auto& at) { return Called(SYS_copy_file_range, at.elsewhere, 0, at.old, 0, 4, 0); }},
        {"splice", Operation::Any, [](auto& at) { return Called(SYS_splice, at.elsewhere, 0, at.old, 0, 4, 0); }},
        {"io_uring_setup", Operation::Any, [](auto&) { return Called(SYS_io_uring_setup, 0, 0); }},
        {"io_submit", Operation::Any, [](auto&) { return Called(SYS_io_submit, 0, 0, 0); }},
        {"clone", Operation::Any, [](auto& at) { return Called(SYS_ioctl, at.old, FICLONE, at.elsewhere); }},
    };
}

std::vector<Call> KnownCalls()
{
    std::vector<Call> all = CallsOnHandles();
    for (const auto& calls : {CallsOnNames(), OldCallsOnNames()})
        all.insert(all.end(), calls.begin(), calls.end());
    return all;
}

std::string NameOf(const ::testing::TestParamInfo<Call>& info)
{
    return info.param.name;
}

class FileFaultsOfCalls : public ::testing::TestWithParam<Call>
{
protected:
    FileFaultsOfCalls()
    {
        EXPECT_TRUE(QDir(root.path()).mkpath("work/empty"));
        for (const char* name : {"work/old", "elsewhere"}) {
            QFile file(root.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("old\n") == 4);
        }
    }

    QString Folder() const { return root.filePath("work"); }

    Place Opened() const
    {
        const std::string folder = Folder().toStdString();
        const auto opened = [](const std::string& name, int flags) { return ::open(name.c_str(), flags); };
        return {opened(folder, O_RDONLY | O_DIRECTORY),
                opened(folder + "/old", O_RDWR),
                folder + "/old",
                folder + "/new",
                folder + "/empty",
                opened(root.filePath("elsewhere").toStdString(), O_RDWR)};
    }

    /// What a process ends with that watches, calls and looks what has come of it.
    int EndOf(const std::optional<FileFault>& fault, const std::function<void(long result, int error)>& look) const
    {
        OwnProcess process([&](const OwnProcess::Tell&) {
            const Place place = Opened();
            ASSERT_TRUE(WatchFiles(Folder(), fault));
            const long result = GetParam().run(place);
            look(result, errno);
        });
        return process.Await().failure;
    }

    /// That one operation, and nothing else.
    FileCounts Once() const
    {
        FileCounts counts{};
        counts[static_cast<std::size_t>(GetParam().operation)] = counts.back() = 1;
        return counts;
    }

    QTemporaryDir root;
};

using FileFaultsOfForeignCalls = FileFaultsOfCalls;

} // namespace

INSTANTIATE_TEST_SUITE_P(By, FileFaultsOfCalls, ::testing::ValuesIn(KnownCalls()), NameOf);
INSTANTIATE_TEST_SUITE_P(By, FileFaultsOfForeignCalls, ::testing::ValuesIn(ForeignCalls()), NameOf);

TEST_P(FileFaultsOfCalls, EachIsSeenAsWhatItIs)
{
    const auto look = [&](long, int) { EXPECT_EQ(SeenOperations(), Once()); };
    EXPECT_EQ(EndOf({}, look), 0);
}

TEST_P(FileFaultsOfCalls, EachCanFailAndDoesNothingThen)
{
    const auto before = host::testing::FilesIn(Folder());
    const auto look = [](long result, int error) {
        EXPECT_EQ(result, -1);
        EXPECT_EQ(error, EDQUOT);
    };
    EXPECT_EQ(EndOf(FileFault{GetParam().operation, 0, EDQUOT}, look), 0);
    EXPECT_EQ(host::testing::FilesIn(Folder()), before);
}

TEST_P(FileFaultsOfForeignCalls, NoneIsUsedUnseen)
{
    const auto look = [](long, int) { ADD_FAILURE() << "the process goes on"; };
    EXPECT_EQ(EndOf({}, look), kForeignCall);
}

} // namespace schedules::testing
