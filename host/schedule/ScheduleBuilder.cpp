#include "host/schedule/ScheduleBuilder.h"

#include "host/schedule/ItemCells.h"
#include "host/schedule/TableText.h"
#include "model/CProperties.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <optional>
#include <vector>

namespace schedules::host {

namespace {

/// Calls with each item that a group shows.
template <class Call>
void ForEachShown(const GroupLayout& group, Call&& call)
{
    for (const ItemLayout& item : group.items) {
        if (item.shown)
            call(item);
    }
}

bool IsShown(const GroupLayout& group)
{
    return group.shown && std::ranges::any_of(group.items, &ItemLayout::shown);
}

/// What a template shows, in its order: the heading of a group, or a data item.
struct Entry
{
    QString header; ///< its header cell
    QString color;
    std::optional<ItemCells> cells; ///< nothing for a heading, and for an item that nobody knows
};

Entry Heading(const GroupLayout& group)
{
    const QString bold = group.bold ? AttributeText(QLatin1String("fontBold"), kTrue) : QString();
    return {HeaderCell(bold, group.caption), group.color, std::nullopt};
}

QString ItemHeader(const ItemLayout& layout, const QString& unit)
{
    const QString attributes = AttributeText(kItemAttribute, layout.location) + AttributeText(kUnitAttribute, unit) +
                               AttributeText(kFormatAttribute, layout.format);
    return HeaderCell(attributes, CaptionWithUnit(layout.caption, layout.unitShown ? unit : QString()));
}

/// Finds what is known of the items of a template.
class Entries
{
public:
    Entries(const TemplateLayout& layout, const ScheduleContent& content) : m_layout(layout), m_content(content)
    {
        for (qsizetype index = content.items.size() - 1; index >= 0; --index)
            m_indexes.insert(FoldedKey(content.items[index].location), index);
    }

    std::vector<Entry> Made() const
    {
        std::vector<Entry> entries;
        for (const GroupLayout& group : m_layout.groups) {
            if (!IsShown(group))
                continue;
            if (group.nameShown)
                entries.push_back(Heading(group));
            ForEachShown(group, [&](const ItemLayout& item) { entries.push_back(EntryOf(item)); });
        }
        return entries;
    }

private:
    Entry EntryOf(const ItemLayout& layout) const
    {
        const auto found = m_indexes.find(FoldedKey(layout.location));
        if (found == m_indexes.end())
            return {ItemHeader(layout, layout.unit), {}, std::nullopt};
        const ItemCells cells(layout, m_content.items[*found], ValuesOf(*found), m_layout.editable);
        return {ItemHeader(layout, cells.Unit()), {}, cells};
    }

    const QList<StoredValue>& ValuesOf(qsizetype item) const
    {
        static const QList<StoredValue> kNone;
        return item < m_content.values.size() ? m_content.values[item] : kNone;
    }

    const TemplateLayout& m_layout;
    const ScheduleContent& m_content;
    QHash<QString, qsizetype> m_indexes;
};

/// Writes the table. What colours an entry stands on the header cell of the tag with the same number, since a view
/// takes it from there; where there are more entries than tags, header cells without a tag go on beyond the table,
/// which no view shows.
class TableWriter
{
public:
    TableWriter(const std::vector<Entry>& entries, const QList<Tag>& tags) : m_entries(entries), m_tags(tags)
    {
        constexpr qsizetype kUsualCell = 64; // characters
        m_xml.reserve(kUsualCell * (tags.size() + 2) * (static_cast<qsizetype>(entries.size()) + 2));
    }

    QString ItemsDown()
    {
        StartTable();
        for (qsizetype tag = 0; tag < TagHeaders(); ++tag)
            AppendTagHeader(tag);
        for (const Entry& entry : m_entries) {
            NextRow();
            m_xml += entry.header;
            for (qsizetype tag = 0; tag < m_tags.size(); ++tag)
                AppendCell(entry, tag);
        }
        return Ended();
    }

    QString TagsDown()
    {
        StartTable();
        for (const Entry& entry : m_entries)
            m_xml += entry.header;
        for (qsizetype tag = 0; tag < TagHeaders(); ++tag) {
            NextRow();
            AppendTagHeader(tag);
            if (tag < m_tags.size())
                AppendRow(tag);
        }
        return Ended();
    }

private:
    void StartTable() { m_xml += QLatin1String("<TABLE><TR><TH/>"); }
    void NextRow() { m_xml += QLatin1String("</TR><TR>"); }

    QString Ended()
    {
        m_xml += QLatin1String("</TR></TABLE>");
        return std::move(m_xml);
    }

    qsizetype TagHeaders() const
    {
        const auto last = std::find_if(m_entries.rbegin(), m_entries.rend(),
                                       [](const Entry& entry) { return !entry.color.isEmpty(); });
        return std::max<qsizetype>(m_tags.size(), std::distance(last, m_entries.rend()));
    }

    void AppendTagHeader(qsizetype tag)
    {
        const auto index = static_cast<std::size_t>(tag);
        const QString color = index < m_entries.size() ? m_entries[index].color : QString();
        const QString name = tag < m_tags.size() ? m_tags[tag].name : QString();
        m_xml += HeaderCell(AttributeText(kTagAttribute, name) + AttributeText(QLatin1String("bgColor"), color), name);
    }

    void AppendRow(qsizetype tag)
    {
        for (const Entry& entry : m_entries)
            AppendCell(entry, tag);
    }

    void AppendCell(const Entry& entry, qsizetype tag)
    {
        if (entry.cells)
            entry.cells->AppendTo(m_xml, tag);
        else
            m_xml += QLatin1String("<TD/>");
    }

    const std::vector<Entry>& m_entries;
    const QList<Tag>& m_tags;
    QString m_xml;
};

} // namespace

QStringList LocationsShown(const TemplateLayout& layout)
{
    QStringList locations;
    QSet<QString> folded{QString()};
    for (const GroupLayout& group : layout.groups) {
        if (!group.shown)
            continue;
        ForEachShown(group, [&](const ItemLayout& item) {
            const QString key = FoldedKey(item.location);
            if (!folded.contains(key))
                locations.append(item.location);
            folded.insert(key);
        });
    }
    return locations;
}

QString ScheduleXml(const TemplateLayout& layout, const ScheduleContent& content)
{
    const std::vector<Entry> entries = Entries(layout, content).Made();
    TableWriter writer(entries, content.tags);
    return layout.tagsAsRows ? writer.TagsDown() : writer.ItemsDown();
}

} // namespace schedules::host
