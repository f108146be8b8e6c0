#pragma once

#include "host/project/ProjectAddress.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <functional>

namespace schedules::host {

/// A connection to the database of a project, a file's or a server's, which ends with this. Both are told the same
/// statements. All methods throw `HostError` in one line; the transaction that was open is rolled back then.
class Database
{
public:
    enum class Access
    {
        Changing,
        Looking ///< at a file as it stands: whatever program's it is, nothing of it or beside it is touched
    };

    /// Connects. A file must be there.
    explicit Database(const ProjectAddress& address, Access access = Access::Changing);
    ~Database();
    Q_DISABLE_COPY_MOVE(Database)

    const ProjectAddress& Address() const { return m_address; }

    bool InTransaction() const { return m_inTransaction; }

    using RowStep = std::function<void(const QSqlQuery& row)>;

    /// Runs a statement with values for its question marks, and hands each row of its answer to `step`. Throws as well
    /// for a text that holds a null character or half a surrogate pair: not every database can store it. With
    /// QT_LOGGING_RULES="schedhost.statements.debug=true" each statement is a line of trace.
    void Run(const QString& statement, const QVariantList& values = {}, const RowStep& step = {});

    /// The first value of the first row; empty when there is none.
    QString Text(const QString& statement, const QVariantList& values = {});

private:
    friend class Transaction;

    void Connect();
    void Begin(const QString& statement);
    bool Answers();
    void Commit();
    void RollBack() noexcept;
    [[noreturn]] void Fail(const QSqlQuery& query);

    ProjectAddress m_address;
    QSqlDatabase m_connection;
    bool m_inTransaction = false;
};

/// How many values, or rows of values, are given to one statement.
constexpr qsizetype kPart = 500;

/// Calls `step` with some of the members at a time, as many as one statement takes.
template <typename T, typename Step>
void InParts(const QList<T>& all, Step step)
{
    for (qsizetype first = 0; first < all.size(); first += kPart)
        step(all.sliced(first, qMin(kPart, all.size() - first)));
}

/// A text so many times, with commas between.
QString Listed(const QString& text, qsizetype count);

} // namespace schedules::host
