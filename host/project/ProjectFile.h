#pragma once

#include <QString>

namespace schedules::host {

/// The number by which database files are known as projects, at byte 68 of the file.
constexpr quint32 kProjectFileMark = 0x45515348; // "EQSH"

/// Whether a file begins as the files of databases do.
bool BeginsAsDatabase(const QString& path);

/// Throws `HostError` when there is no such file, or it is no project, or cut off. Nothing of it is touched.
///
/// Files are looked into through SQLite alone: whoever opens and closes one otherwise ends the locks that connections
/// of this process have on it.
void RequireProjectFile(const QString& path);

/// Takes a database away that nobody has open, with what was kept beside it.
void RemoveProjectFile(const QString& path);

/// Gives a database that nobody has open another name, which is free. Throws `HostError` when that cannot be done
/// without losing a part of it.
void RenameProjectFile(const QString& path, const QString& name);

/// A file that is made empty, and taken away again unless it is kept.
class NewFile
{
public:
    /// Throws `HostError` when there is something of that name, or it cannot be made.
    explicit NewFile(const QString& path);
    ~NewFile();
    Q_DISABLE_COPY_MOVE(NewFile)

    void Keep() { m_kept = true; }

private:
    QString m_path;
    bool m_kept = false;
};

} // namespace schedules::host
