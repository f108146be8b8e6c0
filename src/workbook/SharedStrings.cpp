#include "workbook/SharedStrings.h"

#include "workbook/EncodedText.h"

#include <algorithm>
#include <functional>

namespace schedules {

namespace {

constexpr std::size_t kFirstSlots = 1024;

/// The index of the table points to every so many strings, and to no more places than fit one record.
constexpr std::size_t kFewestInBucket = 8;
constexpr std::size_t kMostBuckets = 1024;

constexpr std::size_t kStringHeader = 3;

bool IsHighSurrogate(std::string_view unit)
{
    return (static_cast<Byte>(unit[1]) & 0xFC) == 0xD8;
}

/// Writes the table as one record and its continuations.
class TableWriter
{
public:
    TableWriter(RecordWriter& records, std::uint32_t uses, std::uint32_t count) : m_records(records)
    {
        Append(m_data, uses, count);
    }

    /// A string's header is never split, and neither parted from its first character, which may be two units.
    void MakeRoomFor(const EncodedText& text)
    {
        if (Room() < kStringHeader + 2 * text.UnitSize())
            Continue();
    }

    void Add(const EncodedText& text)
    {
        MakeRoomFor(text);
        Append(m_data, static_cast<Word>(text.Units()), Byte{text.wide});
        std::string_view rest = text.bytes;
        while (rest.size() > Room()) {
            const std::size_t fitting = Fitting(rest, text);
            m_data += rest.substr(0, fitting);
            rest.remove_prefix(fitting);
            Continue();
            Append(m_data, Byte{text.wide});
        }
        m_data += rest;
    }

    /// Where the string will stand for which room has been made: in the stream, and in its record.
    void AppendPlaceTo(std::string& index) const
    {
        const auto inRecord = static_cast<std::uint32_t>(RecordWriter::kHeaderSize + m_data.size());
        Append(index, m_records.Position() + inRecord, static_cast<Word>(inRecord), Word{0});
    }

    void Finish()
    {
        m_records.WriteData(m_type, m_data);
        m_data.clear();
    }

private:
    std::size_t Room() const { return RecordWriter::kMostData - m_data.size(); }

    /// How many bytes of a text go into the room that is left: whole characters, for readers that decode piece by
    /// piece.
    std::size_t Fitting(std::string_view rest, const EncodedText& text) const
    {
        if (!text.wide)
            return Room();
        const std::size_t fitting = Room() / 2 * 2;
        return IsHighSurrogate(rest.substr(fitting - 2, 2)) ? fitting - 2 : fitting;
    }

    void Continue()
    {
        Finish();
        m_type = RecordType::Continue;
    }

    RecordWriter& m_records;
    RecordType m_type = RecordType::SST;
    std::string m_data;
};

std::size_t BucketSize(std::size_t strings)
{
    return std::max(kFewestInBucket, strings / kMostBuckets + 1);
}

std::uint32_t HashOf(std::string_view utf8)
{
    return static_cast<std::uint32_t>(std::hash<std::string_view>{}(utf8));
}

} // namespace

SharedStrings::SharedStrings() : m_slots(kFirstSlots) {}

std::uint32_t SharedStrings::NumberOf(std::string_view utf8)
{
    ++m_uses;
    const std::uint32_t hash = HashOf(utf8);
    std::uint32_t& slot = SlotOf(utf8, hash);
    if (slot > 0)
        return slot - 1;
    m_entries.push_back({utf8.data(), static_cast<std::uint32_t>(utf8.size()), hash});
    slot = static_cast<std::uint32_t>(m_entries.size());
    if (m_entries.size() * 4 > m_slots.size() * 3)
        Grow();
    return static_cast<std::uint32_t>(m_entries.size() - 1);
}

std::uint32_t& SharedStrings::SlotOf(std::string_view utf8, std::uint32_t hash)
{
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
        if (m_slots[at] == 0)
            return m_slots[at];
        const Entry& entry = m_entries[m_slots[at] - 1];
        if (entry.hash == hash && entry.Text() == utf8)
            return m_slots[at];
    }
}

void SharedStrings::Grow()
{
    const std::size_t size = m_slots.size() * 2;
    m_slots = {};
    m_slots.resize(size);
    std::uint32_t number = 0;
    for (const Entry& entry : m_entries) {
        std::size_t at = entry.hash & (size - 1);
        while (m_slots[at] > 0)
            at = (at + 1) & (size - 1);
        m_slots[at] = ++number;
    }
}

void SharedStrings::WriteTo(RecordWriter& records) const
{
    TableWriter table(records, m_uses, static_cast<std::uint32_t>(Count()));
    const std::size_t bucket = BucketSize(Count());
    std::string index;
    Append(index, static_cast<Word>(bucket));
    std::size_t number = 0;
    for (const Entry& entry : m_entries) {
        const EncodedText text = Encoded(entry.Text());
        table.MakeRoomFor(text);
        if (number++ % bucket == 0)
            table.AppendPlaceTo(index);
        table.Add(text);
    }
    table.Finish();
    records.WriteData(RecordType::ExtSST, index);
}

} // namespace schedules
