#pragma once

#include <compare>

namespace schedules {

/// A column or a row number. The two are types of their own, so that swapping them does not compile.
template <class Axis>
class Index
{
public:
    constexpr Index() = default;
    explicit constexpr Index(int value) : m_value(value) {}

    constexpr int Value() const { return m_value; }
    constexpr auto operator<=>(const Index&) const = default;

    constexpr Index& operator++()
    {
        ++m_value;
        return *this;
    }

private:
    int m_value = 0;
};

/// Column 0 holds the row headers, row 0 the column headers; data start at 1.
using Column = Index<struct ColumnAxis>;
using Row = Index<struct RowAxis>;

/// In place of a column or a row: all of them, headers included.
inline constexpr Column kAllColumns{-1};
inline constexpr Row kAllRows{-1};

struct Cell
{
    Column column;
    Row row;

    constexpr auto operator<=>(const Cell&) const = default;
};

/// A block of cells, both corners included. `kAllColumns` or `kAllRows` as the first corner stands for all.
struct CellRange
{
    Cell first;
    Cell last;

    static constexpr CellRange Of(Column column, Row row) { return {{column, row}, {column, row}}; }
    constexpr bool AllColumns() const { return first.column == kAllColumns; }
    constexpr bool AllRows() const { return first.row == kAllRows; }
    constexpr bool operator==(const CellRange&) const = default;

    constexpr bool Contains(Cell cell) const
    {
        return (AllColumns() || (first.column <= cell.column && cell.column <= last.column)) &&
               (AllRows() || (first.row <= cell.row && cell.row <= last.row));
    }
};

} // namespace schedules
