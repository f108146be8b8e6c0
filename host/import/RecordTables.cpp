#include "host/import/RecordTables.h"

#include "host/import/ByName.h"
#include "host/import/Headings.h"

namespace schedules::host {

namespace {

const QStringList kDataTypes{QStringLiteral("TEXT"),    QStringLiteral("INTEGER"), QStringLiteral("LONG"),
                             QStringLiteral("SINGLE"),  QStringLiteral("DOUBLE"),  QStringLiteral("CURRENCY"),
                             QStringLiteral("CHECKBOX")};

/// Reads the fields of one row over what is known already.
class RowReader
{
public:
    RowReader(const Headings& headings, const CsvRow& row, TableErrors& errors)
        : m_headings(headings), m_row(row), m_errors(errors)
    {
    }

    void Text(const QString& heading, QString& text) const
    {
        const auto field = m_headings.Field(m_row, heading);
        const auto name = field ? NameIn(*field, heading, m_errors) : std::nullopt;
        if (name)
            text = name->text;
    }

    void Flag(const QString& heading, bool& flag) const
    {
        const auto field = m_headings.Field(m_row, heading);
        if (!field)
            return;
        const auto read = FlagIn(field->text);
        if (!read)
            m_errors.Add(field->place, QStringLiteral("\"%1\" is no flag, which is 1 or 0").arg(field->text.trimmed()));
        flag = read.value_or(flag);
    }

    void DataType(const QString& heading, QString& type) const
    {
        const auto field = m_headings.Field(m_row, heading);
        if (!field)
            return;
        type = field->text.trimmed().toUpper();
        if (!kDataTypes.contains(type))
            m_errors.Add(field->place, QStringLiteral("there is no data type %1, but %2")
                                           .arg(field->text.trimmed(), kDataTypes.join(QStringLiteral(", "))));
    }

private:
    const Headings& m_headings;
    const CsvRow& m_row;
    TableErrors& m_errors;
};

/// Calls `read` with each row's name and fields, but for rows whose name is empty, too long or taken.
template <typename Read>
void ReadRows(const CsvTable& table, const QStringList& known, TableErrors& errors, Read read)
{
    const Headings headings(table, known, errors);
    NamesSeen seen(errors);
    for (const CsvRow& row : table.Rows()) {
        const auto name =
            NameIn(headings.Field(row, known.front()).value_or(CsvField{{}, row.front().place}), known.front(), errors);
        if (name && seen.IsNew(*name))
            read(name->text, RowReader(headings, row, errors));
    }
}

} // namespace

Project::Content ReadCategoryTable(const CsvTable& table, const Project& project, TableErrors& errors)
{
    static const QStringList kHeadings{kNameHeading, QStringLiteral("displayname"), QStringLiteral("pdsg")};
    const auto known = ByName(project.Categories(), &Category::name);
    Project::Content content;
    ReadRows(table, kHeadings, errors, [&](const QString& name, const RowReader& row) {
        Category category = known.value(NameKey(name), Category{name, name, {}});
        row.Text(kHeadings[1], category.displayName);
        row.Text(kHeadings[2], category.pdsg);
        content.categories.push_back(category);
    });
    return content;
}

Project::Content ReadItemTable(const CsvTable& table, const Project& project, TableErrors& errors)
{
    static const QStringList kHeadings{kLocationHeading,
                                       kNameHeading,
                                       QStringLiteral("group"),
                                       QStringLiteral("datatype"),
                                       QStringLiteral("unit"),
                                       QStringLiteral("editable"),
                                       QStringLiteral("userdefined")};
    const auto known = ByName(project.Items(), &DataItem::location);
    Project::Content content;
    ReadRows(table, kHeadings, errors, [&](const QString& location, const RowReader& row) {
        const DataItem made{location, location.section(u'/', -1), {}, kDataTypes.front(), {}};
        DataItem item = known.value(NameKey(location), made);
        row.Text(kHeadings[1], item.name);
        row.Text(kHeadings[2], item.group);
        row.DataType(kHeadings[3], item.dataType);
        row.Text(kHeadings[4], item.unit);
        row.Flag(kHeadings[5], item.editable);
        row.Flag(kHeadings[6], item.userDefined);
        content.items.push_back(item);
    });
    return content;
}

} // namespace schedules::host
