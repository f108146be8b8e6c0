#include "controls/cells/GlyphFace.h"

#include <QGlyphRun>
#include <QTextLayout>

#include <algorithm>

namespace schedules {

namespace {

/// How the full layout sets a text: its glyphs, if all are of one font.
QGlyphRun LaidOut(const QString& text, const QFont& font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return runs.size() == 1 ? runs.front() : QGlyphRun();
}

} // namespace

GlyphFace::GlyphFace(const QFont& font)
    : m_font(font), m_rawFont(LaidOut(QStringLiteral("0"), font).rawFont()), m_glyphs(kCount)
{
}

std::optional<double> GlyphFace::WidthOf(QStringView text)
{
    if (text.isEmpty() || !std::ranges::all_of(text, Knows))
        return std::nullopt;
    double width = 0;
    for (qsizetype index = 0; index < text.size(); ++index) {
        const bool isLast = index + 1 == text.size();
        const float step = isLast ? GlyphOf(text[index]).advance : DistanceOf(text[index], text[index + 1]);
        if (step == kNeedsLayout)
            return std::nullopt;
        width += static_cast<double>(step);
    }
    return width;
}

void GlyphFace::Append(GlyphRow& row, QStringView text, QPointF start)
{
    QPointF at = start;
    for (qsizetype index = 0; index < text.size(); ++index) {
        row.glyphs.push_back(GlyphOf(text[index]).index);
        row.positions.push_back(at);
        if (index + 1 < text.size())
            at.rx() += static_cast<double>(DistanceOf(text[index], text[index + 1]));
    }
}

const GlyphFace::Glyph& GlyphFace::GlyphOf(QChar character)
{
    Glyph& known = m_glyphs[PlaceOf(character)];
    if (known.advance == kUnknown)
        known = LearnedGlyph(character);
    return known;
}

float GlyphFace::DistanceOf(QChar character, QChar next)
{
    return m_distances.Of(character.unicode(), next.unicode(), [this](char32_t first, char32_t second) {
        return LearnedDistance(static_cast<char16_t>(first), static_cast<char16_t>(second));
    });
}

GlyphFace::Glyph GlyphFace::LearnedGlyph(QChar character)
{
    const QGlyphRun run = LaidOut(character, m_font);
    if (run.glyphIndexes().size() != 1 || run.rawFont() != m_rawFont)
        return {0, kNeedsLayout};
    return {run.glyphIndexes().front(), static_cast<float>(QFontMetricsF(m_font).horizontalAdvance(character))};
}

float GlyphFace::LearnedDistance(QChar character, QChar next)
{
    const QGlyphRun run = LaidOut(QString(character) + next, m_font);
    const QList expected{GlyphOf(character).index, GlyphOf(next).index};
    if (run.glyphIndexes() != expected || run.rawFont() != m_rawFont || run.positions().front().x() != 0)
        return kNeedsLayout;
    return static_cast<float>(run.positions().back().x() - run.positions().front().x());
}

} // namespace schedules
