#pragma once

#include "workbook/Bytes.h"
#include "workbook/RecordType.h"

#include <array>

namespace schedules {

/// Where the bytes of a workbook's stream go.
class WorkbookStream
{
public:
    virtual ~WorkbookStream() = default;

    /// Appends; throws `Error` when that fails.
    virtual void Write(std::string_view bytes) = 0;

    /// Writes over bytes that have been written before.
    virtual void Overwrite(std::uint32_t position, std::string_view bytes) = 0;
};

/// Writes records: a type, the size of the data, the data.
class RecordWriter
{
public:
    static constexpr std::size_t kHeaderSize = 4;
    static constexpr std::size_t kMostData = 8224;

    explicit RecordWriter(WorkbookStream& stream) : m_stream(stream) {}

    /// A record of fields; their types say how long each is.
    template <RecordField... Fields>
    void Write(RecordType type, Fields... fields)
    {
        constexpr std::size_t kSize = (sizeof(Fields) + ... + 0);
        static_assert(kSize <= kMostData);
        [[maybe_unused]] char* at = Begin(type, kSize);
        ((at = Put(at, fields)), ...);
        m_used += kHeaderSize + kSize;
    }

    /// A record whose data lie ready, at most `kMostData` bytes.
    void WriteData(RecordType type, std::string_view data);

    /// Where the next record begins, in bytes from the start of the stream.
    std::uint32_t Position() const { return m_flushed + static_cast<std::uint32_t>(m_used); }

    /// Puts numbers in the place of those that have been written at a position.
    void Patch(std::uint32_t position, std::string_view bytes);

    /// Hands over what has been kept back. Nothing is written without it.
    void Flush();

private:
    char* Begin(RecordType type, std::size_t size)
    {
        if (m_used + kHeaderSize + size > m_buffer.size())
            Flush();
        char* at = m_buffer.data() + m_used;
        at = Put(at, static_cast<Word>(type));
        return Put(at, static_cast<Word>(size));
    }

    WorkbookStream& m_stream;
    std::uint32_t m_flushed = 0;
    std::size_t m_used = 0;
    std::array<char, 65536> m_buffer;
};

} // namespace schedules
