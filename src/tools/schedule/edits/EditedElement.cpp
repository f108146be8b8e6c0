#include "tools/schedule/edits/EditedElement.h"

#include "framework/Message.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <string_view>

namespace schedules {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kDirty = "Dirty";
constexpr auto kTrue = "\"-1\"";

/// The start tag of a well-formed element from its "<" on, without what closes it.
std::string_view StartTag(std::string_view element)
{
    char quote = 0;
    for (std::size_t at = 0; at < element.size(); ++at) {
        const char character = element[at];
        if (quote != 0)
            quote = character == quote ? 0 : quote;
        else if (character == '"' || character == '\'')
            quote = character;
        else if (character == '>')
            return element.substr(0, element[at - 1] == '/' ? at - 1 : at);
    }
    return element;
}

std::string_view Name(std::string_view tag)
{
    return tag.substr(1, tag.find_first_of(kBlanks) - 1);
}

/// The value of the attribute with its quotes, as a part of the tag; empty when the tag has no such attribute.
std::string_view QuotedValue(std::string_view tag, std::string_view attribute)
{
    std::size_t at = 1 + Name(tag).size();
    while ((at = tag.find_first_not_of(kBlanks, at)) != std::string_view::npos) {
        const std::string_view name = tag.substr(at, tag.find_first_of(" \t\r\n=", at) - at);
        const std::size_t start = tag.find_first_of("\"'", at);
        const std::size_t end = tag.find(tag[start], start + 1);
        if (name == attribute)
            return tag.substr(start, end + 1 - start);
        at = end + 1;
    }
    return {};
}

QByteArray Bytes(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

QByteArray WithDirty(std::string_view tag)
{
    QByteArray dirty = Bytes(tag.substr(0, tag.find_last_not_of(kBlanks) + 1));
    const std::string_view value = QuotedValue(tag, kDirty);
    if (value.empty())
        return dirty + ' ' + Bytes(kDirty) + '=' + kTrue;
    return dirty.replace(value.data() - tag.data(), static_cast<qsizetype>(value.size()), kTrue);
}

} // namespace

QByteArray EditedElement(QByteArrayView element, const QString& text)
{
    const std::string_view tag = StartTag({element.data(), static_cast<std::size_t>(element.size())});
    return WithDirty(tag) + '>' + EscapedXml(text).toUtf8() + "</" + Bytes(Name(tag)) + '>';
}

ElementAttributes AttributesOfElement(const QByteArray& element)
{
    QXmlStreamReader reader(element);
    reader.setNamespaceProcessing(false);
    reader.readNextStartElement();
    ElementAttributes attributes;
    for (const QXmlStreamAttribute& attribute : reader.attributes()) {
        if (attribute.qualifiedName() != QLatin1String(kDirty.data()))
            attributes.emplace_back(attribute.qualifiedName().toString(), attribute.value().toString());
    }
    return attributes;
}

} // namespace schedules
