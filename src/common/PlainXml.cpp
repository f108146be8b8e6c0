#include "common/PlainXml.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>
#include <vector>

namespace schedules {

namespace {

constexpr std::size_t kMaxDepth = 200;
constexpr std::size_t kMaxAttributes = 16;

/// The full parser limits names and how much it remembers of them; documents that come near its limits are its own.
constexpr std::size_t kMaxNameLength = 64;
constexpr std::ptrdiff_t kMaxTagLength = 16384;

enum CharacterClass : unsigned char
{
    kNameStart = 1,
    kName = 2,
    kSpace = 4,
    kText = 8,  ///< stands for itself between tags
    kValue = 16 ///< stands for itself in an attribute value
};

constexpr std::array<unsigned char, 256> kClasses = [] {
    std::array<unsigned char, 256> classes{};
    for (int code = 0x20; code < 0x100; ++code)
        classes[code] = kText | kValue;
    for (int letter = 'A'; letter <= 'Z'; ++letter)
        classes[letter] |= kNameStart | kName;
    for (int letter = 'a'; letter <= 'z'; ++letter)
        classes[letter] |= kNameStart | kName;
    for (int digit = '0'; digit <= '9'; ++digit)
        classes[digit] |= kName;
    classes['_'] |= kNameStart | kName;
    classes['-'] |= kName;
    classes['.'] |= kName;
    classes[' '] |= kSpace;
    classes['\t'] = classes['\n'] = kSpace | kText;
    classes['<'] = classes['&'] = 0;
    // U+FFFE and U+FFFF are no characters, and "]]>" must not stand in text: where they may begin, a closer look is
    // due.
    classes[0xEF] = 0;
    classes[']'] = kValue;
    return classes;
}();

constexpr std::array<std::pair<std::string_view, std::string_view>, 5> kEntities{
    {{"&amp;", "&"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}}};

class PlainReader
{
public:
    PlainReader(std::string_view text, XmlHandler& handler)
        : m_start(text.data()), m_at(text.data()), m_end(text.data() + text.size()), m_handler(handler)
    {
    }

    bool Run()
    {
        if (!ReadProlog() || !ReadStartTag())
            return false;
        while (!m_open.empty()) {
            if (!ReadContent())
                return false;
        }
        Skip(kSpace);
        return m_at == m_end;
    }

private:
    static bool Is(char character, unsigned char wanted)
    {
        return (kClasses[static_cast<unsigned char>(character)] & wanted) != 0;
    }

    std::size_t Offset(const char* place) const { return static_cast<std::size_t>(place - m_start); }
    std::string_view Rest() const { return {m_at, static_cast<std::size_t>(m_end - m_at)}; }

    bool Take(std::string_view expected)
    {
        if (!Rest().starts_with(expected))
            return false;
        m_at += expected.size();
        return true;
    }

    std::string_view Skip(unsigned char wanted)
    {
        const char* const start = m_at;
        while (m_at != m_end && Is(*m_at, wanted))
            ++m_at;
        return {start, static_cast<std::size_t>(m_at - start)};
    }

    /// Empty when there is none, or one too long.
    std::string_view ReadName()
    {
        const bool starts = m_at != m_end && Is(*m_at, kNameStart);
        const std::string_view name = starts ? Skip(kName) : std::string_view();
        return name.size() <= kMaxNameLength ? name : std::string_view();
    }

    bool ReadProlog()
    {
        Take("\xEF\xBB\xBF");
        if (Take(R"(<?xml version="1.0")")) {
            // The text is in memory: whatever encoding it was once written in no longer counts.
            Take(R"( encoding="UTF-8")") || Take(R"( encoding="utf-8")") || Take(R"( encoding="UTF-16")");
            if (!Take("?>"))
                return false;
        }
        Skip(kSpace);
        return true;
    }

    bool ReadContent()
    {
        if (m_at == m_end)
            return false;
        if (*m_at == '&')
            return ReadEntity();
        if (*m_at != '<')
            return ReadText();
        return m_at + 1 != m_end && m_at[1] == '/' ? ReadEndTag() : ReadStartTag();
    }

