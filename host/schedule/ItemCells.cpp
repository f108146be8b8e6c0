#include "host/schedule/ItemCells.h"

#include "host/schedule/TableText.h"

namespace schedules::host {

namespace {

constexpr QLatin1String kData("TD");

QString UnitShown(const ItemLayout& layout, const DataItem& item)
{
    if (layout.unit.isEmpty())
        return item.unit;
    const bool fits = item.unit.isEmpty() || ConversionBetween(item.unit, layout.unit);
    return fits ? layout.unit : item.unit;
}

QString TypeShown(const ItemLayout& layout, const DataItem& item)
{
    const QString type = (layout.dataType.isEmpty() ? item.dataType : layout.dataType).trimmed().toUpper();
    return type == QLatin1String("TEXT") ? QString() : type;
}

bool IsCheckBox(const QString& type)
{
    return type == QLatin1String("CHECKBOX");
}

QString Flag(const char* name, bool value)
{
    return value ? AttributeText(QLatin1String(name), kTrue) : QString();
}

/// Whether the text has the digits already that the format asks for.
bool IsWritten(const NumberText& number, const QString& text, const NumberFormat& format)
{
    return !format.grouped && !format.scientific && number.decimals == format.decimals &&
           !text.contains(u'e', Qt::CaseInsensitive);
}

} // namespace

ItemCells::ItemCells(const ItemLayout& layout, const DataItem& item, const QList<StoredValue>& values, bool editable)
    : m_values(values),
      m_unit(UnitShown(layout, item)),
      m_format(NumberFormatOf(layout.format)),
      m_isCheckBox(IsCheckBox(TypeShown(layout, item))),
      m_editable(editable && item.editable)
{
    if (m_unit != item.unit)
        m_conversion = ConversionBetween(item.unit, m_unit);
    m_start = u'<' + kData + AttributeText(QLatin1String("dataType"), TypeShown(layout, item)) +
              Flag("visible", m_isCheckBox) + Flag("AllowEdit", m_editable) +
              Flag("UserDefined", layout.userDefined || item.userDefined);
}

void ItemCells::AppendTo(QString& xml, qsizetype tag) const
{
    static const StoredValue kNone;
    const StoredValue& value = tag < m_values.size() ? m_values[tag] : kNone;
    xml += m_start;
    if (m_editable && value.version != 0)
        xml += AttributeText(kVersionAttribute, QString::number(value.version));
    AppendEnd(xml, kData, ShownText(value.text));
}

QString ItemCells::ShownText(const QString& stored) const
{
    if (m_isCheckBox)
        return IsTicked(stored) ? QStringLiteral("1") : QStringLiteral("0");
    return m_format ? ShownNumber(stored) : m_conversion ? Converted(stored, *m_conversion) : stored;
}

QString ItemCells::ShownNumber(const QString& stored) const
{
    const auto number = NumberIn(stored);
    if (!number || (!m_conversion && IsWritten(*number, stored, *m_format)))
        return stored;
    return Written(m_conversion ? m_conversion->Forward(number->value) : number->value, *m_format);
}

} // namespace schedules::host
