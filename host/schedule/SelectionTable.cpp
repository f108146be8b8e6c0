#include "host/schedule/SelectionTable.h"

#include "host/schedule/TableText.h"

namespace schedules::host {

namespace {

constexpr QLatin1String kData("TD");
constexpr QLatin1String kTagColor("16115410"); ///< a light blue

void AppendCell(QString& xml, const QString& attributes, const QString& text)
{
    xml += u'<' + kData + attributes;
    AppendEnd(xml, kData, text);
}

QString HeaderRow(const QString& caption, qsizetype tags)
{
    QString xml = HeaderCell({}, caption);
    for (qsizetype number = 1; number <= tags; ++number)
        xml += HeaderCell({}, QString::number(number));
    return xml;
}

QString TagRow(const QString& caption, const QList<Tag>& tags)
{
    QString xml = HeaderCell(AttributeText(QLatin1String("bgColor"), kTagColor), caption);
    for (const Tag& tag : tags)
        AppendCell(xml, {}, tag.name);
    return xml;
}

QString CheckBoxRow(const QString& caption, qsizetype tags)
{
    const QString checkBox = AttributeText(QLatin1String("dataType"), QStringLiteral("CHECKBOX")) +
                             AttributeText(QLatin1String("visible"), kTrue);
    QString xml = HeaderCell({}, caption);
    for (qsizetype number = 1; number <= tags; ++number)
        AppendCell(xml, checkBox, QStringLiteral("0"));
    return xml;
}

/// A check box in a selection would be one more to tick, so that values of this type are shown as text.
QString ValueRow(const DataItem& item, const QList<StoredValue>& values, qsizetype tags)
{
    const bool isCheckBox = item.dataType.compare(QLatin1String("CHECKBOX"), Qt::CaseInsensitive) == 0;
    const bool isText = isCheckBox || item.dataType.compare(QLatin1String("TEXT"), Qt::CaseInsensitive) == 0;
    const QString type = isText ? QString() : AttributeText(QLatin1String("dataType"), item.dataType);
    QString xml = HeaderCell({}, CaptionWithUnit(item.name, item.unit));
    for (qsizetype tag = 0; tag < tags; ++tag) {
        const QString text = values.value(tag).text;
        AppendCell(xml, type, !isCheckBox ? text : IsTicked(text) ? QStringLiteral("✓") : QString());
    }
    return xml;
}

} // namespace

QString SelectionXml(const SelectionCaptions& captions, const ScheduleContent& content)
{
    const qsizetype tags = content.tags.size();
    QStringList rows{HeaderRow(captions.number, tags), TagRow(captions.tag, content.tags),
                     CheckBoxRow(captions.select, tags)};
    for (qsizetype item = 0; item < content.items.size(); ++item)
        rows.append(ValueRow(content.items[item], content.values.value(item), tags));
    return QStringLiteral("<TABLE><TR>") + rows.join(QLatin1String("</TR><TR>")) + QStringLiteral("</TR></TABLE>");
}

} // namespace schedules::host
