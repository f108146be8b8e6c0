#include "rtf/Formats.h"

#include "common/Luminance.h"
#include "rtf/Group.h"
#include "rtf/Tables.h"

#include <QFont>

#include <algorithm>

namespace schedules::rtf {

namespace {

constexpr int kWidestIndent = 3 * kTwipsPerInch; ///< so that text begins inside of the narrowest window
constexpr int kLargestSpace = 2 * kTwipsPerInch;

void SetFont(QTextCharFormat& format, const Look& look, const Tables& tables)
{
    const Font font = tables.fonts.value(look.font);
    // Symbols were made characters, which any font may have.
    const bool hasSymbols = font.Symbols() != SymbolFont::None || tables.CodePageOf(look.font) == kSymbolCodePage;
    if (!font.family.isEmpty() && !hasSymbols)
        format.setFontFamilies({font.family});
    if (look.halfPoints > 0)
        format.setFontPointSize(look.halfPoints / 2.0);
}

void SetStyle(QTextCharFormat& format, const Look& look)
{
    if (look.Has(kBold))
        format.setFontWeight(QFont::Bold);
    if (look.Has(kItalic))
        format.setFontItalic(true);
    if (look.Has(kUnderline))
        format.setFontUnderline(true);
    if (look.Has(kStrike))
        format.setFontStrikeOut(true);
}

void SetShape(QTextCharFormat& format, const Look& look)
{
    if (look.Has(kCapitals))
        format.setFontCapitalization(QFont::AllUppercase);
    else if (look.Has(kSmallCapitals))
        format.setFontCapitalization(QFont::SmallCaps);
    if (look.Has(kSuperscript))
        format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    else if (look.Has(kSubscript))
        format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
}

QColor ReadableOn(const QColor& background)
{
    const double luminance = Luminance(background.redF(), background.greenF(), background.blueF());
    return IsDark(luminance) ? Qt::white : Qt::black;
}

void SetColors(QTextCharFormat& format, const Look& look, const Tables& tables)
{
    const QColor background = tables.Color(look.background);
    QColor foreground = tables.Color(look.foreground);
    // The palette's text colour fits the palette's background, not this one.
    if (background.isValid() && !foreground.isValid())
        foreground = ReadableOn(background);
    if (background.isValid())
        format.setBackground(background);
    if (foreground.isValid())
        format.setForeground(foreground);
}

/// With indents that leave room for text, and a first line that begins inside.
Paragraph Bounded(Paragraph paragraph)
{
    const auto bound = [&](Length length, int least, int most) {
        int& twips = paragraph.lengths[static_cast<std::size_t>(length)];
        twips = std::clamp(twips, least, most);
    };
    bound(Length::Left, 0, kWidestIndent);
    bound(Length::Right, 0, kWidestIndent);
    bound(Length::FirstLine, -paragraph.Of(Length::Left), kWidestIndent - paragraph.Of(Length::Left));
    bound(Length::Before, 0, kLargestSpace);
    bound(Length::After, 0, kLargestSpace);
    return paragraph;
}

/// Rich text counts them from the page's margin, the document from where the first line begins.
QList<QTextOption::Tab> TabsOf(const Paragraph& paragraph, const Tables& tables, qreal pixelsPerTwip)
{
    const int lineStart = paragraph.Of(Length::Left) + paragraph.Of(Length::FirstLine);
    std::vector<TabStop> stops = tables.tabStops.Of(paragraph.tabStops);
    // A hanging indent is a tab stop by itself.
    if (paragraph.Of(Length::FirstLine) < 0)
        stops.push_back({paragraph.Of(Length::Left)});
    std::ranges::stable_sort(stops, {}, &TabStop::position);
    QList<QTextOption::Tab> tabs;
    for (const TabStop& stop : stops) {
        if (stop.position > lineStart)
            tabs.append({(stop.position - lineStart) * pixelsPerTwip, stop.type, u'.'});
    }
    return tabs;
}

} // namespace

QTextCharFormat CharFormatOf(const Look& look, const Tables& tables)
{
    QTextCharFormat format;
    SetFont(format, look, tables);
    SetStyle(format, look);
    SetShape(format, look);
    SetColors(format, look, tables);
    return format;
}

QTextBlockFormat BlockFormatOf(const Paragraph& paragraph, const Tables& tables, qreal dotsPerInch)
{
    const Paragraph bounded = Bounded(paragraph);
    const qreal pixelsPerTwip = dotsPerInch / kTwipsPerInch;
    QTextBlockFormat format;
    format.setLeftMargin(bounded.Of(Length::Left) * pixelsPerTwip);
    format.setRightMargin(bounded.Of(Length::Right) * pixelsPerTwip);
    format.setTextIndent(bounded.Of(Length::FirstLine) * pixelsPerTwip);
    format.setTopMargin(bounded.Of(Length::Before) * pixelsPerTwip);
    format.setBottomMargin(bounded.Of(Length::After) * pixelsPerTwip);
    if (bounded.alignment)
        format.setAlignment(bounded.alignment);
    format.setLayoutDirection(bounded.direction);
    format.setTabPositions(TabsOf(bounded, tables, pixelsPerTwip));
    return format;
}

} // namespace schedules::rtf
