#include "model/HostList.h"

#include "common/Blanks.h"
#include "common/PlainXml.h"
#include "common/Utf8.h"

#include <algorithm>

namespace schedules {

namespace {

class ListHandler : public XmlHandler
{
public:
    explicit ListHandler(std::string_view element) : m_element(element) {}

    void StartElement(const XmlStartTag& tag) override
    {
        if (!tag.Is(m_element))
            return;
        HostListEntry& entry = entries.emplace_back();
        for (const XmlAttribute& attribute : tag.attributes) {
            if (!attribute.inNamespace)
                entry.Add(FromUtf8(attribute.name), FromUtf8(attribute.value));
        }
    }

    void EndElement(std::size_t) override {}
    void Text(std::string_view) override {}
    void OtherNode() override {}

    std::vector<HostListEntry> entries;

private:
    std::string_view m_element;
};

} // namespace

std::optional<QString> HostListEntry::Attribute(const char* name) const
{
    const auto found = std::ranges::find(m_attributes, QLatin1String(name), &Pair::name);
    return found == m_attributes.end() ? std::nullopt : std::optional(TrimmedOfBlanks(found->value));
}

std::optional<std::vector<HostListEntry>> ReadHostList(const QString& xml, const char* element)
{
    const auto utf8 = XmlUtf8(xml);
    if (!utf8)
        return std::nullopt;
    auto handler = ReadEitherWay<ListHandler>(*utf8, element);
    return handler ? std::optional(std::move(handler->entries)) : std::nullopt;
}

} // namespace schedules
