#include "host/files/InputFiles.h"

#include "host/base/HostError.h"

#include <QFileInfo>

namespace schedules::host {

void KeepInputs(const QStringList& inputs, const QStringList& outputs)
{
    for (const QString& input : inputs) {
        const QString path = QFileInfo(input).canonicalFilePath();
        for (const QString& output : outputs) {
            if (!path.isEmpty() && QFileInfo(output).canonicalFilePath() == path)
                throw HostError(QStringLiteral("%1 is the file to be read, and is not written").arg(output));
        }
    }
}

} // namespace schedules::host
