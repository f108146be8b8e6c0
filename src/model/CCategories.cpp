#include "model/CCategories.h"

#include "common/Blanks.h"
#include "model/HostList.h"
#include "model/Inside.h"

namespace schedules {

namespace {

constexpr SourceName kSource("CCategories");

/// A name made of digits is a name, too.
QString KeyOf(const QString& name)
{
    return QLatin1Char('K') + name;
}

MemberKey KeyOf(const MemberKey& key)
{
    const auto* name = std::get_if<QString>(&key);
    return name ? MemberKey(KeyOf(*name)) : key;
}

} // namespace

std::shared_ptr<CCategory> CCategories::Item(const MemberKey& key) const noexcept
{
    std::shared_ptr<CCategory> category;
    IgnoringErrors([&] { category = m_categories.Item(KeyOf(key)); });
    return category;
}

std::shared_ptr<CCategory> CCategories::Find(const QString& name, Inside) const
{
    return m_categories.Find(KeyOf(name));
}

std::shared_ptr<CCategory> CCategories::Add(const QString& name, const QString& displayName, const QString& pdsg)
{
    return Reported(m_userInterface, kSource.In(__func__), std::shared_ptr<CCategory>(), [&] {
        const QString trimmed = TrimmedOfBlanks(name);
        if (trimmed.isEmpty())
            return std::shared_ptr<CCategory>();
        if (const auto known = Find(trimmed, Inside())) {
            known->SetDisplayName(displayName);
            return known;
        }
        auto category = std::make_shared<CCategory>();
        category->SetName(trimmed);
        category->SetDisplayName(displayName);
        category->SetPdsg(pdsg);
        m_categories.Append(KeyOf(trimmed), category);
        return category;
    });
}

void CCategories::Clear()
{
    IgnoringErrors([this] { m_categories.Clear(); });
}

void CCategories::Remove(const MemberKey&)
{
    // What it looks for, an entry under the bare name, is never there. Hosts rely on categories that stay.
}

bool CCategories::CreateObjects(const QString& categoryList)
{
    return Reported(m_userInterface, kSource.In(__func__), false, [&] {
        const auto entries = ReadHostList(categoryList, "Category");
        if (!entries)
            return false;
        for (const HostListEntry& entry : *entries)
            Add(entry.Text("name"), entry.Text("displayname"), entry.Text("pdsg"));
        return true;
    });
}

} // namespace schedules
