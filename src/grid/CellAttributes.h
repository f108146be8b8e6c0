#pragma once

#include "common/XmlReader.h"
#include "spread/CellStyle.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace schedules {

/// What the attributes of a `TH` or `TD` say.
struct CellAttributes
{
    CellStyle style;
    bool hidesValue = false; ///< a check box that is not to be seen shows nothing at all
    bool hidden = false;
    bool bold = false;
    std::optional<std::uint32_t> backColor;
};

enum class CellElement
{
    Header,
    Data
};

/// Reads the attributes of cells. The same few texts come again and again in a table, so each is understood once.
class CellAttributesReader
{
public:
    const CellAttributes& Read(const XmlStartTag& tag, CellElement element);

private:
    struct Hash
    {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };

    /// What tells tags apart that say different things.
    std::string_view KeyOf(const XmlStartTag& tag, CellElement element);

    static constexpr std::size_t kMostRemembered = 4096;

    const CellAttributes m_plain{};
    std::string m_key;
    std::unordered_map<std::string, CellAttributes, Hash, std::equal_to<>> m_known;
};

/// A decimal colour number, signed or unsigned 32 bits, blanks around allowed; nothing for anything else.
std::optional<std::uint32_t> ColorNumber(std::string_view text);

/// What a `dataType` text names; unknown names are text.
DataType DataTypeNamed(std::string_view text);

} // namespace schedules
