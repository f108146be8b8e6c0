#include "host/project/ProjectAddress.h"

#include "host/base/HostError.h"
#include "host/project/ProjectFile.h"

#include <QDir>
#include <QFileInfo>

namespace schedules::host {

namespace {

bool NamesServer(const QString& text)
{
    return text.startsWith(QLatin1String("postgresql://"), Qt::CaseInsensitive);
}

/// The text is not told again when it is wrong, since a password may be anywhere in it.
QUrl ServerUrl(const QString& text)
{
    const QUrl url(text, QUrl::TolerantMode);
    if (!url.isValid() || url.host().isEmpty() || url.path().size() < 2 || url.hasQuery() || url.hasFragment())
        throw HostError(QStringLiteral("the address of a project on a server is postgresql://user@host:port/database"));
    return url;
}

} // namespace

ProjectAddress::ProjectAddress(const QString& text)
{
    if (text.isEmpty())
        throw HostError(QStringLiteral("no project is named"));
    if (NamesServer(text))
        m_url = ServerUrl(text);
    else
        m_file = QDir::cleanPath(QFileInfo(text).absoluteFilePath());
}

QString ProjectAddress::Text() const
{
    return OnServer() ? m_url.toString(QUrl::RemovePassword) : m_file;
}

QString ProjectAddress::Name() const
{
    return OnServer() ? m_url.path(QUrl::FullyDecoded).mid(1) : QFileInfo(m_file).fileName();
}

QString WithPassword(const QString& address, const QString& password)
{
    QUrl url(address);
    url.setPassword(password);
    return url.toString(QUrl::FullyEncoded);
}

bool NamesProject(const QString& text)
{
    return NamesServer(text) || text.endsWith(QLatin1String(".schedules"), Qt::CaseInsensitive) ||
           BeginsAsDatabase(text);
}

} // namespace schedules::host
