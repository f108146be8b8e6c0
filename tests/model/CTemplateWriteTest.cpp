#include "model/CTemplate.h"
#include "model/FailingAllocation.h"
#include "model/Inside.h"
#include "model/TemplatesFolder.h"
#include "support/TraceLog.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

struct CTemplateWrite : TemplateFixture
{
    std::string Written() const { return model.ObjectToXML().toStdString(); }

    CElement& AddItem(const char* group, const char* item)
    {
        model.Groups().AddNew(group);
        return *model.Groups().Item(group)->Elements().AddNew(item);
    }

    /// The text for a template with this one property.
    std::string WithProperty(const QString& name, const PropertyValue& value)
    {
        model.Properties().Clear();
        const auto property = model.Properties().Add("x", value);
        property->SetName(name);
        return Written();
    }

    /// Whether a property of that name makes it fail as unexpected errors do.
    bool IsRefused(const QString& name, const QString& value = "1")
    {
        user.boxes.clear();
        const bool isEmpty = WithProperty(name, value).empty();
        const auto line =
            QString("48|Schedules.CTemplate.ObjectToXML|\"%1\" cannot be the name of an attribute here.|0|\n");
        return isEmpty && Seen(user) == line.arg(name).toStdString();
    }
};

} // namespace

TEST_F(CTemplateWrite, ANewTemplateIsAnEmptyElement)
{
    EXPECT_EQ(Written(), "<Template/>");
}

TEST_F(CTemplateWrite, GroupsAreElementsAndPropertiesAttributesInOrder)
{
    model.Properties().Add("Name", "Pumps");
    model.Properties().Add("Category", "PUMPS");
    auto& flow = AddItem("Design", "Flow");
    flow.Properties().Add("Name", "Flow");
    flow.Properties().Add("DisplayName", "Design flow");
    flow.SetLocation("P/D/F");
    AddItem("Design", "Head").SetLocation("P/D/H");
    model.Groups().Item("Design")->Properties().Add("ShowThisGroup", "-1");
    model.Groups().AddNew("Motor");
    EXPECT_EQ(Written(), "<Template Name=\"Pumps\" Category=\"PUMPS\"><Group ShowThisGroup=\"-1\">"
                         "<Item Name=\"Flow\" DisplayName=\"Design flow\"><Location>P/D/F</Location></Item>"
                         "<Item><Location>P/D/H</Location></Item></Group><Group/></Template>");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplateWrite, AnItemWithoutALocationGetsAnEmptyElement)
{
    AddItem("A", "I");
    EXPECT_EQ(Written(), "<Template><Group><Item><Location/></Item></Group></Template>");
}

TEST_F(CTemplateWrite, NothingElseThanPropertiesGroupsAndItemsIsWritten)
{
    model.SetID(5, Inside());
    model.SetName("Pumps");
    model.SetPdsg("p");
    model.SetProtected(true);
    model.SetDefaultForCategory(true);
    model.SetCategory(std::make_shared<CCategory>());
    EXPECT_EQ(Written(), "<Template/>");
}

TEST_F(CTemplateWrite, WritingChangesNothing)
{
    model.SetDirty(true, Inside());
    AddItem("A", "I");
    const std::string before = Drawn(model);
    EXPECT_EQ(Written(), Written());
    EXPECT_EQ(Drawn(model), before);
    EXPECT_TRUE(model.Dirty());
}

TEST_F(CTemplateWrite, TheOrderIsThatOfTheCollections)
{
    for (const char* name : {"A", "B", "C"})
        model.Groups().AddNew(name)->Properties().Add("Name", name);
    auto moved = model.Groups().Item("C");
    model.Groups().Remove("C");
    model.Groups().Add(moved, Position(1));
    EXPECT_EQ(Written(), "<Template><Group Name=\"C\"/><Group Name=\"A\"/><Group Name=\"B\"/></Template>");
}

TEST_F(CTemplateWrite, ValuesAreEscaped)
{
    EXPECT_EQ(WithProperty("x", "<a> & \"b\" 'c' ]]>"), "<Template x=\"&lt;a&gt; &amp; &quot;b&quot; 'c' ]]&gt;\"/>");
}

TEST_F(CTemplateWrite, LineBreaksAndTabsOfValuesAreEscaped)
{
    EXPECT_EQ(WithProperty("x", " a\nb\rc\td "), "<Template x=\" a&#10;b&#13;c&#9;d \"/>");
}

TEST_F(CTemplateWrite, ValuesOfAnyScriptStandAsTheyAre)
{
    EXPECT_EQ(WithProperty("имя", "Größe Ж 水 𝄞 \u0085\u2028\uFFFD\uFEFF"),
              "<Template имя=\"Größe Ж 水 𝄞 \u0085\u2028\uFFFD\uFEFF\"/>");
}

