#include "spread/Sheet.h"

#include "common/Utf8.h"
#include "spread/TextMeasure.h"

#include <QGuiApplication>

#include <algorithm>

namespace schedules {

namespace {

constexpr int kDefaultColumnWidth = 1440;
constexpr int kDefaultRowHeight = 300;
constexpr int kRowPadding = 45;

} // namespace

Sheet::Sheet(QObject* parent) : QObject(parent), m_columns(kDefaultColumnWidth), m_rows(kDefaultRowHeight)
{
    SetFont(QGuiApplication::font());
}

Sheet::~Sheet() = default;

Cell Sheet::CellAt(TablePlace place) const
{
    if (m_lines == Lines::AreRows)
        return {Column(place.slot), Row(place.line)};
    return {Column(place.line), Row(place.slot)};
}

void Sheet::SetSize(int columns, int rows)
{
    if (columns == ColumnCount() && rows == RowCount())
        return;
    m_columns.SetCount(columns);
    m_rows.SetCount(rows);
    TellChanged();
}

int Sheet::DataColumnCount() const
{
    return m_lines == Lines::AreRows ? m_store.LastDataSlot() : m_store.LastDataLine();
}

int Sheet::DataRowCount() const
{
    return m_lines == Lines::AreRows ? m_store.LastDataLine() : m_store.LastDataSlot();
}

std::string_view Sheet::Utf8(Cell cell) const
{
    const TablePlace place = TablePlaceOf(cell);
    return m_store.Text(place.line, place.slot);
}

QString Sheet::Text(Cell cell) const
{
    return FromUtf8(Utf8(cell));
}

void Sheet::SetText(Cell cell, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    const TablePlace place = TablePlaceOf(cell);
    m_store.Place(place.line, place.slot, std::string_view(utf8), Style(cell));
    m_widest.clear();
    if (m_repainting)
        Q_EMIT CellChanged(cell);
}

CellStyle Sheet::Style(Cell cell) const
{
    const TablePlace place = TablePlaceOf(cell);
    return m_store.Style(place.line, place.slot);
}

void Sheet::SetStyle(Cell cell, CellStyle style)
{
    const TablePlace place = TablePlaceOf(cell);
    m_store.Restyle(place.line, place.slot, style);
    if (m_repainting)
        Q_EMIT CellChanged(cell);
}

bool Sheet::Holds(Cell cell) const
{
    const TablePlace place = TablePlaceOf(cell);
    return m_store.Holds(place.line, place.slot);
}

void Sheet::Adopt(CellStore cells, Lines lines)
{
    if (m_store.Empty()) {
        m_store = std::move(cells);
        m_lines = lines;
    } else {
        if (m_lines != lines)
            m_store = m_store.Transposed();
        m_lines = lines;
        m_store.Overlay(cells);
    }
    m_widest.clear();
    TellChanged();
}

void Sheet::ClearCells()
{
    m_store = CellStore();
    m_widest.clear();
    TellChanged();
}

void Sheet::SetBackColor(const CellRange& range, std::optional<std::uint32_t> color)
{
    m_backColors.Set(range, color);
    TellChanged();
}

void Sheet::SetBold(const CellRange& range, bool bold)
{
    m_bold.Set(range, bold);
    m_widest.clear();
    TellChanged();
}

void Sheet::SetHAlign(const CellRange& range, HorizontalAlignment alignment)
{
    m_hAlign.Set(range, alignment);
    TellChanged();
}

void Sheet::SetVAlign(const CellRange& range, VerticalAlignment alignment)
{
    m_vAlign.Set(range, alignment);
    TellChanged();
}

void Sheet::SetWraps(const CellRange& range, bool wraps)
{
    m_wraps.Set(range, wraps);
    TellChanged();
}

void Sheet::AdoptLooks(const Sheet& source, std::span<const int> columns, std::span<const int> rows)
{
    m_backColors = source.m_backColors.Picked(columns, rows);
    m_bold = source.m_bold.Picked(columns, rows);
    m_hAlign = source.m_hAlign.Picked(columns, rows);
    m_vAlign = source.m_vAlign.Picked(columns, rows);
    m_wraps = source.m_wraps.Picked(columns, rows);
    m_widest.clear();
    TellChanged();
}

void Sheet::SetDefaultColumnWidth(int twips)
{
    m_columns.SetDefaultSize(twips);
    TellChanged();
}

void Sheet::SetColumnWidth(Column column, int twips)
{
    m_columns.SetSize(column.Value(), twips);
    TellChanged();
}

void Sheet::SetRowHeight(Row row, int twips)
{
    m_rows.SetSize(row.Value(), twips);
    TellChanged();
}

void Sheet::SetHidden(Column column, bool hidden)
{
    m_columns.SetHidden(column.Value(), hidden);
    TellChanged();
}

void Sheet::SetHidden(Row row, bool hidden)
{
    m_rows.SetHidden(row.Value(), hidden);
    TellChanged();
}

void Sheet::SetRowOrder(std::vector<int> rows)
{
    m_rows.SetOrder(std::move(rows));
    TellChanged();
}

void Sheet::SetFrozenColumns(int count)
{
    m_frozenColumns = std::max(count, 0);
    if (m_repainting)
        Q_EMIT FrozenChanged();
}

void Sheet::SetFrozenRows(int count)
{
    m_frozenRows = std::max(count, 0);
    if (m_repainting)
        Q_EMIT FrozenChanged();
}

void Sheet::SetActiveCell(Cell cell)
{
    if (cell == m_activeCell)
        return;
    m_activeCell = cell;
    if (m_repainting)
        Q_EMIT ActiveCellChanged();
}

void Sheet::Reset()
{
    ClearCells();
    m_lines = Lines::AreRows;
    m_columns.Reset();
    m_rows.Reset();
    m_backColors.Clear();
    m_bold.Clear();
    m_hAlign.Clear();
    m_vAlign.Clear();
    m_wraps.Clear();
    SetActiveCell({});
    TellChanged();
}

void Sheet::SetFont(const QFont& font)
{
    m_font = font;
    m_rows.SetDefaultSize(TextMeasure::LineHeight(font) + 2 * kRowPadding);
    m_widest.clear();
    TellChanged();
}

int Sheet::WidestText(Column column) const
{
    if (m_widest.empty())
        MeasureAll();
    const int width = column.Value() < std::ssize(m_widest) ? m_widest[column.Value()] : 0;
    return width > 0 ? width + 2 * kPadding : 0;
}

int Sheet::TextWidth(Cell cell) const
{
    const std::string_view text = Utf8(cell);
    return text.empty() ? 0 : TextMeasure::WidthOf(text, m_font, Bold(cell)) + 2 * kPadding;
}

void Sheet::MeasureAll() const
{
    // What the font teaches takes more room than a small table, so it is not kept.
    TextMeasure measure(m_font);
    std::vector<schedules::WidestText> widest(1);
    const bool isUniform = m_bold.Uniform();
    const bool allBold = m_bold.At({});
    for (int line = 0; line < m_store.LineCount(); ++line) {
        m_store.ForEachIn(line, [&](int slot, std::string_view text, CellStyle) {
            const Cell cell = CellAt({line, slot});
            if (cell.column.Value() >= std::ssize(widest))
                widest.resize(static_cast<std::size_t>(cell.column.Value()) + 1);
            widest[cell.column.Value()].Consider(text, isUniform ? allBold : m_bold.At(cell), measure);
        });
    }
    m_widest.clear();
    std::ranges::transform(widest, std::back_inserter(m_widest),
                           [&](const schedules::WidestText& text) { return text.Width(measure); });
}

void Sheet::SetRepainting(bool on)
{
    if (on == m_repainting)
        return;
    m_repainting = on;
    TellChanged();
}

void Sheet::TellChanged()
{
    if (m_repainting)
        Q_EMIT Changed();
}

std::size_t Sheet::MemoryUse() const
{
    return m_store.MemoryUse() + m_widest.capacity() * sizeof(int);
}

} // namespace schedules
