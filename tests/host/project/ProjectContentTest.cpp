#include "StoredProject.h"

namespace schedules::host::testing {

using ProjectContent = StoredProject;

INSTANTIATE_TEST_SUITE_P(In, ProjectContent, ::testing::ValuesIn(Places()), PlaceName);

TEST_P(ProjectContent, OfANewProjectIsEmpty)
{
    const auto project = Project::Create(Address());
    EXPECT_EQ(project->Categories(), QList<Category>());
    EXPECT_EQ(project->Tags(), QList<Tag>());
    EXPECT_EQ(project->Items(), QList<DataItem>());
    EXPECT_EQ(project->Templates(), QList<TemplateEntry>());
}

TEST_P(ProjectContent, ComesBackInTheOrderInWhichItWasPut)
{
    Plant();
    const auto project = Opened();
    EXPECT_EQ(project->Categories(), SmallPlant().categories);
    EXPECT_EQ(project->Tags(), SmallPlant().tags);
    EXPECT_EQ(project->Items(), SmallPlant().items);
    EXPECT_EQ(Shown(*project), kSmallPlantValues);
}

TEST_P(ProjectContent, TagsAreThoseOfACategoryInAnyLetterCase)
{
    const auto project = Plant();
    EXPECT_EQ(project->Tags("pumps"), (QList<Tag>{{"P-1", "PUMPS"}, {"P-2", "PUMPS"}}));
    EXPECT_EQ(project->Tags("VALVES"), QList<Tag>());
}

TEST_P(ProjectContent, PutAgainIsChangedInItsPlace)
{
    const auto project = Plant();
    project->Put({.categories = {{"pumps", "Pumpen", ""}},
                  .tags = {{"p-1", "FANS"}},
                  .items = {{"DESIGN/HEAD", "Lift", "Duty", "TEXT", "ft", false, false}}});
    EXPECT_EQ(project->Categories(), (QList<Category>{{"pumps", "Pumpen", ""}, {"FANS", "Fans", "PDSG-20"}}));
    EXPECT_EQ(project->Tags(), (QList<Tag>{{"p-1", "FANS"}, {"P-2", "pumps"}, {"F-1", "FANS"}}));
    EXPECT_EQ(project->Items()[1], (DataItem{"DESIGN/HEAD", "Lift", "Duty", "TEXT", "ft", false, false}));
    EXPECT_EQ(project->Items().size(), 3);
    EXPECT_EQ(Shown(*project), kSmallPlantValues);
}

TEST_P(ProjectContent, LettersOfAnyScriptAreFolded)
{
    const auto project = Project::Create(Address());
    project->Put({.categories = {{"НАСОСЫ", "", ""}, {"насосы", "second", ""}},
                  .tags = {{"ΟΔΟΣ-1", "Насосы"}, {"οδος-1", "насосы"}, {"ΨΥΓΕΊΟ", "насосы"}, {"ψυγείο", "насосы"}}});
    EXPECT_EQ(project->Categories(), (QList<Category>{{"насосы", "second", ""}}));
    EXPECT_EQ(project->Tags(), (QList<Tag>{{"οδος-1", "насосы"}, {"ψυγείο", "насосы"}}));
}

TEST_P(ProjectContent, ATagOfNoKnownCategoryFailsAndChangesNothing)
{
    const auto project = Plant();
    EXPECT_EQ(Failure([&] {
                  project->Put({.categories = {{"NEW", "", ""}}, .tags = {{"V-1", "VALVES"}}});
              }),
              "the tag V-1 is of no known category: VALVES");
    EXPECT_EQ(project->Categories(), SmallPlant().categories);
}

TEST_P(ProjectContent, AValueOfNoKnownTagFailsAndChangesNothing)
{
    const auto project = Plant();
    EXPECT_EQ(Failure([&] {
                  project->Put({.tags = {{"P-3", "PUMPS"}}, .values = {{"P-4", "Design/Flow", "1"}}});
              }),
              "there is no tag P-4");
    EXPECT_EQ(project->Tags(), SmallPlant().tags);
}

TEST_P(ProjectContent, WhatHasNoNameFails)
{
    const auto project = Plant();
    EXPECT_EQ(Failure([&] { project->Put({.categories = {{}}}); }), "a category has no name");
    EXPECT_EQ(Failure([&] { project->Put({.tags = {{"", "PUMPS"}}}); }), "a tag has no name");
    EXPECT_EQ(Failure([&] { project->Put({.items = {{}}}); }), "a data item has no name");
}

TEST_P(ProjectContent, EachProjectHasAnIdOfItsOwn)
{
    const QString id = Project::Create(Address())->Id();
    EXPECT_TRUE(QRegularExpression("^[0-9a-f-]{36}$").match(id).hasMatch()) << id.toStdString();
    EXPECT_EQ(Opened()->Id(), id);
    QTemporaryDir other;
    EXPECT_NE(Project::Create(other.filePath("other.schedules"))->Id(), id);
}

TEST_P(ProjectContent, TheLanguageIsEnglishUntilItIsSet)
{
    const auto project = Project::Create(Address());
    EXPECT_EQ(project->Language(), "en");
    project->SetLanguage("de");
    EXPECT_EQ(Opened()->Language(), "de");
}

TEST_P(ProjectContent, ManyProjectsAreOpenAtOnce)
{
    const auto first = Plant();
    std::vector<std::unique_ptr<Project>> others;
    for (int count = 0; count < 5; ++count)
        others.push_back(Opened());
    others[2].reset();
    others[3]->Save({{"P-1", "Design/Flow", "13", 1}});
    first->Save({{"P-2", "Design/Flow", "15", 1}});
    EXPECT_EQ(Shown(*others[4]), "13 v2 | 15 v2 | -\n48 v1 | - | -\n- | - | -");
}

} // namespace schedules::host::testing