TEST_F(CTemplateWrite, LocationsAreEscaped)
{
    AddItem("A", "I").SetLocation(" <a> & \"b\" ]]>\n\t\r𝄞 ");
    EXPECT_EQ(Written(), "<Template><Group><Item><Location> &lt;a&gt; &amp; \"b\" ]]&gt;\n\t&#13;𝄞 </Location></Item>"
                         "</Group></Template>");
}

TEST_F(CTemplateWrite, NumbersAndBooleansAreWrittenAsTexts)
{
    EXPECT_EQ(WithProperty("x", true), "<Template x=\"-1\"/>");
    EXPECT_EQ(WithProperty("x", false), "<Template x=\"0\"/>");
    EXPECT_EQ(WithProperty("x", 2.5), "<Template x=\"2.5\"/>");
    EXPECT_EQ(WithProperty("x", ""), "<Template x=\"\"/>");
}

TEST_F(CTemplateWrite, AnObjectFailsAsATypeMismatchThatIsReported)
{
    const TraceLog trace;
    EXPECT_EQ(WithProperty("x", std::shared_ptr<void>(std::make_shared<int>(5))), "");
    EXPECT_EQ(Seen(user), "48|Schedules.CTemplate.ObjectToXML|An object is no text.|0|\n");
    EXPECT_EQ(trace.lines, QStringList{"Schedules.CTemplate.ObjectToXML: An object is no text."});
    EXPECT_EQ(user.pointers, std::vector{Pointer::Default});
}

TEST_F(CTemplateWrite, AnObjectOfAGroupOrAnItemFailsToo)
{
    auto& item = AddItem("A", "I");
    item.Properties().Add("x", std::shared_ptr<void>());
    EXPECT_EQ(Written(), "");
    item.Properties().Clear();
    EXPECT_NE(Written(), "");
    model.Groups().Item("A")->Properties().Add("x", std::shared_ptr<void>());
    EXPECT_EQ(Written(), "");
    EXPECT_EQ(user.boxes.size(), 2U);
}

TEST_F(CTemplateWrite, NamesThatAreNoXmlNamesAreRefused)
{
    for (const char* name :
         {"", "a b", "1a", "-a", ".a", "a<", "a=", "a\"", "a/", "a&b", "$", "a\tb", "a\nb", "·a", "×"})
        EXPECT_TRUE(IsRefused(name)) << name;
    EXPECT_TRUE(IsRefused(QString("a") + QChar(0)));
    EXPECT_TRUE(IsRefused(QString("a") + QChar(0xFFFE)));
}

TEST_F(CTemplateWrite, NamesThatAreNamesAreNotRefused)
{
    for (const char* name : {"a", "_", "a-1.b", "Größe", "имя", "水", "a·", "Ĳ", "ﬀ", "𐐀", "xml", "Xmlns"}) {
        EXPECT_EQ(WithProperty(name, "1"), QString("<Template %1=\"1\"/>").arg(name).toStdString());
        EXPECT_EQ(Seen(user), "");
    }
}

TEST_F(CTemplateWrite, HalfAPairInANameIsRefused)
{
    for (const int half : {0xD83D, 0xDE42}) {
        EXPECT_EQ(WithProperty(QString("a") + QChar(half), "1"), "");
        EXPECT_EQ(user.boxes.size(), 1U);
        user.boxes.clear();
    }
}

TEST_F(CTemplateWrite, PrefixesThatAreNotDeclaredAreRefused)
{
    for (const char* name : {"p:a", ":a", "a:", ":", "p:a:b", "xml:a:b", "xml:", "xml:1", "xmlns:"})
        EXPECT_TRUE(IsRefused(name)) << name;
}

TEST_F(CTemplateWrite, ThePrefixXmlNeedsNoDeclaration)
{
    EXPECT_EQ(WithProperty("xml:space", "preserve"), "<Template xml:space=\"preserve\"/>");
}

TEST_F(CTemplateWrite, APrefixIsDeclaredInItsElementOrAroundIt)
{
    model.Properties().Add("p:a", "1");
    model.Properties().Add("xmlns:p", "u");
    AddItem("A", "I").Properties().Add("p:b", "2");
    EXPECT_EQ(Written(), "<Template p:a=\"1\" xmlns:p=\"u\"><Group><Item p:b=\"2\"><Location/></Item></Group>"
                         "</Template>");
    EXPECT_EQ(Seen(user), "");
}

TEST_F(CTemplateWrite, ADeclarationDoesNotReachBeyondItsElement)
{
    AddItem("A", "I").Properties().Add("xmlns:p", "u");
    AddItem("A", "J").Properties().Add("p:a", "1");
    EXPECT_EQ(Written(), "");
    AddItem("B", "I");
    model.Groups().Item("A")->Elements().Item("J")->Properties().Clear();
    model.Groups().Item("B")->Properties().Add("p:a", "1");
    EXPECT_EQ(Written(), "");
    EXPECT_EQ(user.boxes.size(), 2U);
}

