#include "fileutil/DirectorySearch.h"

#include "common/Blanks.h"
#include "fileutil/FileNames.h"
#include "fileutil/NamePattern.h"

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace schedules {

namespace {

struct CloseDirectory
{
    void operator()(DIR* directory) const { ::closedir(directory); }
};

using Directory = std::unique_ptr<DIR, CloseDirectory>;

/// Does not need the right to list the folder, since a name can be looked up without it.
int OpenedFolder(const QString& path)
{
    const auto bytes = EncodedPath(path.isEmpty() ? QStringLiteral(".") : path);
    return bytes ? ::open(bytes->constData(), O_PATH | O_DIRECTORY | O_CLOEXEC) : -1;
}

Directory Listed(int folder)
{
    const int handle = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return nullptr;
    Directory directory(::fdopendir(handle));
    if (!directory)
        ::close(handle);
    return directory;
}

std::vector<std::string> MatchingNames(int folder, const NamePattern& pattern)
{
    std::vector<std::string> names;
    const Directory directory = Listed(folder);
    if (!directory)
        return names;
    while (const dirent* entry = ::readdir(directory.get())) {
        if (pattern.MatchesEverything() || pattern.Matches(DecodedName(entry->d_name)))
            names.emplace_back(entry->d_name);
    }
    std::ranges::sort(names);
    return names;
}

std::optional<struct statx> Status(int folder, const std::string& name)
{
    constexpr unsigned kWanted = STATX_BASIC_STATS | STATX_BTIME;
    struct statx status;
    if (::statx(folder, name.c_str(), 0, kWanted, &status) == 0 ||
        ::statx(folder, name.c_str(), AT_SYMLINK_NOFOLLOW, kWanted, &status) == 0)
        return status;
    return std::nullopt;
}

/// Times before 1601 and those too far ahead are the nearest that can be told.
FileTime ToFileTime(const statx_timestamp& time)
{
    constexpr std::int64_t kMostSeconds = std::numeric_limits<std::int64_t>::max() / kFileTimesPerSecond - 1;
    const auto seconds =
        std::clamp<std::int64_t>(time.tv_sec, -kSecondsFrom1601To1970, kMostSeconds - kSecondsFrom1601To1970);
    return static_cast<FileTime>((seconds + kSecondsFrom1601To1970) * kFileTimesPerSecond + time.tv_nsec / 100);
}

unsigned Attributes(const struct statx& status, const std::string& name)
{
    unsigned attributes = 0;
    if ((status.stx_mode & S_IWUSR) == 0)
        attributes |= kReadOnlyFile;
    if (name.starts_with('.'))
        attributes |= kHiddenFile;
    if (S_ISDIR(status.stx_mode))
        attributes |= kDirectoryFile;
    return attributes == 0 ? kNormalFile : attributes;
}

FindRecord ToRecord(const struct statx& status, const std::string& name)
{
    const bool knowsBirth = (status.stx_mask & STATX_BTIME) != 0;
    FindRecord record;
    record.attributes = Attributes(status, name);
    record.created = ToFileTime(knowsBirth ? status.stx_btime : status.stx_mtime);
    record.accessed = ToFileTime(status.stx_atime);
    record.written = ToFileTime(status.stx_mtime);
    record.size = status.stx_size;
    record.name = TrimmedOfBlanks(DecodedName(name));
    return record;
}

} // namespace

DirectorySearch::DirectorySearch(const QString& folder, const QString& name) : m_folder(OpenedFolder(folder))
{
    const NamePattern pattern(name);
    const auto bytes = EncodedPath(name);
    if (m_folder < 0 || !bytes)
        return;
    if (pattern.HasWildcards())
        m_names = MatchingNames(m_folder, pattern);
    else
        m_names.push_back(bytes->toStdString());
}

DirectorySearch::~DirectorySearch()
{
    if (m_folder >= 0)
        ::close(m_folder);
}

std::optional<FindRecord> DirectorySearch::Next()
{
    while (m_next < m_names.size()) {
        const std::string& name = m_names[m_next++];
        if (const auto status = Status(m_folder, name))
            return ToRecord(*status, name);
    }
    return std::nullopt;
}

bool RemoveFile(const QString& path)
{
    const auto bytes = EncodedPath(path);
    struct stat status;
    if (!bytes || ::lstat(bytes->constData(), &status) != 0)
        return false;
    return (status.st_mode & S_IWUSR) != 0 && ::unlink(bytes->constData()) == 0;
}

QString CurrentFolder()
{
    std::error_code gone;
    return DecodedName(std::filesystem::current_path(gone).native());
}

} // namespace schedules
