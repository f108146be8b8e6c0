#include "host/files/FileReplacement.h"

#include "host/base/HostError.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <unistd.h>

namespace schedules::host {

namespace {

[[noreturn]] void Fail(const QString& fileName, const QFileDevice& file)
{
    throw HostError(QStringLiteral("cannot write %1: %2").arg(fileName, file.errorString()));
}

/// Without a buffer, so that all of the content has left the program when this returns: a file that is committed does
/// not tell of a full disk. Such a disk takes a part first, and says why with the rest.
void WriteAll(QFileDevice& file, const QString& fileName, QByteArrayView content)
{
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        Fail(fileName, file);
    while (!content.isEmpty()) {
        const qint64 written = file.write(content.data(), content.size());
        if (written <= 0)
            Fail(fileName, file);
        content = content.sliced(written);
    }
    if (!file.flush() || file.error() != QFileDevice::NoError)
        Fail(fileName, file);
}

/// File systems that cannot be asked to write at once are content with what they have taken.
bool Synchronized(int handle)
{
    return ::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool IsDevice(const QString& fileName)
{
    const QFileInfo info(fileName);
    return info.exists() && !info.isFile() && !info.isDir();
}

} // namespace

void ReplaceFile(const QString& fileName, const QByteArray& content)
{
    if (IsDevice(fileName)) {
        QFile device(fileName);
        return WriteAll(device, fileName, content);
    }
    QSaveFile file(fileName);
    WriteAll(file, fileName, content);
    if (!Synchronized(file.handle()))
        throw HostError(QStringLiteral("cannot write %1: %2").arg(fileName, qt_error_string(errno)));
    if (!file.commit())
        Fail(fileName, file);
}

} // namespace schedules::host
