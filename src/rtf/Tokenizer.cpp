#include "rtf/Tokenizer.h"

#include <QString>

#include <algorithm>
#include <limits>

namespace schedules::rtf {

namespace {

bool IsLetter(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

bool IsDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool IsHexDigit(QChar character)
{
    return IsDigit(character) || (character >= u'a' && character <= u'f') || (character >= u'A' && character <= u'F');
}

bool IsControl(QChar character)
{
    return character < u' ' && character != u'\t';
}

bool IsPlain(QChar character)
{
    return character >= u' ' && character != u'\\' && character != u'{' && character != u'}';
}

bool IsEscapedText(QChar character)
{
    return character == u'\\' || character == u'{' || character == u'}' || character >= u'\x80';
}

} // namespace

Token Tokenizer::Next()
{
    TakenWhile(IsControl);
    if (m_rest.isEmpty())
        return {TokenKind::End};
    switch (m_rest.front().unicode()) {
    case u'{':
        return {TokenKind::Open, Taken(1)};
    case u'}':
        return {TokenKind::Close, Taken(1)};
    case u'\t':
        Taken(1);
        return {TokenKind::Word, u"tab"};
    case u'\\':
        Taken(1);
        return Escape();
    default:
        return {TokenKind::Text, TakenWhile(IsPlain)};
    }
}

Token Tokenizer::Escape()
{
    if (m_rest.isEmpty())
        return {TokenKind::End};
    const QChar character = m_rest.front();
    if (IsLetter(character))
        return Word();
    if (IsEscapedText(character))
        return {TokenKind::Text, Taken(character.isHighSurrogate() && m_rest.size() > 1 ? 2 : 1)};
    const QStringView symbol = Taken(1);
    if (character == u'\'')
        return Hex();
    if (character == u'\r' || character == u'\n')
        return {TokenKind::Word, u"par"};
    if (character == u'\t')
        return {TokenKind::Word, u"tab"};
    return {TokenKind::Symbol, symbol};
}

Token Tokenizer::Hex()
{
    if (m_rest.size() < 2 || !IsHexDigit(m_rest.at(0)) || !IsHexDigit(m_rest.at(1)))
        return {TokenKind::Symbol, u"'"};
    return {TokenKind::Byte, {}, Taken(2).toInt(nullptr, 16)};
}

Token Tokenizer::Word()
{
    const QStringView name = TakenWhile(IsLetter);
    const std::optional<int> number = Number();
    if (m_rest.startsWith(u' '))
        Taken(1);
    return name == u"bin" ? Binary(number) : Token{TokenKind::Word, name, number};
}

Token Tokenizer::Binary(std::optional<int> size)
{
    // A size that is wrong must not swallow the text behind it.
    if (size.value_or(0) > 0 && *size <= m_rest.size())
        Taken(*size);
    return {TokenKind::Binary};
}

std::optional<int> Tokenizer::Number()
{
    const bool negative = m_rest.size() > 1 && m_rest.front() == u'-' && IsDigit(m_rest.at(1));
    if (negative)
        Taken(1);
    const QStringView digits = TakenWhile(IsDigit);
    if (digits.isEmpty())
        return std::nullopt;
    constexpr qint64 kLargest = std::numeric_limits<int>::max();
    qint64 value = 0;
    for (const QChar digit : digits)
        value = std::min(value * 10 + digit.digitValue(), kLargest);
    return static_cast<int>(negative ? -value : value);
}

QStringView Tokenizer::Taken(qsizetype size)
{
    const QStringView taken = m_rest.first(size);
    m_rest = m_rest.sliced(size);
    return taken;
}

template <class Condition>
QStringView Tokenizer::TakenWhile(Condition&& condition)
{
    return Taken(std::find_if_not(m_rest.begin(), m_rest.end(), condition) - m_rest.begin());
}

} // namespace schedules::rtf
