#include "common/CompiledTable.h"
#include "model/Catalogue.h"
#include "model/FailingAllocation.h"

#include <random>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr auto kUnreadable = "16|Schedules.CTemplates.CreateObjects|Missing: 1062|1062|\n";

struct CTemplatesList : CatalogueFixture
{
    static std::string OutOfMemoryIn(const QString& procedure)
    {
        return "48|" + procedure.toStdString() + "|Out of memory|0|\n";
    }

    /// What a flag that is written so makes of a template: "true", "false" or "error".
    std::string Flag(const char* attribute, const QString& text)
    {
        user.boxes.clear();
        const bool isRead = Create(QString("<Template name='A' %1='%2'/>").arg(attribute, text));
        const auto listed = catalogue.Item("A");
        if (!isRead || !listed)
            return "error";
        const bool isSet = attribute == std::string("readonly") ? listed->Protected() : listed->DefaultForCategory();
        return isSet ? "true" : "false";
    }
};

QString Entry(int number)
{
    return QString("<Template name='Template %1' filename='%1.xml' category='%2'/>")
        .arg(QString::number(number), number % 2 == 0 ? "PUMPS" : "fans");
}

} // namespace

TEST_F(CTemplatesList, EveryAttributeIsRead)
{
    EXPECT_EQ(DrawnFrom("<Template name=' Pumps ' filename=' a.xml ' pdsg=' p1 ' readonly='-1' category=' PUMPS ' "
                        "defaultforcategory='-1'/>"
                        "<Template name='Fans' filename='b.xml' pdsg='p2' readonly='0' category='fans' "
                        "defaultforcategory='0'/>"),
              "1 Pumps: a.xml p1 protected default Pumps [Of A]\n"
              "2 Fans: b.xml p2 Fans [Of B]\n");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplatesList, ElementsAreFoundAtAnyDepthAlsoTheRoot)
{
    EXPECT_TRUE(catalogue.CreateObjects("<Template name='A'><x><Template name='B'><Template name='C'/></Template></x>"
                                        "<Template name='D'/></Template>",
                                        kCategories, folder.Path()));
    EXPECT_EQ(Listed(catalogue), "1 A, 2 B, 3 C, 4 D");
}

TEST_F(CTemplatesList, NamesOfElementsAndAttributesAreComparedExactly)
{
    EXPECT_EQ(DrawnFrom("<template name='1'/><Templates name='2'/><p:Template xmlns:p='u' name='3'/>"
                        "<Template xmlns='u' name='4'/><Template Name='5' NAME='6'/>"
                        "<Template xmlns:p='u' p:name='7'/><Template name='A' FileName='a.xml' ReadOnly='x'/>"),
              "1 A:  []\n");
}

TEST_F(CTemplatesList, OfOneNameInAnyCaseTheFirstEntryCounts)
{
    EXPECT_EQ(DrawnFrom("<Template name='A' filename='a.xml'/><Template name=' a ' filename='b.xml'/>"
                        "<Template name='B' filename='c.xml'/>"),
              "1 A: a.xml [Of A]\n2 B: c.xml [Of C]\n");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplatesList, WhatAnEntryDoesNotSayIsAsInTheOneBefore)
{
    EXPECT_EQ(DrawnFrom("<Template name='A' filename='a.xml' pdsg='p' readonly='-1' defaultforcategory='true'/>"
                        "<Template name='B'/><Template name='C' pdsg='q'/>"),
              "1 A: a.xml p protected default [Of A]\n"
              "2 B: a.xml p protected default [Of A]\n"
              "3 C: a.xml q protected default [Of A]\n");
}

TEST_F(CTemplatesList, EachAttributeCarriesOverByItself)
{
    EXPECT_EQ(DrawnFrom("<Template name='A' filename='a.xml' pdsg='p' readonly='-1' defaultforcategory='-1'/>"
                        "<Template name='B' filename='b.xml'/><Template name='C' readonly='0'/>"
                        "<Template name='D' defaultforcategory='0'/>"),
              "1 A: a.xml p protected default [Of A]\n"
              "2 B: b.xml p protected default [Of B]\n"
              "3 C: b.xml p default [Of B]\n"
              "4 D: b.xml p [Of B]\n");
}

