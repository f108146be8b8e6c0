// The host's list of categories: its entries one by one, as the tree of the document tells them.

#include "common/Blanks.h"
#include "common/XmlDocument.h"
#include "fuzz/Input.h"
#include "model/CCategories.h"
#include "support/ScriptedUserInterface.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct Entry
{
    QString name;
    QString displayName;
    QString pdsg;

    std::string Drawn() const { return QStringList{name, displayName, pdsg}.join(u'|').toStdString() + '\n'; }
};

/// A name that comes again changes the first one's display name alone.
std::vector<Entry> EntriesOf(const XmlDocument& document)
{
    std::vector<Entry> entries;
    for (const XmlNode& node : document.Select(QStringLiteral("//Category"))) {
        const auto value = [&](const char* name) { return TrimmedOfBlanks(node.Attribute(QLatin1String(name))); };
        const Entry entry{value("name"), value("displayname"), value("pdsg")};
        const auto known = std::ranges::find_if(
            entries, [&](const Entry& former) { return former.name.compare(entry.name, Qt::CaseInsensitive) == 0; });
        if (known != entries.end())
            known->displayName = entry.displayName;
        else if (!entry.name.isEmpty())
            entries.push_back(entry);
    }
    return entries;
}

std::string Drawn(const std::vector<Entry>& entries)
{
    std::string drawn;
    for (const Entry& entry : entries)
        drawn += entry.Drawn();
    return drawn;
}

std::string Drawn(const CCategories& categories)
{
    std::string drawn;
    for (const auto& category : categories.NewEnum()) {
        EXPECT_EQ(categories.Item(category->Name()), category);
        drawn += Entry{category->Name(), category->DisplayName(), category->Pdsg()}.Drawn();
    }
    return drawn;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString list = Input(data, size).Text();
    const XmlDocument document = XmlDocument::FromText(list);
    ScriptedUserInterface user;
    CCategories categories(user);
    EXPECT_EQ(categories.CreateObjects(list), static_cast<bool>(document));
    EXPECT_EQ(Drawn(categories), Drawn(EntriesOf(document)));
    EXPECT_TRUE(user.boxes.empty());
    return 0;
}
