#pragma once

#include "host/CommandLine.h"

namespace schedules::host {

/// Gives the application light or dark colours of its own, and a style that shows them; leaves the desktop's as they
/// are when these are asked for. Before there are widgets.
void UsePalette(Palette palette);

} // namespace schedules::host
