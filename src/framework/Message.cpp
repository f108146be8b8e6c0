#include "framework/Message.h"

#include <QXmlStreamReader>

#include <array>

namespace schedules {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

constexpr bool XmlCanHold(char32_t character)
{
    return character == '\t' || character == '\n' || character == '\r' || (character >= 0x20 && character < 0xD800) ||
           (character > 0xDFFF && character < 0xFFFE) || (character > 0xFFFF && character < 0x110000);
}

/// How a character is written that may not stand as it is; empty for every other one.
QString Reference(char32_t character)
{
    switch (character) {
    case '&':
        return QStringLiteral("&amp;");
    case '<':
        return QStringLiteral("&lt;");
    case '>':
        return QStringLiteral("&gt;");
    case '"':
        return QStringLiteral("&quot;");
    case '\'':
        return QStringLiteral("&apos;");
    case ' ':
        return {};
    default:
        return QChar::isSpace(character) ? QStringLiteral("&#%1;").arg(static_cast<uint>(character)) : QString();
    }
}

QString ValueText(const QVariant& value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? QStringLiteral("-1") : QStringLiteral("0");
    return value.toString();
}

QString ParameterText(const Parameter& parameter)
{
    return QStringLiteral("<param type=\"%1\" name=\"").arg(static_cast<int>(parameter.type)) +
           EscapedXml(parameter.name) + QStringLiteral("\">") + EscapedXml(ValueText(parameter.value)) +
           QStringLiteral("</param>");
}

/// Reads one message strictly: elements, attributes and text that do not belong there make the reading fail.
class MessageReader
{
public:
    explicit MessageReader(const QString& text) : m_reader(text) { m_reader.setNamespaceProcessing(false); }

    std::optional<Message> Read()
    {
        Message message;
        ReadStart(message);
        while (NextParameter())
            ReadParameter(message.parameters);
        ReadEnd();
        if (m_reader.hasError())
            return std::nullopt;
        return message;
    }

private:
    void ReadStart(Message& message)
    {
        SkipTo(QXmlStreamReader::StartElement);
        const auto attributes = Attributes("message", 3);
        message.name = Text(attributes, "name");
        message.firstCode = Number(attributes, "code1");
        message.secondCode = Number(attributes, "code2");
    }

    bool NextParameter() { return SkipTo(QXmlStreamReader::StartElement, QXmlStreamReader::EndElement); }

    void ReadParameter(ParameterList& parameters)
    {
        const auto attributes = Attributes("param", 2);
        const auto type = Type(Number(attributes, "type"));
        const QString name = Text(attributes, "name");
        parameters.Add(type, name, m_reader.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement));
    }

    void ReadEnd() { SkipTo(QXmlStreamReader::EndDocument); }

    /// Goes on to the wanted token, past white space and comments. False when `other` or something wrong comes first.
    bool SkipTo(QXmlStreamReader::TokenType wanted, QXmlStreamReader::TokenType other = QXmlStreamReader::NoToken)
    {
        while (!m_reader.hasError()) {
            const auto token = m_reader.readNext();
            if (token == wanted)
                return true;
            if (token == other)
                return false;
            if (!Skippable(token))
                Refuse();
        }
        return false;
    }

    bool Skippable(QXmlStreamReader::TokenType token) const
    {
        return token == QXmlStreamReader::StartDocument || token == QXmlStreamReader::Comment ||
               (token == QXmlStreamReader::Characters && m_reader.isWhitespace());
    }

    QXmlStreamAttributes Attributes(const char* element, int count)
    {
        const auto attributes = m_reader.attributes();
        if (m_reader.qualifiedName() != QLatin1String(element) || attributes.size() != count)
            Refuse();
        return attributes;
    }

    QString Text(const QXmlStreamAttributes& attributes, const char* name)
    {
        if (!attributes.hasAttribute(QLatin1String(name)))
            Refuse();
        return attributes.value(QLatin1String(name)).toString();
    }

    int Number(const QXmlStreamAttributes& attributes, const char* name)
    {
        bool isNumber = false;
        const int number = Text(attributes, name).toInt(&isNumber);
        if (!isNumber)
            Refuse();
        return number;
    }

    ParameterType Type(int number)
    {
        constexpr std::array kTypes{ParameterType::Text, ParameterType::Number, ParameterType::Xml,
                                    ParameterType::Flag};
        for (const auto type : kTypes) {
            if (static_cast<int>(type) == number)
                return type;
        }
        Refuse();
        return ParameterType::Text;
    }

    void Refuse()
    {
        if (!m_reader.hasError())
            m_reader.raiseError(QStringLiteral("not a message"));
    }

    QXmlStreamReader m_reader;
};

} // namespace

void ParameterList::Add(ParameterType type, const QString& name, const QVariant& value, [[maybe_unused]] bool bKeep)
{
    m_items.append({type, name, value});
}

QString Message::Text() const
{
    QString text = QStringLiteral("<message name=\"") + EscapedXml(name) +
                   QStringLiteral("\" code1=\"%1\" code2=\"%2\">").arg(firstCode).arg(secondCode);
    for (const auto& parameter : parameters.Items())
        text += ParameterText(parameter);
    return text + QStringLiteral("</message>");
}

std::optional<Message> ParseMessage(const QString& text)
{
    return MessageReader(text).Read();
}

QString EscapedXml(QStringView text)
{
    QString escaped;
    escaped.reserve(text.size());
    for (const char32_t read : text.toUcs4()) {
        const char32_t character = XmlCanHold(read) ? read : kReplacement;
        if (const QString reference = Reference(character); !reference.isEmpty())
            escaped += reference;
        else
            escaped += QChar::fromUcs4(character);
    }
    return escaped;
}

} // namespace schedules
