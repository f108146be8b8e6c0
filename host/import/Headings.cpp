#include "host/import/Headings.h"

#include "host/project/NamedRows.h"

#include <algorithm>

namespace schedules::host {

namespace {

constexpr qsizetype kLongestName = 255;

QString KeyOf(const CsvField& field)
{
    return NameKey(field.text.trimmed());
}

} // namespace

bool HasHeading(const CsvTable& table, const QString& name)
{
    return std::ranges::any_of(table.Headings(), [&](const CsvField& heading) { return KeyOf(heading) == name; });
}

Headings::Headings(const CsvTable& table, const QStringList& known, TableErrors& errors)
{
    NamesSeen seen(errors);
    for (qsizetype column = 0; column < table.Headings().size(); ++column) {
        const CsvField& heading = table.Headings()[column];
        if (!known.contains(KeyOf(heading)))
            errors.Add(heading.place, QStringLiteral("there is no column \"%1\" in such a table, which has %2")
                                          .arg(heading.text.trimmed(), known.join(QStringLiteral(", "))));
        else if (seen.IsNew(heading))
            m_columns.insert(KeyOf(heading), column);
    }
}

std::optional<CsvField> Headings::Field(const CsvRow& row, const QString& name) const
{
    const auto column = m_columns.constFind(name);
    if (column == m_columns.cend())
        return std::nullopt;
    const CsvField& field = row[*column];
    return field.text.trimmed().isEmpty() ? std::nullopt : std::optional(field);
}

bool NamesSeen::IsNew(const CsvField& name)
{
    const QString key = KeyOf(name);
    const auto seen = m_lines.constFind(key);
    if (seen == m_lines.cend()) {
        m_lines.insert(key, name.place.line);
        return true;
    }
    m_errors.Add(name.place, QStringLiteral("%1 is in line %2 already").arg(name.text.trimmed()).arg(*seen));
    return false;
}

std::optional<CsvField> NameIn(const CsvField& field, const QString& what, TableErrors& errors)
{
    const QString name = field.text.trimmed();
    if (!name.isEmpty() && name.size() <= kLongestName)
        return CsvField{name, field.place};
    errors.Add(
        field.place,
        name.isEmpty()
            ? QStringLiteral("the %1 is empty").arg(what)
            : QStringLiteral("the %1 has %2 characters, more than %3").arg(what).arg(name.size()).arg(kLongestName));
    return std::nullopt;
}

std::optional<bool> FlagIn(const QString& text)
{
    const QString flag = text.trimmed().toCaseFolded();
    if (flag == u"1" || flag == u"-1" || flag == u"true")
        return true;
    return flag == u"0" || flag == u"false" ? std::optional(false) : std::nullopt;
}

} // namespace schedules::host