TEST_F(CTemplatesList, TheNameCarriesOverAndIsTakenThen)
{
    EXPECT_EQ(DrawnFrom("<Template name='A' filename='a.xml'/><Template filename='b.xml'/><Template name='C'/>"),
              "1 A: a.xml [Of A]\n2 C: b.xml [Of B]\n");
}

TEST_F(CTemplatesList, WhatCarriesOverComesFromEntriesThatAreNotListedToo)
{
    EXPECT_EQ(DrawnFrom("<Template filename='a.xml'/><Template name=' ' readonly='-1'/><Template name='A'/>"
                        "<Template name='a' pdsg='p'/><Template name='B'/>"),
              "1 A: a.xml protected [Of A]\n2 B: a.xml p protected [Of A]\n");
}

TEST_F(CTemplatesList, AnEmptyAttributeEndsACarryOver)
{
    EXPECT_EQ(DrawnFrom("<Template name='A' filename='a.xml' pdsg='p'/><Template name='B' filename='' pdsg='  '/>"
                        "<Template name=''/><Template name='C'/>"),
              "1 A: a.xml p [Of A]\n2 B:  []\n3 C:  []\n");
}

TEST_F(CTemplatesList, TheCategoryNeverCarriesOver)
{
    EXPECT_EQ(DrawnFrom("<Template name='A' category='PUMPS'/><Template name='B'/>"
                        "<Template name='C' category='FANS'/><Template name='D' category=''/>"
                        "<Template name='E' category='PUMPS'/><Template name='F' category='unknown'/>"),
              "1 A: Pumps []\n2 B:  []\n3 C: Fans []\n4 D:  []\n5 E: Pumps []\n6 F:  []\n");
}

TEST_F(CTemplatesList, NothingCarriesOverToTheNextList)
{
    DrawnFrom("<Template name='A' filename='a.xml' pdsg='p' readonly='-1' defaultforcategory='-1'/>");
    EXPECT_EQ(DrawnFrom("<Template/><Template name='B'/>"), "1 B:  []\n");
}

TEST_F(CTemplatesList, TheCategoryIsFoundByItsNameAlone)
{
    EXPECT_EQ(DrawnFrom("<Template name='A' category='KPUMPS'/><Template name='B' category='1'/>"
                        "<Template name='C' category='Pumps displayed'/><Template name='D' category='pumps'/>"),
              "1 A:  []\n2 B:  []\n3 C:  []\n4 D: Pumps []\n");
}

TEST_F(CTemplatesList, TemplatesOfOneCategoryShareIt)
{
    DrawnFrom("<Template name='A' category='PUMPS'/><Template name='B' category='pumps'/>");
    EXPECT_EQ(catalogue.Item("A")->Category(), catalogue.Item("B")->Category());
    EXPECT_EQ(NameOf(catalogue.Item("A")->Category()), "PUMPS");
}

TEST_F(CTemplatesList, FlagsAreNumbersOrWords)
{
    for (const char* attribute : {"readonly", "defaultforcategory"}) {
        for (const char* text : {"-1", "1", "2", "0.5", "True", "TRUE", "true", " -1 ", " true ", "1e3"})
            EXPECT_EQ(Flag(attribute, text), "true") << attribute << text;
        for (const char* text : {"0", "False", "FALSE", "false", " 0 ", "00", "-0", "0.0"})
            EXPECT_EQ(Flag(attribute, text), "false") << attribute << text;
        EXPECT_EQ(Seen(user), "");
    }
}

TEST_F(CTemplatesList, WhatIsNoFlagIsATypeMismatch)
{
    for (const char* attribute : {"readonly", "defaultforcategory"}) {
        for (const char* text : {"", " ", "yes", "-", "1 1", "tru", "&#9;1", "nan", "inf", "0x1"}) {
            EXPECT_EQ(Flag(attribute, text), "error") << attribute << text;
            EXPECT_EQ(user.boxes.size(), 1U) << attribute << text;
        }
    }
    EXPECT_FALSE(Create("<Template name='A' readonly=' maybe '/>"));
    EXPECT_EQ(Seen(user).substr(Seen(user).rfind("48|")),
              "48|Schedules.CTemplates.CreateObjects|\"maybe\" is neither true nor false.|0|\n");
}

