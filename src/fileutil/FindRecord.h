#pragma once

#include <QString>

#include <cstdint>

namespace schedules {

/// Bits of a file's attributes.
enum FileAttribute : unsigned
{
    kReadOnlyFile = 0x1,
    kHiddenFile = 0x2,
    kSystemFile = 0x4,
    kDirectoryFile = 0x10,
    kArchivedFile = 0x20,
    kNormalFile = 0x80,
    kTemporaryFile = 0x100,
    kCompressedFile = 0x800
};

/// 100 nanoseconds each since the start of 1601, UTC. Never beyond the largest signed number.
using FileTime = std::uint64_t;

inline constexpr std::int64_t kFileTimesPerSecond = 10'000'000;
inline constexpr std::int64_t kSecondsFrom1601To1970 = 11'644'473'600;

/// What a search tells of a file.
struct FindRecord
{
    unsigned attributes = 0; ///< bits of `FileAttribute`
    FileTime created = 0;
    FileTime accessed = 0;
    FileTime written = 0;
    std::uint64_t size = 0; ///< in bytes
    QString name;           ///< trimmed of blanks
};

} // namespace schedules
