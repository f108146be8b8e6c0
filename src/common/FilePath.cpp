#include "common/FilePath.h"

#include <QFile>

#include <filesystem>
#include <new>
#include <system_error>

namespace schedules {

namespace {

/// The path at the end of all links; empty when there is none. Throws when there is not the memory to look.
QString ResolvedPath(const QString& path)
{
    std::error_code failure;
    const std::string name = QFile::encodeName(PlatformPath(path)).toStdString();
    const std::filesystem::path resolved = std::filesystem::canonical(name, failure);
    if (failure == std::errc::not_enough_memory)
        throw std::bad_alloc();
    return QFile::decodeName(resolved.c_str());
}

} // namespace

std::optional<QString> PlaceInside(const QString& folder, const QString& path)
{
    const QString top = ResolvedPath(folder);
    const QString place = ResolvedPath(path);
    const bool isInside = !top.isEmpty() && place.startsWith(top.endsWith(u'/') ? top : top + u'/');
    return isInside ? std::optional(place) : std::nullopt;
}

} // namespace schedules
