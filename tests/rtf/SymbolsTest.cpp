// Fonts of symbols: what they show at the places of letters becomes Unicode characters.

#include "rtf/Symbols.h"

#include "rtf/DrawnDocument.h"

#include <gtest/gtest.h>

namespace schedules::rtf {

namespace {

/// What is shown of a body whose font 1 is declared so.
std::string ShownIn(const QString& font, const QString& body)
{
    return Shown("{\\fonttbl{\\f0\\fcharset0 Arial;}{\\f1" + font + ";}}" + body);
}

/// All places of a font, a row for each sixteen. A place without a character is a dot.
std::string Places(SymbolFont font)
{
    QString drawn;
    for (char32_t code = 0x20; code < 0x100; ++code) {
        const char32_t symbol = Symbol(font, code);
        drawn += QChar::fromUcs4(symbol != QChar::ReplacementCharacter ? symbol : U'.');
        if (code % 16 == 15)
            drawn += '\n';
    }
    return drawn.toStdString();
}

} // namespace

TEST(SymbolText, ReadsAsItWasWritten)
{
    const char* const shown = "\u2264 5 bar, \u0394T \u2265 3 K, 10 \u00B5m, 5 k\u03A9";
    for (const char* font : {"\\fcharset2 Symbol", "\\fcharset0 Symbol", " symbol", "\\fcharset1 SYMBOL "})
        EXPECT_EQ(ShownIn(font, R"({\f1\'a3} 5 bar, {\f1 D}T {\f1\u-3917?} 3 K, 10 {\f1\'6d}m, 5 k{\f1 W})"), shown)
            << font;
}

TEST(SymbolText, IsMeantByBytesLettersAndPrivateCharacters)
{
    EXPECT_EQ(ShownIn("\\fcharset2 Symbol", R"(\f1\'63 c\u-3997?\u61539?\u99?)"), "\u03C7 \u03C7\u03C7\u03C7\u03C7");
    EXPECT_EQ(ShownIn("\\fcharset2 Symbol", QStringLiteral("\\f1 \u00A3\uF0A3")), "\u2264\u2264");
}

TEST(SymbolText, EndsWithItsFont)
{
    EXPECT_EQ(ShownIn(" Symbol", R"(a{\f1 a}a\f1 b\plain b)"), "a\u03B1a\u03B2b");
    EXPECT_EQ(ShownIn(" Symbol", R"(\f1 a\f0 b)"), "\u03B1[font=Arial]b[/]");
}

TEST(SymbolText, LeavesOtherCharactersAsTheyAre)
{
    EXPECT_EQ(ShownIn(" Symbol", QStringLiteral("\\f1\\bullet\\~\\u8364?\u0416\U0001F600\\tab\\'09")),
              "\u2022\u00A0\u20AC\u0416\U0001F600\u2192\u2192");
}

TEST(SymbolText, ReplacesPlacesWithoutACharacter)
{
    EXPECT_EQ(ShownIn(" Symbol", R"(\f1 a\'85\u-3856?b)"), "\u03B1\uFFFD\uFFFD\u03B2");
}

TEST(SymbolText, MayBeABullet)
{
    EXPECT_EQ(ShownIn("\\fcharset2 Wingdings", R"({\*\pn\pnlvlblt\pnf1{\pntxtb\'fc}}one)"), "\u2713\u2192one");
}

TEST(SymbolText, IsNotInFontsOfOtherNamesOrLanguages)
{
    EXPECT_EQ(ShownIn(" Symbolic", R"(\f1 D)"), "[font=Symbolic]D[/]");
    EXPECT_EQ(ShownIn("\\fcharset204 Symbol", R"(\f1 D\'cf)"), "[font=Symbol]D\u041F[/]");
}

TEST(SymbolFonts, AreKnownByTheirNames)
{
    EXPECT_EQ(SymbolFontNamed(u"Symbol"), SymbolFont::Symbol);
    EXPECT_EQ(SymbolFontNamed(u"WINGDINGS"), SymbolFont::Wingdings);
    EXPECT_EQ(SymbolFontNamed(u"Wingdings 2"), SymbolFont::Wingdings2);
    EXPECT_EQ(SymbolFontNamed(u"wingdings 3"), SymbolFont::Wingdings3);
    EXPECT_EQ(SymbolFontNamed(u"Wingdings 4"), SymbolFont::None);
    EXPECT_EQ(SymbolFontNamed(u""), SymbolFont::None);
}

TEST(SymbolFonts, HaveNoPlacesElsewhere)
{
    for (const char32_t code : {0x0U, 0x1FU, 0x100U, 0x2264U, 0xEFFFU, 0xF000U, 0xF01FU, 0xF100U, 0x1F041U})
        EXPECT_EQ(Symbol(SymbolFont::Symbol, code), code);
    EXPECT_EQ(Symbol(SymbolFont::None, 0x41), 0x41U);
    EXPECT_EQ(Symbol(SymbolFont::Wingdings, 0xFF), 0xFFFDU);
}

TEST(SymbolFonts, ShowTheirCharacters)
{
    EXPECT_EQ(Places(SymbolFont::Symbol),
              R"( !∀#∃%&∋()∗+,−./
0123456789:;<=>?
≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟ
ΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_
‾αβχδεφγηιϕκλµνο
πθρστυϖωξψζ{|}∼.
................
................
€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓
°±″≥×∝∂•÷≠≡≈…⏐⎯↵
ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉
∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓
◊⟨®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪
.⟩∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭.
)");
    EXPECT_EQ(Places(SymbolFont::Wingdings),
              R"( ✏✂✁👓🕭🕮🕯☎✆✉🖃📪📫📬📭
🗀🗁🗎🗏🗐🗄⌛⌨🖰🖲🖳🖴🖫🖬✇✍
🖎✌🖏👍👎☜☞☝☟🖐☺😐☹💣☠⚐
⚑✈☼🌢❄✝✞☩✠✡☪☯🕉☸♈♉
♊♋♌♍♎♏♐♑♒♓&&⚫❍◼□
□❑❒⧫⧫◆❖◆⌧⮹⌘❀✿❝❞▯
🄋➀➁➂➃➄➅➆➇➈➉🄌➊➋➌➍
➎➏➐➑➒➓🙢🙠🙡🙣🙞🙜🙝🙟∙•
▪○○○◉◎○▪◻🟁✦★✶✴✹✵
⯐⌖⯎⌑⯑✪✰🕐🕑🕒🕓🕔🕕🕖🕗🕘
🕙🕚🕛⮰⮱⮲⮳⮴⮵⮶⮷🙪🙫🙕🙔🙗
🙖🙐🙑🙒🙓⌫⌦◂➢▴▾⮈➲⮉⮋←
→↑↓↖↗↙↘←➔↑↓↖↗↙↘⇦
⇨⇧⇩⬄⇳⬁⬀⬃⬂▭▫✗✓☒☑.
)");
    EXPECT_EQ(Places(SymbolFont::Wingdings2),
              R"( 🖊🖋🖌🖍✄✀🕾🕽🗅🗆🗇🗈🗉🗊🗋
🗌🗍📋🗑🗔🖵🖶🖷🖸🖭🖯🖱🖒🖓🖘🖙
🖚🖛👈👉🖜🖝🖞🖟🖠🖡👆👇🖢🖣🖑✗
✓☒☑☒☒⊗⊗🛇⦸🙱🙴🙲🙳‽🙹🙺
🙻🙦🙤🙥🙧🙚🙘🙙🙛⓪①②③④⑤⑥
⑦⑧⑨⑩⓿❶❷❸❹❺❻❼❽❾❿.
☉🌕☽☾⸿✝🕇🕜🕝🕞🕟🕠🕡🕢🕣🕤
🕥🕦🕧🙨🙩⋅●●●○○○◉⊙⦿◎
▪◾■□□□□▪▣🞕🞖▣▣◆⬥◇
◇◈◈🞜🞝🞞⬪⬧◊🞠◖◗⯊⯋⯀⯁
⬟⯂⬣⬢⯃⯄🞡🞢🞣🞤🞥🞦🞧🞨🞩🞪
🞫🞬🞭🞮🞯🞰🞱🞲🞳🞴🞵🞶🞷🞸🞹🞺
🞻🞼🞽🞾🞿🟀✦✦★★🟊✶✴✴✹✹
✹🟃🟇✯🟍🟔⯌⯍※⁂......
)");
    EXPECT_EQ(Places(SymbolFont::Wingdings3),
              R"( ←→↑↓↖↗↙↘⭰⭲⭱⭳⭶⭸⭻
⭽↔↕⭪⭬⭫⭭⭍⮠⮡⮢⮣⮤⮥⮦⮧
⮐⮑⮒⮓⮀⮃⭾⭿⮄⮆⮅⮇⮏⮍⮎⮌
⭮⭯⎋⌤⌃⌥␣⍽⇪⮸🢠🢡🢢🢣🢤🢥
🢦🢧🢨🢩🢪🢫🡐🡒🡑🡓🡔🡕🡗🡖🡘🡙
▲▼△▽◀▶◁▷◣◢◤◥◀▶▲.
▼⯅⯆⯇⯈⮜⮞⮝⮟🠐🠒🠑🠓🠔🠖🠕
🠗🠘🠚🠙🠛🠜🠞🠝🠟🠀🠂🠁🠃🠄🠆🠅
🠇🠈🠊🠉🠋🠠🠢🠤🠦🠨🠪🠬🢜🢝🢞🢟
🠮🠰🠲🠴🠶🠸🠺🠹🠻🢘🢚🢙🢛🠼🠾🠽
🠿🡀🡂🡁🡃🡄🡆🡅🡇⮨⮩⮪⮫⮬⮭⮮
⮯🡠🡢🡡🡣🡤🡥🡧🡦🡰🡲🡱🡳🡴🡵🡷
🡶🢀🢂🢁🢃🢄🢅🢇🢆🢐🢒🢑🢓🢔🢖🢕
🢗...............
)");
}

} // namespace schedules::rtf
