#pragma once

#include "workbook/RecordWriter.h"

#include <array>
#include <bitset>

namespace schedules {

/// The 56 colors of a workbook. It begins with the customary ones; colors that are asked for take the places of others
/// while there are any that nobody has asked for.
class Palette
{
public:
    /// Black and white keep their places.
    static constexpr Word kBlack = 8;
    static constexpr Word kWhite = 9;

    Palette();

    /// The number of a 0x00BBGGRR color; of the nearest one when all places are taken.
    Word NumberOf(std::uint32_t color);

    void WriteTo(RecordWriter& records) const;

private:
    static constexpr std::size_t kSize = 56;
    static constexpr Word kFirst = 8;

    std::size_t Nearest(std::uint32_t color) const;
    std::size_t LastFree() const; ///< `kSize` when none is

    std::array<std::uint32_t, kSize> m_colors;
    std::bitset<kSize> m_taken;
};

} // namespace schedules
