#pragma once

#include <QString>

#include <array>
#include <optional>
#include <string>

namespace schedules::testing {

/// What a process does with files.
enum class FileOperation
{
    Open, ///< or makes a file or a folder
    List, ///< opens a folder to see what is in it, perhaps to take it away
    Read,
    Write,
    Flush, ///< to the disk
    Rename,
    Delete,
    Truncate,
    Close,
    Any
};

/// How often each operation was done, by its number.
using FileCounts = std::array<int, static_cast<int>(FileOperation::Any) + 1>;

/// What goes wrong with one file operation.
struct FileFault
{
    enum class Kind
    {
        Once,
        FromThenOn, ///< all further ones of its kind fail, too; the first write that does is cut short instead
        Killed      ///< the process ends before it
    };

    FileOperation operation = FileOperation::Any;
    int index = 0; ///< among the operations of its kind, from 0
    int code = 0;  ///< the system's number of the error
    Kind kind = Kind::Once;
};

/// "write 3: No space left on device, from then on"
std::string Drawn(const FileFault& fault);

/// Sees what this process does with files below a folder from now on, whichever library does it, and makes one of the
/// operations go wrong. False when this system cannot.
///
/// The kernel itself hands the calls over, so that no call is missed, such as what the C library's streams do. A call
/// that could read or write files and cannot be watched, on whichever file, ends the process with `kForeignCall`, so
/// that a test fails which would not see it. What is written through memory that a file is mapped into is no call, and
/// cannot be seen: whoever relies on this reads back all that is there afterwards.
///
/// It watches until the process ends, and no program that is started meanwhile survives it: only for an `OwnProcess`.
bool WatchFiles(const QString& folder, const std::optional<FileFault>& fault = {});

/// What a process ends with that reads or writes files by a call that is not watched.
constexpr int kForeignCall = 125;

/// What has been seen so far.
FileCounts SeenOperations();

} // namespace schedules::testing
