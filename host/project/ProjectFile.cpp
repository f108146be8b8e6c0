#include "host/project/ProjectFile.h"

#include "host/HostError.h"
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
    if (m_kept)
        return;
    for (const char* ending : {"", "-journal", "-wal", "-shm"})
        QFile::remove(m_path + QLatin1String(ending));
}

} // namespace schedules::host
