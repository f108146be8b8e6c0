#include "host/project/Transaction.h"

namespace schedules::host {

namespace {

/// Any number that the programs agree upon; it holds within one database.
constexpr int kWriterLock = 1;

QString FileBeginning(Transaction::Purpose purpose)
{
    return purpose == Transaction::Purpose::Writing ? QStringLiteral("BEGIN IMMEDIATE") : QStringLiteral("BEGIN");
}

QString ServerBeginning(Transaction::Purpose purpose)
{
    return purpose == Transaction::Purpose::Writing ? QStringLiteral("BEGIN ISOLATION LEVEL READ COMMITTED READ WRITE")
                                                    : QStringLiteral("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY");
}

} // namespace

Transaction::Transaction(Database& database, Purpose purpose) : m_database(database)
{
    const bool onServer = database.Address().OnServer();
    database.Begin(onServer ? ServerBeginning(purpose) : FileBeginning(purpose));
    // Writers go one after the other on a server as in a file. What follows sees all that earlier ones have committed.
    if (onServer && purpose == Purpose::Writing)
        database.Run(QStringLiteral("SELECT pg_advisory_xact_lock(%1)").arg(kWriterLock));
}

} // namespace schedules::host
