#include "common/CompiledTable.h"
#include "model/CTemplate.h"
#include "model/FailingAllocation.h"
#include "model/TemplatesFolder.h"
#include "support/TraceLog.h"

#include <QDir>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr auto kNamelessGroup = "16|Schedules.CTemplate.XMLToObject|Missing: 3023|3023|t.xml\n";
constexpr auto kNamelessItem = "16|Schedules.CTemplate.XMLToObject|Missing: 3022|3022|t.xml\n";

struct CTemplateRead : TemplateFixture
{
    /// The location of an item whose element "Location" is written so.
    std::string LocationOf(const QByteArray& element)
    {
        EXPECT_TRUE(Read("<Template><Group Name='G'><Item Name='I'>" + element + "</Item></Group></Template>"));
        return Visible(model.Groups().Item("G")->Elements().Item("I")->Location()).toStdString();
    }

    /// Reads with another spelling of the folder.
    bool ReadAt(const QString& path)
    {
        model.SetFilePath(path);
        return model.XMLToObject();
    }
};

} // namespace

TEST_F(CTemplateRead, GivesPropertiesGroupsItemsAndLocations)
{
    EXPECT_EQ(DrawnFrom("<?xml version='1.0' encoding='UTF-8'?>\n"
                        "<Template Name='Pumps' Category='PUMPS'>\n"
                        "  <Group Name='Design' ShowThisGroup='-1'>\n"
                        "    <Item Name='Flow' DisplayName='Design flow'><Location>P/D/F</Location></Item>\n"
                        "    <Item Name='Head'><Location>P/D/H</Location></Item>\n"
                        "  </Group>\n"
                        "  <Group Name='Motor'>\n"
                        "    <Item Name='Power'><Location>P/M/P</Location></Item>\n"
                        "  </Group>\n"
                        "</Template>\n"),
              "Name='Pumps' Category='PUMPS'\n"
              "  1 Design: Name='Design' ShowThisGroup='-1'\n"
              "    1 Flow: Name='Flow' DisplayName='Design flow' -> P/D/F\n"
              "    2 Head: Name='Head' -> P/D/H\n"
              "  2 Motor: Name='Motor'\n"
              "    1 Power: Name='Power' -> P/M/P\n");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplateRead, KeepsEveryAttributeInFileOrder)
{
    EXPECT_EQ(DrawnFrom("<Template Version='3' z='1' a='' B='2'><Group x='1' Name='A' FontBold='0'>"
                        "<Item UserDefined='-1' Name='I' DataType='TEXT' own='&lt;'/></Group></Template>"),
              "Version='3' z='1' a='' B='2'\n"
              "  1 A: x='1' Name='A' FontBold='0'\n"
              "    1 I: UserDefined='-1' Name='I' DataType='TEXT' own='<' -> \n");
}

TEST_F(CTemplateRead, NumbersPropertiesInFileOrder)
{
    EXPECT_TRUE(Read("<Template a='1' b='2' A='3' c='4'/>"));
    EXPECT_EQ(Listed(model.Properties()), "1 a, 2 b, 3 c");
}

TEST_F(CTemplateRead, OfNamesThatDifferInCaseTheFirstValueWins)
{
    EXPECT_EQ(DrawnFrom("<Template Width='1' WIDTH='2' width='3'><Group Name='A' name='B'><Item Name='I' nAME='J'/>"
                        "</Group></Template>"),
              "Width='1'\n  1 A: Name='A'\n    1 I: Name='I' -> \n");
}

TEST_F(CTemplateRead, TheNameIsThatOfTheExactAttribute)
{
    EXPECT_EQ(DrawnFrom("<Template><Group name='b' Name='A'><Item NAME='j' Name='I'/></Group></Template>"),
              "\n  1 A: name='b'\n    1 I: NAME='j' -> \n");
    EXPECT_FALSE(Read("<Template><Group name='A'/></Template>"));
    EXPECT_EQ(Seen(user), kNamelessGroup);
}

