#include "host/project/Schema.h"

#include "StoredProject.h"
#include "host/project/ProjectFile.h"

#include <QFile>

namespace schedules::host::testing {

namespace {

struct Schema : StoredProject
{
    /// A project as the first version made it.
    Database OfFirstVersion() const
    {
        if (!OnServer())
            NewFile(Address()).Keep();
        Database database{ProjectAddress(Address())};
        MakeSchema(database, 1);
        return Database{ProjectAddress(Address())};
    }

    QString StoredVersion() const { return Raw().Text("SELECT value FROM meta WHERE name = 'schema'"); }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(In, Schema, ::testing::ValuesIn(Places()), PlaceName);

TEST_P(Schema, OfAnOlderProjectIsBroughtUpToDateAndKeepsItsContent)
{
    Database old = OfFirstVersion();
    old.Run("INSERT INTO template (id, key, file_name, name_key, name, pdsg, read_only, category_key, category,"
            " is_default, text) VALUES (1, 'a.xml', 'A.xml', 'a', 'A', 'p', 1, 'pumps', 'PUMPS', 1, '<a/>')");
    const QString id = old.Text("SELECT value FROM meta WHERE name = 'id'");

    const auto project = Opened();
    EXPECT_EQ(project->Templates(), (QList<TemplateEntry>{{"A", "A.xml", "p", true, "PUMPS", true, {}}}));
    EXPECT_EQ(project->TemplateText("A.xml"), "<a/>");
    EXPECT_EQ(project->Language(), "en");
    EXPECT_EQ(project->Id(), id);
    EXPECT_EQ(StoredVersion(), QString::number(kSchemaVersion));
}

TEST_P(Schema, OfAnOlderProjectIsThatOfANewOneAfterwards)
{
    OfFirstVersion();
    const auto project = Opened();
    const TemplateEntry entry{"A", "a.xml", "", false, "", false, {{"owner", "me"}}};
    project->MergeTemplates({}, {entry}, {});
    EXPECT_EQ(Opened()->Templates(), QList<TemplateEntry>{entry});
}

TEST_P(Schema, OfANewerProgramIsRefusedAndLeftAsItIs)
{
    Plant();
    Raw().Run("UPDATE meta SET value = ? WHERE name = 'schema'", {QString::number(kSchemaVersion + 1)});
    EXPECT_EQ(Failure([&] { Opened(); }), Address().toStdString() + " was made by a newer program");
    EXPECT_EQ(StoredVersion(), QString::number(kSchemaVersion + 1));
}

TEST_P(Schema, WithoutAVersionIsDamaged)
{
    Plant();
    Raw().Run("DELETE FROM meta WHERE name = 'schema'");
    EXPECT_EQ(Failure([&] { Opened(); }), Address().toStdString() + " is damaged");
}

TEST_P(Schema, AnUpdateThatFailsChangesNothing)
{
    OfFirstVersion().Run("INSERT INTO meta (name, value) VALUES ('language', 'of nobody')");
    EXPECT_NE(Failure([&] { Opened(); }), "no failure");
    EXPECT_EQ(StoredVersion(), "1");
    EXPECT_NE(Failure([&] { Raw().Run("SELECT others FROM template"); }), "no failure");
}

TEST_P(Schema, OfAProjectThatIsThereIsNotMadeAgain)
{
    Plant();
    const std::string line = OnServer() ? "there is a project " : "there is a file ";
    EXPECT_EQ(Failure([&] { Project::Create(Address()); }), line + Address().toStdString() + " already");
    EXPECT_EQ(Shown(*Opened()), kSmallPlantValues);
}

} // namespace schedules::host::testing
