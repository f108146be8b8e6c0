#pragma once

#include "controls/cells/CellFaces.h"
#include "controls/grid/SpreadGeometry.h"

class QHelpEvent;
class QWidget;

namespace schedules {

/// Shows the whole text of the cell at a point, if the cell cuts it off, in a tool tip of the viewport. Returns whether
/// there was one to show.
bool ShowTip(const QHelpEvent& help, const Sheet& sheet, const SpreadGeometry& geometry, const CellFaces& faces,
             QWidget& viewport);

} // namespace schedules
