#include "grid/CSchedule.h"

#include "common/Error.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "grid/UnitLabel.h"
#include "spread/PrintCodes.h"
#include "spread/RepaintingOff.h"

#include <QPointer>
#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <utility>

namespace schedules {

namespace {

constexpr SourceName kSource("CSchedule");
constexpr int kWorkingColumns = 500;
constexpr int kWorkingRows = 500;

int MessageNumberOf(TableFault fault)
{
    switch (fault) {
    case TableFault::NotWellFormed:
        return kScheduleNotLoaded;
    case TableFault::Empty:
        return kScheduleEmpty;
    case TableFault::NoRows:
        return kScheduleWithoutRows;
    case TableFault::None:
        break;
    }
    return 0;
}

constexpr CellRange WholeRow(Row row)
{
    return {{kAllColumns, row}, {kAllColumns, row}};
}

constexpr CellRange WholeColumn(Column column)
{
    return {{column, kAllRows}, {column, kAllRows}};
}

std::vector<int> GroupHeadingsOf(const std::vector<RowAttributes>& rows)
{
    std::vector<int> headings;
    for (const RowAttributes& row : rows) {
        if (row.bold && row.row > 0)
            headings.push_back(row.row);
    }
    return headings;
}

QString AsItStands(QString text)
{
    return text;
}

} // namespace

/// Shows the busy pointer for as long as it lives.
class CSchedule::BusyPointer
{
public:
    explicit BusyPointer(UserInterface& userInterface) : m_userInterface(userInterface)
    {
        m_userInterface.SetPointer(Pointer::Hourglass);
    }
    ~BusyPointer()
    {
        IgnoringErrors([this] { m_userInterface.SetPointer(Pointer::Default); });
    }
    Q_DISABLE_COPY_MOVE(BusyPointer)

private:
    UserInterface& m_userInterface;
};

CSchedule::CSchedule(UserInterface& userInterface) : m_userInterface(userInterface) {}

void CSchedule::SetSched(Sheet* sheet)
{
    m_sched = sheet;
    if (m_sched)
        SchedInitialize();
}

bool CSchedule::SchedInitialize()
{
    return Reported(m_userInterface, kSource.In(__func__), false, [&] {
        RequireSheet();
        ResetSheet();
        m_sched->SetDefaultColumnWidth(m_defaultColWidth);
        m_sched->SetSize(0, 0);
        SetGridSize(kWorkingColumns, kWorkingRows);
        return true;
    });
}

QString CSchedule::Title() const
{
    return m_title ? *m_title : LoadResString(kDefaultTitle);
}

bool CSchedule::LoadScheduleData(const QString& xml)
{
    return Reported(m_userInterface, kSource.In(__func__), false, [&] {
        RequireSheet();
        ResetFilledSheet();
        const QPointer<Sheet> alive(m_sched);
        const bool loaded = LoadXmlIntoSpreadSheet(xml);
        if (!alive)
            return false;
        SchedAutoSize();
        AutoSizeRowHeader();
        SchedFormatData(1);
        Layout().StyleHeaderRow(VerticalAlignment::Center);
        Layout().StyleRowHeaders();
        return loaded;
    });
}

bool CSchedule::LoadSelectionData(const QString& xml, bool selectAllTags)
{
    return Reported(m_userInterface, kSource.In(__func__), false, [&] {
        RequireSheet();
        const QPointer<Sheet> alive(m_sched);
        const bool loaded = LoadXmlIntoSpreadSheet(xml);
        if (!alive)
            return false;
        if (loaded)
            TickAll(selectAllTags);
        SchedAutoSize();
        SchedFormatData(3);
        Layout().StyleHeaderRow(VerticalAlignment::Top);
        return loaded;
    });
}

void CSchedule::RequireSheet() const
{
    if (!m_sched)
        throw Error(kUnexpectedError, QStringLiteral("No sheet is attached to the schedule."));
}

void CSchedule::ResetFilledSheet()
{
    if (!Layout().HasData())
        return;
    ResetSheet();
    SetGridSize(kWorkingColumns, kWorkingRows);
}

void CSchedule::ResetSheet()
{
    m_sched->Reset();
    m_groupHeadings.clear();
}

bool CSchedule::LoadXmlIntoSpreadSheet(const QString& xml)
{
    return Reported(m_userInterface, kSource.In(__func__), false, [&] {
        m_busyPointer = std::make_shared<BusyPointer>(m_userInterface);
        // A message may be the end of the engine, and so of the pointer and of whom it was shown to.
        const auto restore = qScopeGuard([this, busy = std::weak_ptr(m_busyPointer)] {
            if (!busy.expired())
                m_busyPointer.reset();
        });
        const TableFault fault = TakeTable(xml);
        if (fault == TableFault::None)
            return true;
        const int number = MessageNumberOf(fault);
        m_userInterface.Show({LoadResString(number), kOkOnly, {}, number});
        return false;
    });
}

TableFault CSchedule::TakeTable(const QString& xml)
{
    ParsedTable parsed = ParseScheduleTable(xml);
    if (parsed.fault == TableFault::None)
        PlaceTable(std::move(parsed.table));
    return parsed.fault;
}

void CSchedule::PlaceTable(ScheduleTable table)
{
    // Placing every cell (c, r) at column r, row c is the same as taking the table's lines for columns.
    m_sched->Adopt(std::move(table.cells), m_transposeData ? Lines::AreColumns : Lines::AreRows);
    std::ranges::for_each(table.rows, [this](const RowAttributes& row) { ApplyRow(row); });
    for (int index = 0; index < std::ssize(table.headers); ++index)
        ApplyHeader(index, table.headers[index]);
    m_groupHeadings = GroupHeadingsOf(table.rows);
}

void CSchedule::ApplyRow(const RowAttributes& row)
{
    const bool transposed = RowsActOnColumns();
    if (transposed && row.bold && !row.userDefined)
        m_sched->SetHidden(Column(row.row), true);
    if (row.hidden)
        transposed ? m_sched->SetHidden(Column(row.row), true) : m_sched->SetHidden(Row(row.row), true);
    if (transposed && row.bold)
        m_sched->SetBold(WholeRow(Row(row.row)), true);
    if (row.backColor)
        m_sched->SetBackColor(transposed ? WholeRow(Row(row.row)) : WholeColumn(Column(row.row)), row.backColor);
}

void CSchedule::ApplyHeader(int index, const HeaderAttributes& header)
{
    if (header.hidden && RowsActOnColumns())
        m_sched->SetHidden(Column(index), true);
    if (header.hidden && m_schedOrientation == 0)
        m_sched->SetHidden(Row(index), true);
    if (header.bold)
        m_sched->SetBold(WholeColumn(Column(index)), true);
    if (header.backColor) {
        const bool wholeRow = m_schedOrientation == 0;
        m_sched->SetBackColor(wholeRow ? WholeRow(Row(index)) : WholeColumn(Column(index)), header.backColor);
    }
}

void CSchedule::TickAll(bool ticked)
{
    for (const Cell cell : m_sched->CellsWith([](CellStyle style) { return KindOf(style).Toggles(); }))
        m_sched->SetText(cell, StateText(ticked));
}

void CSchedule::SetGridSize(int columns, int rows)
{
    if (RowsActOnColumns())
        std::swap(columns, rows);
    m_sched->SetSize(columns, rows);
}

void CSchedule::SchedAutoSize()
{
    Reported(m_userInterface, kSource.In(__func__), [&] {
        RequireSheet();
        Layout().AutoSize();
    });
}

void CSchedule::AutoSizeRowHeader()
{
    Reported(m_userInterface, kSource.In(__func__), [&] {
        RequireSheet();
        Layout().AutoSizeRowHeader();
    });
}

bool CSchedule::SchedFormatData(int firstColumn)
{
    return Reported(m_userInterface, kSource.In(__func__), false, [&] {
        Layout().FormatData(firstColumn);
        return true;
    });
}

void CSchedule::WidenToCell(Cell cell)
{
    Reported(m_userInterface, kSource.In(__func__), [&] {
        RequireSheet();
        Layout().WidenTo(cell);
    });
}

void CSchedule::SchedShowUnits()
{
    Reported(m_userInterface, kSource.In(__func__), [&] {
        RequireSheet();
        const RepaintingOff off(*m_sched);
        ResetSheet();
        m_sched->SetSize(RowsActOnColumns() ? 500 : 100, m_sched->RowCount());
        SchedFormatData(1);
        Layout().StyleHeaderRow(VerticalAlignment::Top);
        Layout().StyleRowHeaders();
    });
}

QString CSchedule::GetUnitLabel(const QString& unit)
{
    return UnitLabel(unit);
}

void CSchedule::PrintSched()
{
    Reported(m_userInterface, kSource.In(__func__), [&] {
        RequireSheet();
        ISheetPrinter& printer = RequiredPrinter();
        Print(*m_sched, printer, m_print,
              m_print.header ? PageHeader(Title(), m_clock, ProtectedFromCodes) : QString());
    });
}

ISheetPrinter& CSchedule::RequiredPrinter() const
{
    if (!m_printer)
        throw Error(kUnexpectedError, QStringLiteral("The schedule has no printer."));
    return *m_printer;
}

QString CSchedule::GetPageHeader() const
{
    return PageHeader(Title(), m_print.header ? m_clock : Clock(), AsItStands);
}

} // namespace schedules