TEST_F(CTemplatesList, TemplatesBeforeAWrongFlagStay)
{
    CreateFormer();
    EXPECT_FALSE(Create("<Template name='A' filename='a.xml'/><Template name='B' readonly='x'/><Template name='C'/>"));
    EXPECT_EQ(Drawn(), "1 A: a.xml [Of A]\n");
    EXPECT_EQ(user.boxes.size(), 1U);
}

TEST_F(CTemplatesList, AFileThatIsMissingOrUnreadableIsListedWithoutGroups)
{
    folder.Write("bad.xml", "<Template><Group Name='X'/>");
    folder.Write("other.xml", "<Other/>");
    EXPECT_EQ(DrawnFrom("<Template name='A' filename='missing.xml'/><Template name='B' filename='bad.xml'/>"
                        "<Template name='C' filename='other.xml'/><Template name='D' filename=''/>"
                        "<Template name='E' filename='e.xml' pdsg='p'/><Template name='F' filename='a.xml'/>"),
              "1 A: missing.xml []\n2 B: bad.xml []\n3 C: other.xml []\n4 D:  []\n5 E: e.xml p []\n"
              "6 F: a.xml p [Of A]\n");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplatesList, AFileThatIsReadInPartIsListedWithThatPartAndReported)
{
    folder.Write("part.xml", "<Template><Group Name='X'/><Group/></Template>");
    folder.Write("item.xml", "<Template><Group Name='Y'><Item/></Group></Template>");
    EXPECT_EQ(DrawnFrom("<Template name='A' filename='part.xml'/><Template name='B' filename='item.xml'/>"
                        "<Template name='C' filename='c.xml'/>"),
              "1 A: part.xml [X]\n2 B: item.xml [Y]\n3 C: c.xml [Of C]\n");
    EXPECT_EQ(Seen(user), "16|Schedules.CTemplate.XMLToObject|Missing: 3023|3023|part.xml\n"
                          "16|Schedules.CTemplate.XMLToObject|Missing: 3022|3022|item.xml\n");
}

TEST_F(CTemplatesList, AFileOfANameThatIsTakenIsNotReported)
{
    folder.Write("part.xml", "<Template><Group/></Template>");
    DrawnFrom("<Template name='A' filename='a.xml'/><Template name='A' filename='part.xml'/>");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplatesList, WithoutAnyOfTheThreeNothingHappens)
{
    CreateFormer();
    const TemplatesFolder other;
    const QString list = "<Templates><Template name='New'/></Templates>";
    const QString categories = "<C><Category name='PUMPS' displayname='changed'/></C>";
    for (const QString& blank : {QString(), QString(""), QString("   ")}) {
        EXPECT_FALSE(catalogue.CreateObjects(blank, categories, other.Path()));
        EXPECT_FALSE(catalogue.CreateObjects(list, blank, other.Path()));
        EXPECT_FALSE(catalogue.CreateObjects(list, categories, blank));
    }
    EXPECT_TRUE(HasFormer());
    EXPECT_EQ(Seen(user), "");
    EXPECT_EQ(catalogue.AddTemplate({"B", "b.xml"}, nullptr, Inside())->Groups().Count(), 1) << "the former folder";
    const QString sameCategories = "<Categories/>";
    catalogue.CreateObjects("<T><Template name='A' category='PUMPS'/></T>", sameCategories, folder.Path());
    EXPECT_EQ(catalogue.Item("A")->Category()->DisplayName(), "Pumps");
}

TEST_F(CTemplatesList, OtherWhiteSpaceThanSpacesIsNotBlank)
{
    CreateFormer();
    EXPECT_FALSE(catalogue.CreateObjects("\n", kCategories, folder.Path()));
    EXPECT_EQ(Seen(user), kUnreadable);
    EXPECT_TRUE(HasFormer());
}

TEST_F(CTemplatesList, BlanksAroundTheThreeDoNotCount)
{
    const QString list = "  <?xml version='1.0'?><T><Template name='A' filename='a.xml' category='PUMPS'/></T>  ";
    EXPECT_TRUE(
        catalogue.CreateObjects(list, "  <?xml version='1.0'?>" + kCategories + ' ', ' ' + folder.Path() + ' '));
    EXPECT_EQ(Drawn(), "1 A: a.xml Pumps [Of A]\n");
    EXPECT_EQ(catalogue.Item("A")->FilePath(), folder.Path());
}

