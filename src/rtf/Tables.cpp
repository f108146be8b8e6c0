#include "rtf/Tables.h"

#include <algorithm>
#include <array>

namespace schedules::rtf {

int TabStops::Added(int list, const TabStop& stop)
{
    const int count = m_links[list].count;
    if (count >= kMostOfList)
        return list;
    m_links.push_back({stop, list, count + 1});
    return static_cast<int>(m_links.size()) - 1;
}

std::vector<TabStop> TabStops::Of(int list) const
{
    std::vector<TabStop> stops;
    for (int link = list; link != 0; link = m_links[link].before)
        stops.push_back(m_links[link].stop);
    std::ranges::reverse(stops);
    return stops;
}

SymbolFont Font::Symbols() const
{
    constexpr std::array kOfNoLanguage{0, kAnsiCodePage, kSymbolCodePage, kMacCodePage};
    const bool mayBe = std::ranges::find(kOfNoLanguage, charsetCodePage) != kOfNoLanguage.end();
    return mayBe ? SymbolFontNamed(family) : SymbolFont::None;
}

int Tables::CodePageOf(int font) const
{
    const auto found = fonts.constFind(font);
    if (found == fonts.constEnd())
        return codePage;
    if (found->codePage != 0)
        return found->codePage;
    // The character set of Western letters is what writers of UTF-8 give to any font.
    const bool isUtf8 = codePage == kUtf8CodePage && found->charsetCodePage == kAnsiCodePage;
    return found->charsetCodePage != 0 && !isUtf8 ? found->charsetCodePage : codePage;
}

SymbolFont Tables::SymbolsOf(int font) const
{
    const auto found = fonts.constFind(font);
    return found != fonts.constEnd() ? found->Symbols() : SymbolFont::None;
}

int Tables::AddBullet(const QString& text)
{
    if (bullets.size() == 1 || bullets.back() != text)
        bullets.append(text);
    return static_cast<int>(bullets.size()) - 1;
}

} // namespace schedules::rtf
