#include "workbook/RecordWriter.h"

#include "common/Error.h"

namespace schedules {

namespace {

/// The container's sector numbers and sizes are signed.
constexpr std::uint32_t kLargestStream = 0x7FFF0000;

} // namespace

void RecordWriter::WriteData(RecordType type, std::string_view data)
{
    Q_ASSERT(data.size() <= kMostData);
    std::memcpy(Begin(type, data.size()), data.data(), data.size());
    m_used += kHeaderSize + data.size();
}

void RecordWriter::Patch(std::uint32_t position, std::string_view bytes)
{
    Flush();
    m_stream.Overwrite(position, bytes);
}

void RecordWriter::Flush()
{
    if (Position() > kLargestStream)
        throw Error(kOverflowError, QStringLiteral("The schedule is larger than a workbook of this format can hold."));
    m_stream.Write({m_buffer.data(), m_used});
    m_flushed = Position();
    m_used = 0;
}

} // namespace schedules
