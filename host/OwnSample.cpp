#include "host/OwnSample.h"

#include "host/DataFolder.h"
#include "host/HostError.h"
#include "host/XmlFile.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace schedules::host {

QString OwnSample()
{
    const QString name = QStringLiteral("pumps.xml");
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    const QString own = folder.filePath(name);
    if (QFile::exists(own))
        return own;
    if (!folder.mkpath(QStringLiteral(".")))
        throw HostError(QStringLiteral("cannot make the folder %1").arg(folder.path()));
    WriteXmlFile(own, ReadXmlFile(QDir(DataFolder(QStringLiteral("samples"))).filePath(name)));
    return own;
}

} // namespace schedules::host
