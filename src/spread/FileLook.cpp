#include "spread/FileLook.h"

#include "common/Luminance.h"

#include <array>

namespace schedules {

namespace {

/// As 0xRRGGBB, in the order of their numbers.
constexpr std::array<std::uint32_t, 31> kSystemColors{
    0xC8C8C8, 0xF0F0F0, 0x99B4D1, 0xBFCDDB, 0xF0F0F0, 0xFFFFFF, 0x646464, 0x000000, 0x000000, 0x000000, 0xB4B4B4,
    0xF4F7FC, 0xABABAB, 0x0078D7, 0xFFFFFF, 0xF0F0F0, 0xA0A0A0, 0x6D6D6D, 0x000000, 0x000000, 0xFFFFFF, 0x696969,
    0xE3E3E3, 0x000000, 0xFFFFE1, 0xFFFFFF, 0x0066CC, 0xB9D1EA, 0xD7E4F2, 0x0078D7, 0xF0F0F0};

constexpr std::uint32_t kWhite = 0xFFFFFF;

} // namespace

std::uint32_t RedAndBlueSwapped(std::uint32_t color)
{
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

std::uint32_t FixedColor(std::uint32_t number)
{
    if (!(number & kSystemColorFlag))
        return number & 0xFFFFFF;
    const std::uint32_t index = number & ~kSystemColorFlag;
    return index < kSystemColors.size() ? RedAndBlueSwapped(kSystemColors[index]) : kWhite;
}

bool NeedsWhiteText(std::uint32_t color)
{
    const auto part = [](std::uint32_t byte) { return (byte & 0xFF) / 255.0; };
    return IsDark(Luminance(part(color), part(color >> 8), part(color >> 16)));
}

} // namespace schedules
