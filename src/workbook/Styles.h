#pragma once

#include "workbook/Palette.h"
#include "workbook/WorkbookCell.h"

#include <map>
#include <set>

namespace schedules {

/// The fonts, number formats, cell formats and colors of a workbook.
class Styles
{
public:
    /// The size of the workbook's texts, and where its first column stands.
    Styles(double points, Qt::LayoutDirection direction) : m_points(points), m_direction(direction) {}

    Qt::LayoutDirection Direction() const { return m_direction; }

    /// The number of the cell format for a look. Throws `Error` when a workbook cannot hold so many.
    Word FormatOf(const WorkbookLook& look);

    void WriteTo(RecordWriter& records) const;

    /// What a pixel is of the unit for column widths, a 256th of a digit of the default font.
    double WidthOfPixel() const;

private:
    void WriteFonts(RecordWriter& records) const;
    void WriteNumberFormats(RecordWriter& records) const;
    void WriteStyleFormats(RecordWriter& records) const;
    void WriteCellFormats(RecordWriter& records) const;
    void WriteCellFormat(RecordWriter& records, const WorkbookLook& look, Word fill) const;

    struct CellFormat
    {
        Word number;
        Word fill; ///< number of the color
    };

    double m_points;
    Qt::LayoutDirection m_direction;
    Palette m_palette;
    std::map<WorkbookLook, CellFormat> m_formats;
};

/// The format of a cell that nothing is known of.
inline constexpr Word kDefaultCellFormat = 15;

} // namespace schedules