TEST_F(CTemplateWrite, DeclarationsThatMakeTheTextUnreadableAreRefused)
{
    EXPECT_TRUE(IsRefused("xmlns", "u"));
    EXPECT_TRUE(IsRefused("xmlns:p", ""));
    EXPECT_FALSE(IsRefused("xmlns", ""));
    EXPECT_FALSE(IsRefused("xmlns:p", "u"));
}

TEST_F(CTemplateWrite, CharactersThatNoXmlCanHoldAreRefused)
{
    for (const int code : {0, 1, 8, 0xB, 0x1B, 0x1F, 0xFFFE, 0xFFFF, 0xD83D, 0xDE42}) {
        user.boxes.clear();
        EXPECT_EQ(WithProperty("x", QString("a") + QChar(code)), "") << code;
        EXPECT_EQ(Seen(user), "48|Schedules.CTemplate.ObjectToXML|An XML document cannot hold this text.|0|\n");
    }
}

TEST_F(CTemplateWrite, CharactersThatNoXmlCanHoldAreRefusedInLocationsToo)
{
    for (const int code : {0, 1, 0x1F, 0xFFFF, 0xD83D}) {
        model.Groups().Clear();
        AddItem("A", "I").SetLocation(QString(QChar(code)) + 'a');
        EXPECT_EQ(Written(), "") << code;
    }
    EXPECT_EQ(user.boxes.size(), 5U);
}

TEST_F(CTemplateWrite, OfPropertiesThatWereRenamedAlikeTheLastValueStandsInTheFirstPlace)
{
    model.Properties().Add("a", "1");
    model.Properties().Add("b", "2");
    model.Properties().Add("c", "3")->SetName("a");
    model.Properties().Add("d", "4")->SetName("B");
    EXPECT_EQ(Written(), "<Template a=\"3\" b=\"2\" B=\"4\"/>");
}

TEST_F(CTemplateWrite, ARenamedGroupIsWrittenByItsProperties)
{
    EXPECT_TRUE(Read("<Template><Group Name='A'/></Template>"));
    model.Groups().Item("A")->SetName("B");
    EXPECT_EQ(Written(), "<Template><Group Name=\"A\"/></Template>");
}

TEST_F(CTemplateWrite, AnUnexpectedErrorIsReportedAndGivesAnEmptyText)
{
    AddItem("A", "I").Properties().Add("Name", "I");
    const QString whole = model.ObjectToXML();
    QString written;
    const auto look = [&] {
        EXPECT_TRUE(written.isEmpty() || written == whole) << written.toStdString();
        EXPECT_EQ(Seen(user), written.isEmpty() ? "48|Schedules.CTemplate.ObjectToXML|Out of memory|0|\n" : "");
        user.boxes.clear();
    };
    EXPECT_GT(WithEachFailing([&] { written = model.ObjectToXML(); }, look), 1);
    EXPECT_EQ(written, whole);
}

TEST_F(CTemplateWrite, WhatIsReadComesBackWithoutWhatIsIgnored)
{
    EXPECT_EQ(Rewritten("<?xml version='1.0'?>\n<!-- c -->\n<a><Template b='2' a=\"1\">\n  text<x/>\n"
                        "  <Group Name='  A '>\n    <Item DisplayName='&quot;' Name='I'>\n"
                        "      <Location>  L </Location><y/>\n    </Item>\n    <Item Name='J'/>\n  </Group>\n"
                        "  <Group Name='a'/>\n</Template></a>\n"),
              "<Template b=\"2\" a=\"1\"><Group Name=\"  A \"><Item DisplayName=\"&quot;\" Name=\"I\">"
              "<Location>L</Location></Item><Item Name=\"J\"><Location/></Item></Group></Template>");
}

TEST_F(CTemplateWrite, DeclarationsAndPrefixedAttributesComeBack)
{
    EXPECT_EQ(Rewritten("<Template a='1' p:b='2' xmlns:p='u&amp;v' xml:lang='de' xmlns=''>"
                        "<Group Name='A' p:Name='3' q:c='4' xmlns:q='w'/></Template>"),
              "<Template a=\"1\" p:b=\"2\" xmlns:p=\"u&amp;v\" xml:lang=\"de\" xmlns=\"\">"
              "<Group Name=\"A\" p:Name=\"3\" q:c=\"4\" xmlns:q=\"w\"/></Template>");
}

TEST_F(CTemplateWrite, NamesOfAnyScriptComeBack)
{
    EXPECT_EQ(Rewritten("<Template Größe='1' имя='2' 水='3' Ĳ='4' 𐐀='5' ﬀ='6' xmlns:水='u' 水:𐐀='7'/>"),
              "<Template Größe=\"1\" имя=\"2\" 水=\"3\" Ĳ=\"4\" 𐐀=\"5\" ﬀ=\"6\" xmlns:水=\"u\" 水:𐐀=\"7\"/>");
}
