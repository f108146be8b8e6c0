#pragma once

#include "spread/LearnedPairs.h"

#include <QFont>
#include <QRawFont>
#include <QStringView>

#include <optional>
#include <vector>

namespace schedules {

/// Glyphs and where they stand, to be drawn in one go.
struct GlyphRow
{
    std::vector<quint32> glyphs;
    std::vector<QPointF> positions;

    void Clear()
    {
        glyphs.clear();
        positions.clear();
    }
};

/// Sets plain texts in one face as the full text layout does, at a fraction of its time: glyphs and the distances of
/// pairs are learned from that layout when they first turn up. Texts in which more decides than neighbouring pairs
/// (other than ASCII characters, ligatures, glyphs of other fonts) are left to the layout.
class GlyphFace
{
public:
    /// The font's size must be in pixels.
    explicit GlyphFace(const QFont& font);

    /// The width of a text; nothing when it has to be laid out in full.
    std::optional<double> WidthOf(QStringView text);

    /// Appends a text that has a width, its baseline starting at a point.
    void Append(GlyphRow& row, QStringView text, QPointF start);

    const QRawFont& Font() const { return m_rawFont; }

private:
    struct Glyph
    {
        quint32 index = 0;
        float advance = kUnknown;
    };

    static constexpr float kUnknown = -1e9F;
    static constexpr float kNeedsLayout = -2e9F;
    static constexpr char16_t kFirst = u' ';
    static constexpr std::size_t kCount = u'~' - u' ' + 1;

    static std::size_t PlaceOf(QChar character) { return static_cast<std::size_t>(character.unicode() - kFirst); }
    static bool Knows(QChar character) { return character >= kFirst && PlaceOf(character) < kCount; }

    const Glyph& GlyphOf(QChar character);
    float DistanceOf(QChar character, QChar next);
    Glyph LearnedGlyph(QChar character);
    float LearnedDistance(QChar character, QChar next);

    QFont m_font;
    QRawFont m_rawFont;
    std::vector<Glyph> m_glyphs;
    LearnedPairs<float> m_distances{kUnknown};
};

} // namespace schedules
