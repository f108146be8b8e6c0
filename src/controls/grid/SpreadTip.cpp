#include "controls/grid/SpreadTip.h"

#include "controls/cells/CellRoom.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace schedules {

bool ShowTip(const QHelpEvent& help, const Sheet& sheet, const SpreadGeometry& geometry, const CellFaces& faces,
             QWidget& viewport)
{
    const auto place = geometry.PlaceAt(help.pos());
    if (!place)
        return false;
    const Cell cell = CellOf(sheet, *place);
    if (!IsCutOff(ContentOf(sheet, cell), geometry.RectOf(*place).size(), faces, viewport))
        return false;
    // A text that looks like markup must not be taken for it.
    const QString text = Qt::convertFromPlainText(sheet.Text(cell), Qt::WhiteSpaceNormal);
    QToolTip::showText(help.globalPos(), text, &viewport, geometry.SeenRectOf(*place));
    return true;
}

} // namespace schedules
