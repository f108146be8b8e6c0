#include "SamplePlant.h"
#include "host/schedule/TemplateLayout.h"

namespace schedules::host::testing {

namespace {

bool Holds(const QString& text, QChar::Script script)
{
    return std::ranges::any_of(text, [script](QChar letter) { return letter.script() == script; });
}

QStringList LocationsOf(const GroupLayout& group)
{
    QStringList locations;
    for (const ItemLayout& item : group.items)
        locations << item.location;
    return locations;
}

/// Those tags that a template is for: they have values in each of its groups.
QStringList TagsFor(const SamplePlant& plant, const QString& category, const TemplateLayout& layout)
{
    QStringList names;
    for (const Tag& tag : plant.Held().Tags(category)) {
        const bool all = std::ranges::all_of(layout.groups, [&](const GroupLayout& group) {
            return std::ranges::any_of(
                LocationsOf(group), [&](const QString& location) { return !plant.Text(tag.name, location).isEmpty(); });
        });
        if (all)
            names << tag.name;
    }
    return names;
}

/// How much of a template's schedule has values, of 1.
double Filled(const SamplePlant& plant, const QStringList& tags, const TemplateLayout& layout)
{
    int cells = 0;
    int filled = 0;
    for (const GroupLayout& group : layout.groups) {
        for (const QString& location : LocationsOf(group)) {
            for (const QString& tag : tags) {
                ++cells;
                filled += plant.Text(tag, location).isEmpty() ? 0 : 1;
            }
        }
    }
    return static_cast<double>(filled) / std::max(cells, 1);
}

} // namespace

TEST_F(SampleProject, IsFilledByOneStatementForManyValues)
{
    EXPECT_GT(Plant().Statements(), 0);
    EXPECT_LT(Plant().Statements(), 1000);
}

TEST_F(SampleProject, HasThreeHundredTagsAndAtLeastThirtyInEachCategory)
{
    QStringList names;
    for (const Category& category : Held().Categories()) {
        names << category.name;
        EXPECT_GE(Held().Tags(category.name).size(), 30) << qPrintable(category.name);
    }
    EXPECT_EQ(names,
              (QStringList{"GENERAL", "PUMPS", "AIRHANDLING", "HEATEXCHANGERS", "CONTROLVALVES", "INSTRUMENTS"}));
    EXPECT_GE(Held().Tags().size(), 300);
}

TEST_F(SampleProject, HasFortyItemsSomeOfThemEditableAndUserDefined)
{
    const QList<DataItem> items = Held().Items();
    EXPECT_GE(items.size(), 40);
    for (bool DataItem::*flag : {&DataItem::editable, &DataItem::userDefined}) {
        EXPECT_TRUE(std::ranges::any_of(items, [&](const DataItem& item) { return item.*flag; }));
        EXPECT_TRUE(std::ranges::any_of(items, [&](const DataItem& item) { return !(item.*flag); }));
    }
}

TEST_F(SampleProject, EveryItemOfEveryTemplateIsThereInItsUnitAndType)
{
    QHash<QString, DataItem> items;
    for (const DataItem& item : Held().Items())
        items.insert(NameKey(item.location), item);
    EXPECT_EQ(Held().Templates().size(), 23);
    for (const TemplateEntry& entry : Held().Templates()) {
        SCOPED_TRACE(entry.name.toStdString());
        const QString text = Held().TemplateText(entry.fileName);
        const bool inItemUnits = text.contains("UnitOfMeasure=\"SI\"");
        for (const GroupLayout& group : ReadTemplateLayout(text).groups) {
            for (const ItemLayout& shown : group.items) {
                ASSERT_TRUE(items.contains(NameKey(shown.location))) << qPrintable(shown.location);
                const DataItem& item = items[NameKey(shown.location)];
                EXPECT_EQ(shown.dataType, item.dataType) << qPrintable(shown.location);
                EXPECT_EQ(shown.userDefined, item.userDefined) << qPrintable(shown.location);
                EXPECT_TRUE(!inItemUnits || shown.unit == item.unit) << qPrintable(shown.location);
            }
        }
    }
}

TEST_F(SampleProject, EveryTemplateIsFilledForTheTagsThatItIsFor)
{
    for (const TemplateEntry& entry : Held().Templates()) {
        const TemplateLayout layout = ReadTemplateLayout(Held().TemplateText(entry.fileName));
        const QStringList tags = TagsFor(Plant(), entry.category, layout);
        EXPECT_GE(tags.size(), 8) << qPrintable(entry.name);
        EXPECT_GE(Filled(Plant(), tags, layout), 0.8) << qPrintable(entry.name);
    }
}

TEST_F(SampleProject, TheDefaultTemplateOfEachCategoryIsCurrent)
{
    for (const Category& category : Held().Categories())
        EXPECT_FALSE(Held().CurrentTemplate(category.name).isEmpty()) << qPrintable(category.name);
}

TEST_F(SampleProject, HasCyrillicGreekAndHanInEachCategory)
{
    for (const Category& category : Held().Categories()) {
        QString texts;
        for (const Tag& tag : Held().Tags(category.name)) {
            for (const DataItem& item : Held().Items())
                texts += Plant().Text(tag.name, item.location);
        }
        for (const auto script : {QChar::Script_Cyrillic, QChar::Script_Greek, QChar::Script_Han})
            EXPECT_TRUE(Holds(texts, script)) << qPrintable(category.name) << ' ' << script;
    }
}

TEST_F(SampleProject, FlagsAreStoredAsZeroAndOne)
{
    for (const DataItem& item : Held().Items()) {
        for (const Tag& tag : Held().Tags()) {
            const QString text = Plant().Text(tag.name, item.location);
            EXPECT_TRUE(item.dataType != "CHECKBOX" || text.isEmpty() || text == "0" || text == "1")
                << qPrintable(tag.name + ' ' + item.location);
        }
    }
}

TEST(SampleStandards, HaveItemsAndTemplatesButNoTags)
{
    const QTemporaryDir folder;
    const auto project = Project::Create(folder.filePath(QStringLiteral("empty.schedules")));
    FillWithStandards(*project);
    EXPECT_EQ(project->Categories().size(), 6);
    EXPECT_GE(project->Items().size(), 40);
    EXPECT_EQ(project->Templates().size(), 23);
    EXPECT_TRUE(project->Tags().isEmpty());
}

} // namespace schedules::host::testing
