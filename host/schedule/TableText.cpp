#include "host/schedule/TableText.h"

#include "framework/Message.h"
#include "grid/UnitLabel.h"
#include "model/PropertyValue.h"

#include <algorithm>

namespace schedules::host {

namespace {

bool IsPlain(QChar character)
{
    constexpr QStringView kMarkup = u"&<>\"'";
    return character >= u' ' && character.unicode() < 0xD800 && !kMarkup.contains(character);
}

/// Most texts have nothing to escape, and looking is faster than copying.
QString Escaped(const QString& text)
{
    return std::ranges::all_of(text, IsPlain) ? text : EscapedXml(text);
}

} // namespace

QString AttributeText(QLatin1String name, const QString& value)
{
    return value.isEmpty() ? QString() : u' ' + name + QLatin1String("=\"") + Escaped(value) + u'"';
}

void AppendEnd(QString& xml, QLatin1String element, const QString& text)
{
    if (text.isEmpty()) {
        xml += QLatin1String("/>");
        return;
    }
    xml += u'>';
    xml += Escaped(text);
    xml += QLatin1String("</");
    xml += element;
    xml += u'>';
}

QString HeaderCell(const QString& attributes, const QString& text)
{
    constexpr QLatin1String kHeader("TH");
    QString cell = u'<' + kHeader + attributes;
    AppendEnd(cell, kHeader, text);
    return cell;
}

QString CaptionWithUnit(const QString& caption, const QString& unit)
{
    return unit.isEmpty() ? caption : caption + u' ' + UnitLabel(unit);
}

bool IsTicked(const QString& text)
{
    try {
        return !text.isEmpty() && FlagOf(text);
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace schedules::host
