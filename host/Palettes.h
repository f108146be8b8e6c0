#pragma once

#include "host/CommandLine.h"

namespace schedules::host {

/// Gives the application light or dark colours of its own, and a style that shows them, or those of the desktop.
void UsePalette(Palette palette);

} // namespace schedules::host
