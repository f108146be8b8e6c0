#pragma once

#include "tools/options/saving/SaveError.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace schedules {

/// The folder of the template files. File names are taken literally, and none of them leads out of the folder, however
/// the host or the user came by it. What leads elsewhere is refused by an `Error` (`kSaveError`), and so is everything
/// while the folder is not known (3073).
class TemplateFiles
{
public:
    /// As a host tells it: with "\" or "/", with a separator at its end or not, with blanks around it.
    explicit TemplateFiles(const QString& path) : m_path(path) {}

    /// Whether the host told any.
    bool IsKnown() const;

    /// The folder, a separator and the name. It becomes a path of the file system by `PlatformPath`.
    QString PathOf(const QString& fileName) const;

    /// Whether a file of that name can be in the folder: the name has no flaw (`FileNameFlaw`), only characters that
    /// the host's list can hold, and what bears it already is no link to nothing or out of the folder.
    bool Holds(const QString& fileName) const;

    /// Whether anything in the folder has that name, a folder or a link to nothing, too.
    bool HasFile(const QString& fileName) const;

    /// What is in the file; nothing when the folder holds no such file, when it cannot be read or has more than 64 MiB.
    std::optional<QByteArray> Content(const QString& fileName) const;

    /// Writes the file, or makes a new one: complete beside it, then in its place. Throws `Error` when the folder does
    /// not hold the name, when the file that it would replace is not deletable, or when anything fails; that file is
    /// then as it was.
    void Replace(const QString& fileName, const QByteArray& content) const;

    /// Deletes the file; of a link the link itself. Nothing happens when there is none, and for a blank name. Throws
    /// `Error` (`kSaveError`, 3076) when it is read-only or cannot be deleted.
    void Delete(const QString& fileName) const;

    /// Throws `Error` (`kSaveError`, 3076) when what bears the name, or what it leads to as a link, is read-only or a
    /// folder.
    void RequireDeletable(const QString& fileName) const;

private:
    bool CanName(const QString& fileName) const;
    void RequireName(const QString& fileName) const;
    std::optional<QString> ResolvedPath(const QString& fileName) const;

    QString m_path;
};

} // namespace schedules
