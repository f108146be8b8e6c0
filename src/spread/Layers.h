#pragma once

#include "spread/Address.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace schedules {

/// One property of the cells of a sheet (a colour, bold, an alignment), set for single cells, blocks, whole rows,
/// whole columns or everything. Where settings cross, the last one applied holds.
template <class Value>
class Layers
{
public:
    void Set(const CellRange& range, Value value)
    {
        const Stamped stamped{++m_clock, value};
        if (range.AllColumns() && range.AllRows())
            *this = Layers(stamped);
        else if (range.AllRows())
            SetEach(m_columns, range.first.column.Value(), range.last.column.Value(), stamped);
        else if (range.AllColumns())
            SetEach(m_rows, range.first.row.Value(), range.last.row.Value(), stamped);
        else
            SetBlock(range, stamped);
    }

    Value At(Cell cell) const
    {
        Stamped top = m_all;
        const auto raise = [&top](const Stamped& other) {
            if (other.time > top.time)
                top = other;
        };
        if (cell.column.Value() < std::ssize(m_columns))
            raise(m_columns[cell.column.Value()]);
        if (cell.row.Value() < std::ssize(m_rows))
            raise(m_rows[cell.row.Value()]);
        for (const auto& block : m_blocks) {
            if (block.range.Contains(cell))
                raise(block.stamped);
        }
        return top.value;
    }

    void Clear() { *this = Layers(); }
    bool Uniform() const { return m_columns.empty() && m_rows.empty() && m_blocks.empty(); }

    Layers() = default;

private:
    struct Stamped
    {
        unsigned time = 0;
        Value value{};
    };

    struct Block
    {
        CellRange range;
        Stamped stamped;
    };

    explicit Layers(const Stamped& all) : m_clock(all.time), m_all(all) {}

    static void SetEach(std::vector<Stamped>& layer, int first, int last, const Stamped& stamped)
    {
        if (last >= std::ssize(layer))
            layer.resize(static_cast<std::size_t>(last) + 1);
        std::fill(layer.begin() + first, layer.begin() + last + 1, stamped);
    }

    void SetBlock(const CellRange& range, const Stamped& stamped)
    {
        std::erase_if(m_blocks, [&](const Block& block) { return block.range == range; });
        m_blocks.push_back({range, stamped});
    }

    unsigned m_clock = 0;
    Stamped m_all;
    std::vector<Stamped> m_columns; ///< by number; time 0 for one that was never set
    std::vector<Stamped> m_rows;
    std::vector<Block> m_blocks;
};

} // namespace schedules
