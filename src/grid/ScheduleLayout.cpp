#include "grid/ScheduleLayout.h"

#include <algorithm>

namespace schedules {

namespace {

constexpr int kColumnMargin = 0;
constexpr int kHeaderRowMinimumHeight = 0;
constexpr int kMinimumColumnWidth = 360;
constexpr int kMinimumRowHeaderWidth = 1440;
constexpr std::uint32_t kButtonFace = 0x8000000F;

constexpr Column kRowHeaders{0};
constexpr Row kColumnHeaders{0};

} // namespace

bool ScheduleLayout::HasData() const
{
    return m_sheet.DataRowCount() >= 1 && m_sheet.DataColumnCount() >= 1;
}

void ScheduleLayout::AutoSize()
{
    m_sheet.SetSize(m_sheet.DataColumnCount(), m_sheet.DataRowCount());
}

void ScheduleLayout::AutoSizeRowHeader()
{
    if (m_sheet.DataRowCount() >= 1)
        m_sheet.SetColumnWidth(kRowHeaders, WidthOf(kRowHeaders));
}

void ScheduleLayout::FormatData(int firstColumn)
{
    AlignDataColumns(firstColumn);
    const CellRange rowHeaders{{kRowHeaders, kAllRows}, {kRowHeaders, kAllRows}};
    m_sheet.SetWraps(rowHeaders, false);
    m_sheet.SetColumnWidth(kRowHeaders, WidthOf(kRowHeaders));
    m_sheet.SetHAlign(rowHeaders, HorizontalAlignment::Left);
    SizeColumns(m_rowsActOnColumns ? firstColumn : 1);
}

void ScheduleLayout::AlignDataColumns(int firstColumn)
{
    const int last = m_sheet.ColumnCount();
    if (m_rowsActOnColumns && firstColumn <= last)
        m_sheet.SetHAlign({{Column(firstColumn), kAllRows}, {Column(last), kAllRows}}, HorizontalAlignment::Data);
    if (!m_rowsActOnColumns && last >= 1)
        m_sheet.SetHAlign({{Column(1), Row(1)}, {Column(last), Row(m_sheet.RowCount())}}, HorizontalAlignment::Data);
}

void ScheduleLayout::SizeColumns(int firstColumn)
{
    for (Column column{firstColumn}; column.Value() <= m_sheet.ColumnCount(); ++column)
        m_sheet.SetColumnWidth(column, std::max(WidthOf(column), kMinimumColumnWidth));
}

void ScheduleLayout::StyleHeaderRow(VerticalAlignment alignment)
{
    if (!HasData())
        return;
    const CellRange headers{{Column(0), kColumnHeaders}, {Column(m_sheet.ColumnCount()), kColumnHeaders}};
    m_sheet.SetHAlign(headers, HorizontalAlignment::Center);
    m_sheet.SetVAlign(headers, alignment);
    m_sheet.SetRowHeight(kColumnHeaders, std::max(m_sheet.RowHeight(kColumnHeaders), kHeaderRowMinimumHeight));
}

void ScheduleLayout::StyleRowHeaders()
{
    if (!HasData())
        return;
    const CellRange headers{{kRowHeaders, Row(1)}, {kRowHeaders, Row(m_sheet.RowCount())}};
    m_sheet.SetBackColor(headers, kButtonFace);
    m_sheet.SetHAlign(headers, HorizontalAlignment::Left);
    m_sheet.SetVAlign(headers, VerticalAlignment::Bottom);
    m_sheet.SetColumnWidth(kRowHeaders, std::max(WidthOf(kRowHeaders), kMinimumRowHeaderWidth));
}

void ScheduleLayout::WidenTo(Cell cell)
{
    const int needed = m_sheet.TextWidth(cell) + kColumnMargin;
    if (needed > m_sheet.ColumnWidth(cell.column))
        m_sheet.SetColumnWidth(cell.column, needed);
}

int ScheduleLayout::WidthOf(Column column) const
{
    return m_sheet.WidestText(column) + kColumnMargin;
}

} // namespace schedules
