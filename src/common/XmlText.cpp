#include "common/XmlText.h"

#include "common/Error.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace schedules {

namespace {

bool IsLayout(char16_t character)
{
    return character == u'\t' || character == u'\n' || character == u'\r';
}

/// No XML can hold these, not even escaped.
bool IsForbidden(char16_t character)
{
    return (character < u' ' && !IsLayout(character)) || character >= 0xFFFE;
}

constexpr std::array<bool, 128> kPlainAscii = [] {
    std::array<bool, 128> plain{};
    for (char16_t character = u' '; character < plain.size(); ++character)
        plain[character] = character != u'<' && character != u'>' && character != u'&' && character != u'"';
    return plain;
}();

/// Whether it stands for itself wherever it is.
bool IsPlain(char16_t character)
{
    return character < kPlainAscii.size() ? kPlainAscii[character] : character < 0xD800;
}

[[noreturn]] void Refuse()
{
    throw Error(kAutomationError, QStringLiteral("An XML document cannot hold this text."));
}

/// The text that stands for a character; empty for one that stands for itself.
std::u16string_view Escape(char16_t character, bool inAttribute)
{
    switch (character) {
    case u'<':
        return u"&lt;";
    case u'>':
        return u"&gt;";
    case u'&':
        return u"&amp;";
    case u'"':
        return inAttribute ? u"&quot;" : u"";
    case u'\t':
        return inAttribute ? u"&#9;" : u"";
    case u'\n':
        return inAttribute ? u"&#10;" : u"";
    case u'\r':
        return u"&#13;"; // a parser takes a bare one for a line feed
    default:
        return {};
    }
}

/// The first character of a text: two halves of a pair, or one unit. Half a pair is no character.
std::u16string_view FirstCharacter(std::u16string_view text)
{
    if (!QChar::isSurrogate(text.front()))
        return text.substr(0, 1);
    if (text.size() < 2 || !QChar::isHighSurrogate(text[0]) || !QChar::isLowSurrogate(text[1]))
        Refuse();
    return text.substr(0, 2);
}

void AppendEscaped(std::u16string& xml, std::u16string_view text, bool inAttribute)
{
    while (!text.empty()) {
        const auto special = std::ranges::find_if_not(text, IsPlain);
        const auto plain = static_cast<std::size_t>(special - text.begin());
        xml += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty())
            return;
        if (IsForbidden(text.front()))
            Refuse();
        const std::u16string_view itself = FirstCharacter(text);
        const std::u16string_view escape = Escape(text.front(), inAttribute);
        xml += escape.empty() ? itself : escape;
        text.remove_prefix(itself.size());
    }
}

/// The first and the last of characters in a row.
using Span = std::pair<char32_t, char32_t>;

/// What a name may begin with, as the parser sees it; the library's own check knows only those of an older edition.
constexpr Span kNameStarts[] = {{U'A', U'Z'},     {U'_', U'_'},     {U'a', U'z'},      {0x00C0, 0x00D6},
                                {0x00D8, 0x00F6}, {0x00F8, 0x02FF}, {0x0370, 0x037D},  {0x037F, 0x1FFF},
                                {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},  {0x3001, 0xD7FF},
                                {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};

/// What may follow besides.
constexpr Span kNameOthers[] = {{U'-', U'.'}, {U'0', U'9'}, {0x00B7, 0x00B7}, {0x0300, 0x036F}, {0x203F, 0x2040}};

bool IsIn(std::span<const Span> spans, char32_t character)
{
    return std::ranges::any_of(
        spans, [character](const Span& span) { return span.first <= character && character <= span.second; });
}

std::u16string_view View(QStringView text)
{
    return {text.utf16(), static_cast<std::size_t>(text.size())};
}

} // namespace

bool IsXmlName(const QString& text)
{
    const auto characters = text.toUcs4();
    return text.isValidUtf16() && !characters.isEmpty() && IsIn(kNameStarts, characters.front()) &&
           std::ranges::all_of(characters, [](char32_t character) {
               return IsIn(kNameStarts, character) || IsIn(kNameOthers, character);
           });
}

void AppendXmlText(std::u16string& xml, QStringView text)
{
    AppendEscaped(xml, View(text), false);
}

void AppendXmlAttribute(std::u16string& xml, QStringView name, QStringView value)
{
    xml += u' ';
    xml += View(name);
    xml += u"=\"";
    AppendEscaped(xml, View(value), true);
    xml += u'"';
}

} // namespace schedules