TEST_F(CTemplateRead, APrefixedNameIsNoName)
{
    EXPECT_FALSE(Read("<Template xmlns:p='u'><Group p:Name='A'/></Template>"));
    EXPECT_EQ(Seen(user), kNamelessGroup);
}

TEST_F(CTemplateRead, KeysLoseBlanksAndPropertiesKeepThem)
{
    EXPECT_EQ(DrawnFrom("<Template><Group Name='  A '><Item Name=' I  '/></Group></Template>"),
              "\n  1 A: Name='  A '\n    1 I: Name=' I  ' -> \n");
    EXPECT_NE(model.Groups().Item("A"), nullptr);
}

TEST_F(CTemplateRead, OtherWhiteSpaceIsPartOfAName)
{
    EXPECT_EQ(DrawnFrom("<Template><Group Name='&#9;A&#10;'/><Group Name='&#160;'/></Template>"),
              "\n  1 \\tA\\n: Name='\\tA\\n'\n  2 \u00A0: Name='\u00A0'\n");
}

TEST_F(CTemplateRead, OfGroupsOfOneNameTheFirstCountsAndTheSecondIsSkippedWithItsItems)
{
    EXPECT_EQ(DrawnFrom("<Template><Group Name='A' x='1'><Item Name='I'/></Group>"
                        "<Group Name=' a ' x='2'><Item Name='J'/><Item/></Group><Group Name='B'/></Template>"),
              "\n  1 A: Name='A' x='1'\n    1 I: Name='I' -> \n  2 B: Name='B'\n");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplateRead, OfItemsOfOneNameTheFirstInTheGroupCounts)
{
    EXPECT_EQ(DrawnFrom("<Template><Group Name='A'><Item Name='I'><Location>1</Location></Item>"
                        "<Item Name='i' x='2'><Location>2</Location></Item><Item Name='J'/></Group>"
                        "<Group Name='B'><Item Name='I'><Location>3</Location></Item></Group></Template>"),
              "\n  1 A: Name='A'\n    1 I: Name='I' -> 1\n    2 J: Name='J' -> \n"
              "  2 B: Name='B'\n    1 I: Name='I' -> 3\n");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplateRead, AGroupWithoutANameEndsItWithAMessage)
{
    for (const char* group : {"<Group/>", "<Group Name=''/>", "<Group Name='   '/>"}) {
        user.boxes.clear();
        EXPECT_FALSE(Read(QByteArray("<Template x='1'><Group Name='A'><Item Name='I'/></Group>") + group +
                          "<Group Name='C'/></Template>"));
        EXPECT_EQ(Seen(user), kNamelessGroup);
        EXPECT_EQ(DrawnProperties(model.Properties()), "x='1'");
        EXPECT_EQ(model.Groups().Count(), 1);
        EXPECT_EQ(NameOf(model.Groups().Item("A")->Elements().Item("I")), "I");
    }
}

TEST_F(CTemplateRead, AnItemWithoutANameEndsItWithAMessage)
{
    for (const char* item : {"<Item/>", "<Item Name=''/>", "<Item Name='  '/>"}) {
        user.boxes.clear();
        model.Groups().Clear();
        EXPECT_FALSE(Read(QByteArray("<Template><Group Name='A' x='1'><Item Name='I'><Location>L</Location></Item>") +
                          item + "<Item Name='K'/></Group><Group Name='B'/></Template>"));
        EXPECT_EQ(Seen(user), kNamelessItem);
        EXPECT_EQ(model.Groups().Count(), 1);
        EXPECT_EQ(DrawnProperties(model.Groups().Item("A")->Properties()), "Name='A' x='1'");
        EXPECT_EQ(Listed(model.Groups().Item("A")->Elements()), "1 I");
        EXPECT_EQ(model.Groups().Item("A")->Elements().Item("I")->Location(), "L");
    }
}

TEST_F(CTemplateRead, AMessageOfANamelessGroupIsTracedAndRestoresThePointer)
{
    const TraceLog trace;
    EXPECT_FALSE(Read("<Template><Group/></Template>"));
    EXPECT_EQ(trace.lines, QStringList{"Schedules.CTemplate.XMLToObject: Missing: 3023"});
    EXPECT_EQ(user.pointers, std::vector{Pointer::Default});
}

