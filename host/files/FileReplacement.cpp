#include "host/files/FileReplacement.h"

#include "common/FileReplacement.h"
#include "host/base/HostError.h"

#include <QFile>
#include <QFileInfo>

namespace schedules::host {

namespace {

bool IsDevice(const QString& fileName)
{
    const QFileInfo info(fileName);
    return info.exists() && !info.isFile() && !info.isDir();
}

/// Without a buffer, so that a full device tells of it here.
void WriteToDevice(const QString& fileName, const QByteArray& content)
{
    QFile device(fileName);
    if (!device.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || device.write(content) != content.size())
        throw HostError(QStringLiteral("cannot write %1: %2").arg(fileName, device.errorString()));
}

} // namespace

void ReplaceFile(const QString& fileName, const QByteArray& content)
{
    if (IsDevice(fileName))
        return WriteToDevice(fileName, content);
    try {
        schedules::ReplaceFile(fileName, content);
    } catch (const Error& error) {
        throw HostError(QStringLiteral("cannot write %1").arg(error.Description()));
    }
}

} // namespace schedules::host
