#pragma once

#include "common/FileReplacement.h"

#include <string>

namespace schedules {

/// Gathers the text of a file piece by piece and writes it in large ones. Throws `Error` when the file takes less.
class BufferedOutput
{
public:
    explicit BufferedOutput(QFileDevice& file) : m_file(file) { m_text.reserve(2 * kSize); }

    /// Where pieces are appended.
    std::string& Text() { return m_text; }

    /// Hands over what has been gathered when it has become much.
    void FlushWhenFull()
    {
        if (m_text.size() >= kSize)
            Flush();
    }

    /// Hands over what has been gathered. Nothing is written without it.
    void Flush()
    {
        WriteAll(m_file, {m_text.data(), std::ssize(m_text)});
        m_text.clear();
    }

private:
    static constexpr std::size_t kSize = 1 << 20;

    QFileDevice& m_file;
    std::string m_text;
};

} // namespace schedules
