#include "controls/cells/SheetColors.h"

#include "common/Luminance.h"

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

double LuminanceOf(const QColor& color)
{
    return Luminance(color.redF(), color.greenF(), color.blueF());
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
    return Contrast(LuminanceOf(one), LuminanceOf(other));
}

QColor LegibleOn(const QColor& background, const QColor& preferred, double contrast)
{
    if (Contrast(background, preferred) >= contrast)
        return preferred;
    return IsDark(LuminanceOf(background)) ? Qt::white : Qt::black;
}

QColor Blend(const QColor& bottom, const QColor& top, double share)
{
    return QColor(Mixed(bottom.red(), top.red(), share), Mixed(bottom.green(), top.green(), share),
                  Mixed(bottom.blue(), top.blue(), share));
}

} // namespace schedules
