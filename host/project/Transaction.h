#pragma once

#include "host/project/Database.h"

#include <type_traits>

namespace schedules::host {

/// A transaction, which is rolled back when this ends before it is committed.
class Transaction
{
public:
    enum class Purpose
    {
        Reading, ///< sees one state of the database throughout
        Writing  ///< there is one at a time, in whatever program; others wait for some seconds
    };

    /// Begins; connects anew when the connection was lost since the last one. Throws `HostError`.
    Transaction(Database& database, Purpose purpose);
    ~Transaction() { m_database.RollBack(); }
    Q_DISABLE_COPY_MOVE(Transaction)

    /// Throws `HostError`; all is as it was then, unless a server was lost that very moment.
    void Commit() { m_database.Commit(); }

private:
    Database& m_database;
};

/// What `step` returns, who reads one state of the database: that of the transaction which is open, if there is one.
template <typename Step>
auto Reading(Database& database, Step step)
{
    if (database.InTransaction())
        return step();
    const Transaction transaction(database, Transaction::Purpose::Reading);
    return step();
}

/// What `step` returns, whose changes are there as a whole then. There are none when it throws.
template <typename Step>
auto Writing(Database& database, Step step)
{
    Transaction transaction(database, Transaction::Purpose::Writing);
    if constexpr (std::is_void_v<decltype(step())>) {
        step();
        transaction.Commit();
    } else {
        auto result = step();
        transaction.Commit();
        return result;
    }
}

} // namespace schedules::host
