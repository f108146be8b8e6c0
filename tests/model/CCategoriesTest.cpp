#include "model/CCategories.h"

#include "model/FailingAllocation.h"
#include "model/ModelDrawing.h"
#include "support/BadXml.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct CCategoriesTest : ::testing::Test
{
    /// "AHU (Air handlers, p1), ..."
    std::string Drawn() const
    {
        QStringList drawn;
        for (const auto& category : categories.NewEnum())
            drawn += QString("%1 (%2, %3)").arg(category->Name(), category->DisplayName(), category->Pdsg());
        return drawn.join(", ").toStdString();
    }

    /// The categories after a list was read that can be read.
    std::string DrawnFrom(const QString& list)
    {
        EXPECT_TRUE(categories.CreateObjects(list));
        return Drawn();
    }

    ScriptedUserInterface user;
    CCategories categories{user};
};

struct CCategoriesBad : ::testing::TestWithParam<BadXml>
{
};

} // namespace

TEST(CCategory, IsEmptyWhenItIsNew)
{
    const CCategory category;
    EXPECT_EQ(category.Name(), "");
    EXPECT_EQ(category.DisplayName(), "");
    EXPECT_EQ(category.Pdsg(), "");
}

TEST(CCategory, ItsTextsLoseBlanksAtTheEnds)
{
    CCategory category;
    category.SetName(" A HU  ");
    category.SetDisplayName("  Air  handlers ");
    category.SetPdsg(" p 1 ");
    EXPECT_EQ(category.Name(), "A HU");
    EXPECT_EQ(category.DisplayName(), "Air  handlers");
    EXPECT_EQ(category.Pdsg(), "p 1");
}

TEST(CCategory, OnlySpacesAreBlanks)
{
    CCategory category;
    category.SetName("\tA\u00A0");
    category.SetDisplayName("\tB\n");
    category.SetPdsg("\u2003C\r");
    EXPECT_EQ(category.Name(), "\tA\u00A0");
    EXPECT_EQ(category.DisplayName(), "\tB\n");
    EXPECT_EQ(category.Pdsg(), "\u2003C\r");
}

TEST_F(CCategoriesTest, AreEmptyAtFirst)
{
    EXPECT_EQ(categories.Count(), 0);
    EXPECT_EQ(categories.Item(Position(1)), nullptr);
    EXPECT_EQ(categories.Item("AHU"), nullptr);
}

TEST_F(CCategoriesTest, AddTrimsAndAppends)
{
    const auto first = categories.Add(" AHU ", " Air handlers ", " p1 ");
    categories.Add("PUMPS", "Pumps", "");
    EXPECT_EQ(categories.Item("AHU"), first);
    EXPECT_EQ(Drawn(), "AHU (Air handlers, p1), PUMPS (Pumps, )");
}

TEST_F(CCategoriesTest, AddOfAKnownOneChangesItsDisplayNameOnly)
{
    const auto first = categories.Add("AHU", "Air handlers", "p1");
    categories.Add("PUMPS", "Pumps", "p3");
    EXPECT_EQ(categories.Add(" ahu ", " Air handling units ", "p2"), first);
    EXPECT_EQ(Drawn(), "AHU (Air handling units, p1), PUMPS (Pumps, p3)");
}

TEST_F(CCategoriesTest, AddOfABlankNameGivesNothing)
{
    EXPECT_EQ(categories.Add("", "Air handlers", "p1"), nullptr);
    EXPECT_EQ(categories.Add("   ", "Air handlers", "p1"), nullptr);
    EXPECT_EQ(categories.Count(), 0);
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CCategoriesTest, AreFoundByNameOrPlaceAndNotByTheKeyBehindIt)
{
    const auto added = categories.Add("AHU", "", "");
    EXPECT_EQ(categories.Item("ahu"), added);
    EXPECT_EQ(categories.Item(Position(1)), added);
    EXPECT_EQ(categories.Item("KAHU"), nullptr);
    EXPECT_EQ(categories.Item(Position(0)), nullptr);
    EXPECT_EQ(categories.Item(Position(2)), nullptr);
}

TEST_F(CCategoriesTest, ANameThatBeginsWithTheLetterOfTheKeyIsItsOwn)
{
    categories.Add("KAHU", "", "");
    EXPECT_EQ(categories.Item("AHU"), nullptr);
    categories.Add("AHU", "", "");
    EXPECT_EQ(NameOf(categories.Item("KAHU")), "KAHU");
    EXPECT_EQ(NameOf(categories.Item("AHU")), "AHU");
}

TEST_F(CCategoriesTest, ANameOfDigitsIsAName)
{
    categories.Add("12", "", "");
    categories.Add("1", "", "");
    EXPECT_EQ(NameOf(categories.Item("12")), "12");
    EXPECT_EQ(NameOf(categories.Item("1")), "1");
    EXPECT_EQ(NameOf(categories.Item(Position(1))), "12");
    EXPECT_EQ(categories.Item(Position(12)), nullptr);
}

TEST_F(CCategoriesTest, RenamingDoesNotChangeTheKey)
{
    const auto added = categories.Add("AHU", "", "");
    added->SetName("FANS");
    EXPECT_EQ(categories.Item("AHU"), added);
    EXPECT_EQ(categories.Item("FANS"), nullptr);
}

TEST_F(CCategoriesTest, RemoveLeavesThemAll)
{
    categories.Add("AHU", "", "");
    categories.Add("1", "", "");
    for (const MemberKey& key : {MemberKey("AHU"), MemberKey("1"), MemberKey(Position(1)), MemberKey("missing")})
        categories.Remove(key);
    EXPECT_EQ(categories.Count(), 2);
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CCategoriesTest, ClearRemovesThemAll)
{
    const auto held = categories.Add("AHU", "Air handlers", "");
    categories.Add("PUMPS", "", "");
    held->SetName("renamed");
    categories.Clear();
    EXPECT_EQ(categories.Count(), 0);
    EXPECT_EQ(categories.Item("AHU"), nullptr);
    EXPECT_EQ(held->DisplayName(), "Air handlers");
}

