#pragma once

#include "rtf/CodePage.h"
#include "rtf/Group.h"
#include "rtf/Tables.h"
#include "rtf/Tokenizer.h"

#include <QStringList>

#include <optional>
#include <string_view>

namespace schedules::rtf {

class DocumentBuilder;

/// Follows the tokens of rich text: keeps the state of each group, fills the tables, and hands text to the builder.
class Interpreter
{
public:
    Interpreter(Tables& tables, DocumentBuilder& builder);

    void Take(const Token& token);
    /// To be called behind the last token.
    void Finish();

    /// Every control word that does something, in the order of its table.
    static QStringList KnownWords();

private:
    /// What a control word is told: what its row says, and the number behind it.
    struct Argument
    {
        int fixed;
        std::optional<int> number;
    };
    struct Word
    {
        std::u16string_view name;
        void (Interpreter::*action)(const Argument&);
        int fixed = 0;

        bool IsDestination() const;
        bool IsCharacter() const { return action == &Interpreter::PutCharacter; }
    };
    struct Words;

    static const Word* Find(QStringView name);

    void TakeSkipped(TokenKind kind);
    bool TakeFallback(Token& token);
    void TakeText(QStringView text);
    void TakeWord(const Token& token, bool starred);
    void TakeSymbol(QChar symbol);
    void TakeByte(uchar byte);
    bool TakeTrail(uchar trail);

    void CloseGroup();
    void TakeCharacters(QStringView text);
    void EndLead();
    void EndSurrogate();
    const CodePage& CurrentCodePage();
    SymbolFont CurrentSymbols() const;
    bool IsBody() const;

    void Write(QStringView text);
    void WriteBody(QStringView text);
    void WriteCharacter(char32_t code);
    void WriteBullet(QStringView text);
    void WriteFontName(QStringView text);
    void WriteColors(QStringView text);
    void EndFontName();
    void EndColor();
    void LeaveTable();

    // The actions of control words. A toggle is switched off by the number 0.
    void Toggle(const Argument& argument);
    void Clear(const Argument& argument);
    void SetPosition(const Argument& argument);
    void SetFont(const Argument& argument);
    void SetSize(const Argument& argument);
    void SetForeground(const Argument& argument);
    void SetBackground(const Argument& argument);
    void ResetLook(const Argument& argument);
    void ResetParagraph(const Argument& argument);
    void EndParagraph(const Argument& argument);
    void EndNestedRow(const Argument& argument);
    void SetAlignment(const Argument& argument);
    void SetDirection(const Argument& argument);
    void SetLength(const Argument& argument);
    void SetTabType(const Argument& argument);
    void AddTabStop(const Argument& argument);
    void SetTabDistance(const Argument& argument);
    void SetBulleted(const Argument& argument);
    void PutCharacter(const Argument& argument);
    void PutUnicode(const Argument& argument);
    void SetFallbackSize(const Argument& argument);
    void SetCodePage(const Argument& argument);
    void SetDefaultFont(const Argument& argument);
    void SetCharset(const Argument& argument);
    void SetFontCodePage(const Argument& argument);
    void SetColorPart(const Argument& argument);
    void Enter(const Argument& argument);
    void EnterColorTable(const Argument& argument);
    void EnterList(const Argument& argument);
    void EnterBulletText(const Argument& argument);
    void EnterMarker(const Argument& argument);
    void EnterTwins(const Argument& argument);
    void EnterUnicode(const Argument& argument);
    void SkipGroup(const Argument& argument);

    Look& TheLook() { return m_groups.Top().look; }
    Paragraph& TheParagraph() { return m_groups.Top().paragraph; }

    Tables& m_tables;
    DocumentBuilder& m_builder;
    CodePages m_codePages;
    GroupStack m_groups;

    std::size_t m_skippedGroups = 0; ///< open ones, from the outermost that is skipped
    int m_fallback = 0;              ///< characters to be skipped
    bool m_starred = false;
    QByteArray m_lead; ///< the bytes of a character that has not ended
    char16_t m_highSurrogate = 0;

    int m_defaultFont = -1;
    int m_tableFont = 0;
    QString m_fontName;
    std::optional<QColor> m_color; ///< of the entry that has not ended
    QTextOption::TabType m_tabType = QTextOption::LeftTab;

    bool m_hasBullet = false; ///< the list that is being described
    QString m_bulletText;
    bool m_isMarked = false;     ///< the paragraph has its bullet or number
    Paragraph m_latestParagraph; ///< at the latest text
};

} // namespace schedules::rtf
