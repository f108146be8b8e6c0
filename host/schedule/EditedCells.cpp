#include "host/schedule/EditedCells.h"

#include "host/base/HostError.h"
#include "host/schedule/NumberText.h"
#include "host/schedule/TableText.h"
#include "host/schedule/Units.h"
#include "model/CProperties.h"

#include <QHash>
#include <QXmlStreamReader>

namespace schedules::host {

namespace {

/// What a header cell says about the cells of its row or column.
struct Header
{
    explicit Header(const QXmlStreamAttributes& attributes = {})
        : tag(attributes.value(kTagAttribute).toString()),
          item(attributes.value(kItemAttribute).toString()),
          unit(attributes.value(kUnitAttribute).toString()),
          format(attributes.value(kFormatAttribute).toString())
    {
    }

    QString tag;
    QString item;
    QString unit;
    QString format;
};

void RequireWellFormed(const QXmlStreamReader& reader, const QString& what)
{
    if (reader.hasError())
        throw HostError(QStringLiteral("%1 is not well-formed: line %2, column %3: %4")
                            .arg(what)
                            .arg(reader.lineNumber())
                            .arg(reader.columnNumber())
                            .arg(reader.errorString()));
}

class EditedTable
{
public:
    EditedTable(const QString& xml, const QList<DataItem>& items) : m_reader(xml)
    {
        for (const DataItem& item : items)
            m_units.insert(FoldedKey(item.location), item.unit);
    }

    QList<ValueEdit> Edits()
    {
        while (!m_reader.atEnd()) {
            if (m_reader.readNext() == QXmlStreamReader::StartElement && m_reader.name() == QLatin1String("TR"))
                ReadRow();
        }
        RequireWellFormed(m_reader, QStringLiteral("the schedule"));
        return std::move(m_edits);
    }

private:
    void ReadRow()
    {
        const bool isFirst = m_columns.isEmpty();
        for (qsizetype column = 0; m_reader.readNextStartElement(); ++column) {
            const QXmlStreamAttributes attributes = m_reader.attributes();
            if (isFirst)
                m_columns.append(Header(attributes));
            if (column == 0)
                m_row = Header(attributes);
            ReadCell(attributes, m_columns.value(column));
        }
    }

    void ReadCell(const QXmlStreamAttributes& attributes, const Header& column)
    {
        const bool isEdited = attributes.value(QLatin1String("Dirty")) == kTrue;
        const bool isItemsRow = column.item.isEmpty();
        const Header& item = isItemsRow ? m_row : column;
        const QString tag = isItemsRow ? column.tag : m_row.tag;
        if (!isEdited || tag.isEmpty() || item.item.isEmpty())
            return m_reader.skipCurrentElement();
        const QString text = m_reader.readElementText(QXmlStreamReader::IncludeChildElements);
        m_edits.append({tag, item.item, TextToStore(text, item), attributes.value(kVersionAttribute).toLongLong()});
    }

    QString TextToStore(const QString& shown, const Header& item) const
    {
        const auto format = NumberFormatOf(item.format);
        const QString text = format && format->grouped ? WithoutGrouping(shown) : shown;
        return Converted(text, item.unit, m_units.value(FoldedKey(item.item)));
    }

    QXmlStreamReader m_reader;
    QHash<QString, QString> m_units; ///< in which items are stored, by their locations
    QList<Header> m_columns;
    Header m_row;
    QList<ValueEdit> m_edits;
};

/// The text of an element `Id`, after its start.
QString IdentifierIn(QXmlStreamReader& reader)
{
    return reader.readElementText(QXmlStreamReader::IncludeChildElements);
}

} // namespace

QList<ValueEdit> EditedCells(const QString& scheduleXml, const QList<DataItem>& items)
{
    return EditedTable(scheduleXml, items).Edits();
}

QStringList SelectedTags(const QString& selectedTagsXml)
{
    QXmlStreamReader reader(selectedTagsXml);
    QStringList tags;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("Id"))
            tags.append(IdentifierIn(reader));
    }
    RequireWellFormed(reader, QStringLiteral("the list of tags"));
    return tags;
}

} // namespace schedules::host
