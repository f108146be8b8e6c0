#include "webpage/HtmlText.h"

#include "common/Utf8.h"

#include <QChar>

#include <array>

namespace schedules {

namespace {

constexpr bool IsLayout(char32_t character)
{
    return character == U'\t' || character == U'\n' || character == U'\r';
}

/// Bytes with which something begins that cannot stand as it is, or must be looked at: marks, control characters, and
/// in UTF-8 what may be a further control character or one that is none at all.
constexpr std::array<bool, 256> kNeedsCare = [] {
    std::array<bool, 256> needsCare{};
    for (int byte = 0; byte < 0x20; ++byte)
        needsCare[byte] = !IsLayout(static_cast<char32_t>(byte));
    for (const char mark : std::string_view("&<>\"\x7F"))
        needsCare[static_cast<unsigned char>(mark)] = true;
    needsCare[0xC2] = true;
    for (int byte = 0xEF; byte <= 0xFF; ++byte)
        needsCare[byte] = true;
    return needsCare;
}();

/// Does not end early: nearly all texts are plain, and short.
bool IsPlain(std::string_view utf8)
{
    bool needsCare = false;
    for (const char byte : utf8)
        needsCare |= kNeedsCare[static_cast<unsigned char>(byte)];
    return !needsCare;
}

bool IsFit(char32_t character)
{
    const bool isControl = QChar::category(character) == QChar::Other_Control && !IsLayout(character);
    return !isControl && !QChar::isNonCharacter(character);
}

void AppendWithCare(std::string& html, char32_t character)
{
    switch (character) {
    case U'&':
        html += "&amp;";
        return;
    case U'<':
        html += "&lt;";
        return;
    case U'>':
        html += "&gt;";
        return;
    case U'"':
        html += "&quot;";
        return;
    default:
        html += QStringView(QChar::fromUcs4(character)).toUtf8().toStdString();
    }
}

void AppendWithCare(std::string& html, std::string_view utf8)
{
    for (const char32_t character : FromUtf8(utf8).toUcs4())
        AppendWithCare(html, IsFit(character) ? character : U'\uFFFD');
}

} // namespace

void AppendHtml(std::string& html, std::string_view utf8)
{
    if (IsPlain(utf8))
        html += utf8;
    else
        AppendWithCare(html, utf8);
}

std::string HtmlOf(std::string_view utf8)
{
    std::string html;
    AppendHtml(html, utf8);
    return html;
}

} // namespace schedules
