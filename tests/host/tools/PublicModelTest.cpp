// What a host that links the component can do with the template model and the search for files: all that their headers
// offer, also what stands in the headers and calls what the component must export for it.

#include "fileutil/CFileUtility.h"
#include "model/CTemplates.h"
#include "support/ScriptedUserInterface.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

struct PublicModel : ::testing::Test
{
    QString Written(const QString& name, const QByteArray& bytes) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    QTemporaryDir folder;
    ScriptedUserInterface user;
};

template <class Members>
QStringList NamesOf(const Members& members)
{
    QStringList names;
    for (const auto& member : members.NewEnum())
        names << member->Name();
    return names;
}

} // namespace

TEST_F(PublicModel, ATemplateIsMadeAndWritten)
{
    CTemplate made(user);
    made.SetName("Pumps");
    made.Properties().Add("Name", made.Name());
    const auto group = made.Groups().AddNew("Design");
    group->Properties().Add("ShowThisGroup", true);
    const auto item = group->Elements().AddNew("Flow");
    item->SetLocation("P/Flow");
    EXPECT_EQ(made.ObjectToXML(), "<Template Name=\"Pumps\"><Group ShowThisGroup=\"-1\">"
                                  "<Item><Location>P/Flow</Location></Item></Group></Template>");
    EXPECT_EQ(TextOf(group->Properties().Item("showthisgroup")->Value()), "-1");
    EXPECT_TRUE(FlagOf(group->Properties().Item(Position(1))->Value()));
    EXPECT_TRUE(user.boxes.empty());
}

TEST_F(PublicModel, MembersAreFoundMovedAndRemoved)
{
    CTemplate made(user);
    CGroups& groups = made.Groups();
    for (const char* name : {"a", "b", "c"})
        groups.AddNew(name);
    auto moved = groups.Item("C");
    groups.Remove("c");
    groups.Add(moved, MemberKey(Position(1)));
    EXPECT_EQ(NamesOf(groups), (QStringList{"c", "a", "b"}));
    EXPECT_EQ(groups.ItemByGroupID(2)->Name(), "b");
    EXPECT_EQ(groups.GetGroupPosition(3), 1);
    EXPECT_EQ(made.GroupIndexFromID(1), 2);
    groups.Clear();
    EXPECT_EQ(groups.Count(), 0);
}

TEST_F(PublicModel, ItemsAreFoundByNumbersThatAreWritten)
{
    CElements items(user);
    const auto item = items.AddNew("a");
    items.AddNew("b");
    EXPECT_EQ(items.GetElementPosition(1), 1);
    item->SetID(7);
    EXPECT_EQ(items.ItemByElementID(7), item);
    EXPECT_EQ(items.ItemByElementID(1), nullptr);
    item->SetName(" renamed ");
    EXPECT_EQ(NamesOf(items), (QStringList{"renamed", "b"}));
}

TEST_F(PublicModel, PropertiesAreChangedAndRemoved)
{
    CProperties properties(user);
    properties.Add("A", "1")->SetValue(2.5);
    EXPECT_EQ(TextOf(properties.Item("a")->Value()), "2.5");
    properties.Item("a")->SetName("B");
    EXPECT_EQ(NamesOf(properties), QStringList{"B"});
    properties.Add("C", "1");
    properties.Remove("c");
    EXPECT_EQ(properties.Count(), 1);
    properties.Clear();
    EXPECT_EQ(properties.Count(), 0);
}

TEST_F(PublicModel, CategoriesAreKept)
{
    CCategories categories(user);
    EXPECT_TRUE(categories.CreateObjects("<c><Category name=\"PUMPS\" displayname=\"Pumps\"/></c>"));
    categories.Add("FANS", "Fans", "D")->SetPdsg("E");
    const auto fans = categories.Item("fans");
    fans->SetDisplayName("Blowers");
    fans->SetName("BLOWERS");
    categories.Remove("PUMPS");
    EXPECT_EQ(NamesOf(categories), (QStringList{"PUMPS", "BLOWERS"}));
    categories.Clear();
    EXPECT_EQ(categories.Count(), 0);
}

TEST_F(PublicModel, ACatalogueIsReadAndSearched)
{
    Written("a.xml", "<Template><Group Name=\"g\"/></Template>");
    CTemplates catalogue(user);
    ASSERT_TRUE(catalogue.CreateObjects("<t><Template name=\"A\" filename=\"a.xml\"/><Template name=\"B\"/></t>",
                                        "<c/>", folder.path()));
    EXPECT_EQ(NamesOf(catalogue), (QStringList{"A", "B"}));
    EXPECT_EQ(catalogue.TemplateIDFromFileName("A.XML"), 1);
    EXPECT_TRUE(catalogue.Template(1)->IsDefaultTemplate());
    EXPECT_TRUE(catalogue.Item("b")->XMLToObject());
    catalogue.Remove("a");
    EXPECT_EQ(catalogue.Count(), 1);
    catalogue.Clear();
    EXPECT_EQ(catalogue.Item(Position(1)), nullptr);
}

TEST_F(PublicModel, FilesAreFoundAndDeleted)
{
    const QString path = Written("a.txt", "12345");
    CFileUtility files;
    ASSERT_TRUE(files.FindFile(folder.filePath("*.txt")));
    EXPECT_EQ(files.GetFilePath(), path);
    EXPECT_EQ(files.GetLength64(), 5);
    EXPECT_TRUE(files.IsNormal());
    EXPECT_TRUE(files.MatchesMask(kNormalFile));
    EXPECT_FALSE(files.FindNextFile());
    files.FindClose();
    EXPECT_TRUE(files.DeleteFile(path));
    EXPECT_FALSE(QFile::exists(path));
}

} // namespace schedules::testing
