#include "common/XmlBounds.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace schedules {

namespace {

constexpr std::size_t kMaxTagLength = std::size_t{1} << 20;
constexpr int kMaxAttributes = 4096;

/// The shortest attribute, ` a=""`, has five characters: a shorter tag cannot have too many.
constexpr std::size_t kHarmlessLength = 5 * std::size_t{kMaxAttributes};

/// Markup that may hold anything but its own end.
constexpr std::array<std::pair<std::string_view, std::string_view>, 3> kOpaque{
    {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}}};

/// Where two "<" lie far apart there may be a long tag, since no tag holds a second one. Going in strides and looking
/// back from the end of each touches few characters of an ordinary document.
bool MayHaveLongTag(std::string_view xml)
{
    std::size_t open = xml.find('<');
    while (open != std::string_view::npos && xml.size() - open > kHarmlessLength) {
        const std::size_t last = xml.substr(0, open + kHarmlessLength).rfind('<');
        if (last == open)
            return true;
        open = last;
    }
    return false;
}

/// The length of a tag, up to its ">" or the end of the text; 0 when it is out of bounds.
std::size_t LengthWithinBounds(std::string_view tag)
{
    int attributes = 0;
    char quote = 0;
    for (std::size_t at = 1; at < tag.size() && at < kMaxTagLength; ++at) {
        const char character = tag[at];
        if (quote != 0 ? character == quote : character == '"' || character == '\'')
            quote = quote != 0 ? '\0' : character;
        else if (quote == 0 && character == '>')
            return at;
        else if (quote == 0 && character == '=' && ++attributes > kMaxAttributes)
            return 0;
    }
    return tag.size() > kMaxTagLength ? 0 : tag.size();
}

/// Where the comment, CDATA section or instruction that starts here ends; 0 when none does.
std::size_t LengthOfOpaque(std::string_view markup)
{
    const auto opaque =
        std::ranges::find_if(kOpaque, [markup](const auto& known) { return markup.starts_with(known.first); });
    return opaque == kOpaque.end() ? 0 : markup.find(opaque->second, opaque->first.size());
}

} // namespace

bool WithinTagBounds(std::string_view xml)
{
    if (!MayHaveLongTag(xml))
        return true;
    std::size_t open = xml.find('<');
    while (open != std::string_view::npos) {
        const std::string_view markup = xml.substr(open);
        std::size_t length = LengthOfOpaque(markup);
        if (length == 0)
            length = LengthWithinBounds(markup);
        if (length == 0)
            return false;
        open = length < markup.size() ? xml.find('<', open + length) : std::string_view::npos;
    }
    return true;
}

} // namespace schedules
