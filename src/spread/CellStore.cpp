#include "spread/CellStore.h"

#include "common/Error.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace schedules {

namespace {

constexpr std::size_t kMaxOffset = std::numeric_limits<std::uint32_t>::max();

[[noreturn]] void ThrowOverflow()
{
    throw Error(kOverflowError, QStringLiteral("The table is larger than a sheet can hold."));
}

} // namespace

void CellStore::Place(int line, int slot, std::string_view text, CellStyle style)
{
    StoredCell& cell = Slot(line, slot);
    text.size() <= TextOf(cell).size() ? Overwrite(cell, text) : Append(cell, text);
    cell.style = StyleNumber(style);
    if (line > 0 && slot > 0) {
        m_lastDataLine = std::max(m_lastDataLine, line);
        m_lastDataSlot = std::max(m_lastDataSlot, slot);
    }
}

void CellStore::Restyle(int line, int slot, CellStyle style)
{
    if (Holds(line, slot))
        Slot(line, slot).style = StyleNumber(style);
    else
        Place(line, slot, {}, style);
}

void CellStore::AddLine(int line)
{
    if (line < 0 || line == std::numeric_limits<int>::max())
        ThrowOverflow();
    if (static_cast<std::size_t>(line) >= m_lines.size())
        m_lines.resize(static_cast<std::size_t>(line) + 1, Line{static_cast<std::uint32_t>(m_cells.size()), 0, 0});
}

CellStore::StoredCell& CellStore::Slot(int line, int slot)
{
    if (slot < 0 || slot == std::numeric_limits<int>::max())
        ThrowOverflow();
    AddLine(line);
    Line& found = m_lines[line];
    const auto wanted = static_cast<std::uint32_t>(slot);
    if (wanted >= found.count)
        Grow(found, wanted + 1);
    return m_cells[found.start + wanted];
}

void CellStore::Grow(Line& line, std::uint32_t count)
{
    // The line that is being filled lies at the end and grows there. One that others have followed moves, with room to
    // spare, so that lines filled in turns cost no more than a constant times their cells.
    if (line.start + line.capacity == m_cells.size())
        Extend(line, count);
    else if (count > line.capacity)
        MoveToEnd(line, count * 2);
    line.count = count;
}

void CellStore::Extend(Line& line, std::uint32_t capacity)
{
    if (capacity <= line.capacity)
        return;
    const std::size_t size = std::size_t{line.start} + capacity;
    if (size > kMaxOffset)
        ThrowOverflow();
    m_cells.resize(size);
    line.capacity = capacity;
}

void CellStore::MoveToEnd(Line& line, std::uint32_t capacity)
{
    Line moved{static_cast<std::uint32_t>(m_cells.size()), line.count, 0};
    Extend(moved, capacity);
    std::copy_n(m_cells.begin() + line.start, line.count, m_cells.begin() + moved.start);
    line = moved;
}

void CellStore::Overwrite(StoredCell& cell, std::string_view text)
{
    std::size_t start = cell.offset;
    cell.length = static_cast<std::uint16_t>(std::min<std::size_t>(text.size(), kLongText));
    if (cell.length == kLongText) {
        const auto length = static_cast<std::uint32_t>(text.size());
        std::memcpy(m_arena.data() + start, &length, sizeof length);
        start += sizeof length;
    }
    m_arena.replace(start, text.size(), text);
}

void CellStore::Append(StoredCell& cell, std::string_view text)
{
    if (m_arena.size() + text.size() + sizeof(std::uint32_t) > kMaxOffset)
        ThrowOverflow();
    cell.offset = static_cast<std::uint32_t>(m_arena.size());
    cell.length = static_cast<std::uint16_t>(std::min<std::size_t>(text.size(), kLongText));
    if (cell.length == kLongText) {
        // The length of a text too long for the cell stands in front of it.
        const auto length = static_cast<std::uint32_t>(text.size());
        m_arena.append(reinterpret_cast<const char*>(&length), sizeof length);
    }
    m_arena.append(text);
}

std::uint16_t CellStore::StyleNumber(CellStyle style)
{
    // The styles of a table are few and come in runs: the last one is looked at first.
    if (m_lastStyle < m_styles.size() && m_styles[m_lastStyle] == style)
        return m_lastStyle;
    const auto found = std::ranges::find(m_styles, style);
    m_lastStyle = static_cast<std::uint16_t>(found - m_styles.begin());
    if (found == m_styles.end())
        m_styles.push_back(style);
    return m_lastStyle;
}

std::string_view CellStore::Text(int line, int slot) const
{
    const StoredCell* cell = Find(line, slot);
    return cell ? TextOf(*cell) : std::string_view();
}

std::string_view CellStore::LongTextOf(const StoredCell& cell) const
{
    std::uint32_t length = 0;
    std::memcpy(&length, m_arena.data() + cell.offset, sizeof length);
    return {m_arena.data() + cell.offset + sizeof length, length};
}

CellStyle CellStore::Style(int line, int slot) const
{
    const StoredCell* cell = Find(line, slot);
    return cell ? m_styles[cell->style] : CellStyle{};
}

CellStore CellStore::Transposed() const
{
    CellStore turned;
    for (int line = 0; line < LineCount(); ++line) {
        ForEachIn(line,
                  [&](int slot, std::string_view text, CellStyle style) { turned.Place(slot, line, text, style); });
    }
    return turned;
}

void CellStore::Overlay(const CellStore& other)
{
    for (int line = 0; line < other.LineCount(); ++line) {
        AddLine(line);
        other.ForEachIn(line,
                        [&](int slot, std::string_view text, CellStyle style) { Place(line, slot, text, style); });
    }
}

void CellStore::Squeeze()
{
    m_cells.shrink_to_fit();
    m_lines.shrink_to_fit();
    m_arena.shrink_to_fit();
}

std::size_t CellStore::MemoryUse() const
{
    return m_cells.capacity() * sizeof(StoredCell) + m_lines.capacity() * sizeof(Line) + m_arena.capacity() +
           m_styles.capacity() * sizeof(CellStyle);
}

} // namespace schedules