TEST_F(CTemplateRead, MessagesComeFromTheLanguageInUse)
{
    const ModuleInUse module(LanguageFile("en"));
    EXPECT_FALSE(Read("<Template><Group/></Template>"));
    EXPECT_FALSE(Read("<Template><Group Name='A'><Item/></Group></Template>"));
    EXPECT_EQ(Seen(user), "16|Schedules.CTemplate.XMLToObject|A group in the template has no name.|3023|t.xml\n"
                          "16|Schedules.CTemplate.XMLToObject|A data item in the template has no name.|3022|t.xml\n");
}

TEST_F(CTemplateRead, ReplacesWhatWasThereAndNumbersGoOn)
{
    DrawnFrom("<Template a='1'><Group Name='A'/><Group Name='B'/></Template>");
    EXPECT_EQ(DrawnFrom("<Template b='2'><Group Name='A'><Item Name='I'/></Group></Template>"),
              "b='2'\n  3 A: Name='A'\n    1 I: Name='I' -> \n");
}

TEST_F(CTemplateRead, WithoutATemplateItFailsAndTheModelIsEmpty)
{
    for (const char* xml : {"<Templates/>", "<template Name='A'><Group Name='A'/></template>", "<Group Name='A'/>",
                            "<p:Template xmlns:p='u'/>", "<Template xmlns='u'/>"})
    {
        ReadFormer();
        EXPECT_FALSE(Read(xml)) << xml;
        EXPECT_EQ(Drawn(model), "\n") << xml;
    }
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplateRead, TheFirstTemplateAnywhereCounts)
{
    EXPECT_EQ(DrawnFrom("<a><b><Template x='1'><Group Name='A'/></Template></b><Template x='2'><Group Name='B'/>"
                        "</Template></a>"),
              "x='1'\n  1 A: Name='A'\n");
}

TEST_F(CTemplateRead, ATemplateInsideOfTheFirstIsNotLookedAt)
{
    EXPECT_EQ(DrawnFrom("<Template x='1'><Template x='2'><Group Name='B'/></Template><Group Name='A'>"
                        "<Template><Item Name='J'/></Template><Item Name='I'/></Group></Template>"),
              "x='1'\n  1 A: Name='A'\n    1 I: Name='I' -> \n");
}

TEST_F(CTemplateRead, OnlyDirectChildrenCount)
{
    EXPECT_EQ(DrawnFrom("<a><Group Name='0'/><Template><x><Group Name='1'/></x><Item Name='2'/><Location>3</Location>"
                        "<Group Name='A'><Group Name='4'><Item Name='5'/></Group><x><Item Name='6'/></x>"
                        "<Item Name='I'><Item Name='7'><Location>8</Location></Item><x><Location>9</Location></x>"
                        "</Item><Location>10</Location></Group></Template><Group Name='11'/></a>"),
              "\n  1 A: Name='A'\n    1 I: Name='I' -> \n");
}

TEST_F(CTemplateRead, NamesOfElementsAreCaseSensitiveAndInNoNamespace)
{
    EXPECT_EQ(DrawnFrom("<Template xmlns:p='u'><group Name='1'/><p:Group Name='2'/><Group xmlns='u' Name='3'/>"
                        "<Group Name='A'><item Name='4'/><ITEM Name='5'/><p:Item Name='6'/><Item Name='I'>"
                        "<location>7</location><p:Location>8</p:Location></Item></Group></Template>"),
              "xmlns:p='u'\n  1 A: Name='A'\n    1 I: Name='I' -> \n");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplateRead, OtherElementsTextsCommentsAndInstructionsAreIgnored)
{
    EXPECT_EQ(DrawnFrom("<?i x?><!-- c --><Template>text<x y='z'/><!-- <Group/> --><?i <Item/> ?>"
                        "<Group Name='A'>text<![CDATA[<Item/>]]><Item Name='I'>text<x/><Location>L</Location>text"
                        "</Item></Group></Template><!-- c -->"),
              "\n  1 A: Name='A'\n    1 I: Name='I' -> L\n");
}

