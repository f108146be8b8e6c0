#include "workbook/Palette.h"

#include <algorithm>

namespace schedules {

namespace {

/// As 0x00BBGGRR.
constexpr std::array<std::uint32_t, 56> kCustomary{
    0x000000, 0xFFFFFF, 0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF, 0xFF00FF, 0xFFFF00, 0x000080, 0x008000,
    0x800000, 0x008080, 0x800080, 0x808000, 0xC0C0C0, 0x808080, 0xFF9999, 0x663399, 0xCCFFFF, 0xFFFFCC,
    0x660066, 0x8080FF, 0xCC6600, 0xFFCCCC, 0x800000, 0xFF00FF, 0x00FFFF, 0xFFFF00, 0x800080, 0x000080,
    0x808000, 0xFF0000, 0xFFCC00, 0xFFFFCC, 0xCCFFCC, 0x99FFFF, 0xFFCC99, 0xCC99FF, 0xFF99CC, 0x99CCFF,
    0xFF6633, 0xCCCC33, 0x00CC99, 0x00CCFF, 0x0099FF, 0x0066FF, 0x996666, 0x969696, 0x663300, 0x669933,
    0x003300, 0x003333, 0x003399, 0x663399, 0x993333, 0x333333};

int Channel(std::uint32_t color, int number)
{
    return static_cast<int>(color >> (8 * number) & 0xFF);
}

int Distance(std::uint32_t one, std::uint32_t other)
{
    int sum = 0;
    for (int number = 0; number < 3; ++number) {
        const int difference = Channel(one, number) - Channel(other, number);
        sum += difference * difference;
    }
    return sum;
}

} // namespace

Palette::Palette() : m_colors(kCustomary)
{
    m_taken.set(kBlack - kFirst);
    m_taken.set(kWhite - kFirst);
}

Word Palette::NumberOf(std::uint32_t color)
{
    std::size_t place = Nearest(color);
    const std::size_t free = LastFree();
    if (m_colors[place] != color && free < kSize) {
        place = free;
        m_colors[place] = color;
    }
    m_taken.set(place);
    return static_cast<Word>(kFirst + place);
}

std::size_t Palette::LastFree() const
{
    for (std::size_t place = kSize; place-- > 0;) {
        if (!m_taken[place])
            return place;
    }
    return kSize;
}

std::size_t Palette::Nearest(std::uint32_t color) const
{
    const auto distance = [color](std::uint32_t other) { return Distance(color, other); };
    return static_cast<std::size_t>(std::ranges::min_element(m_colors, {}, distance) - m_colors.begin());
}

void Palette::WriteTo(RecordWriter& records) const
{
    std::string data;
    Append(data, static_cast<Word>(kSize));
    for (const std::uint32_t color : m_colors)
        Append(data, color);
    records.WriteData(RecordType::Palette, data);
}

} // namespace schedules