TEST_F(CCategoriesTest, CreateObjectsReadsTheThreeAttributes)
{
    EXPECT_EQ(DrawnFrom("<Categories><Category name=' AHU ' displayname=' Air handlers ' pdsg=' p1 '/>"
                        "<Category pdsg='p2' name='PUMPS'/></Categories>"),
              "AHU (Air handlers, p1), PUMPS (, p2)");
}

TEST_F(CCategoriesTest, CreateObjectsStartsAfreshForEachElement)
{
    EXPECT_EQ(DrawnFrom("<C><Category name='A' displayname='a' pdsg='p'/><Category name='B'/>"
                        "<Category displayname='c'/></C>"),
              "A (a, p), B (, )");
}

TEST_F(CCategoriesTest, CreateObjectsFindsElementsAtAnyDepthAlsoTheRoot)
{
    EXPECT_EQ(DrawnFrom("<Category name='A'><x><Category name='B'><Category name='C'/></Category></x></Category>"),
              "A (, ), B (, ), C (, )");
}

TEST_F(CCategoriesTest, CreateObjectsComparesNamesExactly)
{
    EXPECT_EQ(DrawnFrom("<C xmlns:p='u'><category name='A'/><CATEGORY name='B'/><p:Category name='C'/>"
                        "<Category Name='D' NAME='E'/><Category p:name='F'/><Category name='G' DisplayName='g'/>"
                        "<Category xmlns='u' name='H'/></C>"),
              "G (, )");
}

TEST_F(CCategoriesTest, CreateObjectsTwiceAddsNewOnesAndUpdatesKnownOnes)
{
    DrawnFrom("<C><Category name='A' displayname='a' pdsg='p'/><Category name='B' displayname='b'/></C>");
    EXPECT_EQ(DrawnFrom("<C><Category name='C'/><Category name='b' pdsg='q'/><Category name='a' displayname='x'/></C>"),
              "A (x, p), B (, ), C (, )");
}

TEST_F(CCategoriesTest, CreateObjectsOfAListWithoutCategoriesIsNoFailure)
{
    EXPECT_EQ(DrawnFrom("<Categories/>"), "");
}

TEST_F(CCategoriesTest, CreateObjectsOfNoTextFails)
{
    EXPECT_FALSE(categories.CreateObjects(""));
    EXPECT_FALSE(categories.CreateObjects("  "));
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CCategoriesTest, CreateObjectsReadsAnyScriptAndIgnoresADeclaredEncoding)
{
    EXPECT_EQ(DrawnFrom("<?xml version='1.0' encoding='windows-1251'?>"
                        "<C><Category name='НАСОСЫ' displayname='Насосы 水泵 𝄞' pdsg='&lt;&#x416;'/></C>"),
              "НАСОСЫ (Насосы 水泵 𝄞, <Ж)");
    EXPECT_EQ(NameOf(categories.Item("насосы")), "НАСОСЫ");
}

TEST_F(CCategoriesTest, CreateObjectsTakesALineBreakInAnAttributeForABlank)
{
    EXPECT_EQ(DrawnFrom("<C><Category name='A' displayname='\r\na\r\nb\n'/></C>"), "A (a b, )");
}

TEST_F(CCategoriesTest, AFailureOfAddIsReportedAndAddsNothing)
{
    std::shared_ptr<CCategory> added;
    const auto look = [&] {
        EXPECT_EQ(Drawn(), added ? "AHU (Air handlers, p1)" : "");
        EXPECT_EQ(Seen(user), added ? "" : "48|Schedules.CCategories.Add|Out of memory|0|\n");
        user.boxes.clear();
        categories.Clear();
    };
    EXPECT_GT(WithEachFailing([&] { added = categories.Add("AHU", "Air handlers", "p1"); }, look), 1);
    EXPECT_NE(added, nullptr);
}

TEST_F(CCategoriesTest, AFailureOfCreateObjectsIsReported)
{
    bool isRead = false;
    const auto look = [&] {
        EXPECT_TRUE(isRead ? Drawn() == "AHU (, )" || Seen(user) == "48|Schedules.CCategories.Add|Out of memory|0|\n"
                           : Seen(user) == "48|Schedules.CCategories.CreateObjects|Out of memory|0|\n")
            << Seen(user);
        user.boxes.clear();
        categories.Clear();
    };
    EXPECT_GT(WithEachFailing([&] { isRead = categories.CreateObjects("<Category name='AHU'/>"); }, look), 2);
    EXPECT_TRUE(isRead);
}

TEST_P(CCategoriesBad, AListThatCannotBeReadChangesNothing)
{
    ScriptedUserInterface user;
    CCategories categories(user);
    categories.Add("AHU", "Air handlers", "p1");
    QString list = GetParam().text;
    list.replace("TABLE", "Category").replace("<TR", "<Category name='AHU' displayname='changed'");
    EXPECT_FALSE(categories.CreateObjects(list));
    EXPECT_EQ(categories.Count(), 1);
    EXPECT_EQ(categories.Item("AHU")->DisplayName(), "Air handlers");
    EXPECT_EQ(Seen(user), "");
}

INSTANTIATE_TEST_SUITE_P(All, CCategoriesBad, ::testing::ValuesIn(BadDocuments("/nowhere")),
                         [](const auto& tested) { return std::string(tested.param.name); });
