#include "host/MessageFile.h"

#include "host/HostError.h"

namespace schedules::host {

MessageFile::MessageFile(const QString& fileName) : m_file(fileName)
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append))
        throw HostError(QStringLiteral("cannot write %1: %2").arg(fileName, m_file.errorString()));
}

void MessageFile::Append(const Crossing& crossing)
{
    m_file.write(LogLine(crossing).toUtf8() + '\n');
    m_file.flush();
}

} // namespace schedules::host
