#include "workbook/EncodedText.h"

#include "common/Utf8.h"

#include <algorithm>

namespace schedules {

EncodedText Encoded(std::string_view utf8)
{
    if (std::ranges::all_of(utf8, [](unsigned char byte) { return byte < 0x80; }))
        return {.wide = false, .bytes = std::string(utf8)};
    const QString text = FromUtf8(utf8);
    if (std::ranges::all_of(text, [](QChar unit) { return unit.unicode() < 0x100; }))
        return {.wide = false, .bytes = text.toLatin1().toStdString()};
    return {.wide = true,
            .bytes = std::string(reinterpret_cast<const char*>(text.utf16()),
                                 static_cast<std::size_t>(text.size()) * sizeof(char16_t))};
}

} // namespace schedules
