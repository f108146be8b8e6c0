#include "StoredProject.h"
#include "support/TraceLog.h"

namespace schedules::host::testing {

using ProjectValues = StoredProject;

INSTANTIATE_TEST_SUITE_P(In, ProjectValues, ::testing::ValuesIn(Places()), PlaceName);

TEST_P(ProjectValues, AreALineForEachItemInTheOrderAskedFor)
{
    const auto project = Plant();
    EXPECT_EQ(Drawn(project->Values({"P-2", "P-1"}, {"Design/Head", "Design/Flow"})), "- | 48 v1\n14 v1 | 12.5 v1");
}

TEST_P(ProjectValues, AreFoundInAnyLetterCaseAndTwiceWhenAskedTwice)
{
    EXPECT_EQ(Drawn(Plant()->Values({"p-1", "P-1"}, {"design/FLOW"})), "12.5 v1 | 12.5 v1");
}

TEST_P(ProjectValues, AreNoneForTagsAndItemsThatAreNotThere)
{
    EXPECT_EQ(Drawn(Plant()->Values({"P-9", "P-1"}, {"Design/Flow", "Design/Power"})), "- | 12.5 v1\n- | -");
}

TEST_P(ProjectValues, OfNoTagsOrNoItemsAreEmpty)
{
    const auto project = Plant();
    EXPECT_EQ(project->Values({}, {"Design/Flow"}), ValueTable{{}});
    EXPECT_EQ(project->Values({"P-1"}, {}), ValueTable());
}

TEST_P(ProjectValues, SavingRaisesTheVersion)
{
    const auto project = Plant();
    EXPECT_EQ(Drawn(project->Save({{"P-1", "Design/Flow", "13", 1}, {"F-1", "Design/Head", "7", 0}})), "2 stored");
    EXPECT_EQ(Shown(*project), "13 v2 | 14 v1 | -\n48 v1 | - | 7 v1\n- | - | -");
}

TEST_P(ProjectValues, SavedAreSeenByOthersAtOnceAndAfterReopening)
{
    const auto first = Plant();
    const auto second = Opened();
    first->Save({{"p-1", "DESIGN/flow", "13", 1}});
    EXPECT_EQ(Shown(*second), "13 v2 | 14 v1 | -\n48 v1 | - | -\n- | - | -");
    EXPECT_EQ(Shown(*Opened()), Shown(*first));
}

TEST_P(ProjectValues, SavingWhatIsStoredChangesNothingWhateverTheVersion)
{
    const auto project = Plant();
    EXPECT_EQ(Drawn(project->Save({{"P-1", "Design/Flow", "12.5", 0}, {"P-2", "Design/Flow", "14", 77}})), "0 stored");
    EXPECT_EQ(Shown(*project), kSmallPlantValues);
}

TEST_P(ProjectValues, AValueSavedElsewhereSinceIsAConflictAndTheOthersAreStored)
{
    const auto first = Plant();
    const auto second = Opened();
    EXPECT_EQ(Drawn(first->Save({{"P-1", "Design/Flow", "13", 1}})), "1 stored");
    EXPECT_EQ(Drawn(second->Save({{"P-1", "Design/Flow", "12", 1}, {"P-2", "Design/Flow", "15", 1}})),
              "1 stored; P-1 Design/Flow: 12, not 13 v2");
    EXPECT_EQ(Shown(*first), "13 v2 | 15 v2 | -\n48 v1 | - | -\n- | - | -");
}

TEST_P(ProjectValues, AConflictThatTheUserDecidesIsStoredWithTheVersionTold)
{
    const auto project = Plant();
    project->Save({{"P-1", "Design/Flow", "13", 1}});
    const SaveResult refused = project->Save({{"P-1", "Design/Flow", "12", 1}});
    ASSERT_EQ(refused.conflicts.size(), 1);
    ValueEdit decided = refused.conflicts.front().edit;
    decided.version = refused.conflicts.front().stored.version;
    EXPECT_EQ(Drawn(project->Save({decided})), "1 stored");
    EXPECT_EQ(Drawn(project->Values({"P-1"}, {"Design/Flow"})), "12 v3");
}

TEST_P(ProjectValues, AValueThatWasFirstStoredElsewhereIsAConflict)
{
    const auto project = Plant();
    project->Save({{"F-1", "Design/Flow", "1", 0}});
    EXPECT_EQ(Drawn(project->Save({{"F-1", "Design/Flow", "2", 0}})), "0 stored; F-1 Design/Flow: 2, not 1 v1");
}

TEST_P(ProjectValues, ACellThatIsEditedTwiceAtOnceConflictsWithItself)
{
    const auto project = Plant();
    EXPECT_EQ(Drawn(project->Save({{"P-1", "Design/Flow", "1", 1}, {"P-1", "design/flow", "2", 1}})),
              "1 stored; P-1 design/flow: 2, not 1 v2");
}

TEST_P(ProjectValues, AnEmptyTextIsStoredWithAVersionSoThatConflictsAreFound)
{
    const auto project = Plant();
    EXPECT_EQ(Drawn(project->Save({{"P-1", "Design/Flow", "", 1}})), "1 stored");
    EXPECT_EQ(Drawn(project->Save({{"P-1", "Design/Flow", "13", 1}})), "0 stored; P-1 Design/Flow: 13, not  v2");
    EXPECT_EQ(Drawn(project->Save({{"P-1", "Design/Flow", QString(), 1}})), "0 stored");
}

TEST_P(ProjectValues, AnEmptyTextWhereNothingIsStoredChangesNothing)
{
    const auto project = Plant();
    EXPECT_EQ(Drawn(project->Save({{"F-1", "Design/Flow", "", 0}})), "0 stored");
    EXPECT_EQ(Shown(*project), kSmallPlantValues);
}

TEST_P(ProjectValues, ATagOrItemThatIsNotThereFailsAndStoresNothing)
{
    const auto project = Plant();
    const ValueEdit good{"P-1", "Design/Flow", "13", 1};
    EXPECT_EQ(Failure([&] { project->Save({good, {"P-9", "Design/Flow", "1", 0}}); }), "there is no tag P-9");
    EXPECT_EQ(Failure([&] {
                  project->Save({good, {"P-1", "Design/Power", "1", 0}});
              }),
              "there is no data item Design/Power");
    EXPECT_EQ(Shown(*project), kSmallPlantValues);
}

TEST_P(ProjectValues, AnItemThatMayNotBeEditedFailsAndStoresNothing)
{
    const auto project = Plant();
    EXPECT_EQ(Failure([&] {
                  project->Save({{"P-1", "Design/Flow", "13", 1}, {"P-1", "DESIGN/Id", "1", 0}});
              }),
              "DESIGN/Id may not be edited");
    EXPECT_EQ(Shown(*project), kSmallPlantValues);
}

TEST_P(ProjectValues, PuttingDoesNotLookAtVersionsAndRaisesThem)
{
    const auto project = Plant();
    project->Put({.values = {{"P-1", "Design/Flow", "13", 0}, {"P-2", "Design/Flow", "14", 9}}});
    EXPECT_EQ(Shown(*project), "13 v2 | 14 v1 | -\n48 v1 | - | -\n- | - | -");
}

TEST_P(ProjectValues, PuttingAnEmptyTextLeavesItsVersion)
{
    const auto project = Plant();
    project->Put({.values = {{"P-1", "Design/Flow", ""}, {"F-1", "Design/Flow", ""}}});
    EXPECT_EQ(Shown(*project), " v2 | 14 v1 | -\n48 v1 | - | -\n- | - | -");
}

TEST_P(ProjectValues, OfTwoPutForOneCellTheLatterCounts)
{
    const auto project = Plant();
    project->Put({.values = {{"P-1", "Design/Head", "1"}, {"p-1", "Design/Head", "2"}}});
    EXPECT_EQ(Drawn(project->Values({"P-1"}, {"Design/Head"})).substr(0, 2), "2 ");
}

TEST_P(ProjectValues, TextsComeBackAsTheyAre)
{
    const auto project = Plant();
    for (const QString& text : {QString("0012.50"), QString("1e5"), QString("насос 水 😀 é"), QString(" a\tb\r\nc "),
                                QString("O'Neill \"x\" \\n \\' ? :name $1 %1"), QString(100'000, u'x')})
    {
        project->Put({.values = {{"P-1", "Design/Head", text}}});
        EXPECT_EQ(project->Values({"P-1"}, {"Design/Head"})[0][0].text.toStdString(), text.toStdString());
    }
}

TEST_P(ProjectValues, ATextThatIsNoTextFailsAndStoresNothing)
{
    const auto project = Plant();
    const std::string line = Address().toStdString() + ": a text holds something that is no character";
    for (const QString& text : {QString(QChar(0)), QString(QChar(0xD83D))})
        EXPECT_EQ(Failure([&] {
                      project->Save({{"P-2", "Design/Flow", "1", 1}, {"P-1", "Design/Flow", text, 1}});
                  }),
                  line);
    EXPECT_EQ(Shown(*project), kSmallPlantValues);
}

TEST_P(ProjectValues, OfAPlantTakeOneStatementForManyOfThem)
{
    QStringList tags;
    QStringList items;
    Project::Content content{.categories = {{"PUMPS", "Pumps", ""}}};
    for (int tag = 0; tag < 300; ++tag)
        content.tags.append({tags.emplace_back(QString("P-%1").arg(tag)), "PUMPS"});
    for (int item = 0; item < 40; ++item)
        content.items.append({items.emplace_back(QString("Design/%1").arg(item)), "Item", "Design", "TEXT"});
    for (const QString& tag : tags) {
        for (const QString& item : items)
            content.values.append({tag, item, tag + item});
    }
    const auto project = Project::Create(Address());
    schedules::testing::TraceLog statements("schedhost.statements");
    project->Put(content);
    EXPECT_GT(statements.lines.size(), 0);
    EXPECT_LT(statements.lines.size(), 100);
    statements.lines.clear();
    const ValueTable table = project->Values(tags, items);
    EXPECT_LT(statements.lines.size(), 10);
    for (int item = 0; item < 40; ++item) {
        for (int tag = 0; tag < 300; ++tag)
            ASSERT_EQ(table[item][tag], (StoredValue{tags[tag] + items[item], 1}));
    }
}

TEST_P(ProjectValues, OfMoreTagsThanOneStatementTakesAreSaved)
{
    Project::Content content{.categories = {{"PUMPS", "Pumps", ""}}, .items = {{"Flow", "Flow", "", "TEXT"}}};
    QList<ValueEdit> edits;
    QStringList tags;
    for (int tag = 0; tag < 1201; ++tag) {
        content.tags.append({tags.emplace_back(QString("P-%1").arg(tag)), "PUMPS"});
        edits.append({tags.back(), "Flow", QString::number(tag), 0});
    }
    const auto project = Project::Create(Address());
    project->Put(content);
    EXPECT_EQ(Drawn(project->Save(edits)), "1201 stored");
    const ValueTable table = project->Values(tags, {"Flow"});
    for (int tag = 0; tag < 1201; ++tag)
        ASSERT_EQ(table[0][tag], (StoredValue{QString::number(tag), 1}));
    EXPECT_EQ(project->Save(edits).stored, 0);
}

} // namespace schedules::host::testing
