#pragma once

#include <QString>

#include <optional>

namespace schedules {

/// A path for the file system: hosts separate folders by "\" or "/", whatever the platform.
inline QString PlatformPath(QString path)
{
    return path.replace(u'\\', u'/');
}

/// Where a path leads, at the end of all links; nothing when there is nothing, or when that does not lie in the folder.
/// Both paths are as hosts write them.
std::optional<QString> PlaceInside(const QString& folder, const QString& path);

} // namespace schedules
