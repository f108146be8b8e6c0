#include "host/import/TagRows.h"

#include "host/import/ByName.h"
#include "host/import/Headings.h"
#include "host/schedule/NumberText.h"
#include "host/schedule/Units.h"

#include <optional>

namespace schedules::host {

namespace {

constexpr qsizetype kLongestValue = 32767;

/// A column of values: of which item, and in which unit.
struct ItemColumn
{
    qsizetype column = 0;
    DataItem item;
    QString unit;
};

/// A heading such as "PUMPS/Design/Flow [gpm]".
struct ItemHeading
{
    explicit ItemHeading(const QString& heading)
    {
        const QString text = heading.trimmed();
        const qsizetype bracket = text.endsWith(u']') ? text.lastIndexOf(u'[') : -1;
        location = bracket < 0 ? text : text.left(bracket).trimmed();
        if (bracket >= 0)
            unit = text.mid(bracket + 1).chopped(1).trimmed();
    }

    QString location;
    QString unit;
};

class TagRowReader
{
public:
    TagRowReader(const CsvTable& table, const Project& project, TableErrors& errors)
        : m_errors(errors),
          m_tags(ByName(project.Tags(), &Tag::name)),
          m_categories(ByName(project.Categories(), &Category::name)),
          m_names(errors)
    {
        ReadHeadings(table, ByName(project.Items(), &DataItem::location));
    }

    void ReadRow(const CsvRow& row)
    {
        const auto name = NameIn(row[m_tagColumn], kTagHeading, m_errors);
        if (!name || !m_names.IsNew(*name))
            return;
        const Tag tag = TagOf(*name, row);
        m_content.tags.push_back(tag);
        for (const ItemColumn& column : m_columns)
            ReadValue(tag, column, row[column.column]);
    }

    const Project::Content& Content() const { return m_content; }

private:
    void ReadHeadings(const CsvTable& table, const QHash<QString, DataItem>& items)
    {
        NamesSeen seen(m_errors);
        for (qsizetype column = 0; column < table.Headings().size(); ++column) {
            const CsvField& heading = table.Headings()[column];
            const ItemHeading read(heading.text);
            if (!seen.IsNew({read.location, heading.place}))
                continue;
            const QString key = NameKey(read.location);
            if (key == kTagHeading)
                m_tagColumn = column;
            else if (key == kCategoryHeading)
                m_categoryColumn = column;
            else
                AddItemColumn(column, heading, read, items);
        }
        if (!m_categoryColumn)
            m_errors.Add(table.Headings().front().place, QStringLiteral("the column category is missing"));
    }

    void AddItemColumn(qsizetype column, const CsvField& heading, const ItemHeading& read,
                       const QHash<QString, DataItem>& items)
    {
        const auto item = items.constFind(NameKey(read.location));
        if (item == items.cend())
            m_errors.Add(heading.place, QStringLiteral("there is no data item \"%1\"").arg(read.location));
        else if (!read.unit.isEmpty() && read.unit != item->unit && !ConversionBetween(read.unit, item->unit))
            m_errors.Add(heading.place, item->unit.isEmpty()
                                            ? QStringLiteral("%1 has no unit").arg(item->location)
                                            : QStringLiteral("%1 is in %2, to which %3 cannot be converted")
                                                  .arg(item->location, item->unit, read.unit));
        else
            m_columns.push_back({column, *item, read.unit.isEmpty() ? item->unit : read.unit});
    }

    Tag TagOf(const CsvField& name, const CsvRow& row)
    {
        const auto known = m_tags.constFind(NameKey(name.text));
        const CsvField field = m_categoryColumn ? row[*m_categoryColumn] : CsvField{};
        const QString category = field.text.trimmed();
        if (known != m_tags.cend()) {
            if (!category.isEmpty() && NameKey(category) != NameKey(known->category))
                m_errors.Add(field.place,
                             QStringLiteral("%1 is in the category %2 already").arg(known->name, known->category));
            return *known;
        }
        if (m_categoryColumn)
            CheckCategory(name, field);
        return {name.text, m_categories.value(NameKey(category)).name};
    }

    void CheckCategory(const CsvField& name, const CsvField& field)
    {
        const QString category = field.text.trimmed();
        if (category.isEmpty())
            m_errors.Add(field.place, QStringLiteral("%1 has no category").arg(name.text));
        else if (!m_categories.contains(NameKey(category)))
            m_errors.Add(field.place, QStringLiteral("there is no category %1").arg(category));
    }

    void ReadValue(const Tag& tag, const ItemColumn& column, const CsvField& field)
    {
        if (field.text.isEmpty())
            return;
        if (const QString wrong = WrongWith(column, field.text); !wrong.isEmpty())
            m_errors.Add(field.place, wrong);
        else
            m_content.values.push_back({tag.name, column.item.location, Stored(column, field.text)});
    }

    static QString WrongWith(const ItemColumn& column, const QString& text)
    {
        if (text.size() > kLongestValue)
            return QStringLiteral("this text has %1 characters, more than %2").arg(text.size()).arg(kLongestValue);
        if (IsCheckBox(column) && !FlagIn(text))
            return QStringLiteral("\"%1\" is no value for a check box, which is 1 or 0").arg(text);
        if (column.unit != column.item.unit && !NumberIn(text))
            return QStringLiteral("\"%1\" is no number, and cannot be converted from %2 to %3")
                .arg(text, column.unit, column.item.unit);
        return {};
    }

    static bool IsCheckBox(const ItemColumn& column) { return column.item.dataType == u"CHECKBOX"; }

    static QString Stored(const ItemColumn& column, const QString& text)
    {
        if (IsCheckBox(column))
            return *FlagIn(text) ? QStringLiteral("1") : QStringLiteral("0");
        return column.unit == column.item.unit ? text : Converted(text, column.unit, column.item.unit);
    }

    TableErrors& m_errors;
    QHash<QString, Tag> m_tags;
    QHash<QString, Category> m_categories;
    NamesSeen m_names;
    qsizetype m_tagColumn = 0;
    std::optional<qsizetype> m_categoryColumn;
    QList<ItemColumn> m_columns;
    Project::Content m_content;
};

} // namespace

Project::Content ReadTagRows(const CsvTable& table, const Project& project, TableErrors& errors)
{
    TagRowReader reader(table, project, errors);
    for (const CsvRow& row : table.Rows())
        reader.ReadRow(row);
    return reader.Content();
}

} // namespace schedules::host
