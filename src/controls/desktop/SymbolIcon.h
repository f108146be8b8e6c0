#pragma once

#include <QIcon>
#include <QString>

class QWidget;

namespace schedules {

/// What symbols are drawn in, as their files have it: `currentColor`, which becomes the palette's text color, and one
/// accent, which becomes the palette's highlight.
inline constexpr auto kSymbolAccent = "#2a82da";

/// An icon that is drawn from lines at each size and pixel ratio, in the colors that the palette of `surface` has at
/// that moment (the application's once the surface is gone). A disabled one is paler; a selected one has the color of
/// selected text. `file` is a drawing (SVG) among the resources or on disk; the icon is null when it cannot be read.
QIcon SymbolIcon(const QString& file, const QWidget* surface);

} // namespace schedules
