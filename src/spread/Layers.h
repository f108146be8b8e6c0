#pragma once

#include "spread/Address.h"

#include <algorithm>
#include <iterator>
#include <span>
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
        const Stamped* top = &m_all;
        const auto raise = [&top](const Stamped& other) {
            if (other.time > top->time)
                top = &other;
        };
        if (cell.column.Value() < std::ssize(m_columns))
            raise(m_columns[cell.column.Value()]);
        if (cell.row.Value() < std::ssize(m_rows))
            raise(m_rows[cell.row.Value()]);
        for (const auto& block : m_blocks) {
            if (block.range.Contains(cell))
                raise(block.stamped);
        }
        return top->value;
    }

    /// The settings of a sheet that shows these columns and rows of this one's, each counted from 1 there.
    Layers Picked(std::span<const int> columns, std::span<const int> rows) const
    {
        Layers picked(m_all);
        picked.m_clock = m_clock;
        picked.m_columns = PickedFrom(m_columns, columns);
        picked.m_rows = PickedFrom(m_rows, rows);
        for (const Block& block : m_blocks)
            picked.PickBlock(block, columns, rows);
        return picked;
    }

    /// Every value that has been set and may show somewhere, some of them several times.
    std::vector<Value> Values() const
    {
        std::vector<Value> values{m_all.value};
        for (const auto* layer : {&m_columns, &m_rows}) {
            for (const Stamped& stamped : *layer)
                values.push_back(stamped.value);
        }
        for (const Block& block : m_blocks)
            values.push_back(block.stamped.value);
        return values;
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

    static std::vector<Stamped> PickedFrom(const std::vector<Stamped>& layer, std::span<const int> items)
    {
        std::vector<Stamped> picked;
        if (layer.empty())
            return picked;
        picked.resize(items.size() + 1);
        for (std::size_t index = 0; index < items.size(); ++index) {
            if (items[index] < std::ssize(layer))
                picked[index + 1] = layer[items[index]];
        }
        return picked;
    }

    /// Columns and rows of a block need not lie side by side any more: each of its runs is a block of its own.
    void PickBlock(const Block& block, std::span<const int> columns, std::span<const int> rows)
    {
        const auto columnRuns = RunsWithin(block.range.first.column.Value(), block.range.last.column.Value(), columns);
        const auto rowRuns = RunsWithin(block.range.first.row.Value(), block.range.last.row.Value(), rows);
        for (const Run& columnRun : columnRuns) {
            for (const Run& rowRun : rowRuns) {
                m_blocks.push_back(
                    {{{Column(columnRun.first), Row(rowRun.first)}, {Column(columnRun.last), Row(rowRun.last)}},
                     block.stamped});
            }
        }
    }

    struct Run
    {
        int first;
        int last;
    };

    /// Where the items from `first` to `last` stand, counted from 1.
    static std::vector<Run> RunsWithin(int first, int last, std::span<const int> items)
    {
        std::vector<Run> runs;
        for (int place = 1; place <= std::ssize(items); ++place) {
            if (items[place - 1] < first || items[place - 1] > last)
                continue;
            if (runs.empty() || runs.back().last + 1 < place)
                runs.push_back({place, place});
            runs.back().last = place;
        }
        return runs;
    }

    unsigned m_clock = 0;
    Stamped m_all;
    std::vector<Stamped> m_columns; ///< by number; time 0 for one that was never set
    std::vector<Stamped> m_rows;
    std::vector<Block> m_blocks;
};

} // namespace schedules
