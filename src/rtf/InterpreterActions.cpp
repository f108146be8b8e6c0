#include "rtf/DocumentBuilder.h"
#include "rtf/Interpreter.h"

#include <algorithm>
#include <utility>

namespace schedules::rtf {

namespace {

constexpr int kLargestSize = 3276; ///< in half points
constexpr int kSmallestTabDistance = 72;
constexpr int kLargestLength = 31680;
constexpr int kUsualTabDistance = 720;
constexpr int kLargestFallback = 255;
constexpr std::size_t kRootDepth = 1;

// The private characters by which fonts of symbols are addressed.
constexpr char32_t kSymbols = 0xF000;
constexpr char32_t kFirstSymbol = kSymbols + 0x20;
constexpr char32_t kLastSymbol = kSymbols + 0xFF;

/// Between 0 and `largest`.
int Limited(std::optional<int> number, int largest)
{
    return std::clamp(number.value_or(0), 0, largest);
}

/// Whether it is a character, and none by which documents keep their structure.
bool IsShown(char32_t code)
{
    const bool isCharacter = code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
    const bool isStructure =
        QChar::isNonCharacter(code) || code == QChar::ParagraphSeparator || code == QChar::ObjectReplacementCharacter;
    return isCharacter && !isStructure;
}

} // namespace

void Interpreter::Toggle(const Argument& argument)
{
    const auto flag = static_cast<unsigned>(argument.fixed);
    TheLook().flags &= ~flag;
    if (argument.number.value_or(1) != 0)
        TheLook().flags |= flag;
}

void Interpreter::Clear(const Argument& argument)
{
    TheLook().flags &= ~static_cast<unsigned>(argument.fixed);
}

void Interpreter::SetPosition(const Argument& argument)
{
    TheLook().flags &= ~(kSuperscript | kSubscript);
    Toggle(argument);
}

void Interpreter::SetFont(const Argument& argument)
{
    const int font = argument.number.value_or(0);
    if (m_groups.Top().destination != Destination::FontTable) {
        TheLook().font = font;
        return;
    }
    EndFontName();
    m_tableFont = font;
}

void Interpreter::SetSize(const Argument& argument)
{
    TheLook().halfPoints = Limited(argument.number, kLargestSize);
}

void Interpreter::SetForeground(const Argument& argument)
{
    TheLook().foreground = argument.number.value_or(0);
}

void Interpreter::SetBackground(const Argument& argument)
{
    TheLook().background = argument.number.value_or(0);
}

void Interpreter::ResetLook(const Argument&)
{
    TheLook() = {.font = m_defaultFont};
}

void Interpreter::ResetParagraph(const Argument&)
{
    LeaveTable();
    TheParagraph() = {};
    m_tabType = QTextOption::LeftTab;
}

void Interpreter::EndParagraph(const Argument&)
{
    LeaveTable();
    EndSurrogate();
    if (!IsBody())
        return;
    m_builder.EndParagraph(TheParagraph(), TheLook());
    m_isMarked = false;
}

/// It stands among the properties of its row, behind the cells.
void Interpreter::EndNestedRow(const Argument& argument)
{
    Destination& destination = m_groups.Top().destination;
    const Destination entered = destination;
    if (entered == Destination::RowProperties)
        destination = Destination::Body;
    EndParagraph(argument);
    destination = entered;
}

void Interpreter::SetAlignment(const Argument& argument)
{
    TheParagraph().alignment = Qt::Alignment(argument.fixed);
}

void Interpreter::SetDirection(const Argument& argument)
{
    TheParagraph().direction = static_cast<Qt::LayoutDirection>(argument.fixed);
}

void Interpreter::SetLength(const Argument& argument)
{
    const int twips = std::clamp(argument.number.value_or(0), -kLargestLength, kLargestLength);
    TheParagraph().lengths[static_cast<std::size_t>(argument.fixed)] = twips;
}

void Interpreter::SetTabType(const Argument& argument)
{
    m_tabType = static_cast<QTextOption::TabType>(argument.fixed);
}

void Interpreter::AddTabStop(const Argument& argument)
{
    const TabStop stop{Limited(argument.number, kLargestLength), m_tabType};
    TheParagraph().tabStops = m_tables.tabStops.Added(TheParagraph().tabStops, stop);
    m_tabType = QTextOption::LeftTab;
}

void Interpreter::SetTabDistance(const Argument& argument)
{
    const int twips = argument.number.value_or(kUsualTabDistance);
    m_builder.SetTabDistance(std::clamp(twips, kSmallestTabDistance, kLargestLength));
}

void Interpreter::SetBulleted(const Argument& argument)
{
    m_hasBullet = argument.fixed != 0;
}

void Interpreter::PutCharacter(const Argument& argument)
{
    const QChar character(argument.fixed);
    Write(QStringView(&character, 1));
}

void Interpreter::PutUnicode(const Argument& argument)
{
    m_fallback = m_groups.Top().fallbackSize;
    const int number = argument.number.value_or(0);
    const auto code = static_cast<char32_t>(number < 0 ? number + 0x10000 : number);
    if (code < 0x10000 && QChar::isHighSurrogate(code)) {
        EndSurrogate();
        m_highSurrogate = static_cast<char16_t>(code);
        return;
    }
    if (m_highSurrogate != 0 && code < 0x10000 && QChar::isLowSurrogate(code)) {
        const char32_t whole =
            QChar::surrogateToUcs4(std::exchange(m_highSurrogate, u'\0'), static_cast<char16_t>(code));
        return Write(QChar::fromUcs4(whole));
    }
    WriteCharacter(code);
}

void Interpreter::WriteCharacter(char32_t code)
{
    const SymbolFont font = CurrentSymbols();
    if (font == SymbolFont::None && code >= kFirstSymbol && code <= kLastSymbol)
        code = m_codePages.At(kSymbolCodePage).Decoded(static_cast<uchar>(code - kSymbols)).unicode();
    code = Symbol(font, code);
    if (code >= U' ' || code == U'\t')
        Write(QChar::fromUcs4(IsShown(code) ? code : char32_t(QChar::ReplacementCharacter)));
}

void Interpreter::SetFallbackSize(const Argument& argument)
{
    m_groups.Top().fallbackSize = Limited(argument.number.value_or(1), kLargestFallback);
}

void Interpreter::SetCodePage(const Argument& argument)
{
    const int number = argument.number.value_or(argument.fixed);
    if (IsCodePage(number))
        m_tables.codePage = number;
}

void Interpreter::SetDefaultFont(const Argument& argument)
{
    m_defaultFont = argument.number.value_or(0);
    TheLook().font = m_defaultFont;
}

void Interpreter::SetCharset(const Argument& argument)
{
    if (m_groups.Top().destination == Destination::FontTable)
        m_tables.fonts[m_tableFont].charsetCodePage = CodePageOfCharset(argument.number.value_or(0));
}

void Interpreter::SetFontCodePage(const Argument& argument)
{
    const int number = argument.number.value_or(0);
    if (m_groups.Top().destination == Destination::FontTable && IsCodePage(number))
        m_tables.fonts[m_tableFont].codePage = number;
}

void Interpreter::SetColorPart(const Argument& argument)
{
    if (m_groups.Top().destination != Destination::ColorTable)
        return;
    QColor color = m_color.value_or(Qt::black);
    const int part = Limited(argument.number, 255);
    color.setRed(argument.fixed == 0 ? part : color.red());
    color.setGreen(argument.fixed == 1 ? part : color.green());
    color.setBlue(argument.fixed == 2 ? part : color.blue());
    m_color = color;
}

void Interpreter::Enter(const Argument& argument)
{
    if (m_groups.IsShared())
        return SkipGroup(argument);
    if (m_groups.Depth() > kRootDepth)
        m_groups.Top().destination = static_cast<Destination>(argument.fixed);
}

void Interpreter::EnterColorTable(const Argument& argument)
{
    m_tables.colors.clear();
    Enter(argument);
}

void Interpreter::EnterList(const Argument& argument)
{
    m_hasBullet = false;
    m_bulletText.clear();
    Enter(argument);
}

void Interpreter::EnterBulletText(const Argument& argument)
{
    if (m_groups.Top().destination == Destination::List)
        Enter(argument);
    else
        SkipGroup(argument);
}

void Interpreter::EnterMarker(const Argument&)
{
    m_isMarked = true;
}

/// All but the Unicode one is skipped.
void Interpreter::EnterTwins(const Argument& argument)
{
    if (m_groups.IsShared())
        return SkipGroup(argument);
    if (m_groups.Depth() > kRootDepth)
        m_groups.Top().isTwin = true;
}

void Interpreter::EnterUnicode(const Argument&)
{
    m_groups.Top().isTwin = false;
}

void Interpreter::SkipGroup(const Argument&)
{
    // Skipping the root would hide everything.
    if (m_groups.Depth() > kRootDepth)
        m_skippedGroups = 1;
}

} // namespace schedules::rtf
