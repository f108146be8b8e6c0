#include "rtf/Interpreter.h"

#include <algorithm>
#include <array>

namespace schedules::rtf {

namespace {

constexpr int kAtLeft = int(Qt::AlignLeft) | int(Qt::AlignAbsolute);
constexpr int kAtRight = int(Qt::AlignRight) | int(Qt::AlignAbsolute);

} // namespace

/// Every control word that is not skipped, and every destination that is skipped with its group; in order.
struct Interpreter::Words
{
    using I = Interpreter;

    static constexpr std::array kAll{
        Word{u"annotation", &I::SkipGroup},
        Word{u"ansi", &I::SetCodePage, kAnsiCodePage},
        Word{u"ansicpg", &I::SetCodePage, kAnsiCodePage},
        Word{u"atnid", &I::SkipGroup},
        Word{u"b", &I::Toggle, kBold},
        Word{u"bkmkend", &I::SkipGroup},
        Word{u"bkmkstart", &I::SkipGroup},
        Word{u"blue", &I::SetColorPart, 2},
        Word{u"bullet", &I::PutCharacter, u'\u2022'},
        Word{u"caps", &I::Toggle, kCapitals},
        Word{u"cb", &I::SetBackground},
        Word{u"cell", &I::PutCharacter, u'\t'},
        Word{u"cf", &I::SetForeground},
        Word{u"chcbpat", &I::SetBackground},
        Word{u"colorschememapping", &I::SkipGroup},
        Word{u"colortbl", &I::EnterColorTable, int(Destination::ColorTable)},
        Word{u"column", &I::EndParagraph},
        Word{u"comment", &I::SkipGroup},
        Word{u"cpg", &I::SetFontCodePage},
        Word{u"datafield", &I::SkipGroup},
        Word{u"datastore", &I::SkipGroup},
        Word{u"deff", &I::SetDefaultFont},
        Word{u"deftab", &I::SetTabDistance},
        Word{u"deleted", &I::Toggle, kHidden},
        Word{u"emdash", &I::PutCharacter, u'\u2014'},
        Word{u"emspace", &I::PutCharacter, u'\u2003'},
        Word{u"endash", &I::PutCharacter, u'\u2013'},
        Word{u"enspace", &I::PutCharacter, u'\u2002'},
        Word{u"f", &I::SetFont},
        Word{u"falt", &I::SkipGroup},
        Word{u"fcharset", &I::SetCharset},
        Word{u"fi", &I::SetLength, int(Length::FirstLine)},
        Word{u"filetbl", &I::SkipGroup},
        Word{u"fldinst", &I::SkipGroup},
        Word{u"fname", &I::SkipGroup},
        Word{u"fontemb", &I::SkipGroup},
        Word{u"fonttbl", &I::Enter, int(Destination::FontTable)},
        Word{u"footer", &I::SkipGroup},
        Word{u"footerf", &I::SkipGroup},
        Word{u"footerl", &I::SkipGroup},
        Word{u"footerr", &I::SkipGroup},
        Word{u"footnote", &I::SkipGroup},
        Word{u"fs", &I::SetSize},
        Word{u"generator", &I::SkipGroup},
        Word{u"green", &I::SetColorPart, 1},
        Word{u"header", &I::SkipGroup},
        Word{u"headerf", &I::SkipGroup},
        Word{u"headerl", &I::SkipGroup},
        Word{u"headerr", &I::SkipGroup},
        Word{u"highlight", &I::SetBackground},
        Word{u"i", &I::Toggle, kItalic},
        Word{u"info", &I::SkipGroup},
        Word{u"latentstyles", &I::SkipGroup},
        Word{u"ldblquote", &I::PutCharacter, u'\u201C'},
        Word{u"li", &I::SetLength, int(Length::Left)},
        Word{u"line", &I::PutCharacter, u'\u2028'},
        Word{u"listoverridetable", &I::SkipGroup},
        Word{u"listtable", &I::SkipGroup},
        Word{u"listtext", &I::EnterMarker},
        Word{u"lquote", &I::PutCharacter, u'\u2018'},
        Word{u"ltrmark", &I::PutCharacter, u'\u200E'},
        Word{u"ltrpar", &I::SetDirection, Qt::LeftToRight},
        Word{u"mac", &I::SetCodePage, kMacCodePage},
        Word{u"nestcell", &I::PutCharacter, u'\t'},
        Word{u"nestrow", &I::EndNestedRow},
        Word{u"nesttableprops", &I::Enter, int(Destination::RowProperties)},
        Word{u"nonesttables", &I::SkipGroup},
        Word{u"nonshppict", &I::SkipGroup},
        Word{u"nosupersub", &I::Clear, kSuperscript | kSubscript},
        Word{u"object", &I::SkipGroup},
        Word{u"page", &I::EndParagraph},
        Word{u"panose", &I::SkipGroup},
        Word{u"par", &I::EndParagraph},
        Word{u"pard", &I::ResetParagraph},
        Word{u"pc", &I::SetCodePage, 437},
        Word{u"pca", &I::SetCodePage, 850},
        Word{u"pict", &I::SkipGroup},
        Word{u"plain", &I::ResetLook},
        Word{u"pn", &I::EnterList, int(Destination::List)},
        Word{u"pnf", &I::SetFont},
        Word{u"pnlvlblt", &I::SetBulleted, 1},
        Word{u"pnlvlbody", &I::SetBulleted, 0},
        Word{u"pnlvlcont", &I::SetBulleted, 0},
        Word{u"pntext", &I::EnterMarker},
        Word{u"pntxta", &I::SkipGroup},
        Word{u"pntxtb", &I::EnterBulletText, int(Destination::BulletText)},
        Word{u"qc", &I::SetAlignment, Qt::AlignHCenter},
        Word{u"qj", &I::SetAlignment, Qt::AlignJustify},
        Word{u"ql", &I::SetAlignment, kAtLeft},
        Word{u"qmspace", &I::PutCharacter, u'\u2005'},
        Word{u"qr", &I::SetAlignment, kAtRight},
        Word{u"rdblquote", &I::PutCharacter, u'\u201D'},
        Word{u"red", &I::SetColorPart, 0},
        Word{u"revtbl", &I::SkipGroup},
        Word{u"ri", &I::SetLength, int(Length::Right)},
        Word{u"row", &I::EndParagraph},
        Word{u"rquote", &I::PutCharacter, u'\u2019'},
        Word{u"rsidtbl", &I::SkipGroup},
        Word{u"rtlmark", &I::PutCharacter, u'\u200F'},
        Word{u"rtlpar", &I::SetDirection, Qt::RightToLeft},
        Word{u"rxe", &I::SkipGroup},
        Word{u"sa", &I::SetLength, int(Length::After)},
        Word{u"sb", &I::SetLength, int(Length::Before)},
        Word{u"scaps", &I::Toggle, kSmallCapitals},
        Word{u"sect", &I::EndParagraph},
        Word{u"shpinst", &I::SkipGroup},
        Word{u"strike", &I::Toggle, kStrike},
        Word{u"striked", &I::Toggle, kStrike},
        Word{u"stylesheet", &I::SkipGroup},
        Word{u"sub", &I::SetPosition, kSubscript},
        Word{u"super", &I::SetPosition, kSuperscript},
        Word{u"tab", &I::PutCharacter, u'\t'},
        Word{u"tc", &I::SkipGroup},
        Word{u"template", &I::SkipGroup},
        Word{u"themedata", &I::SkipGroup},
        Word{u"tqc", &I::SetTabType, QTextOption::CenterTab},
        Word{u"tqdec", &I::SetTabType, QTextOption::DelimiterTab},
        Word{u"tqr", &I::SetTabType, QTextOption::RightTab},
        Word{u"tx", &I::AddTabStop},
        Word{u"txe", &I::SkipGroup},
        Word{u"u", &I::PutUnicode},
        Word{u"uc", &I::SetFallbackSize},
        Word{u"ud", &I::EnterUnicode},
        Word{u"ul", &I::Toggle, kUnderline},
        Word{u"uld", &I::Toggle, kUnderline},
        Word{u"uldash", &I::Toggle, kUnderline},
        Word{u"uldashd", &I::Toggle, kUnderline},
        Word{u"uldashdd", &I::Toggle, kUnderline},
        Word{u"uldb", &I::Toggle, kUnderline},
        Word{u"ulnone", &I::Clear, kUnderline},
        Word{u"ulth", &I::Toggle, kUnderline},
        Word{u"ulw", &I::Toggle, kUnderline},
        Word{u"ulwave", &I::Toggle, kUnderline},
        Word{u"upr", &I::EnterTwins},
        Word{u"userprops", &I::SkipGroup},
        Word{u"v", &I::Toggle, kHidden},
        Word{u"xe", &I::SkipGroup},
        Word{u"xmlnstbl", &I::SkipGroup},
        Word{u"zwj", &I::PutCharacter, u'\u200D'},
        Word{u"zwnj", &I::PutCharacter, u'\u200C'},
    };
    static_assert(std::ranges::is_sorted(kAll, {}, &Word::name));
};

bool Interpreter::Word::IsDestination() const
{
    constexpr std::array kDestinations{&Interpreter::Enter,        &Interpreter::EnterColorTable,
                                       &Interpreter::EnterList,    &Interpreter::EnterBulletText,
                                       &Interpreter::EnterMarker,  &Interpreter::EnterTwins,
                                       &Interpreter::EnterUnicode, &Interpreter::SkipGroup};
    return std::ranges::find(kDestinations, action) != kDestinations.end();
}

const Interpreter::Word* Interpreter::Find(QStringView name)
{
    const std::u16string_view key(name.utf16(), static_cast<std::size_t>(name.size()));
    const auto found = std::ranges::lower_bound(Words::kAll, key, {}, &Word::name);
    return found != Words::kAll.end() && found->name == key ? &*found : nullptr;
}

QStringList Interpreter::KnownWords()
{
    QStringList names;
    for (const Word& word : Words::kAll)
        names << QString::fromStdU16String(std::u16string(word.name));
    return names;
}

} // namespace schedules::rtf
