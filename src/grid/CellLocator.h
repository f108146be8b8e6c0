#pragma once

#include "grid/ScheduleReader.h"
#include "spread/Sheet.h"

#include <cstdint>
#include <vector>

namespace schedules {

/// Where the element of a cell stands in its document, in bytes of the document's UTF-8 text, end excluded.
struct CellSpan
{
    std::uint32_t start = 0;
    std::uint32_t end = 0;

    bool operator==(const CellSpan&) const = default;
};

/// Which element of a schedule document stands for which cell of the table, by the very reading that fills a sheet.
class CellSpans
{
public:
    /// Of a document that was loaded before; nothing when it can be no schedule.
    static std::optional<CellSpans> Of(const QByteArray& utf8);

    /// Nothing for a place without an element: one that a comment or stray text takes, or beyond the table.
    std::optional<CellSpan> Find(Sheet::TablePlace place) const;

    /// Calls `visit(place, span)` for each element, in the order of the table.
    template <class Visit>
    void ForEach(Visit&& visit) const
    {
        for (const Entry& entry : m_entries)
            visit(entry.place, entry.span);
    }

private:
    friend class CellLocator;

    struct Entry
    {
        Sheet::TablePlace place;
        CellSpan span;
    };

    std::vector<Entry> m_entries; ///< by place
};

/// Reads a schedule and notes where the elements of its cells are.
class CellLocator : public ScheduleReader
{
public:
    CellLocator() : ScheduleReader(Contents::Dropped) {}

    void StartElement(const XmlStartTag& tag) override;
    void EndElement(std::size_t end) override;

    CellSpans Take();

private:
    CellSpans m_spans;
    std::vector<std::size_t> m_open; ///< by open element the number of its entry, or `kNoCell`
};

} // namespace schedules
