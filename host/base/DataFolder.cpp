#include "host/base/DataFolder.h"

#include <QCoreApplication>
#include <QDir>

namespace schedules::host {

QString DataFolder(const QString& kind)
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QString beside = program.filePath(kind);
    const QString installed = program.filePath(QStringLiteral("../share/schedules/") + kind);
    return !QDir(beside).exists() && QDir(installed).exists() ? QDir::cleanPath(installed) : beside;
}

} // namespace schedules::host
