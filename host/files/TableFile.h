#pragma once

#include <QString>

namespace schedules::host {

/// A file with a table, as this host has last read or written it.
class TableFile
{
public:
    /// Throws `HostError` when the file cannot be read.
    explicit TableFile(const QString& fileName);

    const QString& Name() const { return m_name; }

    /// The name without its folder.
    QString ShortName() const;

    const QString& Xml() const { return m_xml; }

    /// Replaces the table by a changed one. Gives the number of cells with changes that the file did not have. Throws
    /// `HostError`; the file is then as it was.
    int Save(const QString& xml);

private:
    QString m_name;
    QString m_xml;
};

} // namespace schedules::host
