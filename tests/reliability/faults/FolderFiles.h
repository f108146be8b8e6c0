#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <string>

namespace schedules::host::testing {

/// The files below a folder by their names, byte for byte. The names of folders end in a slash.
using FolderFiles = std::map<QString, QByteArray>;

FolderFiles FilesIn(const QString& folder);

/// Makes them all that is in the folder.
void Restore(const QString& folder, const FolderFiles& files);

/// How the text of a file begins that is not what its kind of file should be.
inline constexpr auto kDamaged = "damaged";

/// The same as texts that are equal whenever two files hold the same. Of a project another connection tells it, of a
/// PDF and an .xlsx another program, since they hold the time; other files are their bytes.
std::map<std::string, std::string> DrawnFilesIn(const QString& folder);

} // namespace schedules::host::testing
