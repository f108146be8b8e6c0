#pragma once

#include "spread/Sheet.h"

namespace schedules {

/// Sizes and looks of what stands in the sheet of a schedule. Widths are twips: those of the texts, as the sheet
/// measures them, within bounds.
class ScheduleLayout
{
public:
    /// The sheet must outlive the layout. `rowsActOnColumns`: see `CSchedule::SchedOrientation`.
    ScheduleLayout(Sheet& sheet, bool rowsActOnColumns) : m_sheet(sheet), m_rowsActOnColumns(rowsActOnColumns) {}

    /// Whether there are data cells; a sheet without is not styled.
    bool HasData() const;

    /// Shrinks the sheet to the cells that hold data.
    void AutoSize();
    void AutoSizeRowHeader();

    /// Aligns and sizes the columns from the first one given on.
    void FormatData(int firstColumn);

    void StyleHeaderRow(VerticalAlignment alignment);
    void StyleRowHeaders();

    /// Makes a column as wide as one of its texts needs, never narrower. Measures no other text.
    void WidenTo(Cell cell);

private:
    void AlignDataColumns(int firstColumn);
    void SizeColumns(int firstColumn);
    int WidthOf(Column column) const;

    Sheet& m_sheet;
    bool m_rowsActOnColumns;
};

} // namespace schedules
