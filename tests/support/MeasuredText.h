#pragma once

#include "spread/Sheet.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace schedules::testing {

/// The font at a size where a pixel is a twip.
inline QFont InTwips(const QFont& font, bool bold)
{
    QFont sized(font);
    sized.setPixelSize(static_cast<int>(std::lround(font.pointSizeF() * 20)));
    sized.setHintingPreference(QFont::PreferNoHinting);
    sized.setBold(bold || font.bold());
    return sized;
}

/// The advance of a text in twips, as the font's metrics tell it.
inline int Advance(const QString& text, const QFont& font, bool bold = false)
{
    return static_cast<int>(std::ceil(QFontMetricsF(InTwips(font, bold)).horizontalAdvance(text)));
}

/// A text whose cell measures so many twips in the font of a sheet, padding included; empty when there is none.
inline QString TextMeasuring(int twips, const QFont& font)
{
    const QFontMetricsF metrics(InTwips(font, false));
    const double wanted = twips - 2 * Sheet::kPadding;
    for (int narrow = 0; narrow < 60; ++narrow) {
        for (int middle = 0; middle < 40; ++middle) {
            const QString text = QString(narrow, u'i') + QString(middle, u'.');
            const double rest = wanted - metrics.horizontalAdvance(text);
            const int wide = static_cast<int>(rest / metrics.horizontalAdvance(u'm'));
            for (const char16_t last :
                 std::u16string_view(u"mnortcsvxabdeghjklpquwyzABCDEGHIJKLMNOPQRSTUVWXYZ0!-,;:/()[]*+=_#%")) {
                const QString whole = text + QString(std::max(wide, 0), u'm') + QChar(last);
                if (std::ceil(metrics.horizontalAdvance(whole)) == wanted)
                    return whole;
            }
        }
    }
    return {};
}

} // namespace schedules::testing
