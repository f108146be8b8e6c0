#pragma once

#include "spread/LearnedAdvances.h"

#include <QFont>
#include <QFontMetricsF>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace schedules {

/// Widths of texts in a font, in twips, independent of any screen: the font is measured at a size where a pixel is
/// a twip, without hinting.
/// Texts are measured as `OnOneLine` shows them.
///
/// Shaping every text of a table would take longer than everything else together. The width of a text is the advance
/// of its first character plus, for each further one, what it adds after the one before it, so that kerning counts.
/// Both are learned from the font when they first turn up. Texts in scripts where more than two neighbours decide, and
/// texts of several scripts, go to the font itself.
class TextMeasure
{
public:
    explicit TextMeasure(const QFont& font);

    /// What the font's own metrics say about the text on one line: the width rounded up.
    int Exact(std::string_view utf8, bool bold) const;

    /// The same for a single text, for which there is nothing to be learned.
    static int WidthOf(std::string_view utf8, const QFont& font, bool bold);

    /// The learned width, in 64ths of a twip; -1 for a text that only the font can measure.
    std::int64_t Learned(std::string_view utf8, bool bold);

    /// Height of a line of text, in twips.
    static int LineHeight(const QFont& font);

private:
    /// What a face, regular or bold, has taught so far.
    struct Face
    {
        explicit Face(const QFont& font);

        /// What is known of the script of a text; nothing when it is of several.
        LearnedAdvances* AdvancesFor(std::string_view utf8);

        std::int64_t WidthBeyondAscii(std::string_view utf8);

        struct Hash
        {
            using is_transparent = void;
            std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
        };

        QFontMetricsF metrics;
        LearnedAdvances latin;
        std::map<QChar::Script, LearnedAdvances> scripts;

        /// Short texts beyond ASCII, names of makers and remarks, that come again and again.
        std::unordered_map<std::string, std::int64_t, Hash, std::equal_to<>> wholes;
    };

    Face& FaceOf(bool bold) const { return bold ? *m_bold : *m_regular; }

    std::unique_ptr<Face> m_regular;
    std::unique_ptr<Face> m_bold;
};

/// Keeps the widest of many texts, by learned widths, and asks the font itself about the one that has won. The texts
/// must stay where they are as long as that.
class WidestText
{
public:
    void Consider(std::string_view utf8, bool bold, TextMeasure& measure);

    /// In twips; 0 when all texts were empty.
    int Width(const TextMeasure& measure) const;

private:
    std::int64_t m_learned = -1;
    std::string_view m_winner;
    bool m_winnerIsBold = false;
    int m_widestAsked = 0; ///< of the texts that only the font can measure
};

} // namespace schedules