TEST_F(CTemplatesList, AListThatIsNoXmlIsToldOnceAndTheCatalogueStays)
{
    CreateFormer();
    EXPECT_FALSE(catalogue.CreateObjects("<Templates>", kCategories, folder.Path()));
    EXPECT_EQ(Seen(user), kUnreadable);
    EXPECT_TRUE(HasFormer());
}

TEST_F(CTemplatesList, TheMessageComesFromTheLanguageInUse)
{
    const ModuleInUse module(LanguageFile("en"));
    EXPECT_FALSE(catalogue.CreateObjects("x", kCategories, folder.Path()));
    EXPECT_EQ(Seen(user), "16|Schedules.CTemplates.CreateObjects|The list of schedule templates could not be read.|"
                          "1062|\n");
}

TEST_F(CTemplatesList, FolderAndCategoriesAreNewAlsoWhenTheListIsNoXml)
{
    CreateFormer();
    const TemplatesFolder other;
    other.Write("d.xml", "<Template><Group Name='Of D'/></Template>");
    EXPECT_FALSE(catalogue.CreateObjects("x", "<C><Category name='PUMPS' displayname='New'/></C>", other.Path()));
    EXPECT_TRUE(catalogue.AddTemplate({"D", "d.xml"}, nullptr, Inside()));
    EXPECT_EQ(Drawn(), "1 Former: a.xml [Of A]\n2 D: d.xml [Of D]\n");
    EXPECT_TRUE(catalogue.CreateObjects("<T><Template name='A' category='PUMPS'/></T>", "<C/>", other.Path()));
    EXPECT_EQ(Drawn(), "1 A: New []\n");
}

TEST_F(CTemplatesList, ACategoryListThatIsNoXmlIsNotTold)
{
    CreateFormer();
    EXPECT_TRUE(catalogue.CreateObjects("<T><Template name='A' category='PUMPS'/></T>", "<C", folder.Path()));
    EXPECT_EQ(Drawn(), "1 A: Pumps []\n");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplatesList, CategoriesOfFormerListsStay)
{
    CreateFormer();
    EXPECT_TRUE(
        catalogue.CreateObjects("<T><Template name='A' category='PUMPS'/><Template name='B' category='NEW'/></T>",
                                "<C><Category name='NEW' displayname='New'/></C>", folder.Path()));
    EXPECT_EQ(Drawn(), "1 A: Pumps []\n2 B: New []\n");
}

TEST_F(CTemplatesList, ACategoryThatATemplateHoldsIsUpdated)
{
    DrawnFrom("<Template name='A' category='PUMPS'/>");
    const auto held = catalogue.Item("A");
    catalogue.CreateObjects("<T/>", "<C><Category name='PUMPS' displayname='New'/></C>", folder.Path());
    EXPECT_EQ(held->Category()->DisplayName(), "New");
}

TEST_F(CTemplatesList, AListWithoutTemplatesEmptiesTheCatalogue)
{
    CreateFormer();
    EXPECT_EQ(DrawnFrom(""), "");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplatesList, EachListNumbersAfresh)
{
    DrawnFrom("<Template name='A'/><Template name='B'/>");
    const auto former = catalogue.Item("B");
    EXPECT_EQ(DrawnFrom("<Template name='B'/>"), "1 B:  []\n");
    EXPECT_NE(catalogue.Item("B"), former);
}

TEST_F(CTemplatesList, TheFolderEndsWithASeparatorOrNot)
{
    for (const char* end : {"", "/", "\\", " "}) {
        EXPECT_TRUE(catalogue.CreateObjects("<T><Template name='A' filename='a.xml'/></T>", kCategories,
                                            folder.Path().replace('/', '\\') + end));
        EXPECT_EQ(Drawn(), "1 A: a.xml [Of A]\n") << end;
    }
}

