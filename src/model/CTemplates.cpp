#include "model/CTemplates.h"

#include "common/Blanks.h"
#include "common/BooleanText.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "model/HostList.h"
#include "model/Inside.h"

#include <algorithm>

namespace schedules {

namespace {

constexpr SourceName kSource("CTemplates");

/// What an entry of the list says; of what it does not say, the entry before it holds.
void Update(CatalogueEntry& entry, const HostListEntry& listed)
{
    entry.name = listed.Attribute("name").value_or(entry.name);
    entry.filename = listed.Attribute("filename").value_or(entry.filename);
    entry.pdsg = listed.Attribute("pdsg").value_or(entry.pdsg);
    if (const auto readOnly = listed.Attribute("readonly"))
        entry.isProtected = BooleanOf(*readOnly);
    if (const auto isDefault = listed.Attribute("defaultforcategory"))
        entry.isDefault = BooleanOf(*isDefault);
}

} // namespace

CTemplates::CTemplates(UserInterface& userInterface) : m_userInterface(userInterface), m_categories(userInterface) {}

void CTemplates::Clear()
{
    IgnoringErrors([this] { m_templates.Clear(); });
}

void CTemplates::Remove(const MemberKey& key)
{
    IgnoringErrors([&] {
        if (const auto known = Item(key))
            m_templates.Remove(known->Name());
    });
}

bool CTemplates::CreateObjects(const QString& templateList, const QString& categoryList, const QString& folder)
{
    const QualifiedName source = kSource.In(__func__);
    return Reported(m_userInterface, source, false, [&] {
        const QString trimmedFolder = TrimmedOfBlanks(folder);
        const QString categories = TrimmedOfBlanks(categoryList);
        const QString templates = TrimmedOfBlanks(templateList);
        if (templates.isEmpty() || categories.isEmpty() || trimmedFolder.isEmpty())
            return false;
        m_folder = trimmedFolder;
        m_categories.CreateObjects(categories);
        const auto listed = ReadHostList(templates, "Template");
        if (!listed) {
            const int number = kTemplateListUnreadable;
            m_userInterface.Show({LoadResString(number), kCritical, source, number});
            return false;
        }
        Clear();
        AddListed(*listed);
        return true;
    });
}

void CTemplates::AddListed(const std::vector<HostListEntry>& listed)
{
    CatalogueEntry entry;
    for (const HostListEntry& next : listed) {
        Update(entry, next);
        const QString category = next.Text("category");
        AddTemplate(entry, category.isEmpty() ? nullptr : m_categories.Find(category, Inside()), Inside());
    }
}

std::shared_ptr<CTemplate> CTemplates::AddTemplate(const CatalogueEntry& entry,
                                                   const std::shared_ptr<CCategory>& category, Inside)
{
    return Reported(m_userInterface, kSource.In("Add"), std::shared_ptr<CTemplate>(), [&] {
        const QString name = TrimmedOfBlanks(entry.name);
        if (name.isEmpty() || m_templates.Find(name))
            return std::shared_ptr<CTemplate>();
        const auto added = Made(entry, category);
        added->XMLToObject();
        m_templates.Append(name, added);
        added->SetID(m_templates.Count(), Inside());
        return added;
    });
}

std::shared_ptr<CTemplate> CTemplates::Made(const CatalogueEntry& entry,
                                            const std::shared_ptr<CCategory>& category) const
{
    auto made = std::make_shared<CTemplate>(m_userInterface);
    made->SetName(entry.name);
    made->SetFilename(entry.filename);
    made->SetFilePath(m_folder);
    made->SetPdsg(entry.pdsg);
    made->SetProtected(entry.isProtected);
    made->SetCategory(category);
    made->SetDefaultForCategory(entry.isDefault);
    return made;
}

int CTemplates::TemplateIDFromFileName(const QString& fileName) const
{
    return Reported(m_userInterface, kSource.In(__func__), -1, [&] {
        const QString wanted = fileName.toUpper();
        const auto templates = NewEnum();
        const auto found =
            std::ranges::find_if(templates, [&](const auto& known) { return known->Filename().toUpper() == wanted; });
        return found == templates.end() ? -1 : (*found)->ID();
    });
}

} // namespace schedules
