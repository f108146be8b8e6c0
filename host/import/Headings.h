#pragma once

#include "host/import/CsvTable.h"

#include <QHash>

#include <optional>

namespace schedules::host {

inline const QString kTagHeading = QStringLiteral("tag");
inline const QString kCategoryHeading = QStringLiteral("category");
inline const QString kLocationHeading = QStringLiteral("location");
inline const QString kNameHeading = QStringLiteral("name");

/// Whether a table has a column of that name. Letter case and blanks around it do not count, here as below.
bool HasHeading(const CsvTable& table, const QString& name);

/// The columns of a table in which each is known by its name.
class Headings
{
public:
    /// Headings that are not among the known names, and those that come twice, are errors.
    Headings(const CsvTable& table, const QStringList& known, TableErrors& errors);

    /// The field of a row below a heading; nothing when there is no such column, or the field is blank.
    std::optional<CsvField> Field(const CsvRow& row, const QString& name) const;

private:
    QHash<QString, qsizetype> m_columns;
};

/// Tells names that come twice in a table.
class NamesSeen
{
public:
    explicit NamesSeen(TableErrors& errors) : m_errors(errors) {}

    /// Gives whether the name is new; otherwise it is an error, which says in which line it was.
    bool IsNew(const CsvField& name);

private:
    QHash<QString, int> m_lines;
    TableErrors& m_errors;
};

/// The text of a field without blanks around it. One that is empty, or longer than a name should be, is an error and
/// gives nothing. `what` says what it is the name of.
std::optional<CsvField> NameIn(const CsvField& field, const QString& what, TableErrors& errors);

/// What a flag says: "1", "-1" and "true", or "0" and "false", in any letter case. Nothing for any other text.
std::optional<bool> FlagIn(const QString& text);

} // namespace schedules::host
