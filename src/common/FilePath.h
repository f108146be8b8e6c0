#pragma once

#include <QString>

namespace schedules {

/// A path for the file system: hosts separate folders by "\" or "/", whatever the platform.
inline QString PlatformPath(QString path)
{
    return path.replace(u'\\', u'/');
}

} // namespace schedules
