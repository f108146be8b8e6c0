#pragma once

#include "grid/ScheduleReader.h"
#include "spread/Sheet.h"

#include <cstdint>
#include <set>
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

    /// Whether there is such an element and it says that its cell may be edited.
    bool AllowsEdit(Sheet::TablePlace place) const;

    /// The places of the elements that begin there.
    std::set<Sheet::TablePlace> PlacesOf(const std::set<std::uint32_t>& starts) const;

private:
    friend class CellLocator;

    struct Entry
    {
        Sheet::TablePlace place;
        CellSpan span;
        bool allowEdit = false;
    };

    const Entry* EntryAt(Sheet::TablePlace place) const;

    std::vector<Entry> m_entries; ///< by place
};

/// Reads a schedule and notes where the elements of its cells are, and which of them may be edited.
class CellLocator : public ScheduleReader
{
public:
    CellLocator() : ScheduleReader(Contents::Dropped) {}

    void StartElement(const XmlStartTag& tag) override;
    void EndElement(std::size_t end) override;

    CellSpans Take();

private:
    CellSpans m_spans;
    CellAttributesReader m_attributes;
    std::vector<std::size_t> m_open; ///< by open element the number of its entry, or `kNoCell`
};

} // namespace schedules