TEST_F(CTemplateRead, DeclarationsAndPrefixedAttributesArePropertiesInTheirPlace)
{
    EXPECT_EQ(DrawnFrom("<Template a='1' p:b='2' xmlns:p='u&amp;v' c='3' xml:lang='de' xmlns='' xmlns:q=\"w\">"
                        "<Group p:Name='4' q:x='5' Name='A'><Item Name='I' p:x='6' x='7' P:x='8' xmlns:P='z'/></Group>"
                        "</Template>"),
              "a='1' p:b='2' xmlns:p='u&v' c='3' xml:lang='de' xmlns='' xmlns:q='w'\n"
              "  1 A: p:Name='4' q:x='5' Name='A'\n"
              "    1 I: Name='I' p:x='6' x='7' xmlns:P='z' -> \n");
}

TEST_F(CTemplateRead, AttributesOfAnyNameAndScriptAreKept)
{
    EXPECT_EQ(DrawnFrom("<Template Größe='1' имя='Ж' 水='𝄞' _x-y.z='5' Ĳ='6' 𐐀='7' ﬀ='8'/>"),
              "Größe='1' имя='Ж' 水='𝄞' _x-y.z='5' Ĳ='6' 𐐀='7' ﬀ='8'\n");
}

TEST_F(CTemplateRead, LineBreaksAndTabsInAttributesAreBlanksUnlessTheyAreEscaped)
{
    EXPECT_EQ(DrawnFrom("<Template a='1\n2\r\n3\r4\t5' b='&#10;&#13;&#9;&#x20;'/>"), "a='1 2 3 4 5' b='\\n\\r\\t '\n");
}

TEST_F(CTemplateRead, AByteOrderMarkInsideIsACharacter)
{
    EXPECT_EQ(DrawnFrom("<Template a='\uFEFFx' b='&#xFEFF;'><Group Name='\uFEFFA'><Item Name='I'>"
                        "<Location>\uFEFFL</Location></Item></Group></Template>"),
              "a='\uFEFFx' b='\uFEFF'\n  1 \uFEFFA: Name='\uFEFFA'\n    1 I: Name='I' -> \uFEFFL\n");
    EXPECT_EQ(DrawnFrom("<Template xmlns:p='u' a='\uFEFF\uFEFFx' p:b='\uFEFFy'/>"),
              "xmlns:p='u' a='\uFEFF\uFEFFx' p:b='\uFEFFy'\n");
}

TEST_F(CTemplateRead, ALocationIsItsTextWithoutBlanksAtTheEnds)
{
    EXPECT_EQ(LocationOf("<Location>  P/D  F </Location>"), "P/D  F");
    EXPECT_EQ(LocationOf("<Location>&lt;&#x416;&amp;</Location>"), "<Ж&");
    EXPECT_EQ(LocationOf("<Location x='1'>P</Location>"), "P");
}

TEST_F(CTemplateRead, OtherWhiteSpaceOfALocationIsKept)
{
    EXPECT_EQ(LocationOf("<Location>\n P \t</Location>"), "\\n P \\t");
    EXPECT_EQ(LocationOf("<Location>a\r\nb\rc</Location>"), "a\\nb\\nc");
}

TEST_F(CTemplateRead, ALocationIsEmptyWithoutTextAndWithoutTheElement)
{
    EXPECT_EQ(LocationOf(""), "");
    EXPECT_EQ(LocationOf("<Location/>"), "");
    EXPECT_EQ(LocationOf("<Location></Location>"), "");
    EXPECT_EQ(LocationOf("<Location>   </Location>"), "");
    EXPECT_EQ(LocationOf("<Location>\n    \n</Location>"), "");
}

