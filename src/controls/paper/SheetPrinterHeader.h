#pragma once

#include "spread/PrintCodes.h"

#include <QPainter>
#include <QRect>
#include <QString>

#include <vector>

namespace schedules {

/// The lines above the table of every page. Texts that are too long for a line go on in the next.
class SheetPrinterHeader
{
public:
    /// Throws `Error` when there is no font.
    explicit SheetPrinterHeader(const QString& codes);

    /// Twips that the lines take in a width of so many, with the room below them; 0 when there is no line. What takes
    /// more than three inches is cut off.
    int Height(int width) const;

    /// `unit` is the size of a twip in the painter's units; the place is in twips.
    void Paint(QPainter& painter, double unit, const QRect& place) const;

private:
    std::vector<HeaderLine> m_lines; ///< in fonts that are installed
};

} // namespace schedules
