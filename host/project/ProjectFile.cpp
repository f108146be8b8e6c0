#include "host/project/ProjectFile.h"

#include "host/base/HostError.h"
#include "host/project/Database.h"

#include <QFile>
#include <QFileInfo>

namespace schedules::host {

bool BeginsAsDatabase(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return false;
    try {
        Database file{ProjectAddress(path), Database::Access::Looking};
        return file.Text(QStringLiteral("PRAGMA page_count")).toInt() > 0;
    } catch (const HostError&) {
        return false;
    }
}

void RequireProjectFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        throw HostError(QStringLiteral("there is no project %1").arg(path));
    const HostError noProject(QStringLiteral("%1 is no project of equipment schedules").arg(path));
    if (!info.isFile())
        throw noProject;
    Database file{ProjectAddress(path), Database::Access::Looking};
    if (file.Text(QStringLiteral("PRAGMA application_id")).toUInt() != kProjectFileMark)
        throw noProject;
    // A program that was killed may have left a page in part; its journal has that page whole then.
    const bool isWhole = info.size() % file.Text(QStringLiteral("PRAGMA page_size")).toLongLong() == 0;
    if (!isWhole && !QFileInfo::exists(path + QStringLiteral("-wal")))
        throw HostError(QStringLiteral("%1 is damaged").arg(path));
}

void RemoveProjectFile(const QString& path)
{
    for (const char* ending : {"", "-journal", "-wal", "-shm"})
        QFile::remove(path + QLatin1String(ending));
}

void RenameProjectFile(const QString& path, const QString& name)
{
    // On a disk that is full what was stored last stays in the journal, which belongs to the name.
    if (QFileInfo::exists(path + QStringLiteral("-wal")) || !QFile::rename(path, name))
        throw HostError(QStringLiteral("cannot make %1").arg(name));
}

NewFile::NewFile(const QString& path) : m_path(path)
{
    if (QFileInfo::exists(path))
        throw HostError(QStringLiteral("there is a file %1 already").arg(path));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw HostError(QStringLiteral("cannot make %1: %2").arg(path, file.errorString()));
}

NewFile::~NewFile()
{
    if (!m_kept)
        RemoveProjectFile(m_path);
}

} // namespace schedules::host
