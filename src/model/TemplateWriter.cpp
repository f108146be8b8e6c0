#include "model/TemplateWriter.h"

#include "common/XmlText.h"
#include "model/CTemplate.h"

#include <QStringList>
#include <QVarLengthArray>

#include <algorithm>

namespace schedules {

namespace {

const QString kDeclaration = QStringLiteral("xmlns");

/// Properties that are written, each name once, in the place of the first and with the value of the last, as in an
/// element's map of attributes: after renaming, two properties may have the same name.
using Attributes = QVarLengthArray<const CProperty*, 16>;

Attributes AttributesOf(const CProperties& properties)
{
    Attributes attributes;
    properties.ForEach([&attributes](const auto& property) {
        const auto known = std::ranges::find(attributes, property->Name(), &CProperty::Name);
        if (known == attributes.end())
            attributes.append(property.get());
        else
            *known = property.get();
    });
    return attributes;
}

bool IsPlainName(const QString& name)
{
    const auto isLetter = [](QChar character) {
        return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z');
    };
    return !name.isEmpty() && std::ranges::all_of(name, isLetter);
}

class TemplateWriter
{
public:
    QString Write(const CTemplate& source)
    {
        WriteElement(u"Template", source.Properties(), [&] { WriteEach(source.Groups()); });
        return QString::fromStdU16String(m_xml);
    }

private:
    template <class Members>
    void WriteEach(const Members& members)
    {
        members.ForEach([this](const auto& member) { this->WriteMember(*member); });
    }

    void WriteMember(const CGroup& group)
    {
        WriteElement(u"Group", group.Properties(), [&] { WriteEach(group.Elements()); });
    }

    void WriteMember(const CElement& element)
    {
        WriteElement(u"Item", element.Properties(), [&] {
            m_xml += u"<Location>";
            WriteContent(u"Location", [&] { AppendXmlText(m_xml, element.Location()); });
        });
    }

    template <class Content>
    void WriteElement(std::u16string_view name, const CProperties& properties, Content&& content)
    {
        const qsizetype prefixes = m_prefixes.size();
        m_xml += u'<';
        m_xml += name;
        WriteAttributes(AttributesOf(properties));
        m_xml += u'>';
        WriteContent(name, content);
        m_prefixes.resize(prefixes);
    }

    /// Behind a start tag, which closes itself when no content follows.
    template <class Content>
    void WriteContent(std::u16string_view name, Content&& content)
    {
        const std::size_t start = m_xml.size();
        content();
        if (m_xml.size() == start) {
            m_xml.insert(start - 1, 1, u'/');
            return;
        }
        m_xml += u"</";
        m_xml += name;
        m_xml += u'>';
    }

    void WriteAttributes(const Attributes& attributes)
    {
        for (const CProperty* attribute : attributes)
            Declare(*attribute);
        for (const CProperty* attribute : attributes) {
            RequireUsable(attribute->Name());
            AppendXmlAttribute(m_xml, attribute->Name(), TextOf(attribute->Value()));
        }
    }

    /// A default namespace would make the element another one than it is, and an empty one cannot have a prefix.
    void Declare(const CProperty& attribute)
    {
        const QString& name = attribute.Name();
        if (!name.startsWith(kDeclaration))
            return;
        const bool isEmpty = TextOf(attribute.Value()).isEmpty();
        const bool isPrefix = name.startsWith(QLatin1String("xmlns:"));
        if ((isPrefix && isEmpty) || (name == kDeclaration && !isEmpty))
            Refuse(name);
        if (isPrefix)
            m_prefixes.append(name.mid(kDeclaration.size() + 1));
    }

    /// A name, or two with a colon between them, the first of which is a prefix in use.
    void RequireUsable(const QString& name) const
    {
        if (IsPlainName(name))
            return;
        const QStringList parts = name.split(u':');
        const bool isUsable = parts.size() == 1 || (parts.size() == 2 && IsDeclared(parts.front()));
        if (!isUsable || !std::ranges::all_of(parts, IsXmlName))
            Refuse(name);
    }

    bool IsDeclared(const QString& prefix) const
    {
        return prefix == kDeclaration || prefix == QLatin1String("xml") || m_prefixes.contains(prefix);
    }

    [[noreturn]] static void Refuse(const QString& name)
    {
        throw Error(kAutomationError, QStringLiteral("\"%1\" cannot be the name of an attribute here.").arg(name));
    }

    std::u16string m_xml;
    QStringList m_prefixes; ///< declared by the elements that are open
};

} // namespace

QString TemplateXml(const CTemplate& source)
{
    return TemplateWriter().Write(source);
}

} // namespace schedules
