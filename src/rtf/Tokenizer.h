#pragma once

#include <QStringView>

#include <optional>

namespace schedules::rtf {

enum class TokenKind
{
    Text,   ///< `text`, of one or more characters that stand for themselves
    Word,   ///< a control word: its name in `text`, and the number behind it, if any
    Symbol, ///< a control symbol, one character in `text`
    Byte,   ///< \'hh: a byte of a code page, in `number`
    Binary, ///< \bin with its data
    Open,
    Close,
    End
};

struct Token
{
    TokenKind kind;
    QStringView text = {};
    std::optional<int> number = {};
};

/// Splits rich text into tokens that point into it. Line ends and control characters are none; numbers that are too
/// large become the largest.
class Tokenizer
{
public:
    explicit Tokenizer(QStringView text) : m_rest(text) {}

    /// End, again and again, when there is nothing left.
    Token Next();

private:
    Token Escape();
    Token Hex();
    Token Word();
    Token Binary(std::optional<int> size);
    std::optional<int> Number();
    QStringView Taken(qsizetype size);

    template <class Condition>
    QStringView TakenWhile(Condition&& condition);

    QStringView m_rest;
};

} // namespace schedules::rtf