TEST_F(CTemplateRead, ALocationHoldsAllTextBelow)
{
    EXPECT_EQ(LocationOf("<Location>a<x>b<y>c</y></x>d</Location>"), "abcd");
    EXPECT_EQ(LocationOf("<Location>a<!-- x -->b<?i x?>c</Location>"), "abc");
    EXPECT_EQ(LocationOf("<Location> <![CDATA[<a> & ]]>b</Location>"), "<a> & b");
    EXPECT_EQ(LocationOf("<Location>a<Location>b</Location>c</Location>"), "abc");
    EXPECT_EQ(LocationOf("<Location>a<Item Name='x'/>b</Location>"), "ab");
}

TEST_F(CTemplateRead, TheFirstLocationCounts)
{
    EXPECT_EQ(LocationOf("<x/><Location>1</Location><Location>2</Location>"), "1");
    EXPECT_EQ(LocationOf("<Location/><Location>2</Location>"), "");
}

TEST_F(CTemplateRead, ALongLocationIsReadWhole)
{
    const QByteArray half(300'000, 'x');
    EXPECT_EQ(LocationOf("<Location>" + half + "&amp;" + half + "</Location>"), (half + '&' + half).toStdString());
}

TEST_F(CTemplateRead, WithoutAFolderOrAFileNameNothingHappens)
{
    ReadFormer();
    folder.Write("other.xml", "<Template/>");
    model.SetFilePath("");
    model.SetFilename(folder.Path("other.xml"));
    EXPECT_FALSE(model.XMLToObject());
    model.SetFilePath(folder.Path());
    model.SetFilename("");
    EXPECT_FALSE(model.XMLToObject());
    EXPECT_TRUE(HasFormer());
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplateRead, ANullTextIsNoFolderEither)
{
    ReadFormer();
    model.SetFilePath({});
    EXPECT_FALSE(model.XMLToObject());
    EXPECT_TRUE(HasFormer());
}

TEST_F(CTemplateRead, TheFolderEndsWithASeparatorOrNotAndHasBlanksAround)
{
    ReadFormer();
    const QString path = folder.Path();
    for (const QString& spelling : {path, path + '/', path + '\\', "  " + path + "  ", path + "\\ "})
        EXPECT_TRUE(ReadAt(spelling)) << spelling.toStdString();
}

TEST_F(CTemplateRead, BothSeparatorsStandBetweenFolders)
{
    ASSERT_TRUE(QDir(folder.Path()).mkpath("a/b"));
    folder.Write("a/b/t.xml", "<Template/>");
    EXPECT_TRUE(ReadAt(folder.Path() + "\\a/b"));
    EXPECT_TRUE(ReadAt(folder.Path().replace('/', '\\') + "\\a\\b\\"));
    model.SetFilename("b\\t.xml");
    EXPECT_TRUE(ReadAt(folder.Path() + "/a"));
}

TEST_F(CTemplateRead, TheFileNameIsTakenAsItIs)
{
    folder.Write(" Насос 水 %20.xml ", "<Template x='1'/>");
    model.SetFilename(" Насос 水 %20.xml ");
    EXPECT_TRUE(model.XMLToObject());
    EXPECT_EQ(Drawn(model), "x='1'\n");
    model.SetFilename("Насос 水 %20.xml");
    EXPECT_FALSE(model.XMLToObject());
}

TEST_F(CTemplateRead, AnUnexpectedErrorIsReported)
{
    const QByteArray xml = "<Template a='1'><Group Name='A'><Item Name='I'/></Group></Template>";
    EXPECT_TRUE(Read(xml));
    const QString whole = model.ObjectToXML();
    bool isRead = true;
    const auto look = [&] {
        EXPECT_EQ(isRead && model.ObjectToXML() == whole, user.boxes.empty()) << Drawn(model);
        EXPECT_TRUE(isRead || Seen(user) == "48|Schedules.CTemplate.XMLToObject|Out of memory|0|\n") << Seen(user);
        ReadFormer();
        folder.Write("t.xml", xml);
        user.boxes.clear();
    };
    look();
    EXPECT_GT(WithEachFailing([&] { isRead = model.XMLToObject(); }, look), 5);
    EXPECT_TRUE(isRead);
}
