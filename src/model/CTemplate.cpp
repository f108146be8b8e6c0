#include "model/CTemplate.h"

#include "common/Blanks.h"
#include "common/FilePath.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "model/Inside.h"
#include "model/TemplateText.h"
#include "model/TemplateWriter.h"

namespace schedules {

namespace {

constexpr SourceName kSource("CTemplate");

/// A group or a data item without a name: `message` is the number of the text that says so.
struct Nameless
{
    int message;
};

void Fill(CProperties& properties, const TemplateText::Attributes& attributes)
{
    for (const XmlWrittenAttribute& attribute : attributes)
        properties.Add(attribute.name, attribute.value);
}

QString RequiredName(const TemplateText::Attributes& attributes, int message)
{
    const QString name = NameIn(attributes);
    return name.isEmpty() ? throw Nameless{message} : name;
}

void Fill(CElements& elements, const std::vector<TemplateText::Item>& items)
{
    for (const TemplateText::Item& item : items) {
        const auto element = elements.AddNew(RequiredName(item.attributes, kDataItemWithoutName));
        if (!element)
            continue;
        Fill(element->Properties(), item.attributes);
        element->SetLocation(item.location);
    }
}

void Fill(CGroups& groups, const std::vector<TemplateText::Group>& texts)
{
    for (const TemplateText::Group& text : texts) {
        const auto group = groups.AddNew(RequiredName(text.attributes, kGroupWithoutName));
        if (!group)
            continue;
        Fill(group->Properties(), text.attributes);
        Fill(group->Elements(), text.items);
    }
}

QString PathOf(const QString& folder, const QString& file)
{
    const QString trimmed = TrimmedOfBlanks(folder);
    return trimmed.endsWith(u'\\') ? trimmed + file : trimmed + u'\\' + file;
}

/// Whether there is such a file in the folder. A name that leads out of it is none of a file in it.
bool HoldsFile(const QString& folder, const QString& file)
{
    return PlaceInside(TrimmedOfBlanks(folder), PathOf(folder, file)).has_value();
}

} // namespace

CTemplate::CTemplate(UserInterface& userInterface)
    : m_userInterface(userInterface), m_groups(userInterface), m_properties(userInterface)
{
}

void CTemplate::SetID(int id, Inside)
{
    m_id.Set(id);
}

void CTemplate::SetName(const QString& name)
{
    m_name = TrimmedOfBlanks(name);
}

void CTemplate::SetDirty(bool dirty, Inside)
{
    m_dirty = dirty;
}

QString CTemplate::ObjectToXML() const
{
    return Reported(m_userInterface, kSource.In(__func__), QString(), [this] { return TemplateXml(*this); });
}

bool CTemplate::XMLToObject()
{
    const QualifiedName source = kSource.In(__func__);
    return Reported(m_userInterface, source, false, [&] {
        if (m_filename.isEmpty() || m_filePath.isEmpty() || !HoldsFile(m_filePath, m_filename))
            return false;
        const auto text = ReadTemplateFile(PathOf(m_filePath, m_filename));
        if (!text)
            return false;
        m_fileMark = text->mark;
        m_readInPart = true;
        try {
            Read(*text);
            m_readInPart = false;
            m_loaded = m_loaded || text->found;
            return text->found;
        } catch (const Nameless& nameless) {
            const QString message = LoadResString(nameless.message);
            ReportMessage(m_userInterface, {message, kCritical, source, nameless.message, m_filename});
            return false;
        }
    });
}

void CTemplate::Read(const TemplateText& text)
{
    m_properties.Clear();
    m_groups.Clear();
    Fill(m_properties, text.attributes);
    Fill(m_groups, text.groups);
}

bool CTemplate::FileDiffers() const
{
    if (!HoldsFile(m_filePath, m_filename))
        return false;
    const auto mark = FileMark(PathOf(m_filePath, m_filename));
    return mark && mark != m_fileMark;
}

bool CTemplate::IsDefaultTemplate() const
{
    return m_loaded && !m_properties.Item(QStringLiteral("Category"));
}

int CTemplate::GroupIndexFromID(int groupId) const
{
    return m_groups.GetGroupPosition(groupId);
}

} // namespace schedules
