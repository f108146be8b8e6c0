#include "host/project/Database.h"

#include "host/project/DatabaseError.h"

#include <QLoggingCategory>
#include <QSqlError>
#include <QStringList>
#include <QUuid>

namespace schedules::host {

namespace {

Q_LOGGING_CATEGORY(kStatements, "schedhost.statements", QtInfoMsg)

QSqlDatabase NewConnection(const ProjectAddress& address)
{
    const QString driver = address.OnServer() ? QStringLiteral("QPSQL") : QStringLiteral("QSQLITE");
    if (!QSqlDatabase::isDriverAvailable(driver))
        throw HostError(QStringLiteral("%1: Qt's database driver %2 is not installed").arg(address.Text(), driver));
    return QSqlDatabase::addDatabase(driver, QUuid::createUuid().toString());
}

/// A path alone would make a file that is not there.
void NameFile(QSqlDatabase& connection, const QString& path, Database::Access access)
{
    connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=3000"));
    connection.setDatabaseName(
        QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded) +
        (access == Database::Access::Looking ? QStringLiteral("?immutable=1") : QStringLiteral("?mode=rw")));
}

void NameServer(QSqlDatabase& connection, const ProjectAddress& address)
{
    const QUrl& url = address.Url();
    connection.setHostName(url.host(QUrl::FullyDecoded));
    connection.setPort(url.port());
    connection.setDatabaseName(address.Name());
    connection.setUserName(url.userName(QUrl::FullyDecoded));
    connection.setPassword(url.password(QUrl::FullyDecoded));
    connection.setConnectOptions(
        QStringLiteral("connect_timeout=10;tcp_user_timeout=30000;application_name=equipment-schedules"));
}

QStringList Settings(bool onServer)
{
    if (onServer)
        return {QStringLiteral("SET client_min_messages = error"), QStringLiteral("SET lock_timeout = 3000")};
    return {QStringLiteral("PRAGMA foreign_keys = ON"), QStringLiteral("PRAGMA synchronous = FULL")};
}

/// Null texts are empty ones: a driver would take them for values that are missing.
QVariant Bound(const QVariant& value, const ProjectAddress& address)
{
    if (value.typeId() != QMetaType::QString)
        return value;
    const QString text = value.toString();
    if (text.contains(QChar(0)) || !text.isValidUtf16())
        throw HostError(QStringLiteral("%1: a text holds something that is no character").arg(address.Text()));
    return text.isNull() ? QVariant(QStringLiteral("")) : value;
}

bool Executed(QSqlQuery& query, const QString& statement, const QVariantList& values)
{
    if (values.isEmpty())
        return query.exec(statement);
    if (!query.prepare(statement))
        return false;
    for (const QVariant& value : values)
        query.addBindValue(value);
    return query.exec();
}

} // namespace

Database::Database(const ProjectAddress& address, Access access)
    : m_address(address), m_connection(NewConnection(address))
{
    if (address.OnServer())
        NameServer(m_connection, address);
    else
        NameFile(m_connection, address.File(), access);
    Connect();
}

Database::~Database()
{
    RollBack();
    const QString name = m_connection.connectionName();
    m_connection.close();
    m_connection = {};
    QSqlDatabase::removeDatabase(name);
}

void Database::Connect()
{
    m_connection.close();
    if (!m_connection.open())
        ThrowOpeningError(m_address, m_connection.lastError());
    for (const QString& setting : Settings(m_address.OnServer()))
        Run(setting);
}

void Database::Run(const QString& statement, const QVariantList& values, const RowStep& step)
{
    qCDebug(kStatements).noquote() << statement;
    QVariantList bound;
    for (const QVariant& value : values)
        bound.append(Bound(value, m_address));
    QSqlQuery query(m_connection);
    query.setForwardOnly(!m_address.OnServer());
    if (!Executed(query, statement, bound))
        Fail(query);
    while (step && query.next())
        step(query);
    if (query.lastError().isValid())
        Fail(query);
}

QString Database::Text(const QString& statement, const QVariantList& values)
{
    QString text;
    Run(statement, values, [&](const QSqlQuery& row) { text = text.isNull() ? row.value(0).toString() : text; });
    return text;
}

void Database::Begin(const QString& statement)
{
    // A server may have been away since the last transaction. Nothing was begun, so nothing is lost.
    if (!m_connection.isOpen() || (m_address.OnServer() && !Answers()))
        Connect();
    Run(statement);
    m_inTransaction = true;
}

bool Database::Answers()
{
    return QSqlQuery(m_connection).exec(QStringLiteral("SELECT 1"));
}

void Database::Commit()
{
    Run(QStringLiteral("COMMIT"));
    m_inTransaction = false;
}

void Database::RollBack() noexcept
{
    if (m_inTransaction && m_connection.isOpen())
        QSqlQuery(m_connection).exec(QStringLiteral("ROLLBACK"));
    m_inTransaction = false;
}

void Database::Fail(const QSqlQuery& query)
{
    const HostError told =
        m_connection.isOpen() ? DatabaseError(m_address, query.lastError()) : LostConnection(m_address);
    // Now and not with the guard: a server does not free the statements of a transaction that has failed.
    RollBack();
    throw told;
}

QString Listed(const QString& text, qsizetype count)
{
    return QStringList(count, text).join(QStringLiteral(", "));
}

} // namespace schedules::host
