#pragma once

#include "spread/Address.h"
#include "spread/Axis.h"
#include "spread/CellStore.h"
#include "spread/CellStyle.h"
#include "spread/Layers.h"

#include <QFont>
#include <QObject>
#include <QString>

#include <compare>
#include <concepts>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace schedules {

/// Which way the lines of a table run in a sheet.
enum class Lines
{
    AreRows,
    AreColumns
};

/// A spreadsheet without a screen: cells with their texts, types and looks, columns and rows with their sizes and
/// hidden flags. Widths and heights are twips (1440 an inch). Cells outside of the size are kept but not shown.
class Sheet : public QObject
{
    Q_OBJECT

public:
    explicit Sheet(QObject* parent = nullptr);
    ~Sheet() override;

    // Size, without the header column and the header row.
    int ColumnCount() const { return m_columns.Count(); }
    int RowCount() const { return m_rows.Count(); }
    void SetSize(int columns, int rows);

    /// How far the cells reach that a table has placed; headers do not count.
    int DataColumnCount() const;
    int DataRowCount() const;

    // Cells.
    QString Text(Cell cell) const;
    std::string_view Utf8(Cell cell) const;      ///< valid until the sheet changes
    CellStore::Content Content(Cell cell) const; ///< text and style; valid until the sheet changes
    void SetText(Cell cell, const QString& text);
    CellStyle Style(Cell cell) const;
    void SetStyle(Cell cell, CellStyle style);
    bool Holds(Cell cell) const;

    /// The cells whose style is as asked for, in the order of the table.
    template <std::predicate<CellStyle> Asked>
    std::vector<Cell> CellsWith(Asked&& asked) const
    {
        std::vector<Cell> cells;
        for (int line = 0; line < m_store.LineCount(); ++line) {
            m_store.ForEachIn(line, [&](int slot, std::string_view, CellStyle style) {
                if (asked(style))
                    cells.push_back(CellAt({line, slot}));
            });
        }
        return cells;
    }

    std::vector<Cell> CellsOfType(CellType type) const
    {
        return CellsWith([type](CellStyle style) { return style.type == type; });
    }

    /// Every cell that a table has placed.
    const CellStore& Store() const { return m_store; }
    Lines LinesRun() const { return m_lines; }

    /// Where a cell is in the table, whichever way the lines run: in which of them, and where there. 0 is the header.
    struct TablePlace
    {
        int line = 0;
        int slot = 0;

        auto operator<=>(const TablePlace&) const = default;
    };

    TablePlace TablePlaceOf(Cell cell) const
    {
        if (m_lines == Lines::AreRows)
            return {cell.row.Value(), cell.column.Value()};
        return {cell.column.Value(), cell.row.Value()};
    }
    Cell CellAt(TablePlace place) const;

    /// Takes over the cells of a table on top of what is there.
    void Adopt(CellStore cells, Lines lines);

    /// Removes all texts and types; looks, sizes and hidden flags stay.
    void ClearCells();

    // Looks. A colour is 0x00BBGGRR; with the top bit set it is the number of a system colour.
    std::optional<std::uint32_t> BackColor(Cell cell) const { return m_backColors.At(cell); }
    void SetBackColor(const CellRange& range, std::optional<std::uint32_t> color);
    bool Bold(Cell cell) const { return m_bold.At(cell); }
    void SetBold(const CellRange& range, bool bold);
    HorizontalAlignment HAlign(Cell cell) const { return m_hAlign.At(cell); }
    void SetHAlign(const CellRange& range, HorizontalAlignment alignment);
    VerticalAlignment VAlign(Cell cell) const { return m_vAlign.At(cell); }
    void SetVAlign(const CellRange& range, VerticalAlignment alignment);
    bool Wraps(Cell cell) const { return m_wraps.At(cell); }
    void SetWraps(const CellRange& range, bool wraps);

    /// Every back color that has been set and may show somewhere.
    std::vector<std::optional<std::uint32_t>> BackColorsSet() const { return m_backColors.Values(); }

    /// Takes over the looks of these columns and rows of another sheet, each counted from 1 here.
    void AdoptLooks(const Sheet& source, std::span<const int> columns, std::span<const int> rows);

    // Columns and rows.
    const Axis& Columns() const { return m_columns; }
    const Axis& Rows() const { return m_rows; }
    int ColumnWidth(Column column) const { return m_columns.Size(column.Value()); }
    void SetDefaultColumnWidth(int twips);
    void SetColumnWidth(Column column, int twips);
    int RowHeight(Row row) const { return m_rows.Size(row.Value()); }
    void SetRowHeight(Row row, int twips);
    bool Hidden(Column column) const { return m_columns.Hidden(column.Value()); }
    bool Hidden(Row row) const { return m_rows.Hidden(row.Value()); }
    void SetHidden(Column column, bool hidden);
    void SetHidden(Row row, bool hidden);
    void SetRowOrder(std::vector<int> rows);

    /// How many of the first columns and rows do not scroll.
    int FrozenColumns() const { return m_frozenColumns; }
    int FrozenRows() const { return m_frozenRows; }
    void SetFrozenColumns(int count);
    void SetFrozenRows(int count);

    Cell ActiveCell() const { return m_activeCell; }
    void SetActiveCell(Cell cell);

    /// All that a table or its layout can set goes back to the start; the frozen counts and the font stay.
    void Reset();

    // Text sizes. The font of the cells gives the height of a row.
    const QFont& Font() const { return m_font; }
    void SetFont(const QFont& font);

    /// The width that the widest text of a column needs, its header and hidden rows counted, with the padding at both
    /// sides; 0 without any text.
    int WidestText(Column column) const;

    /// The same of one cell; no other text is looked at.
    int TextWidth(Cell cell) const;

    /// The room between a text and the lines beside it.
    static constexpr int kPadding = 75;

    /// While off, nothing is told to whoever shows the sheet; switching on tells that everything may have changed.
    void SetRepainting(bool on);
    bool Repainting() const { return m_repainting; }

    std::size_t MemoryUse() const;

Q_SIGNALS:
    void Changed();
    void CellChanged(schedules::Cell cell);
    void FrozenChanged();
    void ActiveCellChanged();

private:
    void TellChanged();
    void MeasureAll() const;

    CellStore m_store;
    Lines m_lines = Lines::AreRows;
    Axis m_columns;
    Axis m_rows;
    Layers<std::optional<std::uint32_t>> m_backColors;
    Layers<bool> m_bold;
    Layers<HorizontalAlignment> m_hAlign;
    Layers<VerticalAlignment> m_vAlign;
    Layers<bool> m_wraps;
    int m_frozenColumns = 0;
    int m_frozenRows = 0;
    Cell m_activeCell;
    QFont m_font;
    mutable std::vector<int> m_widest; ///< by column, text alone; empty when it must be measured anew
    bool m_repainting = true;
};

inline CellStore::Content Sheet::Content(Cell cell) const
{
    const TablePlace place = TablePlaceOf(cell);
    return m_store.At(place.line, place.slot);
}

} // namespace schedules
