#include "common/FileReplacement.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace schedules {

namespace {

constexpr int kMostLinks = 40;

[[noreturn]] void ThrowNotWritten(const QString& fileName, const QString& reason, int systemCode = 0)
{
    throw Error(kFileNotWrittenError, QStringLiteral("%1: %2").arg(fileName, reason), {}, systemCode);
}

/// Where a chain of symbolic links ends, whether there is a file or not.
QString Resolved(const QString& fileName)
{
    QString name = fileName;
    for (int links = 0; links < kMostLinks && QFileInfo(name).isSymLink(); ++links)
        name = QFileInfo(name).symLinkTarget();
    return name;
}

/// Only a file can be replaced: a folder, a device or a pipe would be gone afterwards.
void RequireFileOrNothing(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (info.isDir())
        ThrowNotWritten(fileName, QString::fromLocal8Bit(std::strerror(EISDIR)), EISDIR);
    if (info.isSymLink() || (info.exists() && !info.isFile()))
        ThrowNotWritten(fileName, QStringLiteral("Not a regular file"));
}

void RequireNoError(const QFileDevice& file)
{
    if (file.error() != QFileDevice::NoError)
        ThrowNotWritten(file.fileName(), file.errorString());
}

/// File systems that cannot be asked to write at once are content with what they have taken.
bool Synchronized(int handle)
{
    return ::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
}

/// A write that is cut short gives no reason, the one after it does.
bool Flushed(QFileDevice& file)
{
    return file.flush() || file.flush();
}

/// `QSaveFile::commit` of Qt 6.4 succeeds on a full disk, so nothing may be left to it but the renaming.
void Complete(QSaveFile& file)
{
    if (!Flushed(file))
        ThrowNotWritten(file.fileName(), file.errorString());
    RequireNoError(file);
    if (!Synchronized(file.handle()))
        ThrowNotWritten(file.fileName(), QString::fromLocal8Bit(std::strerror(errno)), errno);
    if (!file.commit())
        ThrowNotWritten(file.fileName(), file.errorString());
}

} // namespace

void ReplaceFile(const QString& fileName, const std::function<void(QFileDevice&)>& write)
{
    const QString target = Resolved(fileName);
    RequireFileOrNothing(target);
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        ThrowNotWritten(target, file.errorString());
    write(file);
    Complete(file);
}

void ReplaceFile(const QString& fileName, const QByteArray& content)
{
    ReplaceFile(fileName, [&](QFileDevice& device) { WriteAll(device, content); });
}

void WriteAll(QFileDevice& device, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qint64 written = device.write(bytes.data(), bytes.size());
        if (written <= 0) {
            Flushed(device);
            ThrowNotWritten(device.fileName(), device.errorString());
        }
        bytes = bytes.sliced(written);
    }
}

} // namespace schedules
