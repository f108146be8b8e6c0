#include "model/CTemplates.h"

#include "model/Catalogue.h"
#include "model/FailingAllocation.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

struct CTemplatesTest : CatalogueFixture
{
    /// A catalogue of the three files: A, B and C.
    void CreateThree()
    {
        EXPECT_TRUE(Create("<Template name='A' filename='a.xml'/><Template name='B' filename='b.xml'/>"
                           "<Template name='C' filename='c.xml'/>"));
    }

    std::shared_ptr<CTemplate> Added(const QString& name, const QString& filename)
    {
        return catalogue.AddTemplate({name, filename, {}, false, false}, nullptr, Inside());
    }

    std::string Order() const { return Listed(catalogue); }
};

} // namespace

TEST_F(CTemplatesTest, AreEmptyAtFirst)
{
    EXPECT_EQ(catalogue.Count(), 0);
    EXPECT_TRUE(catalogue.NewEnum().empty());
    EXPECT_EQ(catalogue.Item(Position(1)), nullptr);
    EXPECT_EQ(catalogue.Item("A"), nullptr);
    EXPECT_EQ(catalogue.Template(1), nullptr);
    EXPECT_EQ(catalogue.TemplateIDFromFileName("a.xml"), -1);
    EXPECT_EQ(catalogue.TemplateIDFromFileName(""), -1);
}

TEST_F(CTemplatesTest, AreFoundByNameInAnyCaseOrByPlace)
{
    CreateThree();
    EXPECT_EQ(NameOf(catalogue.Item("b")), "B");
    EXPECT_EQ(NameOf(catalogue.Item(Position(2))), "B");
    for (const MemberKey& key : {MemberKey("D"), MemberKey(" B"), MemberKey("2"), MemberKey(""), MemberKey(Position(0)),
                                 MemberKey(Position(4))})
        EXPECT_EQ(catalogue.Item(key), nullptr);
}

TEST_F(CTemplatesTest, ANameOfDigitsIsAName)
{
    EXPECT_TRUE(Create("<Template name='2'/><Template name='B'/>"));
    EXPECT_EQ(NameOf(catalogue.Item("2")), "2");
    EXPECT_EQ(NameOf(catalogue.Item(Position(2))), "B");
}

TEST_F(CTemplatesTest, AreFoundByTheirNumber)
{
    CreateThree();
    EXPECT_EQ(NameOf(catalogue.Template(3)), "C");
    EXPECT_EQ(catalogue.Template(0), nullptr);
    EXPECT_EQ(catalogue.Template(4), nullptr);
}

TEST_F(CTemplatesTest, AreFoundByTheirFileInAnyCase)
{
    CreateThree();
    EXPECT_EQ(catalogue.TemplateIDFromFileName("B.XML"), 2);
    EXPECT_EQ(catalogue.TemplateIDFromFileName("d.xml"), -1);
    EXPECT_EQ(catalogue.TemplateIDFromFileName(" b.xml"), -1);
}

TEST_F(CTemplatesTest, FileNamesOfAnyScriptAreFoundInAnyCase)
{
    EXPECT_TRUE(Create("<Template name='A' filename='Насос.xml'/><Template name='B' filename='größe.xml'/>"));
    EXPECT_EQ(catalogue.TemplateIDFromFileName("НАСОС.XML"), 1);
    EXPECT_EQ(catalogue.TemplateIDFromFileName("GRÖSSE.XML"), 2);
}

TEST_F(CTemplatesTest, OfTemplatesWithOneFileTheFirstIsFound)
{
    EXPECT_TRUE(Create("<Template name='A' filename='a.xml'/><Template name='B' filename='A.xml'/>"));
    EXPECT_EQ(catalogue.TemplateIDFromFileName("a.xml"), 1);
    catalogue.Remove("A");
    EXPECT_EQ(catalogue.TemplateIDFromFileName("a.xml"), 2);
}

TEST_F(CTemplatesTest, AFileNameThatIsWrittenLaterCounts)
{
    CreateThree();
    catalogue.Item("B")->SetFilename("new.xml");
    EXPECT_EQ(catalogue.TemplateIDFromFileName("b.xml"), -1);
    EXPECT_EQ(catalogue.TemplateIDFromFileName("new.xml"), 2);
}

TEST_F(CTemplatesTest, ANumberThatIsWrittenLaterCounts)
{
    CreateThree();
    catalogue.Item("A")->SetID(7, Inside());
    EXPECT_EQ(catalogue.Template(1), nullptr);
    EXPECT_EQ(NameOf(catalogue.Template(7)), "A");
    EXPECT_EQ(catalogue.TemplateIDFromFileName("a.xml"), 7);
}

TEST_F(CTemplatesTest, RemoveTakesANameInAnyCaseOrAPlace)
{
    CreateThree();
    catalogue.Remove("a");
    catalogue.Remove(Position(2));
    EXPECT_EQ(Order(), "2 B");
}

