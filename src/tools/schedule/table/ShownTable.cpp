#include "tools/schedule/table/ShownTable.h"

#include "common/Error.h"
#include "controls/grid/SpreadView.h"
#include "tools/schedule/ViewLink.h"

#include <utility>

namespace schedules {

ShownTable::ShownTable(UserInterface& userInterface, SpreadView& grid)
    : m_engine(userInterface), m_grid(grid), m_sheet(new Sheet(this)), m_shown(m_sheet)
{
    m_grid.SetSheet(m_sheet);
    m_engine.SetSched(m_sheet);
}

ShownTable::~ShownTable()
{
    m_grid.SetSheet(nullptr);
    m_engine.SetSched(nullptr);
}

bool ShownTable::Contains(Cell cell) const
{
    return m_shown && CellRange{{}, {Column(m_shown->ColumnCount()), Row(m_shown->RowCount())}}.Contains(cell);
}

ShownTable::Headers ShownTable::HeadersOf(Sheet::TablePlace place) const
{
    return {m_sheet->Text(m_sheet->CellAt({0, place.slot})), m_sheet->Text(m_sheet->CellAt({place.line, 0}))};
}

std::optional<Cell> ShownTable::Find(const Headers& headers) const
{
    const CellStore& cells = m_sheet->Store();
    const std::string tag = headers.tag.toStdString();
    const std::string item = headers.item.toStdString();
    for (int line = 1; line < cells.LineCount(); ++line) {
        if (cells.Text(line, 0) != item)
            continue;
        for (int slot = 1; slot < cells.SlotCount(0); ++slot) {
            if (cells.Text(0, slot) == tag && cells.Holds(line, slot))
                return m_sheet->CellAt({line, slot});
        }
    }
    return std::nullopt;
}

bool ShownTable::Show(const Headers& headers)
{
    const auto cell = Find(headers);
    if (!m_shown || !cell || m_shown->Hidden(cell->column) || m_shown->Hidden(cell->row))
        return false;
    m_grid.Select(*cell, *cell);
    m_grid.EnsureVisible(*cell);
    return true;
}

void ShownTable::StartNormalLayout(int orientation)
{
    SetOrientation(orientation, false);
    Freeze(m_rowsFrozenByHost, m_colsFrozenByHost);
}

void ShownTable::Turn()
{
    SetOrientation(m_engine.SchedOrientation() != 1 ? 1 : 0, !m_engine.TransposeData());
    Freeze(m_colsFrozen, m_rowsFrozen);
}

void ShownTable::SetOrientation(int orientation, bool transposed)
{
    const bool changes = orientation != m_engine.SchedOrientation() || transposed != m_engine.TransposeData();
    m_engine.SetSchedOrientation(orientation);
    m_engine.SetTransposeData(transposed);
    if (changes)
        Q_EMIT OrientationChanged();
}

bool ShownTable::LoadSchedule(const QString& xml)
{
    m_showsTags = false;
    return Load([&] { return m_engine.SchedInitialize() && m_engine.LoadScheduleData(xml); });
}

bool ShownTable::LoadTags(const QString& xml, bool selectAll)
{
    m_showsTags = Load([&] { return m_engine.SchedInitialize() && m_engine.LoadSelectionData(xml, selectAll); });
    return m_showsTags;
}

bool ShownTable::Load(const std::function<bool()>& fill)
{
    ShowSheet(m_sheet);
    bool loaded = false;
    RequireOutlived(*this, [&] { loaded = fill(); }); // a load that fails shows a message
    return loaded;
}

void ShownTable::CleanUp()
{
    if (!m_shown)
        return;
    m_showsTags = false;
    m_sheet->Reset();
    m_sheet->SetSize(0, 0);
    ShowSheet(nullptr);
    Q_EMIT Loaded();
}

void ShownTable::SetRowsFrozen(int count)
{
    m_rowsFrozenByHost = count;
    Freeze(count, m_colsFrozen);
}

void ShownTable::SetColsFrozen(int count)
{
    m_colsFrozenByHost = count;
    Freeze(m_rowsFrozen, count);
}

void ShownTable::Freeze(int rows, int columns)
{
    const bool changes = rows != m_rowsFrozen || columns != m_colsFrozen;
    m_rowsFrozen = rows;
    m_colsFrozen = columns;
    IgnoringErrors([&] {
        m_sheet->SetFrozenRows(rows);
        m_sheet->SetFrozenColumns(columns);
    });
    if (changes)
        Q_EMIT FrozenChanged();
}

void ShownTable::ShowSheet(Sheet* sheet)
{
    if (std::exchange(m_shown, sheet) != sheet)
        Q_EMIT SheetChanged();
}

} // namespace schedules
