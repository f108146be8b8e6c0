#pragma once

#include <QStringView>

namespace schedules::rtf {

/// Fonts that have symbols where others have letters.
enum class SymbolFont
{
    None,
    Symbol,
    Wingdings,
    Wingdings2,
    Wingdings3
};

/// By the name alone, in any case; None for all others.
SymbolFont SymbolFontNamed(QStringView family);

/// The Unicode character that the font shows for a code: 0x20 to 0xFF, or the same from U+F020 on. The replacement
/// character where the font shows none that Unicode has, and the code itself where it is another, or there is no font.
///
/// The places are those that Unicode has published: "Adobe Symbol Encoding to Unicode" (symbol.txt, version 1.0) and
/// "Status of encoding of Wingdings and Webdings Symbols" (L2/12-368). Where a character of the second came with
/// Unicode 7 and an older one looks much the same, it is the older one: most fonts have no other.
char32_t Symbol(SymbolFont font, char32_t code);

} // namespace schedules::rtf
