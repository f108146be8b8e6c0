#include "model/TemplateText.h"

#include "common/Blanks.h"
#include "common/FilePath.h"
#include "common/PlainXml.h"
#include "common/Utf8.h"
#include "common/XmlBytes.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace schedules {

namespace {

constexpr qint64 kMostBytes = 64 * 1024 * 1024;

bool IsLayout(std::string_view text)
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// What an element is to its parent.
enum class Role
{
    Other,
    Template,
    Group,
    Item,
    Location
};

/// The same few names and values come over and over: those that came lately are kept once.
class RecentTexts
{
public:
    const QString& Text(std::string_view utf8)
    {
        Slot& slot = m_slots[std::hash<std::string_view>()(utf8) % kSlots];
        if (slot.utf8 != utf8 || slot.text.isNull())
            slot = {std::string(utf8), FromUtf8(utf8)};
        return slot.text;
    }

private:
    struct Slot
    {
        std::string utf8;
        QString text;
    };
    static constexpr std::size_t kSlots = 256;

    std::array<Slot, kSlots> m_slots;
};

class TemplateHandler : public XmlHandler
{
public:
    explicit TemplateHandler(std::string_view document) : m_document(document) {}

    TemplateText& Read() { return m_text; }

    void StartElement(const XmlStartTag& tag) override
    {
        EndRun();
        m_open.push_back(RoleOf(tag));
        switch (m_open.back()) {
        case Role::Template:
            m_text.found = true;
            m_text.attributes = AttributesOf(tag);
            break;
        case Role::Group:
            m_text.groups.push_back({AttributesOf(tag), {}});
            break;
        case Role::Item:
            m_text.groups.back().items.push_back({AttributesOf(tag), {}});
            m_hasLocation = false;
            break;
        case Role::Location:
            m_hasLocation = true;
            m_location.clear();
            m_inLocation = true;
            break;
        case Role::Other:
            break;
        }
    }

    void EndElement(std::size_t) override
    {
        EndRun();
        if (m_open.back() == Role::Location) {
            m_text.groups.back().items.back().location = TrimmedOfBlanks(FromUtf8(m_location));
            m_inLocation = false;
        }
        m_open.pop_back();
    }

    void Text(std::string_view text) override
    {
        if (m_inLocation)
            m_run += text;
    }

    void CData(std::string_view text) override
    {
        EndRun();
        if (m_inLocation)
            m_location += text;
    }

    void OtherNode() override { EndRun(); }

private:
    Role RoleOf(const XmlStartTag& tag) const
    {
        const Role parent = m_open.empty() ? Role::Other : m_open.back();
        if (!m_text.found && tag.Is("Template"))
            return Role::Template;
        if (parent == Role::Template && tag.Is("Group"))
            return Role::Group;
        if (parent == Role::Group && tag.Is("Item"))
            return Role::Item;
        if (parent == Role::Item && tag.Is("Location") && !m_hasLocation)
            return Role::Location;
        return Role::Other;
    }

    TemplateText::Attributes AttributesOf(const XmlStartTag& tag)
    {
        const auto isPrefixed = [](const XmlAttribute& attribute) { return !attribute.prefix.empty(); };
        if (!tag.declarations.empty() || std::ranges::any_of(tag.attributes, isPrefixed))
            return WrittenAttributes(m_document, tag);
        TemplateText::Attributes attributes;
        attributes.reserve(tag.attributes.size());
        for (const XmlAttribute& attribute : tag.attributes)
            attributes.push_back({m_recent.Text(attribute.name), ValueOf(attribute)});
        return attributes;
    }

    QString ValueOf(const XmlAttribute& attribute)
    {
        constexpr std::size_t kShort = 8; // flags and the like
        return attribute.value.size() <= kShort ? m_recent.Text(attribute.value) : FromUtf8(attribute.value);
    }

    /// A run of text ends wherever markup stands. Runs of layout alone are no text.
    void EndRun()
    {
        if (!IsLayout(m_run))
            m_location += m_run;
        m_run.clear();
    }

    std::string_view m_document;
    TemplateText m_text;
    RecentTexts m_recent;
    std::vector<Role> m_open;
    bool m_hasLocation = false;
    bool m_inLocation = false;
    std::string m_location;
    std::string m_run;
};

std::string_view View(const QByteArray& utf8)
{
    return {utf8.constData(), static_cast<std::size_t>(utf8.size())};
}

std::size_t MarkOf(const QByteArray& utf8)
{
    return std::hash<std::string_view>()(View(utf8));
}

} // namespace

QString NameIn(const TemplateText::Attributes& attributes)
{
    const auto name = std::ranges::find(attributes, QLatin1String("Name"), &XmlWrittenAttribute::name);
    return name == attributes.end() ? QString() : TrimmedOfBlanks(name->value);
}

std::optional<TemplateText> ReadTemplateFile(const QString& path)
{
    const auto utf8 = XmlUtf8FromFile(PlatformPath(path), kMostBytes);
    if (!utf8)
        return std::nullopt;
    auto handler = ReadEitherWay<TemplateHandler>(*utf8, View(*utf8));
    if (!handler)
        return std::nullopt;
    handler->Read().mark = MarkOf(*utf8);
    return std::move(handler->Read());
}

std::optional<std::size_t> FileMark(const QString& path)
{
    const QString file = PlatformPath(path);
    if (!QFileInfo::exists(file))
        return std::nullopt;
    const auto utf8 = XmlUtf8FromFile(file, kMostBytes);
    return utf8 ? MarkOf(*utf8) : 0;
}

} // namespace schedules