    bool ReadText()
    {
        const std::string_view text = Skip(kText);
        if (!text.empty())
            m_handler.Text(text);
        return !text.empty() || ReadDelicateCharacter();
    }

    /// A character whose first byte needs a look at what follows.
    bool ReadDelicateCharacter()
    {
        const std::string_view rest = Rest();
        const bool isForbidden =
            rest.starts_with("]]>") || rest.starts_with("\xEF\xBF\xBE") || rest.starts_with("\xEF\xBF\xBF");
        const std::size_t length = rest.front() == ']' ? 1 : rest.front() == '\xEF' ? 3 : 0;
        if (isForbidden || length == 0)
            return false;
        m_handler.Text(rest.substr(0, length));
        m_at += length;
        return true;
    }

    bool ReadEntity()
    {
        const auto entity = std::ranges::find_if(kEntities, [this](const auto& known) { return Take(known.first); });
        if (entity == kEntities.end())
            return false;
        m_handler.Text(entity->second);
        return true;
    }

    bool ReadStartTag()
    {
        const char* const start = m_at;
        if (!Take("<") || m_open.size() == kMaxDepth)
            return false;
        const std::string_view name = ReadName();
        if (name.empty() || !ReadAttributes())
            return false;
        const std::string_view written(name.data(), static_cast<std::size_t>(m_at - name.data()));
        const bool closesItself = Take("/");
        if (!Take(">") || m_at - start > kMaxTagLength)
            return false;
        m_handler.StartElement({name, false, {m_attributes.data(), m_attributeCount}, written, Offset(start)});
        if (closesItself)
            m_handler.EndElement(Offset(m_at));
        else
            m_open.push_back(name);
        return true;
    }

    bool ReadAttributes()
    {
        m_attributeCount = 0;
        while (m_at != m_end && !Skip(kSpace).empty()) {
            if (m_at == m_end || !Is(*m_at, kNameStart))
                break;
            if (!ReadAttribute())
                return false;
        }
        return true;
    }

    bool ReadAttribute()
    {
        XmlAttribute attribute{ReadName()};
        if (attribute.name.empty() || m_attributeCount == kMaxAttributes || attribute.name == "xmlns" || !Take("=") ||
            m_at == m_end)
            return false;
        const char quote = *m_at++;
        if (quote != '"' && quote != '\'')
            return false;
        const char* const start = m_at;
        while (m_at != m_end && *m_at != quote && Is(*m_at, kValue))
            ++m_at;
        if (m_at == m_end || *m_at != quote || HasAttribute(attribute.name))
            return false;
        attribute.value = {start, static_cast<std::size_t>(m_at++ - start)};
        m_attributes[m_attributeCount++] = attribute;
        return true;
    }

    bool HasAttribute(std::string_view name) const
    {
        return std::any_of(m_attributes.begin(), m_attributes.begin() + static_cast<std::ptrdiff_t>(m_attributeCount),
                           [name](const XmlAttribute& known) { return known.name == name; });
    }

    bool ReadEndTag()
    {
        if (!Take("</") || !Take(m_open.back()))
            return false;
        Skip(kSpace);
        if (!Take(">"))
            return false;
        m_open.pop_back();
        m_handler.EndElement(Offset(m_at));
        return true;
    }

    const char* const m_start;
    const char* m_at;
    const char* const m_end;
    XmlHandler& m_handler;
    std::vector<std::string_view> m_open;
    std::array<XmlAttribute, kMaxAttributes> m_attributes;
    std::size_t m_attributeCount = 0;
};

} // namespace

bool ReadPlainXml(const QByteArray& utf8, XmlHandler& handler)
{
    if (utf8.size() > std::numeric_limits<int>::max())
        return false; // more than the full parser takes
    return PlainReader({utf8.constData(), static_cast<std::size_t>(utf8.size())}, handler).Run();
}

} // namespace schedules
