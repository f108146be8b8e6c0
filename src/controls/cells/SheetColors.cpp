#include "controls/cells/SheetColors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace schedules {

namespace {

constexpr std::uint32_t kSystemColorBit = 0x80000000;

/// By number: scroll bar, desktop, active and inactive title, menu, window, frame, menu text, window text, title text,
/// active and inactive border, workspace, highlight, highlighted text, button, shadow, gray text, button text, inactive
/// title text, button highlight, dark shadow, light, tool tip text, tool tip, (none), hot light, title gradients, menu
/// highlight, menu bar.
constexpr std::array kSystemColors{
    QPalette::Button, QPalette::Window, QPalette::Highlight,  QPalette::Mid,         QPalette::Window,
    QPalette::Base,   QPalette::Shadow, QPalette::WindowText, QPalette::Text,        QPalette::HighlightedText,
    QPalette::Button, QPalette::Button, QPalette::Mid,        QPalette::Highlight,   QPalette::HighlightedText,
    QPalette::Button, QPalette::Dark,   QPalette::Mid,        QPalette::ButtonText,  QPalette::WindowText,
    QPalette::Light,  QPalette::Shadow, QPalette::Midlight,   QPalette::ToolTipText, QPalette::ToolTipBase,
    QPalette::Base,   QPalette::Link,   QPalette::Highlight,  QPalette::Mid,         QPalette::Highlight,
    QPalette::Window};

double Linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

int Mixed(int bottom, int top, double share)
{
    return static_cast<int>(std::lround(bottom + (top - bottom) * share));
}

} // namespace

QColor ColorOf(std::uint32_t number, const QPalette& palette)
{
    if (number & kSystemColorBit) {
        const std::uint32_t index = number & ~kSystemColorBit;
        return palette.color(index < kSystemColors.size() ? kSystemColors[index] : QPalette::Base);
    }
    return QColor(number & 0xFF, (number >> 8) & 0xFF, (number >> 16) & 0xFF);
}

double Contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor LegibleOn(const QColor& background, const QColor& preferred, double contrast)
{
    if (Contrast(background, preferred) >= contrast)
        return preferred;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return Contrast(background, black) >= Contrast(background, white) ? black : white;
}

QColor Blend(const QColor& bottom, const QColor& top, double share)
{
    return QColor(Mixed(bottom.red(), top.red(), share), Mixed(bottom.green(), top.green(), share),
                  Mixed(bottom.blue(), top.blue(), share));
}

} // namespace schedules
