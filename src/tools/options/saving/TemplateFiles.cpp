#include "tools/options/saving/TemplateFiles.h"

#include "common/Blanks.h"
#include "common/FilePath.h"
#include "common/FileReplacement.h"
#include "common/Module1.h"
#include "fileutil/CFileUtility.h"
#include "tools/options/saving/FileNameFlaw.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace schedules {

namespace {

using Status = std::filesystem::file_status;

constexpr qint64 kMostBytes = 64 * 1024 * 1024;

std::filesystem::path SystemPath(const QString& path)
{
    return QFile::encodeName(PlatformPath(path)).toStdString();
}

/// Of a link itself. The file utility would take "*" and "?" of a name as a pattern.
Status StatusAt(const QString& path)
{
    std::error_code failure;
    return std::filesystem::symlink_status(SystemPath(path), failure);
}

/// Of what a link leads to.
Status StatusBehind(const QString& path)
{
    std::error_code failure;
    return std::filesystem::status(SystemPath(path), failure);
}

bool IsReadOnly(const Status& status)
{
    using std::filesystem::perms;
    return exists(status) && (status.permissions() & perms::owner_write) == perms::none;
}

/// No XML has these characters, so no list can name the file.
bool IsForListing(const QString& name)
{
    constexpr char16_t kFirstNonCharacter = 0xFFFE;
    return name.isValidUtf16() && std::ranges::all_of(name, [](QChar each) { return each < kFirstNonCharacter; });
}

[[noreturn]] void RefuseName()
{
    throw Error(kSaveError, ComponentText("A file in the template folder cannot have this name."));
}

} // namespace

bool TemplateFiles::IsKnown() const
{
    return !TrimmedOfBlanks(m_path).isEmpty();
}

QString TemplateFiles::PathOf(const QString& fileName) const
{
    return FolderPathWithSeparator(m_path) + fileName;
}

bool TemplateFiles::Holds(const QString& fileName) const
{
    return ResolvedPath(fileName).has_value();
}

bool TemplateFiles::HasFile(const QString& fileName) const
{
    return CanName(fileName) && exists(StatusAt(PathOf(fileName)));
}

std::optional<QByteArray> TemplateFiles::Content(const QString& fileName) const
{
    const auto path = ResolvedPath(fileName);
    // What is no file, such as a pipe, might never end.
    if (!path || !QFileInfo(*path).isFile())
        return std::nullopt;
    QFile file(*path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMostBytes)
        return std::nullopt;
    const QByteArray content = file.read(file.size());
    return file.error() == QFileDevice::NoError ? std::optional(content) : std::nullopt;
}

void TemplateFiles::Replace(const QString& fileName, const QByteArray& content) const
{
    RequireDeletable(fileName);
    const auto path = ResolvedPath(fileName);
    if (!path)
        RefuseName();
    ReplaceFile(*path, content);
}

void TemplateFiles::Delete(const QString& fileName) const
{
    if (TrimmedOfBlanks(fileName).isEmpty())
        return;
    RequireName(fileName);
    const QString path = PathOf(fileName);
    const bool isGone =
        CFileUtility().DeleteFile(path) || StatusAt(path).type() == std::filesystem::file_type::not_found;
    if (!isGone)
        throw SaveError(kTemplateFileNotDeleted);
}

void TemplateFiles::RequireDeletable(const QString& fileName) const
{
    RequireName(fileName);
    const Status status = StatusBehind(PathOf(fileName));
    if (IsReadOnly(status) || is_directory(status))
        throw SaveError(kTemplateFileNotDeleted);
}

/// Whether a path of the folder and the name leads nowhere but into the folder, links aside.
bool TemplateFiles::CanName(const QString& fileName) const
{
    return IsKnown() && FileNameFlaw(fileName).isEmpty() && IsForListing(fileName);
}

void TemplateFiles::RequireName(const QString& fileName) const
{
    if (!IsKnown())
        throw SaveError(kTemplateFolderUnknown);
    if (!CanName(fileName))
        RefuseName();
}

/// Where the name leads in the file system, at the end of all links; nothing when that is not in the folder.
std::optional<QString> TemplateFiles::ResolvedPath(const QString& fileName) const
{
    if (!CanName(fileName))
        return std::nullopt;
    const QString path = PlatformPath(PathOf(fileName));
    if (!exists(StatusAt(path)))
        return path;
    return PlaceInside(PathOf({}), path);
}

} // namespace schedules
