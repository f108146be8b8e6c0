// The templates and lists that stand in samples/.

#include "model/CTemplates.h"
#include "model/TemplatesFolder.h"

#include <QDir>

#include <set>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct SampleTemplates : ::testing::Test
{
    SampleTemplates()
    {
        EXPECT_TRUE(catalogue.CreateObjects(List("template-list.xml"), List("category-list.xml"), Path("templates")));
    }

    static QString Path(const QString& name) { return QString(SCHEDULES_SOURCE_DIR "/samples/") + name; }

    static QString List(const QString& name)
    {
        QFile file(Path("lists/" + name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll());
    }

    ScriptedUserInterface user;
    CTemplates catalogue{user};
};

} // namespace

TEST_F(SampleTemplates, AreReadWithoutAMessage)
{
    EXPECT_EQ(Seen(user), "");
    EXPECT_GE(catalogue.Count(), 12);
}

TEST_F(SampleTemplates, EveryFileOfTheFolderIsListed)
{
    std::set<QString> listed;
    for (const auto& sample : catalogue.NewEnum())
        listed.insert(sample->Filename());
    const QStringList files = QDir(Path("templates")).entryList({"*.xml"}, QDir::Files);
    EXPECT_EQ(listed, std::set<QString>(files.begin(), files.end()));
}

TEST_F(SampleTemplates, EveryOneHasGroupsWithItemsAndDisplayNames)
{
    for (const auto& sample : catalogue.NewEnum()) {
        EXPECT_GT(sample->Groups().Count(), 0) << NameOf(sample);
        for (const auto& group : sample->Groups().NewEnum()) {
            EXPECT_TRUE(group->Properties().Item("DisplayName")) << NameOf(sample) << NameOf(group);
            EXPECT_GT(group->Elements().Count(), 0) << NameOf(sample) << NameOf(group);
        }
    }
}

TEST_F(SampleTemplates, EveryOneBelongsToOneOfSixCategoriesWithOneDefaultEach)
{
    std::map<QString, int> defaults;
    for (const auto& sample : catalogue.NewEnum()) {
        ASSERT_TRUE(sample->Category()) << NameOf(sample);
        defaults[sample->Category()->Name()] += sample->DefaultForCategory() ? 1 : 0;
    }
    EXPECT_EQ(defaults.size(), 6U);
    for (const auto& [category, count] : defaults)
        EXPECT_EQ(count, 1) << category.toStdString();
}

TEST_F(SampleTemplates, OneIsTheDefaultAndOneIsProtected)
{
    const auto samples = catalogue.NewEnum();
    EXPECT_EQ(std::ranges::count_if(samples, &CTemplate::IsDefaultTemplate), 1);
    EXPECT_GE(std::ranges::count_if(samples, &CTemplate::Protected), 1);
}

TEST_F(SampleTemplates, AreTheSameAfterTheyWereWrittenAndReadAgain)
{
    const TemplatesFolder copies;
    for (const auto& sample : catalogue.NewEnum()) {
        const QString written = sample->ObjectToXML();
        copies.Write(sample->Filename(), written.toUtf8());
        CTemplate copy(user);
        copy.SetFilePath(copies.Path());
        copy.SetFilename(sample->Filename());
        ASSERT_TRUE(copy.XMLToObject());
        EXPECT_EQ(Drawn(copy), Drawn(*sample));
        EXPECT_EQ(copy.ObjectToXML(), written);
    }
}
