#include "ImportedProject.h"

#include <QRegularExpression>

namespace schedules::host::testing {

namespace {

/// A project with two categories, three items and a tag.
class Import : public ImportedProject
{
protected:
    Import()
    {
        Imported("name,displayname,pdsg\nPUMPS,Pumps,PDSG-10\nFANS,Fans,PDSG-20\n");
        Imported("location,name,group,datatype,unit,editable,userdefined\n"
                 "PUMPS/Design/Flow,Flow,Design,DOUBLE,m³/h,1,0\n"
                 "PUMPS/Vendor/InService,In service,Vendor,CHECKBOX,,1,0\n"
                 "PUMPS/Vendor/Note,Note,Vendor,TEXT,,0,1\n");
        Imported("tag,category,PUMPS/Design/Flow,PUMPS/Vendor/Note\nP-1,PUMPS,12.5,old\n");
    }

    QStringList Tags() const { return Drawn().filter(QRegularExpression(QStringLiteral("^tag"))); }
    QStringList Items() const { return Drawn().filter(QRegularExpression(QStringLiteral("^item"))); }
};

struct Mistake
{
    const char* name;
    QByteArray table;
    const char* refusal;
};

void PrintTo(const Mistake& mistake, std::ostream* stream)
{
    *stream << mistake.name;
}

class ImportMistake : public Import, public ::testing::WithParamInterface<Mistake>
{
};

} // namespace

TEST_F(Import, ReadsCategoriesItemsAndTagsWithValues)
{
    EXPECT_EQ(Drawn(), (QStringList{"category|PUMPS|Pumps|PDSG-10", "category|FANS|Fans|PDSG-20",
                                    "item|PUMPS/Design/Flow|Flow|Design|DOUBLE|m³/h editable",
                                    "item|PUMPS/Vendor/InService|In service|Vendor|CHECKBOX| editable",
                                    "item|PUMPS/Vendor/Note|Note|Vendor|TEXT| userdefined",
                                    "tag|P-1|PUMPS Flow=12.5 Note=old"}));
}

TEST_F(Import, CountsWhatATableHas)
{
    EXPECT_EQ(Imported("name\nA\nB\n"), (ImportResult{.categories = 2}));
    EXPECT_EQ(Imported("location\nA/b\n"), (ImportResult{.items = 1}));
    EXPECT_EQ(Imported("tag,category,PUMPS/Design/Flow,PUMPS/Vendor/Note\nP-2,PUMPS,1,\nP-3,PUMPS,2,x\n"),
              (ImportResult{.tags = 2, .values = 3}));
}

TEST_F(Import, AnEmptyFieldLeavesTheStoredValueAlone)
{
    Imported("tag,category,PUMPS/Design/Flow,PUMPS/Vendor/Note\nP-1,PUMPS,,new\n");
    EXPECT_EQ(Tags(), QStringList{"tag|P-1|PUMPS Flow=12.5 Note=new"});
}

TEST_F(Import, ATagThatIsThereNeedsNoCategory)
{
    Imported("tag,category,PUMPS/Vendor/Note\nP-1,,new\n");
    EXPECT_EQ(Tags(), QStringList{"tag|P-1|PUMPS Flow=12.5 Note=new"});
}

TEST_F(Import, NamesAreKnownWithoutRegardToCaseAndBlanks)
{
    Imported(" Tag ; CATEGORY ;pumps/design/FLOW\n p-1 ; pumps ;7\n");
    EXPECT_EQ(Tags(), QStringList{"tag|P-1|PUMPS Flow=7 Note=old"});
}

TEST_F(Import, ColumnsMayComeInAnyOrder)
{
    Imported("PUMPS/Vendor/Note,category,PUMPS/Design/Flow,tag\nspare,PUMPS,3,P-2\n");
    EXPECT_EQ(Tags(), (QStringList{"tag|P-1|PUMPS Flow=12.5 Note=old", "tag|P-2|PUMPS Flow=3 Note=spare"}));
}

TEST_F(Import, FlagsAreStoredInOneForm)
{
    Imported("tag,category,PUMPS/Vendor/"
             "InService\nP-2,PUMPS,true\nP-3,PUMPS,-1\nP-4,PUMPS,1\nP-5,PUMPS,FALSE\nP-6,PUMPS,0\n");
    EXPECT_EQ(Tags().mid(1),
              (QStringList{"tag|P-2|PUMPS In service=1", "tag|P-3|PUMPS In service=1", "tag|P-4|PUMPS In service=1",
                           "tag|P-5|PUMPS In service=0", "tag|P-6|PUMPS In service=0"}));
}

TEST_F(Import, AUnitInAHeadingIsConvertedToThatOfTheItem)
{
    Imported("tag,category,PUMPS/Design/Flow [gpm]\nP-2,PUMPS,440.29\n");
    const QString stored = OwnProject().Values({"P-2"}, {"PUMPS/Design/Flow"})[0][0].text;
    EXPECT_NEAR(stored.toDouble(), 100.0, 0.01) << qPrintable(stored);
}

TEST_F(Import, TheUnitOfTheItemItselfChangesNothing)
{
    Imported("tag,category,PUMPS/Design/Flow [m³/h]\nP-2,PUMPS,some 5\n");
    EXPECT_EQ(Tags().last(), "tag|P-2|PUMPS Flow=some 5");
}

TEST_F(Import, ANewItemIsAnEditableTextWithTheLastPartOfItsLocationForAName)
{
    Imported("location,unit\nPUMPS/Design/Head,m\n");
    EXPECT_EQ(Items().last(), "item|PUMPS/Design/Head|Head||TEXT|m editable");
}

TEST_F(Import, EmptyFieldsOfAnItemLeaveItAsItIs)
{
    Imported("location,name,datatype,unit,editable,userdefined\npumps/design/flow,Design flow,,,0,\n");
    EXPECT_EQ(Items().first(), "item|PUMPS/Design/Flow|Design flow|Design|DOUBLE|m³/h");
}

TEST_F(Import, EmptyFieldsOfACategoryLeaveItAsItIs)
{
    Imported("name,displayname,pdsg\npumps,Pompes,\nTANKS,,\n");
    EXPECT_EQ(Drawn().filter("category"),
              (QStringList{"category|PUMPS|Pompes|PDSG-10", "category|FANS|Fans|PDSG-20", "category|TANKS|TANKS|"}));
}

TEST_F(Import, DataTypesAreStoredInCapitals)
{
    Imported("location,datatype\nPUMPS/Design/Head, double \n");
    EXPECT_EQ(Items().last(), "item|PUMPS/Design/Head|Head||DOUBLE| editable");
}

TEST_P(ImportMistake, IsToldWithItsPlaceAndChangesNothing)
{
    const QStringList before = Drawn();
    EXPECT_EQ(Refusal(GetParam().table).toStdString(), GetParam().refusal);
    EXPECT_EQ(Drawn(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Tags, ImportMistake,
    ::testing::Values(
        Mistake{"unknown category", "tag,category\nP-2,PUMPS\nP-3,PUMPZ\n", "tags.csv:3:5: there is no category PUMPZ"},
        Mistake{"no category", "tag,category\nP-2,PUMPS\nP-3,\n", "tags.csv:3:5: P-3 has no category"},
        Mistake{"no column of categories", "tag,PUMPS/Design/Flow\nP-2,1\n",
                "tags.csv:1:1: the column category is missing"},
        Mistake{"unknown item", "tag,category,PUMPS/Flow\nP-2,PUMPS,1\n",
                "tags.csv:1:14: there is no data item \"PUMPS/Flow\""},
        Mistake{"an empty heading", "tag,category,\nP-2,PUMPS,1\n", "tags.csv:1:14: there is no data item \"\""},
        Mistake{"a column twice", "tag,category,PUMPS/Design/Flow,pumps/design/flow\nP-2,PUMPS,1,2\n",
                "tags.csv:1:32: pumps/design/flow is in line 1 already"},
        Mistake{"a column in two units", "tag,category,PUMPS/Design/Flow,PUMPS/Design/Flow [gpm]\nP-2,PUMPS,1,2\n",
                "tags.csv:1:32: PUMPS/Design/Flow is in line 1 already"},
        Mistake{"a tag twice", "tag,category\nP-2,PUMPS\nP-3,PUMPS\np-2,PUMPS\n",
                "tags.csv:4:1: p-2 is in line 2 already"},
        Mistake{"an empty tag", "tag,category\nP-2,PUMPS\n ,PUMPS\n", "tags.csv:3:1: the tag is empty"},
        Mistake{"a tag of another category", "tag,category\nP-2,PUMPS\nP-1,FANS\n",
                "tags.csv:3:5: P-1 is in the category PUMPS already"},
        Mistake{"no check box", "tag,category,PUMPS/Vendor/InService\nP-2,PUMPS,1\nP-3,PUMPS,yes\n",
                "tags.csv:3:11: \"yes\" is no value for a check box, which is 1 or 0"},
        Mistake{"a long text", "tag,category,PUMPS/Vendor/Note\nP-2,PUMPS," + QByteArray(32768, 'x') + "\n",
                "tags.csv:2:11: this text has 32768 characters, more than 32767"},
        Mistake{"a long tag", "tag,category\n" + QByteArray(256, 'x') + ",PUMPS\n",
                "tags.csv:2:1: the tag has 256 characters, more than 255"},
        Mistake{"an unknown unit", "tag,category,PUMPS/Design/Flow [furlongs]\nP-2,PUMPS,1\n",
                "tags.csv:1:14: PUMPS/Design/Flow is in m³/h, to which furlongs cannot be converted"},
        Mistake{"a unit of something else", "tag,category,PUMPS/Design/Flow [psi]\nP-2,PUMPS,1\n",
                "tags.csv:1:14: PUMPS/Design/Flow is in m³/h, to which psi cannot be converted"},
        Mistake{"a unit for an item that has none", "tag,category,PUMPS/Vendor/Note [psi]\nP-2,PUMPS,1\n",
                "tags.csv:1:14: PUMPS/Vendor/Note has no unit"},
        Mistake{"no number in another unit", "tag,category,PUMPS/Design/Flow [gpm]\nP-2,PUMPS,10\nP-3,PUMPS,10 / 12\n",
                "tags.csv:3:11: \"10 / 12\" is no number, and cannot be converted from gpm to m³/h"}));

INSTANTIATE_TEST_SUITE_P(
    Items, ImportMistake,
    ::testing::Values(
        Mistake{"no flag", "location,editable\nA/b,1\nA/c,maybe\n",
                "tags.csv:3:5: \"maybe\" is no flag, which is 1 or 0"},
        Mistake{"unknown data type", "location,datatype\nA/b,TEXT\nA/c,NUMBER\n",
                "tags.csv:3:5: there is no data type NUMBER, but TEXT, INTEGER, LONG, SINGLE, DOUBLE, CURRENCY, "
                "CHECKBOX"},
        Mistake{"an item twice", "location\nA/b\na/B\n", "tags.csv:3:1: a/B is in line 2 already"},
        Mistake{"an item without a location", "location,name\nA/b,b\n,c\n", "tags.csv:3:1: the location is empty"},
        Mistake{"an unknown column", "location,units\nA/b,m\n",
                "tags.csv:1:10: there is no column \"units\" in such a table, which has location, name, group, "
                "datatype, unit, editable, userdefined"}));

INSTANTIATE_TEST_SUITE_P(
    Categories, ImportMistake,
    ::testing::Values(Mistake{"a category twice", "name\nA\nB\na\n", "tags.csv:4:1: a is in line 2 already"},
                      Mistake{"a category without a name", "name,pdsg\nA,1\n,2\n", "tags.csv:3:1: the name is empty"},
                      Mistake{"a long name", "name,displayname\nA," + QByteArray(300, 'x') + "\n",
                              "tags.csv:2:3: the displayname has 300 characters, more than 255"},
                      Mistake{"a column twice", "name,pdsg,PDSG\nA,1,2\n",
                              "tags.csv:1:11: PDSG is in line 1 already"}));

INSTANTIATE_TEST_SUITE_P(
    Files, ImportMistake,
    ::testing::Values(
        Mistake{"nothing", "", "tags.csv:1:1: there is nothing in this file"},
        Mistake{"headings alone", "tag,category\n", "tags.csv:1:1: there is nothing below the headings"},
        Mistake{"other headings", "item,unit\nA,B\n",
                "tags.csv:1:1: there is no heading tag, location or name, so that this is no table of tags, of data "
                "items or of categories"},
        Mistake{"another number of fields", "tag,category\nP-2,PUMPS\nP-3\n",
                "tags.csv:3:1: this row has another number of fields (1) than the headings (2)"}));

TEST_F(Import, TellsAllMistakesAtOnceAndChangesNothing)
{
    const QStringList before = Drawn();
    EXPECT_EQ(Refusal("tag,category,PUMPS/Vendor/InService,PUMPS/What\nP-2,PUMPZ,x,\n,PUMPS,1,\nP-1,FANS,0,\n"),
              "tags.csv:1:37: there is no data item \"PUMPS/What\"\n"
              "tags.csv:2:5: there is no category PUMPZ\n"
              "tags.csv:2:11: \"x\" is no value for a check box, which is 1 or 0\n"
              "tags.csv:3:1: the tag is empty\n"
              "tags.csv:4:5: P-1 is in the category PUMPS already");
    EXPECT_EQ(Drawn(), before);
}

TEST_F(Import, TellsThatAFileIsNotThere)
{
    try {
        ImportTable(OwnProject(), QStringLiteral("none.csv"));
        FAIL();
    } catch (const HostError& error) {
        EXPECT_EQ(error.Line(), "cannot read none.csv: No such file or directory");
    }
}

TEST_F(Import, TellsThatAFolderIsNoFile)
{
    ASSERT_TRUE(QDir::current().mkdir(QStringLiteral("folder")));
    try {
        ImportTable(OwnProject(), QStringLiteral("folder"));
        FAIL();
    } catch (const HostError& error) {
        EXPECT_EQ(error.Line(), "cannot read folder: it is a folder");
    }
}

} // namespace schedules::host::testing
