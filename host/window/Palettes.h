#pragma once

#include <QStringList>

namespace schedules::host {

/// Which colours widgets have.
enum class Palette
{
    Desktop,
    Light,
    Dark
};

/// What they are called on the command line and in the user's settings, in the order of `Palette`.
inline const QStringList kPaletteNames{"desktop", "light", "dark"};

/// Gives the application light or dark colours of its own, and a style that shows them, or those of the desktop.
void UsePalette(Palette palette);

} // namespace schedules::host
