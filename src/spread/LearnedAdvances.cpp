#include "spread/LearnedAdvances.h"

#include <QString>

#include <cmath>

namespace schedules {

namespace {

/// In place of a width: only the font itself can tell.
constexpr int kAskFont = -2'000'000'000;
constexpr double kFraction = 64;
constexpr std::size_t kMemos = 1024;

/// Characters of scripts whose shapes depend on no more than the character before: Latin, Greek, Cyrillic, general
/// punctuation and symbols, kana and CJK ideographs. Combining marks, Arabic, Indic scripts and the like are not.
bool Simple(char32_t character)
{
    return (character >= 0x20 && character < 0x300 && character != 0xAD) || (character >= 0x370 && character < 0x483) ||
           (character >= 0x48A && character < 0x530) || (character >= 0x2010 && character < 0x2028) ||
           (character >= 0x2030 && character < 0x2060) || (character >= 0x2070 && character < 0x20D0) ||
           (character >= 0x2100 && character < 0x2C00) || (character >= 0x3000 && character < 0x302A) ||
           (character >= 0x3041 && character < 0x3099) || (character >= 0x30A0 && character < 0x3100) ||
           (character >= 0x4E00 && character < 0xA000);
}

/// The next character of a valid UTF-8 text; moves on behind it.
char32_t NextCharacter(const char*& at)
{
    const auto lead = static_cast<unsigned char>(*at++);
    if (lead < 0x80)
        return lead;
    const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    char32_t character = lead & (0x3F >> more);
    for (int index = 0; index < more; ++index)
        character = (character << 6) | (static_cast<unsigned char>(*at++) & 0x3F);
    return character;
}

/// Letters that type designers join into ligatures of three and more.
bool JoinFurther(char32_t before, char32_t character)
{
    return before == U'f' && character == U'f';
}

bool Between(char32_t character, char32_t first, char32_t last)
{
    return first <= character && character <= last;
}

/// The script of a character; the blocks that fill schedules are known without a look into the tables.
QChar::Script ScriptOf(char32_t character)
{
    if (character < 0x80)
        return Between(character | 0x20, U'a', U'z') ? QChar::Script_Latin : QChar::Script_Common;
    if (Between(character, 0x400, 0x482))
        return QChar::Script_Cyrillic;
    if (Between(character, 0x4E00, 0x9FFF))
        return QChar::Script_Han;
    return QChar::script(character);
}

bool SharedByScripts(QChar::Script script)
{
    return script == QChar::Script_Common || script == QChar::Script_Inherited;
}

} // namespace

LearnedAdvances::LearnedAdvances(const QFontMetricsF& metrics, char32_t letter)
    : m_metrics(metrics), m_letter(letter), m_memos(kMemos)
{
}

std::int64_t LearnedAdvances::Width(std::string_view utf8)
{
    const char* at = utf8.data();
    const char* const end = at + utf8.size();
    char32_t before = 0;
    std::int64_t width = 0;
    while (at != end) {
        width += QuickWidth(at, end, before);
        if (at == end)
            break;
        const char32_t character = NextCharacter(at);
        const int advance = Advance(before, character);
        if (advance == kAskFont)
            return -1;
        width += advance;
        before = character;
    }
    return width;
}

std::int64_t LearnedAdvances::QuickWidth(const char*& at, const char* end, char32_t& before) const
{
    if (!m_pairs.Covers(before))
        return 0;
    const int* row = m_pairs.Row(before);
    const char* next = at;
    std::int64_t width = 0;
    for (; next != end; ++next) {
        const auto character = static_cast<unsigned char>(*next);
        if (!m_pairs.Covers(character) || row[character] <= kUnknown)
            break;
        width += row[character];
        row = m_pairs.Row(character);
    }
    if (next != at)
        before = static_cast<unsigned char>(next[-1]);
    at = next;
    return width;
}

int LearnedAdvances::Advance(char32_t before, char32_t character)
{
    if (!m_pairs.Covers(before) || !m_pairs.Covers(character))
        return AdvanceBeyondTable(before, character);
    return m_pairs.Of(before, character, [this](char32_t first, char32_t next) { return Learn(first, next); });
}

int LearnedAdvances::AdvanceBeyondTable(char32_t before, char32_t character)
{
    const std::uint64_t key = std::uint64_t{before} << 32 | character;
    Memo& memo = m_memos[(before * 31 + character) % kMemos];
    if (memo.key != key) {
        const auto [known, isNew] = m_others.try_emplace(key, 0);
        int& advance = known->second; // stays where it is when learning adds others
        if (isNew)
            advance = Learn(before, character);
        memo = {key, advance};
    }
    return memo.advance;
}

int LearnedAdvances::Learn(char32_t before, char32_t character)
{
    if (!Simple(character) || JoinFurther(before, character))
        return kAskFont;
    // At the start of a text there is no letter yet to go with.
    if (before == 0)
        return m_letter != 0 && SharedByScripts(ScriptOf(character)) ? kAskFont : Measured({&character, 1});
    std::u32string text(m_letter != 0 ? 1 : 0, m_letter);
    text += before;
    const int without = m_letter != 0 ? Measured(text) : Advance(0, before);
    return Measured(text += character) - without;
}

int LearnedAdvances::Measured(std::u32string_view text) const
{
    const QString measured = QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
    return static_cast<int>(std::lround(m_metrics.horizontalAdvance(measured) * kFraction));
}

std::optional<char32_t> LetterOfOwnScript(std::string_view utf8)
{
    char32_t letter = 0;
    auto letterScript = QChar::Script_Common;
    bool hasLatin = false;
    for (const char* at = utf8.data(); at != utf8.data() + utf8.size();) {
        const char32_t character = NextCharacter(at);
        const auto script = ScriptOf(character);
        if (SharedByScripts(script) || script == letterScript)
            continue;
        if (script == QChar::Script_Latin) {
            hasLatin = true;
            continue;
        }
        if (letter != 0)
            return std::nullopt;
        letter = character;
        letterScript = script;
    }
    if (hasLatin && letter != 0)
        return std::nullopt;
    return letter;
}

} // namespace schedules
