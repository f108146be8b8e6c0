#pragma once

#include "workbook/RecordWriter.h"

#include <deque>
#include <string_view>
#include <vector>

namespace schedules {

/// The texts of a workbook, each different one once. The texts must stay where they are as long as this lives.
class SharedStrings
{
public:
    SharedStrings();

    /// The number of a text, which counts as used once more.
    std::uint32_t NumberOf(std::string_view utf8);

    std::size_t Count() const { return m_entries.size(); }

    /// The table and the index of it.
    void WriteTo(RecordWriter& records) const;

private:
    struct Entry
    {
        const char* start;
        std::uint32_t size;
        std::uint32_t hash;

        std::string_view Text() const { return {start, size}; }
    };

    std::uint32_t& SlotOf(std::string_view utf8, std::uint32_t hash);
    void Grow();

    std::uint32_t m_uses = 0;
    std::deque<Entry> m_entries;
    std::vector<std::uint32_t> m_slots; ///< where the hash points to: the number of an entry and 1; 0 for none
};

} // namespace schedules
