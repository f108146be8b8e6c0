#include "rtf/Tables.h"

#include <algorithm>

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

int Tables::CodePageOf(int font) const
{
    const auto found = fonts.constFind(font);
    if (found == fonts.constEnd())
        return codePage;
    const int own = found->codePage != 0 ? found->codePage : found->charsetCodePage;
    return own != 0 ? own : codePage;
}

int Tables::AddBullet(const QString& text)
{
    if (bullets.size() == 1 || bullets.back() != text)
        bullets.append(text);
    return static_cast<int>(bullets.size()) - 1;
}

} // namespace schedules::rtf