TEST_F(CTemplatesTest, RemoveOfWhatThereIsNotDoesNothing)
{
    CreateThree();
    for (const MemberKey& key : {MemberKey("D"), MemberKey("1"), MemberKey(Position(0)), MemberKey(Position(4))})
        catalogue.Remove(key);
    EXPECT_EQ(Order(), "1 A, 2 B, 3 C");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplatesTest, RemoveLeavesTheFile)
{
    CreateThree();
    catalogue.Remove("A");
    EXPECT_EQ(folder.Content("a.xml"), "<Template><Group Name='Of A'/></Template>");
}

TEST_F(CTemplatesTest, RenamingDoesNotChangeTheKeyAndRemoveGoesByTheName)
{
    CreateThree();
    catalogue.Item("A")->SetName("New");
    EXPECT_EQ(NameOf(catalogue.Item("A")), "New");
    EXPECT_EQ(catalogue.Item("New"), nullptr);
    catalogue.Remove("A");
    EXPECT_EQ(catalogue.Count(), 3);
}

TEST_F(CTemplatesTest, ClearRemovesThemAll)
{
    CreateThree();
    const auto held = catalogue.Item("B");
    catalogue.Item("A")->SetName("New");
    catalogue.Clear();
    EXPECT_EQ(catalogue.Count(), 0);
    EXPECT_EQ(catalogue.Item("B"), nullptr);
    EXPECT_EQ(catalogue.Template(2), nullptr);
    EXPECT_EQ(held->Name(), "B");
}

TEST_F(CTemplatesTest, AddTemplateTakesEverythingItIsGivenAndReadsTheFile)
{
    CreateThree();
    catalogue.Remove("B");
    const auto category = std::make_shared<CCategory>();
    category->SetDisplayName("Pumps");
    const auto added = catalogue.AddTemplate({"  D ", "b.xml", "p4", true, true}, category, Inside());
    EXPECT_EQ(added, catalogue.Item("d"));
    EXPECT_EQ(added->Category(), category);
    EXPECT_EQ(added->FilePath(), folder.Path());
    EXPECT_EQ(Drawn(), "1 A: a.xml [Of A]\n3 C: c.xml [Of C]\n3 D: b.xml p4 protected default Pumps [Of B]\n");
}

TEST_F(CTemplatesTest, OfTheSameNumberTheFirstInOrderIsFound)
{
    CreateThree();
    catalogue.Remove("B");
    Added("D", "b.xml");
    EXPECT_EQ(Order(), "1 A, 3 C, 3 D");
    EXPECT_EQ(NameOf(catalogue.Template(3)), "C");
    catalogue.Remove("C");
    EXPECT_EQ(NameOf(catalogue.Template(3)), "D");
}

TEST_F(CTemplatesTest, AddTemplateOfABlankNameOrOneThatIsTakenGivesNothing)
{
    CreateThree();
    EXPECT_EQ(Added("", "a.xml"), nullptr);
    EXPECT_EQ(Added("   ", "a.xml"), nullptr);
    EXPECT_EQ(Added(" b ", "a.xml"), nullptr);
    EXPECT_EQ(Order(), "1 A, 2 B, 3 C");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplatesTest, AddTemplateOfAFileThatIsMissingIsListedAllTheSame)
{
    CreateThree();
    EXPECT_NE(Added("D", "missing.xml"), nullptr);
    EXPECT_NE(Added("E", ""), nullptr);
    EXPECT_EQ(Order(), "1 A, 2 B, 3 C, 4 D, 5 E");
    EXPECT_EQ(catalogue.Item("D")->Groups().Count(), 0);
    EXPECT_FALSE(catalogue.Item("D")->IsDefaultTemplate());
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplatesTest, AFailureOfAddTemplateIsReportedAndAddsNothing)
{
    CreateThree();
    std::shared_ptr<CTemplate> added;
    const auto look = [&] {
        EXPECT_EQ(Order(), added ? "1 A, 2 B, 3 C, 4 D" : "1 A, 2 B, 3 C");
        const bool isWhole = added && DrawnTemplate(*added) == "\n  1 Of B: Name='Of B'\n";
        EXPECT_EQ(isWhole, user.boxes.empty()) << Seen(user);
        EXPECT_TRUE(added || Seen(user) == "48|Schedules.CTemplates.Add|Out of memory|0|\n") << Seen(user);
        user.boxes.clear();
        catalogue.Remove("D");
    };
    EXPECT_GT(WithEachFailing([&] { added = Added("D", "b.xml"); }, look), 5);
    EXPECT_NE(added, nullptr);
}

TEST_F(CTemplatesTest, AFailureOfTheLookupByFileIsReported)
{
    CreateThree();
    int id = 0;
    const auto look = [&] {
        const bool isFound = id == 2;
        EXPECT_EQ(id, isFound ? 2 : -1);
        EXPECT_EQ(Seen(user), isFound ? "" : "48|Schedules.CTemplates.TemplateIDFromFileName|Out of memory|0|\n");
        user.boxes.clear();
    };
    EXPECT_GT(WithEachFailing([&] { id = catalogue.TemplateIDFromFileName("b.xml"); }, look), 0);
    EXPECT_EQ(id, 2);
}
