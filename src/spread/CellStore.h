#pragma once

#include "spread/CellStyle.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace schedules {

/// The cells of a table in lines, as the table brings them: a line is one `TR`, a slot one of its cells.
///
/// A cell takes eight bytes: where its text lies, how long it is and which style it has. Texts lie one after the other
/// in an arena, as UTF-8. A text takes the place of the one before it where it is not longer, else it is appended.
/// Lines may have any length, and a slot may be empty.
class CellStore
{
public:
    /// Writes a text and a style into a slot, which then holds data. Slots before it that do not exist yet are made,
    /// empty. Throws `Error` when the arena or the line table would outgrow 32 bits.
    void Place(int line, int slot, std::string_view text, CellStyle style);

    /// Changes the style alone.
    void Restyle(int line, int slot, CellStyle style);

    /// Makes sure that the line exists.
    void AddLine(int line);

    bool Holds(int line, int slot) const { return Find(line, slot) != nullptr; }

    /// The text of a slot; empty when there is none. Valid until the store changes.
    std::string_view Text(int line, int slot) const;
    CellStyle Style(int line, int slot) const;

    /// Both at once.
    struct Content
    {
        std::string_view text;
        CellStyle style;
    };

    Content At(int line, int slot) const
    {
        const StoredCell* cell = Find(line, slot);
        return cell ? Content{TextOf(*cell), m_styles[cell->style]} : Content{};
    }

    /// Calls `visit(slot, text, style)` for each slot of the line that holds data, in order.
    template <class Visit>
    void ForEachIn(int line, Visit&& visit) const
    {
        const Line& in = m_lines[line];
        for (std::uint32_t slot = 0; slot < in.count; ++slot) {
            const StoredCell& cell = m_cells[in.start + slot];
            if (cell.style != kNoStyle)
                visit(static_cast<int>(slot), TextOf(cell), m_styles[cell.style]);
        }
    }

    int LineCount() const { return static_cast<int>(m_lines.size()); }
    int SlotCount(int line) const
    {
        return line >= 0 && line < LineCount() ? static_cast<int>(m_lines[line].count) : 0;
    }

    /// The extent of what lies beyond line 0 and slot 0, the headers: the highest line and slot that hold data.
    int LastDataLine() const { return m_lastDataLine; }
    int LastDataSlot() const { return m_lastDataSlot; }

    bool Empty() const { return m_lines.empty(); }

    /// The same cells with lines and slots exchanged.
    CellStore Transposed() const;

    /// Overlays this store with the cells of another.
    void Overlay(const CellStore& other);

    /// Gives back memory that growing has reserved.
    void Squeeze();

    /// Bytes that the store has taken.
    std::size_t MemoryUse() const;

private:
    struct StoredCell
    {
        std::uint32_t offset = 0;
        std::uint16_t length = 0;
        std::uint16_t style = kNoStyle;
    };
    static_assert(sizeof(StoredCell) == 8);

    struct Line
    {
        std::uint32_t start = 0;
        std::uint32_t count = 0;
        std::uint32_t capacity = 0;
    };

    static constexpr std::uint16_t kNoStyle = 0xFFFF;
    static constexpr std::uint16_t kLongText = 0xFFFF;

    std::string_view TextOf(const StoredCell& cell) const
    {
        return cell.length == kLongText ? LongTextOf(cell)
                                        : std::string_view(m_arena.data() + cell.offset, cell.length);
    }

    std::string_view LongTextOf(const StoredCell& cell) const;

    const StoredCell* Find(int line, int slot) const
    {
        if (slot < 0 || slot >= SlotCount(line))
            return nullptr;
        const StoredCell& cell = m_cells[m_lines[line].start + static_cast<std::uint32_t>(slot)];
        return cell.style == kNoStyle ? nullptr : &cell;
    }

    StoredCell& Slot(int line, int slot);
    void Grow(Line& line, std::uint32_t count);
    void Extend(Line& line, std::uint32_t capacity);
    void MoveToEnd(Line& line, std::uint32_t capacity);
    void Overwrite(StoredCell& cell, std::string_view text);
    void Append(StoredCell& cell, std::string_view text);
    std::uint16_t StyleNumber(CellStyle style);

    std::vector<StoredCell> m_cells;
    std::vector<Line> m_lines;
    std::string m_arena;
    std::vector<CellStyle> m_styles;
    std::uint16_t m_lastStyle = 0;
    int m_lastDataLine = 0;
    int m_lastDataSlot = 0;
};

} // namespace schedules
