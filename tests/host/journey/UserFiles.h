#pragma once

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace schedules::host::testing {

/// A folder for all that a user of the program has: projects, settings, and his own files. Windows of this process
/// take it for his.
class UserFiles
{
public:
    UserFiles()
    {
        QCoreApplication::setApplicationName(QStringLiteral("schedhost"));
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        for (const auto format : {QSettings::IniFormat, QSettings::NativeFormat})
            QSettings::setPath(format, QSettings::UserScope, Path(QStringLiteral("config")));
        BeAt(Home(QStringLiteral("data")));
        MakeRuntimeFolder();
    }

    QString Path(const QString& name) const { return m_folder.filePath(name); }

    /// Where a user has his own files.
    QString Home(const QString& user) const { return Path(user); }
    static void BeAt(const QString& home) { qputenv("XDG_DATA_HOME", home.toLocal8Bit()); }

private:
    /// Which the toolkit wants to be closed to others.
    void MakeRuntimeFolder() const
    {
        const QByteArray path = Path(QStringLiteral("runtime")).toLocal8Bit();
        ::mkdir(path.constData(), 0700);
        qputenv("XDG_RUNTIME_DIR", path);
    }

    QTemporaryDir m_folder;
};

} // namespace schedules::host::testing
