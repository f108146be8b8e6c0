#include "host/project/TemplateListXml.h"

#include "framework/Message.h"
#include "host/base/HostError.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace schedules::host {

namespace {

QString Attribute(const QString& name, const QString& value)
{
    return QStringLiteral(" %1=\"").arg(name) + EscapedXml(value) + '"';
}

QString Flag(bool value)
{
    return value ? QStringLiteral("-1") : QStringLiteral("0");
}

QString EntryXml(const TemplateEntry& entry)
{
    QString xml = QStringLiteral("<Template") + Attribute(QStringLiteral("name"), entry.name) +
                  Attribute(QStringLiteral("filename"), entry.fileName) +
                  Attribute(QStringLiteral("pdsg"), entry.pdsg) +
                  Attribute(QStringLiteral("readonly"), Flag(entry.readOnly)) +
                  Attribute(QStringLiteral("category"), entry.category) +
                  Attribute(QStringLiteral("defaultforcategory"), Flag(entry.defaultForCategory));
    for (const auto& [name, value] : entry.others)
        xml += Attribute(name, value);
    return xml + QStringLiteral("/>");
}

/// A flag that is missing is false.
bool FlagOf(const QString& text, const QString& name)
{
    const QString word = text.trimmed().toLower();
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    if (isNumber)
        return number != 0;
    if (word.isEmpty() || word == QLatin1String("false"))
        return false;
    if (word == QLatin1String("true"))
        return true;
    throw HostError(QStringLiteral("the list of templates has a flag that is none, of %1: %2").arg(name, text));
}

bool IsKnown(QStringView name)
{
    static constexpr QLatin1String kKnown[] = {QLatin1String("name"),     QLatin1String("filename"),
                                               QLatin1String("pdsg"),     QLatin1String("readonly"),
                                               QLatin1String("category"), QLatin1String("defaultforcategory")};
    return std::ranges::any_of(kKnown, [&](QLatin1String known) { return name == known; });
}

/// Without those of a namespace, whose prefix would mean nothing without its declaration.
QList<QPair<QString, QString>> Others(const QXmlStreamAttributes& attributes)
{
    QList<QPair<QString, QString>> others;
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (attribute.namespaceUri().isEmpty() && !IsKnown(attribute.name()))
            others.append({attribute.name().toString(), attribute.value().toString()});
    }
    return others;
}

TemplateEntry EntryOf(const QXmlStreamAttributes& attributes)
{
    const auto text = [&](const char* name) { return attributes.value(QLatin1String(name)).toString().trimmed(); };
    TemplateEntry entry;
    entry.name = text("name");
    entry.fileName = text("filename");
    if (entry.name.isEmpty() || entry.fileName.isEmpty())
        throw HostError(QStringLiteral("the list of templates has an entry without a name or a file name"));
    entry.pdsg = text("pdsg");
    entry.readOnly = FlagOf(text("readonly"), entry.name);
    entry.category = text("category");
    entry.defaultForCategory = FlagOf(text("defaultforcategory"), entry.name);
    entry.others = Others(attributes);
    return entry;
}

} // namespace

QString TemplateListXml(const QList<TemplateEntry>& entries)
{
    QString xml = QStringLiteral("<Templates>");
    for (const TemplateEntry& entry : entries)
        xml += EntryXml(entry);
    return xml + QStringLiteral("</Templates>");
}

QList<TemplateEntry> ReadTemplateList(const QString& xml)
{
    QList<TemplateEntry> entries;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("Template"))
            entries.append(EntryOf(reader.attributes()));
    }
    if (reader.hasError())
        throw HostError(QStringLiteral("the list of templates is no XML: %1").arg(reader.errorString()));
    return entries;
}

QString CategoryListXml(const QList<Category>& categories)
{
    QString xml = QStringLiteral("<Categories>");
    for (const Category& category : categories)
        xml += QStringLiteral("<Category") + Attribute(QStringLiteral("name"), category.name) +
               Attribute(QStringLiteral("displayname"), category.displayName) +
               Attribute(QStringLiteral("pdsg"), category.pdsg) + QStringLiteral("/>");
    return xml + QStringLiteral("</Categories>");
}

} // namespace schedules::host
