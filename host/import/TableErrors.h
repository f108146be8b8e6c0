#pragma once

#include <QList>
#include <QString>

namespace schedules::host {

/// A place in a text file: the line and the character in it, both from 1.
struct TablePlace
{
    int line = 1;
    int column = 1;

    auto operator<=>(const TablePlace&) const = default;
};

/// What is wrong with a table, of which a user is told all that there is at once.
class TableErrors
{
public:
    void Add(TablePlace place, const QString& what) { m_errors.push_back({place, what}); }

    bool IsEmpty() const { return m_errors.isEmpty(); }

    /// Throws `HostError` when there are any: a line for each such as "tags.csv:17:5: there is no category PUMPZ", in
    /// the order of their places; after twenty the number of further ones.
    void ThrowIfAny(const QString& fileName) const;

private:
    struct Error
    {
        TablePlace place;
        QString what;
    };

    QList<Error> m_errors;
};

} // namespace schedules::host
