#pragma once

#include "fileutil/FindRecord.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace schedules {

/// One search in one folder. This and the functions below are all that asks the system for files.
///
/// Matches come in the order of their names, byte by byte. A name without wildcards is not compared but looked up, so
/// the file system says whether it exists. The names are those that the folder has when the search begins; what is told
/// of each is from the moment when its turn comes, and a file that is gone by then, or that cannot be asked about, is
/// left out.
///
/// Attributes: read-only when the owner may not write, hidden when the name begins with a dot, directory, and normal
/// when none of the others. A link is told as what it leads to, and as itself when that cannot be reached. Where the
/// file system keeps no time of creation, it is the time of the last write.
class DirectorySearch
{
public:
    /// `folder` ends in a separator or is empty, for the current folder; only `name` may have wildcards. A folder that
    /// cannot be read has no matches.
    DirectorySearch(const QString& folder, const QString& name);
    ~DirectorySearch();
    Q_DISABLE_COPY_MOVE(DirectorySearch)

    /// The next match; none when all have been told.
    std::optional<FindRecord> Next();

private:
    int m_folder = -1; ///< the system's handle
    std::vector<std::string> m_names;
    std::size_t m_next = 0;
};

/// Deletes a file, or a symbolic link and not what it leads to. False for a folder, for a file whose owner may not
/// write it, and when the system refuses; nothing has happened then.
bool RemoveFile(const QString& path);

/// The absolute path of the current folder; empty when it is gone.
QString CurrentFolder();

} // namespace schedules
