#pragma once

#include "controls/cells/CellPainter.h"
#include "controls/paper/SheetPrinter.h"
#include "controls/paper/SheetPrinterHeader.h"
#include "spread/PrintLayout.h"

#include <QPageLayout>

namespace schedules {

/// The pages of a job, each painted when it is asked for: header, table, page number.
///
/// Paper is white whatever the desktop's palette is. Without shading, headers stand on white as well, unless the table
/// gives them a color of its own.
class SheetPrinterPages
{
public:
    /// `device` tells the resolution that is painted at. The job's sheet must not change meanwhile. Throws `Error` when
    /// no font is there or the paper is too small.
    SheetPrinterPages(const PrintJob& job, const QPaintDevice& device);

    int Count() const { return m_layout.PageCount(); }
    const PrintLayout& Layout() const { return m_layout; }

    /// The paper as it is turned, with the job's margins.
    QPageLayout PageLayout() const;

    /// Paints a page, counted from 0; the painter's origin is the corner of the paper.
    void Paint(QPainter& painter, int number);

private:
    QRect Body() const;
    QRect HeaderPlace() const;
    void PaintTable(QPainter& painter, int number);
    void PaintPageNumber(QPainter& painter, int number) const;

    PrintJob m_job;
    SheetPrinterHeader m_header;
    PrintLayout m_layout;
    double m_unit; ///< a twip in the units of the device
    CellLook m_look;
    CellFaces m_faces;
    QFont m_numberFont;
};

} // namespace schedules
