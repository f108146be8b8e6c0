#include "controls/cells/CellFaces.h"

#include <QPaintDevice>

#include <algorithm>
#include <cmath>

namespace schedules {

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kPointsPerPixel = 0.75;

double PixelsOf(const QFont& font, int dpi)
{
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * kPointsPerPixel;
    return points * dpi / kPointsPerInch;
}

int WholePixels(double pixels)
{
    return std::max(static_cast<int>(std::lround(pixels)), 1);
}

QFont LinearFont(QFont font, bool bold, double pixels)
{
    font.setPixelSize(WholePixels(pixels));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(bold || font.bold());
    return font;
}

} // namespace

CellFaces::CellFaces(const QFont& font, const QPaintDevice& device)
    : CellFaces(font, device.logicalDpiY(), PixelsOf(font, device.logicalDpiY()))
{
}

CellFaces::CellFaces(const QFont& font, int dpi, double pixels)
    : m_font(font),
      m_dpi(dpi),
      m_scale(pixels / WholePixels(pixels)),
      m_fonts{LinearFont(font, false, pixels), LinearFont(font, true, pixels)},
      m_metrics{QFontMetricsF(m_fonts[0]), QFontMetricsF(m_fonts[1])},
      m_glyphs{GlyphFace(m_fonts[0]), GlyphFace(m_fonts[1])}
{
}

bool CellFaces::Serve(const QFont& font, const QPaintDevice& device) const
{
    return font == m_font && device.logicalDpiY() == m_dpi;
}

QString CellFaces::Elided(const QString& text, bool bold, double width) const
{
    return m_metrics[bold].elidedText(text, Qt::ElideRight, width / m_scale);
}

} // namespace schedules