TEST_F(CTemplatesList, TextsOfAnyScriptAreReadAndADeclaredEncodingIsIgnored)
{
    folder.Write("Насос 水.xml", "<Template><Group Name='Ж'/></Template>");
    const QString list = "<?xml version='1.0' encoding='windows-1251'?><T><Template name='Größe &#x416; 𝄞' "
                         "filename='Насос 水.xml' pdsg='&lt;&quot;' category='НАСОСЫ'/></T>";
    EXPECT_TRUE(catalogue.CreateObjects(list, "<C><Category name='насосы' displayname='Насосы'/></C>", folder.Path()));
    EXPECT_EQ(Drawn(), "1 Größe Ж 𝄞: Насос 水.xml <\" Насосы [Ж]\n");
    EXPECT_NE(catalogue.Item("GRÖßE Ж 𝄞"), nullptr);
}

TEST_F(CTemplatesList, AnUnexpectedErrorIsReported)
{
    const QString list = "<T><Template name='A' filename='b.xml' category='PUMPS'/></T>";
    const QString path = folder.Path();
    bool isMade = false;
    const auto look = [&] {
        EXPECT_TRUE(user.boxes.size() == 1 || (isMade && Drawn() == "1 A: b.xml Pumps [Of B]\n")) << Drawn();
        EXPECT_EQ(Seen(user), user.boxes.empty() ? "" : OutOfMemoryIn(user.boxes.front().title));
        EXPECT_TRUE(isMade || user.boxes.front().title == "Schedules.CTemplates.CreateObjects");
        user.boxes.clear();
        CreateFormer();
    };
    EXPECT_GT(WithEachFailing([&] { isMade = catalogue.CreateObjects(list, kCategories, path); }, look), 5);
    EXPECT_TRUE(isMade);
}

TEST_F(CTemplatesList, AThousandTemplatesAreFoundByNameNumberPlaceAndFile)
{
    constexpr int kMany = 1000;
    QString entries;
    for (int number = 1; number <= kMany; ++number) {
        entries += Entry(number);
        folder.Write(QString("%1.xml").arg(number),
                     QString("<Template><Group Name='Group %1'/></Template>").arg(number).toUtf8());
    }
    ASSERT_TRUE(Create(entries));
    ASSERT_EQ(catalogue.Count(), kMany);
    for (int number = 1; number <= kMany; ++number) {
        const auto found = catalogue.Item(Position(number));
        ASSERT_EQ(catalogue.Item(QString("TEMPLATE %1").arg(number)), found);
        ASSERT_EQ(catalogue.Template(number), found);
        ASSERT_EQ(catalogue.TemplateIDFromFileName(QString("%1.XML").arg(number)), number);
        ASSERT_EQ(GroupsOf(*found), QString("Group %1").arg(number));
        ASSERT_EQ(found->Category()->Name(), number % 2 == 0 ? "PUMPS" : "FANS");
    }
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplatesList, AThousandTemplatesThatComeAndGoAreWhereTheSimplestListHasThem)
{
    std::mt19937 random(7);
    std::vector<std::pair<QString, int>> expected;
    ASSERT_TRUE(Create("<x/>"));
    for (int step = 0; step < 3000; ++step) {
        const QString name = QString("Template %1").arg(random() % 1000);
        const auto same = [&name](const auto& entry) { return entry.first == name; };
        const auto known = std::ranges::find_if(expected, same);
        if (random() % 4 == 0) {
            catalogue.Remove(name.toUpper());
            std::erase_if(expected, same);
        } else if (catalogue.AddTemplate({name, "missing.xml"}, nullptr, Inside())) {
            ASSERT_EQ(known, expected.end());
            expected.emplace_back(name, static_cast<int>(expected.size()) + 1);
        } else {
            ASSERT_NE(known, expected.end());
        }
        const auto id = static_cast<int>(random() % 1000);
        const auto byId = std::ranges::find(expected, id, &std::pair<QString, int>::second);
        ASSERT_EQ(NameOf(catalogue.Template(id)), byId == expected.end() ? "nothing" : byId->first.toStdString());
    }
    std::vector<std::pair<QString, int>> listed;
    for (const auto& member : catalogue.NewEnum())
        listed.emplace_back(member->Name(), member->ID());
    EXPECT_EQ(listed, expected);
}
