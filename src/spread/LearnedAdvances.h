#pragma once

#include "spread/LearnedPairs.h"

#include <QFontMetricsF>

#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace schedules {

/// What a font has taught about one script: how much a character adds to the width of a text after another one, or at
/// its start. Widths are 64ths of a pixel.
///
/// Signs and digits that all scripts share are shaped with the letters that they follow, often in another font than
/// alone. So what is learned of a script is learned behind one of its letters.
class LearnedAdvances
{
public:
    /// `letter` is any letter of the script; 0 for Latin, which needs none.
    LearnedAdvances(const QFontMetricsF& metrics, char32_t letter);

    /// The width of a text of this script; -1 for one that only the font can measure.
    std::int64_t Width(std::string_view utf8);

    /// Adds up the characters at `at` for which there is a quick answer and moves on behind them. `before` is the
    /// character in front of them.
    std::int64_t QuickWidth(const char*& at, const char* end, char32_t& before) const;

private:
    static constexpr int kUnknown = -1'000'000'000;

    struct Memo
    {
        std::uint64_t key = 0;
        int advance = 0;
    };

    int Advance(char32_t before, char32_t character);
    int AdvanceBeyondTable(char32_t before, char32_t character);
    int Learn(char32_t before, char32_t character);
    int Measured(std::u32string_view text) const;

    const QFontMetricsF& m_metrics;
    char32_t m_letter;
    LearnedPairs<int> m_pairs{kUnknown};
    std::unordered_map<std::uint64_t, int> m_others;
    std::vector<Memo> m_memos; ///< what was lately found in `m_others`, each at a place that its key gives
};

/// The first letter of a text that is neither Latin nor shared by all scripts, 0 when there is none; nothing when the
/// text is of several scripts.
std::optional<char32_t> LetterOfOwnScript(std::string_view utf8);

} // namespace schedules
