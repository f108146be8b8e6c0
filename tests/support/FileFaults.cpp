#include "support/FileFaults.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <iterator>
#include <linux/filter.h>
#include <linux/fs.h>
#include <linux/openat2.h>
#include <linux/seccomp.h>
#include <string_view>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <ucontext.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace schedules::testing {

namespace {

using Arguments = std::array<long, 5>;

constexpr int kCurrentFolder = -1;
constexpr int kNoName = -1;

struct KnownCall
{
    long number;
    FileOperation operation;
    int handle; ///< which argument is the file, or the folder that the name counts from
    int name = kNoName;
};

/// Where a call has two files, it is there twice; the first that is watched counts.
constexpr std::array kKnownCalls{
    KnownCall{SYS_openat, FileOperation::Open, 0, 1},
    KnownCall{SYS_openat2, FileOperation::Open, 0, 1},
    KnownCall{SYS_mkdirat, FileOperation::Open, 0, 1},
    KnownCall{SYS_mknodat, FileOperation::Open, 0, 1},
    KnownCall{SYS_symlinkat, FileOperation::Open, 1, 2},
    KnownCall{SYS_read, FileOperation::Read, 0},
    KnownCall{SYS_pread64, FileOperation::Read, 0},
    KnownCall{SYS_readv, FileOperation::Read, 0},
    KnownCall{SYS_preadv, FileOperation::Read, 0},
    KnownCall{SYS_write, FileOperation::Write, 0},
    KnownCall{SYS_pwrite64, FileOperation::Write, 0},
    KnownCall{SYS_writev, FileOperation::Write, 0},
    KnownCall{SYS_pwritev, FileOperation::Write, 0},
    KnownCall{SYS_sendfile, FileOperation::Write, 0},
    KnownCall{SYS_sendfile, FileOperation::Read, 1},
    KnownCall{SYS_fsync, FileOperation::Flush, 0},
    KnownCall{SYS_fdatasync, FileOperation::Flush, 0},
    KnownCall{SYS_syncfs, FileOperation::Flush, 0},
    KnownCall{SYS_renameat, FileOperation::Rename, 2, 3},
    KnownCall{SYS_renameat, FileOperation::Rename, 0, 1},
    KnownCall{SYS_renameat2, FileOperation::Rename, 2, 3},
    KnownCall{SYS_renameat2, FileOperation::Rename, 0, 1},
    KnownCall{SYS_linkat, FileOperation::Rename, 2, 3},
    KnownCall{SYS_unlinkat, FileOperation::Delete, 0, 1},
    KnownCall{SYS_truncate, FileOperation::Truncate, kCurrentFolder, 0},
    KnownCall{SYS_ftruncate, FileOperation::Truncate, 0},
    KnownCall{SYS_fallocate, FileOperation::Truncate, 0},
    KnownCall{SYS_close, FileOperation::Close, 0},
#ifdef SYS_open // newer machines have none of these
    KnownCall{SYS_open, FileOperation::Open, kCurrentFolder, 0},
    KnownCall{SYS_creat, FileOperation::Open, kCurrentFolder, 0},
    KnownCall{SYS_mkdir, FileOperation::Open, kCurrentFolder, 0},
    KnownCall{SYS_mknod, FileOperation::Open, kCurrentFolder, 0},
    KnownCall{SYS_symlink, FileOperation::Open, kCurrentFolder, 1},
    KnownCall{SYS_rename, FileOperation::Rename, kCurrentFolder, 1},
    KnownCall{SYS_rename, FileOperation::Rename, kCurrentFolder, 0},
    KnownCall{SYS_link, FileOperation::Rename, kCurrentFolder, 1},
    KnownCall{SYS_unlink, FileOperation::Delete, kCurrentFolder, 0},
    KnownCall{SYS_rmdir, FileOperation::Delete, kCurrentFolder, 0},
#endif
};

/// Other ways to files: they take six arguments, or do not say which file. Nothing here uses them.
constexpr std::array kForeignCalls{SYS_preadv2,   SYS_pwritev2,       SYS_copy_file_range, SYS_splice,
                                   SYS_io_submit, SYS_io_uring_setup, SYS_io_uring_enter,  SYS_open_by_handle_at};

/// The arguments of a call, and where the kernel looks for what it gave.
#if defined(__x86_64__)
Arguments ArgumentsIn(const mcontext_t& machine)
{
    const auto& registers = machine.gregs;
    return {registers[REG_RDI], registers[REG_RSI], registers[REG_RDX], registers[REG_R10], registers[REG_R8]};
}

void SetResult(mcontext_t& machine, long result)
{
    machine.gregs[REG_RAX] = result;
}
#elif defined(__aarch64__)
Arguments ArgumentsIn(const mcontext_t& machine)
{
    Arguments arguments;
    std::copy_n(machine.regs, arguments.size(), arguments.begin());
    return arguments;
}

void SetResult(mcontext_t& machine, long result)
{
    machine.regs[0] = static_cast<unsigned long>(result);
}
#endif

/// No call that is known takes a sixth argument: with this one the kernel lets it pass.
constexpr long kPass = 0x5EED0F11;

/// What the calls are answered by. They come in the midst of anything, so nothing here may allocate.
struct Watch
{
    std::array<char, PATH_MAX> folder{};
    std::optional<FileFault> fault;
    FileCounts seen{};
    bool isBroken = false;
};
Watch g_watch;

/// What a call gives, or the negative number of its error.
long Passed(long number, const Arguments& arguments)
{
    const auto [first, second, third, fourth, fifth] = arguments;
    const long result = ::syscall(number, first, second, third, fourth, fifth, kPass);
    return result < 0 ? -errno : result;
}

using Path = std::array<char, 2 * PATH_MAX>;

void Append(Path& path, const char* text)
{
    std::strncat(path.data(), text, path.size() - std::strlen(path.data()) - 1);
}

/// Where a handle leads; nowhere when it is none.
void ReadHandle(Path& path, int handle)
{
    std::array<char, 64> link{};
    if (handle == AT_FDCWD)
        std::strcpy(link.data(), "/proc/self/cwd");
    else
        std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", handle);
    const long length = ::syscall(SYS_readlinkat, AT_FDCWD, link.data(), path.data(), PATH_MAX);
    path[static_cast<std::size_t>(std::max(length, 0L))] = '\0';
}

Path PathOf(const KnownCall& call, const Arguments& arguments)
{
    const auto at = [&](int place) { return arguments[static_cast<std::size_t>(place)]; };
    Path path{};
    const char* name = call.name == kNoName ? nullptr : reinterpret_cast<const char*>(at(call.name));
    if (!name || *name != '/')
        ReadHandle(path, call.handle == kCurrentFolder ? AT_FDCWD : static_cast<int>(at(call.handle)));
    if (name && *name != '/')
        Append(path, "/");
    if (name)
        Append(path, name);
    return path;
}

bool IsWatched(const Path& path)
{
    const std::string_view folder = g_watch.folder.data();
    const std::string_view name = path.data();
    return name.starts_with(folder) && (name.size() == folder.size() || name[folder.size()] == '/');
}

int& Seen(FileOperation operation)
{
    return g_watch.seen[static_cast<std::size_t>(operation)];
}

/// Counts an operation; whether it is to go wrong.
bool GoesWrong(FileOperation operation)
{
    const auto& fault = g_watch.fault;
    const bool isMeant = fault && (fault->operation == operation || fault->operation == FileOperation::Any);
    const int index = isMeant ? Seen(fault->operation) : 0;
    ++Seen(operation);
    ++Seen(FileOperation::Any);
    if (!isMeant)
        return false;
    return index == fault->index || (fault->kind == FileFault::Kind::FromThenOn && index > fault->index);
}

long GoneWrong(const KnownCall& call, Arguments arguments)
{
    constexpr std::size_t kLength = 2;
    const bool isFirst = !std::exchange(g_watch.isBroken, true);
    const bool isCutShort = isFirst && g_watch.fault->kind == FileFault::Kind::FromThenOn && arguments[kLength] > 1;
    if (g_watch.fault->kind == FileFault::Kind::Killed)
        ::kill(::getpid(), SIGKILL);
    if (isCutShort && (call.number == SYS_write || call.number == SYS_pwrite64)) {
        arguments[kLength] /= 2;
        return Passed(call.number, arguments);
    }
    if (call.operation == FileOperation::Close)
        Passed(call.number, arguments); // a handle is gone whatever the call says
    return -g_watch.fault->code;
}

/// How a file is opened; 0 when it is not, or by a call that cannot list.
long OpenFlags(const KnownCall& call, const Arguments& arguments)
{
    constexpr std::size_t kHow = 2;
    if (call.number == SYS_openat2)
        return static_cast<long>(reinterpret_cast<const open_how*>(arguments[kHow])->flags);
    return call.number == SYS_openat ? arguments[kHow] : 0;
}

FileOperation OperationOf(const KnownCall& call, const Arguments& arguments)
{
    const bool lists = (OpenFlags(call, arguments) & O_TMPFILE) == O_DIRECTORY; // the one has the bit of the other
    return lists ? FileOperation::List : call.operation;
}

/// Whether a call may read or write a file without being seen.
bool IsForeign(long number, const Arguments& arguments)
{
    if (number != SYS_ioctl)
        return std::ranges::count(kForeignCalls, number) != 0;
    const auto request = static_cast<unsigned long>(arguments[1]);
    return request == FICLONE || request == FICLONERANGE || request == FIDEDUPERANGE;
}

[[noreturn]] void EndForForeign(long number)
{
    std::array<char, 128> line{};
    const int length = std::snprintf(
        line.data(), line.size(), "The system call %ld may write files, and FileFaults does not watch it.\n", number);
    [[maybe_unused]] const long written = ::write(STDERR_FILENO, line.data(), static_cast<std::size_t>(length));
    ::_exit(kForeignCall);
}

void OnCall(int, siginfo_t* info, void* context)
{
    const int before = errno;
    mcontext_t& machine = static_cast<ucontext_t*>(context)->uc_mcontext;
    const Arguments arguments = ArgumentsIn(machine);
    if (IsForeign(info->si_syscall, arguments))
        EndForForeign(info->si_syscall);
    const auto call = std::ranges::find_if(kKnownCalls, [&](const KnownCall& known) {
        return known.number == info->si_syscall && IsWatched(PathOf(known, arguments));
    });
    const bool goesWrong = call != kKnownCalls.end() && GoesWrong(OperationOf(*call, arguments));
    SetResult(machine, goesWrong ? GoneWrong(*call, arguments) : Passed(info->si_syscall, arguments));
    errno = before;
}

/// The kernel's rules: ways to files are handed over, everything else passes.
std::vector<sock_filter> Rules()
{
    const auto load = [](std::size_t field) {
        return sock_filter{BPF_LD | BPF_W | BPF_ABS, 0, 0, static_cast<__u32>(field)};
    };
    const auto end = [](__u32 action) { return sock_filter{BPF_RET | BPF_K, 0, 0, action}; };
    const auto when = [](long value) {
        return sock_filter{BPF_JMP | BPF_JEQ | BPF_K, 0, 1, static_cast<__u32>(value)};
    };
    std::vector<sock_filter> rules{load(offsetof(seccomp_data, args) + 5 * sizeof(__u64)), when(kPass),
                                   end(SECCOMP_RET_ALLOW), load(offsetof(seccomp_data, nr))};
    std::vector<long> watched(kForeignCalls.begin(), kForeignCalls.end());
    std::ranges::transform(kKnownCalls, std::back_inserter(watched), &KnownCall::number);
    watched.push_back(SYS_ioctl);
    for (const long call : watched)
        rules.insert(rules.end(), {when(call), end(SECCOMP_RET_TRAP)});
    rules.push_back(end(SECCOMP_RET_ALLOW));
    return rules;
}

void AnswerCalls()
{
    struct sigaction action
    {
    };
    action.sa_sigaction = OnCall;
    action.sa_flags = SA_SIGINFO | SA_NODEFER;
    ::sigaction(SIGSYS, &action, nullptr);
}

const char* NameOf(FileOperation operation)
{
    constexpr std::array<const char*, std::tuple_size_v<FileCounts>> kNames{
        "open", "list", "read", "write", "flush", "rename", "delete", "truncate", "close", "operation"};
    return kNames[static_cast<std::size_t>(operation)];
}

} // namespace

std::string Drawn(const FileFault& fault)
{
    const std::string which = NameOf(fault.operation) + (' ' + std::to_string(fault.index));
    if (fault.kind == FileFault::Kind::Killed)
        return "killed before " + which;
    return which + ": " + std::strerror(fault.code) +
           (fault.kind == FileFault::Kind::FromThenOn ? ", from then on" : "");
}

bool WatchFiles(const QString& folder, const std::optional<FileFault>& fault)
{
    const QByteArray path = QFile::encodeName(QFileInfo(folder).canonicalFilePath());
    std::copy(path.begin(), path.end(), g_watch.folder.begin());
    g_watch.fault = fault;
    AnswerCalls();
    std::vector<sock_filter> rules = Rules();
    const sock_fprog program{static_cast<unsigned short>(rules.size()), rules.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

FileCounts SeenOperations()
{
    return g_watch.seen;
}

} // namespace schedules::testing
