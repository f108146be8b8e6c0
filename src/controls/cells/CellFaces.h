#pragma once

#include "controls/cells/GlyphFace.h"

#include <QFont>
#include <QFontMetricsF>

#include <array>

class QPaintDevice;

namespace schedules {

/// The faces of a sheet's texts, regular and bold, at the resolution of a device.
///
/// Texts take the same room on all devices, in proportion to their resolution, as the sheet's measure expects it. Fonts
/// come in whole pixels only, so a face is drawn scaled to its true size; what is said in units of the face is
/// multiplied by the scale to be in those of the device.
class CellFaces
{
public:
    CellFaces(const QFont& font, const QPaintDevice& device);

    /// Whether these are the faces of a font on a device.
    bool Serve(const QFont& font, const QPaintDevice& device) const;

    double Scale() const { return m_scale; }

    // In units of the device.
    double Height(bool bold) const { return m_metrics[bold].height() * m_scale; }
    double Ascent(bool bold) const { return m_metrics[bold].ascent() * m_scale; }

    /// A text cut off with an ellipsis to a width of the device.
    QString Elided(const QString& text, bool bold, double width) const;

    // In units of the face.
    const QFont& Font(bool bold) const { return m_fonts[bold]; }
    GlyphFace& Glyphs(bool bold) { return m_glyphs[bold]; }

private:
    CellFaces(const QFont& font, int dpi, double pixels);

    QFont m_font;
    int m_dpi;
    double m_scale;
    std::array<QFont, 2> m_fonts;
    std::array<QFontMetricsF, 2> m_metrics;
    std::array<GlyphFace, 2> m_glyphs;
};

} // namespace schedules
