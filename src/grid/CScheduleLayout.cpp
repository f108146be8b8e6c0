// The layout half of the engine: sizes and looks of what the loading half has placed.

#include "common/Error.h"
#include "grid/CSchedule.h"
#include "spread/RepaintingOff.h"

#include <algorithm>

namespace schedules {

namespace {

constexpr SourceName kSource("CSchedule");
constexpr int kMinimumColumnWidth = 360;
constexpr int kMinimumRowHeaderWidth = 1440;
constexpr std::uint32_t kButtonFace = 0x8000000F;

constexpr Column kRowHeaders{0};
constexpr Row kColumnHeaders{0};

} // namespace

bool CSchedule::HasData() const
{
    return m_sched->DataRowCount() >= 1 && m_sched->DataColumnCount() >= 1;
}

void CSchedule::SchedAutoSize()
{
    Reported(m_userInterface, kSource.In(__func__), [&] {
        RequireSheet();
        m_sched->SetSize(m_sched->DataColumnCount(), m_sched->DataRowCount());
    });
}

void CSchedule::AutoSizeRowHeader()
{
    Reported(m_userInterface, kSource.In(__func__), [&] {
        RequireSheet();
        if (m_sched->DataRowCount() >= 1)
            m_sched->SetColumnWidth(kRowHeaders, WidthOf(kRowHeaders));
    });
}

bool CSchedule::SchedFormatData(int firstColumn)
{
    return Reported(m_userInterface, kSource.In(__func__), false, [&] {
        AlignDataColumns(firstColumn);
        const CellRange rowHeaders{{kRowHeaders, kAllRows}, {kRowHeaders, kAllRows}};
        m_sched->SetWraps(rowHeaders, false);
        m_sched->SetColumnWidth(kRowHeaders, WidthOf(kRowHeaders));
        m_sched->SetHAlign(rowHeaders, HorizontalAlignment::Left);
        SizeColumns(RowsActOnColumns() ? firstColumn : 1);
        return true;
    });
}

void CSchedule::AlignDataColumns(int firstColumn)
{
    const int last = m_sched->ColumnCount();
    if (RowsActOnColumns() && firstColumn <= last)
        m_sched->SetHAlign({{Column(firstColumn), kAllRows}, {Column(last), kAllRows}}, HorizontalAlignment::Data);
    if (!RowsActOnColumns() && last >= 1)
        m_sched->SetHAlign({{Column(1), Row(1)}, {Column(last), Row(m_sched->RowCount())}}, HorizontalAlignment::Data);
}

void CSchedule::SizeColumns(int firstColumn)
{
    for (Column column{firstColumn}; column.Value() <= m_sched->ColumnCount(); ++column)
        m_sched->SetColumnWidth(column, std::max(WidthOf(column), kMinimumColumnWidth));
}

void CSchedule::StyleHeaderRow(VerticalAlignment alignment)
{
    if (!HasData())
        return;
    const CellRange headers{{Column(0), kColumnHeaders}, {Column(m_sched->ColumnCount()), kColumnHeaders}};
    m_sched->SetHAlign(headers, HorizontalAlignment::Center);
    m_sched->SetVAlign(headers, alignment);
    m_sched->SetRowHeight(kColumnHeaders, std::max(m_sched->RowHeight(kColumnHeaders), m_headerRowMinimumHeight));
}

void CSchedule::StyleRowHeaders()
{
    if (!HasData())
        return;
    const CellRange headers{{kRowHeaders, Row(1)}, {kRowHeaders, Row(m_sched->RowCount())}};
    m_sched->SetBackColor(headers, kButtonFace);
    m_sched->SetHAlign(headers, HorizontalAlignment::Left);
    m_sched->SetVAlign(headers, VerticalAlignment::Bottom);
    m_sched->SetColumnWidth(kRowHeaders, std::max(WidthOf(kRowHeaders), kMinimumRowHeaderWidth));
}

int CSchedule::WidthOf(Column column) const
{
    return m_sched->WidestText(column) + m_columnMargin;
}

void CSchedule::SchedShowUnits()
{
    Reported(m_userInterface, kSource.In(__func__), [&] {
        RequireSheet();
        const RepaintingOff off(*m_sched);
        ResetSheet();
        m_sched->SetSize(RowsActOnColumns() ? 500 : 100, m_sched->RowCount());
        SchedFormatData(1);
        StyleHeaderRow(VerticalAlignment::Top);
        StyleRowHeaders();
    });
}

QString CSchedule::GetUnitLabel(const QString& unit)
{
    return unit.isEmpty() ? QString() : QStringLiteral("(%1)").arg(unit);
}

} // namespace schedules
