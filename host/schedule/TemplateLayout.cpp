#include "host/schedule/TemplateLayout.h"

#include "host/base/HostError.h"
#include "model/CProperties.h"
#include "model/PropertyValue.h"

#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>
#include <limits>
#include <optional>

namespace schedules::host {

namespace {

/// Blanks alone; other white space belongs to a name.
QString TrimmedOfBlanks(const QString& text)
{
    const auto isBlank = [](QChar character) { return character == u' '; };
    const auto first = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto last = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), isBlank).base();
    return QString(first, last - first);
}

bool IsLayout(const QString& run)
{
    return std::ranges::all_of(run, [](QChar each) { return QStringView(u" \t\r\n").contains(each); });
}

/// The properties that an element's attributes are. But for the name, their names are known in any letter case.
class Properties
{
public:
    explicit Properties(const QXmlStreamAttributes& attributes) : m_attributes(attributes) {}

    QString Name() const
    {
        const auto name = std::ranges::find(m_attributes, u"Name", &QXmlStreamAttribute::qualifiedName);
        return name == m_attributes.end() ? QString() : TrimmedOfBlanks(name->value().toString());
    }

    QString Caption() const
    {
        const QString shown = Text("DisplayName");
        return shown.isEmpty() ? Name() : shown;
    }

    QString Text(const char* property) const { return Found(property).value_or(QString()); }

    /// What is no flag counts as one that is missing.
    bool Flag(const char* property, bool missing) const
    {
        const auto text = Found(property);
        try {
            return text ? FlagOf(*text) : missing;
        } catch (const std::exception&) {
            return missing;
        }
    }

    bool IsOne(const char* property) const { return TrimmedOfBlanks(Text(property)).toInt() == 1; }

    /// Empty when it is none that a table may have.
    QString Color(const char* property) const
    {
        bool isNumber = false;
        const qlonglong color = Text(property).trimmed().toLongLong(&isNumber);
        const bool isColor =
            isNumber && color >= std::numeric_limits<qint32>::min() && color <= std::numeric_limits<quint32>::max();
        return isColor ? QString::number(color) : QString();
    }

private:
    std::optional<QString> Found(const char* property) const
    {
        const auto found = std::ranges::find_if(m_attributes, [&](const QXmlStreamAttribute& attribute) {
            return attribute.qualifiedName().compare(QLatin1String(property), Qt::CaseInsensitive) == 0;
        });
        return found == m_attributes.end() ? std::nullopt : std::optional(found->value().toString());
    }

    QXmlStreamAttributes m_attributes;
};

/// Names of which each is taken once, in any letter case.
class TakenNames
{
public:
    /// Whether it was not taken before.
    bool Take(const QString& name)
    {
        const auto count = m_folded.size();
        m_folded.insert(FoldedKey(name));
        return m_folded.size() != count;
    }

private:
    QSet<QString> m_folded;
};

class LayoutReader
{
public:
    explicit LayoutReader(const QString& xml) : m_reader(xml) {}

    TemplateLayout Read()
    {
        std::optional<TemplateLayout> layout;
        while (!m_reader.atEnd()) {
            if (Next() == QXmlStreamReader::StartElement && !layout && Is("Template"))
                layout = ReadTemplate();
        }
        if (!layout)
            throw HostError(QStringLiteral("the text holds no template"));
        return *std::move(layout);
    }

private:
    TemplateLayout ReadTemplate()
    {
        const Properties properties(m_reader.attributes());
        TemplateLayout layout;
        layout.tagsAsRows = properties.IsOne("SchedOrientation");
        layout.editable = properties.Flag("AllowEdit", true);
        TakenNames names;
        ForEachChild("Group", [&] { ReadGroup(layout, names); });
        return layout;
    }

    void ReadGroup(TemplateLayout& layout, TakenNames& groupNames)
    {
        const Properties properties(m_reader.attributes());
        const QString name = properties.Name();
        if (name.isEmpty())
            throw HostError(QStringLiteral("a group of the template has no name"));
        if (!groupNames.Take(name))
            return m_reader.skipCurrentElement();
        layout.groups.append({.caption = properties.Caption(),
                              .shown = properties.Flag("ShowThisGroup", true),
                              .nameShown = properties.Flag("ShowGroupName", false),
                              .bold = properties.Flag("FontBold", false),
                              .color = properties.Color("bgColor"),
                              .items = {}});
        TakenNames names;
        ForEachChild("Item", [&] { ReadItem(layout.groups.last(), names); });
    }

    void ReadItem(GroupLayout& group, TakenNames& itemNames)
    {
        const Properties properties(m_reader.attributes());
        const QString name = properties.Name();
        if (name.isEmpty())
            throw HostError(QStringLiteral("an item of the group '%1' has no name").arg(group.caption));
        if (!itemNames.Take(name))
            return m_reader.skipCurrentElement();
        group.items.append({.location = {},
                            .caption = properties.Caption(),
                            .shown = properties.Flag("ShowThisItem", true),
                            .unitShown = properties.Flag("ShowUnitLabel", false),
                            .unit = TrimmedOfBlanks(properties.Text("UnitID")),
                            .dataType = TrimmedOfBlanks(properties.Text("DataType")),
                            .format = TrimmedOfBlanks(properties.Text("DataFormat")),
                            .userDefined = properties.Flag("UserDefined", false)});
        group.items.last().location = ReadLocation();
    }

    /// The first one counts.
    QString ReadLocation()
    {
        std::optional<QString> location;
        ForEachChild("Location", [&] {
            const QString text = ReadText();
            location = location.value_or(text);
        });
        return location.value_or(QString());
    }

    /// All texts in the element, but for runs of mere layout between markup.
    QString ReadText()
    {
        QString text;
        QString run;
        for (int depth = 1; depth > 0;) {
            const auto token = Next();
            const bool isText = token == QXmlStreamReader::Characters;
            if (isText && !m_reader.isCDATA()) {
                run += m_reader.text();
                continue;
            }
            text += IsLayout(run) ? QString() : run;
            run.clear();
            if (isText)
                text += m_reader.text();
            depth += token == QXmlStreamReader::StartElement ? 1 : token == QXmlStreamReader::EndElement ? -1 : 0;
        }
        return TrimmedOfBlanks(text);
    }

    /// Calls with the reader on each child element of that name, which the call reads to its end.
    template <class Call>
    void ForEachChild(const char* name, Call&& call)
    {
        while (Next() != QXmlStreamReader::EndElement) {
            if (m_reader.tokenType() != QXmlStreamReader::StartElement)
                continue;
            if (Is(name))
                call();
            else
                m_reader.skipCurrentElement();
        }
    }

    bool Is(const char* name) const
    {
        return m_reader.namespaceUri().isEmpty() && m_reader.name() == QLatin1String(name);
    }

    QXmlStreamReader::TokenType Next()
    {
        const auto token = m_reader.readNext();
        if (token == QXmlStreamReader::DTD)
            throw HostError(QStringLiteral("the template has a document type declaration"));
        if (m_reader.hasError())
            throw HostError(QStringLiteral("the template is not well-formed: line %1, column %2: %3")
                                .arg(m_reader.lineNumber())
                                .arg(m_reader.columnNumber())
                                .arg(m_reader.errorString()));
        return token;
    }

    QXmlStreamReader m_reader;
};

} // namespace

TemplateLayout ReadTemplateLayout(const QString& xml)
{
    if (!xml.isValidUtf16())
        throw HostError(QStringLiteral("the template is not well-formed: it has half a character"));
    return LayoutReader(xml).Read();
}

} // namespace schedules::host
