// Every control word of the table: what it does in a text, drawn with the whole of what is shown.

#include "rtf/DrawnDocument.h"
#include "rtf/Interpreter.h"

#include <QHash>

#include <gtest/gtest.h>

namespace schedules::rtf {

namespace {

struct Row
{
    const char* word;
    const char* body;
    const char* shown;
};

const Row kLooks[]{
    {"b", R"(a\b b\b0 c\b1 d)", "a[b]b[/]c[b]d[/]"},
    {"i", R"(a\i b\i0 c)", "a[i]b[/]c"},
    {"ul", R"(a\ul b\ul0 c)", "a[u]b[/]c"},
    {"uld", R"(\uld b\uld0 c)", "[u]b[/]c"},
    {"uldash", R"(\uldash b\uldash0 c)", "[u]b[/]c"},
    {"uldashd", R"(\uldashd b\uldashd0 c)", "[u]b[/]c"},
    {"uldashdd", R"(\uldashdd b\uldashdd0 c)", "[u]b[/]c"},
    {"uldb", R"(\uldb b\uldb0 c)", "[u]b[/]c"},
    {"ulth", R"(\ulth b\ulth0 c)", "[u]b[/]c"},
    {"ulw", R"(\ulw b\ulw0 c)", "[u]b[/]c"},
    {"ulwave", R"(\ulwave b\ulwave0 c)", "[u]b[/]c"},
    {"ulnone", R"(\ul b\ulnone c)", "[u]b[/]c"},
    {"strike", R"(\strike b\strike0 c)", "[s]b[/]c"},
    {"striked", R"(\striked1 b\striked0 c)", "[s]b[/]c"},
    {"caps", R"(\caps b\caps0 c)", "[caps]b[/]c"},
    {"scaps", R"(\scaps b\scaps0 c)", "[smallcaps]b[/]c"},
    {"super", R"(m\super 2\super0 h)", "m[super]2[/]h"},
    {"sub", R"(H\sub 2\super x\sub0 O)", "H[sub]2[/][super]x[/]O"},
    {"nosupersub", R"(\super 2\nosupersub x\sub 2\nosupersub y)", "[super]2[/]x[sub]2[/]y"},
    {"v", R"(a\v b\v0 c)", "ac"},
    {"deleted", R"(a\deleted b\deleted0 c)", "ac"},
    {"plain", R"({\colortbl;\red1;}{\fonttbl{\f0 A;}}\b\i\ul\strike\super\f0\fs20\cf1\cb1 a\plain b)",
     "[b i u s super font=A size=10 colour=#010000 back=#010000]a[/]b"},
    {"fs", R"(a\fs24 b\fs17 c\fs0 d)", "a[size=12]b[/][size=8.5]c[/]d"},
    {"f", R"({\fonttbl{\f0 Arial;}{\f3 Courier New;}}a\f0 b\f3 c\f7 d)", "a[font=Arial]b[/][font=Courier New]c[/]d"},
    {"fonttbl", R"({\fonttbl\f0\fswiss Arial;\f3\fmodern Courier New;}\f3 c\f0 b)",
     "[font=Courier New]c[/][font=Arial]b[/]"},
    {"deff", R"(\deff3{\fonttbl{\f0 Arial;}{\f3 Courier New;}}a\f0 b\plain c)",
     "[font=Courier New]a[/][font=Arial]b[/][font=Courier New]c[/]"},
    {"fcharset", R"({\fonttbl{\f0\fcharset0 A;}{\f1\fcharset204 A;}{\f2\fcharset1 A;}}\f0\'cf\f1\'cf\f2\'cf)",
     "[font=A]\u00CF\u041F\u00CF[/]"},
    {"cpg", R"({\fonttbl{\f0\cpg1251\fcharset0 A;}{\f1\fcharset0\cpg99 A;}}\f0\'cf\f1\'cf)", "[font=A]\u041F\u00CF[/]"},
    {"colortbl", R"({\colortbl;\red255\green0\blue0;\red0\green128\blue255;}\cf2 a\cf1 b)",
     "[colour=#0080ff]a[/][colour=#ff0000]b[/]"},
    {"red", R"({\colortbl;\red17;}\cf1 a)", "[colour=#110000]a[/]"},
    {"green", R"({\colortbl;\green17;}\cf1 a)", "[colour=#001100]a[/]"},
    {"blue", R"({\colortbl;\blue17;}\cf1 a)", "[colour=#000011]a[/]"},
    {"cf", R"({\colortbl;\red255;}a\cf1 b\cf0 c\cf9 d\cf-1 e)", "a[colour=#ff0000]b[/]cde"},
    {"cb", R"({\colortbl;\red255;\blue9;}\cf2\cb1 b\cb0 c)", "[colour=#000009 back=#ff0000]b[/][colour=#000009]c[/]"},
    {"chcbpat", R"({\colortbl;\red255;\blue9;}\cf2\chcbpat1 b)", "[colour=#000009 back=#ff0000]b[/]"},
    {"highlight", R"({\colortbl;\red255;\red0;}\highlight1 b\highlight2 c\highlight0 d)",
     "[colour=#000000 back=#ff0000]b[/][colour=#ffffff back=#000000]c[/]d"},
};

const Row kParagraphs[]{
    {"par", R"(a\par\par b\par)", "a\n\nb"},
    {"sect", R"(a\sect b)", "a\nb"},
    {"page", R"(a\page b)", "a\nb"},
    {"row", R"(a\cell b\row c)", "a\u2192b\nc"},
    {"column", R"(a\column b)", "a\nb"},
    {"nestrow", R"(a\nestcell b\nestrow c)", "a\u2192b\nc"},
    {"nesttableprops", R"(a\nestcell{\*\nesttableprops\trowd b\nestrow c}d)", "a\u2192\nd"},
    {"ql", R"(\ql a)", "<left> a"},
    {"qr", R"(\qr a)", "<right> a"},
    {"qc", R"(\qc a\par b\par\ql c)", "<centre> a\n<centre> b\n<left> c"},
    {"qj", R"(\qj a)", "<justify> a"},
    {"ltrpar", R"(\ltrpar a)", "<ltr> a"},
    {"rtlpar", R"(\rtlpar a)", "<rtl> a"},
    {"pard", R"(\rtlpar\qc\li1440\ri1440\fi-720\sb240\sa240\tx2880 a\par\pard b)",
     "<centre rtl li=96 ri=96 fi=-48 sb=16 sa=16 tabs=48L,144L> a\nb"},
    {"li", R"(\li720 a)", "<li=48> a"},
    {"ri", R"(\ri1440 a)", "<ri=96> a"},
    {"fi", R"(\fi360 a)", "<fi=24> a"},
    {"sb", R"(\sb120 a)", "<sb=8> a"},
    {"sa", R"(\sa240 a)", "<sa=16> a"},
    {"tx", R"(\tx720\tx2160 a\tab b)", "<tabs=48L,144L> a\u2192b"},
    {"tqr", R"(\tqr\tx1440\tx2880 a)", "<tabs=96R,192L> a"},
    {"tqc", R"(\tqc\tx1440\tx2880 a)", "<tabs=96C,192L> a"},
    {"tqdec", R"(\tqdec\tx1440\tx2880 a)", "<tabs=96D,192L> a"},
    {"pn", R"({\*\pn\pnlvlblt}\li720\fi-360 one\par two\par\pard three)",
     "<li=48 fi=-24 tabs=24L> \u2022\u2192one\n<li=48 fi=-24 tabs=24L> \u2022\u2192two\nthree"},
    {"pnlvlblt", R"({\*\pn\pnlvlblt hidden}one)", "\u2022\u2192one"},
    {"pnlvlbody", R"({\*\pn\pnlvlbody}one)", "one"},
    {"pnlvlcont", R"({\*\pn\pnlvlblt\pnlvlcont}one)", "one"},
    {"pnf", R"({\fonttbl{\f0 A;}{\f2\fcharset2 Symbol;}}\f0{\*\pn\pnlvlblt\pnf2{\pntxtb\'B7}}one)",
     "[font=A]\u2022\u2192one[/]"},
    {"pntxtb", R"({\*\pn\pnlvlblt{\pntxtb -}{\pntxta )}}one\par two)", "-\u2192one\n-\u2192two"},
    {"pntext", R"({\pntext\bullet\tab}{\*\pn\pnlvlblt{\pntxtb -}}one\par{\pntext\bullet\tab}two)",
     "\u2022\u2192one\n\u2022\u2192two"},
    {"listtext", R"(\ls1{\listtext\pard\plain 1.\tab}one)", "1.\u2192one"},
};

const Row kCharacters[]{
    {"tab", R"(a\tab b)", "a\u2192b"},
    {"cell", R"(a\cell b)", "a\u2192b"},
    {"nestcell", R"(a\nestcell b)", "a\u2192b"},
    {"line", R"(\qc a\line b)", "<centre> a\u21B5b"},
    {"bullet", R"(\bullet  a)", "\u2022 a"},
    {"emdash", R"(a\emdash b)", "a\u2014b"},
    {"endash", R"(a\endash b)", "a\u2013b"},
    {"lquote", R"(\lquote a)", "\u2018a"},
    {"rquote", R"(a\rquote s)", "a\u2019s"},
    {"ldblquote", R"(\ldblquote a)", "\u201Ca"},
    {"rdblquote", R"(a\rdblquote)", "a\u201D"},
    {"emspace", R"(a\emspace b)", "a\u2003b"},
    {"enspace", R"(a\enspace b)", "a\u2002b"},
    {"qmspace", R"(a\qmspace b)", "a\u2005b"},
    {"zwj", R"(a\zwj b)", "a\u200Db"},
    {"zwnj", R"(a\zwnj b)", "a\u200Cb"},
    {"ltrmark", R"(a\ltrmark b)", "a\u200Eb"},
    {"rtlmark", R"(a\rtlmark b)", "a\u200Fb"},
    {"u", R"(\u8364?\u-257 x)", "\u20AC\uFEFF"},
    {"upr", R"(a{\upr{?\par\bullet}{\*\ud{\u8364 ?}b}}c)", "a\u20ACbc"},
    {"ud", R"(a{\*\ud b}c)", "abc"},
    {"uc", R"(\uc2\u8364??a\uc0\u8364?)", "\u20ACa\u20AC?"},
    {"ansi", R"(\pc\ansi\'e9)", "\u00E9"},
    {"ansicpg", R"(\ansi\ansicpg1251\'e9)", "\u0439"},
    {"mac", R"(\mac\'8e)", "\u00E9"},
    {"pc", R"(\pc\'82)", "\u00E9"},
    {"pca", R"(\pca\'b5)", "\u00C1"},
};

/// Words that hide their group.
const char* const kHiding[]{"annotation",
                            "atnid",
                            "bkmkend",
                            "bkmkstart",
                            "colorschememapping",
                            "comment",
                            "datafield",
                            "datastore",
                            "falt",
                            "filetbl",
                            "fldinst",
                            "fname",
                            "fontemb",
                            "footer",
                            "footerf",
                            "footerl",
                            "footerr",
                            "footnote",
                            "generator",
                            "header",
                            "headerf",
                            "headerl",
                            "headerr",
                            "info",
                            "latentstyles",
                            "listoverridetable",
                            "listtable",
                            "nonesttables",
                            "nonshppict",
                            "object",
                            "panose",
                            "pict",
                            "pntxta",
                            "revtbl",
                            "rsidtbl",
                            "rxe",
                            "shpinst",
                            "stylesheet",
                            "tc",
                            "template",
                            "themedata",
                            "txe",
                            "userprops",
                            "xe",
                            "xmlnstbl"};

/// Tested where they are seen.
const char* const kElsewhere[]{"deftab"};

template <class Rows>
void ExpectShown(const Rows& rows)
{
    for (const Row& row : rows)
        EXPECT_EQ(Shown(row.body), row.shown) << row.word;
}

template <class Rows>
void CountWords(QHash<QString, int>& counts, const Rows& rows)
{
    for (const Row& row : rows)
        ++counts[QLatin1String(row.word)];
}

} // namespace

TEST(ControlWords, SetTheLookOfText)
{
    ExpectShown(kLooks);
}

TEST(ControlWords, SetAndEndParagraphs)
{
    ExpectShown(kParagraphs);
}

TEST(ControlWords, StandForCharacters)
{
    ExpectShown(kCharacters);
}

TEST(ControlWords, HideTheirGroup)
{
    for (const char* word : kHiding) {
        EXPECT_EQ(Shown(QStringLiteral("a{\\%1 b{\\b c}\\par d}e").arg(word)), "ae") << word;
        EXPECT_EQ(Shown(QStringLiteral("a{\\*\\%1 b{\\b c}\\par d}e").arg(word)), "ae") << word;
    }
}

TEST(ControlWords, AreAllTested)
{
    QHash<QString, int> counts;
    CountWords(counts, kLooks);
    CountWords(counts, kParagraphs);
    CountWords(counts, kCharacters);
    for (const char* word : kHiding)
        ++counts[QLatin1String(word)];
    for (const char* word : kElsewhere)
        ++counts[QLatin1String(word)];
    for (const QString& word : Interpreter::KnownWords())
        EXPECT_EQ(counts.take(word), 1) << word.toStdString();
    EXPECT_EQ(counts.keys(), QStringList());
}

TEST(ControlWords, ThatAreUnknownDoNothing)
{
    EXPECT_EQ(Shown(R"(a\unknown b\unknown1 c\B d\bx e\lang1033\viewkind4 f)"), "abcdef");
}

} // namespace schedules::rtf
