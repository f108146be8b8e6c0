#include "rtf/Interpreter.h"

#include "rtf/DocumentBuilder.h"

#include <algorithm>
#include <array>
#include <utility>

namespace schedules::rtf {

namespace {

constexpr QChar kReplacement{QChar::ReplacementCharacter};

} // namespace

Interpreter::Interpreter(Tables& tables, DocumentBuilder& builder) : m_tables(tables), m_builder(builder)
{
    SetTabDistance({0, {}});
}

void Interpreter::Take(const Token& given)
{
    if (m_skippedGroups > 0)
        return TakeSkipped(given.kind);
    Token token = given;
    if (TakeFallback(token))
        return;
    const bool starred = std::exchange(m_starred, false);
    if (token.kind != TokenKind::Text && token.kind != TokenKind::Byte)
        EndLead();
    switch (token.kind) {
    case TokenKind::Text:
        return TakeText(token.text);
    case TokenKind::Word:
        return TakeWord(token, starred);
    case TokenKind::Symbol:
        return TakeSymbol(token.text.front());
    case TokenKind::Byte:
        return TakeByte(static_cast<uchar>(*token.number));
    case TokenKind::Open:
        return m_groups.Open();
    case TokenKind::Close:
        return CloseGroup();
    case TokenKind::Binary:
    case TokenKind::End:
        return;
    }
}

void Interpreter::Finish()
{
    EndLead();
    EndSurrogate();
    m_builder.Finish(m_latestParagraph);
}

void Interpreter::TakeSkipped(TokenKind kind)
{
    if (kind == TokenKind::Open)
        ++m_skippedGroups;
    else if (kind == TokenKind::Close && --m_skippedGroups == 0)
        CloseGroup();
}

/// What repeats a Unicode escape ends with its group, or with a control word that is no character: where there is too
/// little of it, the words behind must not be lost.
bool Interpreter::TakeFallback(Token& token)
{
    if (m_fallback == 0)
        return false;
    const Word* const word = token.kind == TokenKind::Word ? Find(token.text) : nullptr;
    const bool isOther = token.kind == TokenKind::Word && (word == nullptr || !word->IsCharacter());
    if (isOther || token.kind == TokenKind::Open || token.kind == TokenKind::Close) {
        m_fallback = 0;
        return false;
    }
    const qsizetype size = token.kind == TokenKind::Text ? token.text.size() : 1;
    const qsizetype skipped = qMin(size, qsizetype(m_fallback));
    m_fallback -= static_cast<int>(skipped);
    if (token.kind == TokenKind::Text)
        token.text = token.text.sliced(skipped);
    return skipped == size;
}

void Interpreter::TakeText(QStringView text)
{
    const auto isTrail = [&] {
        return !m_lead.isEmpty() && !text.isEmpty() && text.front() < u'\x100' &&
               TakeTrail(static_cast<uchar>(text.front().unicode()));
    };
    while (isTrail())
        text = text.sliced(1);
    if (text.isEmpty())
        return;
    EndLead();
    TakeCharacters(text);
}

void Interpreter::TakeCharacters(QStringView text)
{
    const SymbolFont font = CurrentSymbols();
    if (font == SymbolFont::None)
        return Write(text);
    QString symbols;
    for (const QChar character : text)
        symbols += QChar::fromUcs4(Symbol(font, character.unicode()));
    Write(symbols);
}

void Interpreter::TakeWord(const Token& token, bool starred)
{
    const Word* const word = Find(token.text);
    if (starred && (word == nullptr || !word->IsDestination()))
        SkipGroup({0, {}});
    else if (word != nullptr)
        (this->*word->action)({word->fixed, token.number});
}

void Interpreter::TakeSymbol(QChar symbol)
{
    switch (symbol.unicode()) {
    case u'*':
        m_starred = true;
        return;
    case u'~':
        return Write(u"\u00A0");
    case u'_':
        return Write(u"\u2011");
    case u'-':
        return Write(u"\u00AD");
    default:
        return;
    }
}

void Interpreter::TakeByte(uchar byte)
{
    if (!m_lead.isEmpty() && TakeTrail(byte))
        return;
    EndLead();
    if (CurrentSymbols() != SymbolFont::None)
        return WriteCharacter(byte);
    const CodePage& codePage = CurrentCodePage();
    const QChar character = codePage.Decoded(byte);
    if (codePage.IsLead(byte))
        m_lead = QByteArray(1, static_cast<char>(byte));
    else if (character >= u' ' || character == u'\t')
        Write(QStringView(&character, 1));
}

bool Interpreter::TakeTrail(uchar trail)
{
    const CodePage& codePage = CurrentCodePage();
    const QByteArray bytes = m_lead + static_cast<char>(trail);
    const QString text = codePage.Decoded(bytes);
    if (text.isEmpty() && !codePage.IsBeginning(bytes))
        return false;
    m_lead = text.isEmpty() ? bytes : QByteArray();
    for (const char32_t code : text.toUcs4())
        WriteCharacter(code);
    return true;
}

void Interpreter::EndLead()
{
    if (!std::exchange(m_lead, {}).isEmpty())
        Write(QStringView(&kReplacement, 1));
}

void Interpreter::EndSurrogate()
{
    if (std::exchange(m_highSurrogate, u'\0') != 0)
        Write(QStringView(&kReplacement, 1));
}

const CodePage& Interpreter::CurrentCodePage()
{
    const bool isName = m_groups.Top().destination == Destination::FontTable;
    return m_codePages.At(m_tables.CodePageOf(isName ? m_tableFont : TheLook().font));
}

SymbolFont Interpreter::CurrentSymbols() const
{
    const Group& group = m_groups.Top();
    return group.destination == Destination::FontTable ? SymbolFont::None : m_tables.SymbolsOf(group.look.font);
}

bool Interpreter::IsBody() const
{
    return m_groups.Top().destination == Destination::Body && !m_groups.Top().isTwin;
}

void Interpreter::CloseGroup()
{
    EndFontName();
    EndColor();
    const Destination closed = m_groups.Top().destination;
    m_groups.Close();
    if (closed == Destination::List && m_groups.Top().destination != Destination::List) {
        const QString text = m_bulletText.isEmpty() ? QStringLiteral("\u2022") : m_bulletText;
        TheParagraph().bullet = m_hasBullet ? m_tables.AddBullet(text) : 0;
    }
}

void Interpreter::Write(QStringView text)
{
    if (text.isEmpty())
        return;
    EndSurrogate();
    if (m_groups.Top().isTwin)
        return;
    switch (m_groups.Top().destination) {
    case Destination::Body:
        return WriteBody(text);
    case Destination::FontTable:
        return WriteFontName(text);
    case Destination::ColorTable:
        return WriteColors(text);
    case Destination::BulletText:
        return WriteBullet(text);
    case Destination::List:
    case Destination::RowProperties:
        return;
    }
}

void Interpreter::WriteBody(QStringView text)
{
    if (TheLook().Has(kHidden))
        return;
    m_latestParagraph = TheParagraph();
    const int bullet = TheParagraph().bullet;
    if (!std::exchange(m_isMarked, true) && bullet != 0)
        m_builder.Add(m_tables.bullets.at(bullet) + u'\t', TheLook());
    m_builder.Add(text, TheLook());
}

/// Every paragraph of the list repeats its bullet, so what goes on is none.
void Interpreter::WriteBullet(QStringView text)
{
    constexpr qsizetype kLongestBullet = 32;
    if (m_bulletText.size() + text.size() <= kLongestBullet)
        m_bulletText += text;
}

void Interpreter::WriteFontName(QStringView text)
{
    for (const QChar character : text) {
        if (character == u';')
            EndFontName();
        else
            m_fontName += character;
    }
}

void Interpreter::EndFontName()
{
    constexpr qsizetype kLongestName = 128;
    if (!m_fontName.isEmpty())
        m_tables.fonts[m_tableFont].family = m_fontName.trimmed().left(kLongestName);
    m_fontName.clear();
}

void Interpreter::WriteColors(QStringView text)
{
    for (qsizetype ends = text.count(u';'); ends > 0; --ends)
        m_tables.colors.append(std::exchange(m_color, std::nullopt).value_or(QColor()));
}

void Interpreter::EndColor()
{
    if (m_color)
        WriteColors(u";");
}

/// Where a paragraph begins or ends, the closing brace of a table or a row is missing.
void Interpreter::LeaveTable()
{
    constexpr std::array kTables{Destination::FontTable, Destination::ColorTable, Destination::RowProperties};
    Destination& destination = m_groups.Top().destination;
    if (std::ranges::find(kTables, destination) == kTables.end())
        return;
    EndFontName();
    EndColor();
    destination = Destination::Body;
}

} // namespace schedules::rtf
