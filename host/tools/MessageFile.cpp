#include "host/tools/MessageFile.h"

#include "host/base/HostError.h"

namespace schedules::host {

MessageFile::MessageFile(const QString& fileName) : m_file(fileName)
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append))
        throw HostError(QStringLiteral("cannot write %1: %2").arg(fileName, m_file.errorString()));
}

void MessageFile::Append(const Crossing& crossing)
{
    const QByteArray line = LogLine(crossing).toUtf8() + '\n';
    if (m_file.write(line) != line.size() || !m_file.flush())
        m_failure = m_file.errorString();
}

void MessageFile::RequireComplete() const
{
    if (m_failure)
        throw HostError(QStringLiteral("cannot write %1: %2").arg(m_file.fileName(), *m_failure));
}

} // namespace schedules::host
