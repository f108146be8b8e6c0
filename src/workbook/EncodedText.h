#pragma once

#include <string>
#include <string_view>

namespace schedules {

/// A text as workbooks keep it: Latin-1 if that will do, else UTF-16, least byte first.
struct EncodedText
{
    bool wide = false; ///< the lowest bit of the byte in front of the characters
    std::string bytes;

    std::size_t UnitSize() const { return wide ? 2 : 1; }

    /// Characters beyond U+FFFF count twice.
    std::size_t Units() const { return bytes.size() / UnitSize(); }
};

EncodedText Encoded(std::string_view utf8);

} // namespace schedules
