#include "spread/TextMeasure.h"

#include "common/Utf8.h"
#include "spread/OneLine.h"

#include <QString>

#include <algorithm>
#include <cmath>

namespace schedules {

namespace {

/// Characters that the font measures at once: its sum of advances, 32 bits with six of them fraction, must not
/// overflow.
constexpr qsizetype kMostAtOnce = 16384;

constexpr std::size_t kMostWholes = 1024;
constexpr std::size_t kLongestWhole = 64;

/// Wider than any paper or screen; wider texts are as wide as this, so that sums of widths stay within bounds.
constexpr double kWidest = 100'000'000;

QFont MeasuringFont(const QFont& font, bool bold)
{
    QFont sized(font);
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * 0.75;
    sized.setPixelSize(std::max(1, static_cast<int>(std::lround(points * 20))));
    sized.setHintingPreference(QFont::PreferNoHinting);
    sized.setBold(bold);
    return sized;
}

int MeasuredWidth(std::string_view utf8, const QFontMetricsF& metrics)
{
    const QString text = OnOneLine(FromUtf8(utf8));
    double width = 0;
    for (qsizetype from = 0; from < text.size(); from += kMostAtOnce)
        width += metrics.horizontalAdvance(text.mid(from, kMostAtOnce));
    return static_cast<int>(std::min(std::ceil(width), kWidest));
}

} // namespace

TextMeasure::Face::Face(const QFont& font) : metrics(font), latin(metrics, 0) {}

LearnedAdvances* TextMeasure::Face::AdvancesFor(std::string_view utf8)
{
    const auto letter = LetterOfOwnScript(utf8);
    if (!letter)
        return nullptr;
    if (*letter == 0)
        return &latin;
    return &scripts.try_emplace(QChar::script(*letter), metrics, *letter).first->second;
}

std::int64_t TextMeasure::Face::WidthBeyondAscii(std::string_view utf8)
{
    if (const auto known = wholes.find(utf8); known != wholes.end())
        return known->second;
    LearnedAdvances* const advances = AdvancesFor(utf8);
    const std::int64_t width = advances ? advances->Width(utf8) : -1;
    if (wholes.size() < kMostWholes && utf8.size() <= kLongestWhole)
        wholes.emplace(utf8, width);
    return width;
}

TextMeasure::TextMeasure(const QFont& font)
    : m_regular(std::make_unique<Face>(MeasuringFont(font, font.bold()))),
      m_bold(std::make_unique<Face>(MeasuringFont(font, true)))
{
}

int TextMeasure::Exact(std::string_view utf8, bool bold) const
{
    return MeasuredWidth(utf8, FaceOf(bold).metrics);
}

int TextMeasure::WidthOf(std::string_view utf8, const QFont& font, bool bold)
{
    return MeasuredWidth(utf8, QFontMetricsF(MeasuringFont(font, bold || font.bold())));
}

std::int64_t TextMeasure::Learned(std::string_view utf8, bool bold)
{
    // Texts of ASCII alone are most, and need no look at their script.
    Face& face = FaceOf(bold);
    const char* at = utf8.data();
    const char* const end = at + utf8.size();
    char32_t before = 0;
    const std::int64_t quick = face.latin.QuickWidth(at, end, before);
    if (at == end)
        return quick;
    return face.WidthBeyondAscii(utf8);
}

int TextMeasure::LineHeight(const QFont& font)
{
    return static_cast<int>(std::ceil(QFontMetricsF(MeasuringFont(font, font.bold())).height()));
}

void WidestText::Consider(std::string_view utf8, bool bold, TextMeasure& measure)
{
    if (utf8.empty())
        return;
    const std::int64_t learned = measure.Learned(utf8, bold);
    if (learned < 0) {
        m_widestAsked = std::max(m_widestAsked, measure.Exact(utf8, bold));
    } else if (learned > m_learned) {
        m_learned = learned;
        m_winner = utf8;
        m_winnerIsBold = bold;
    }
}

int WidestText::Width(const TextMeasure& measure) const
{
    return std::max(m_widestAsked, m_winner.empty() ? 0 : measure.Exact(m_winner, m_winnerIsBold));
}

} // namespace schedules
