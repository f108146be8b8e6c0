#include "tools/options/saving/HostTemplateList.h"

#include "support/BadXml.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

bool Has(const char* list, const char* fileName)
{
    return HostTemplateList(Text(list)).Has(Text(fileName));
}

/// The list after a template was put into it under this name, "Copy" by name and of "TAG".
std::string AfterPut(const char* list, const char* fileName)
{
    HostTemplateList document(Text(list));
    document.Put(Text(fileName), Text("Copy"), Text("TAG"));
    return document.ToText().toStdString();
}

/// What reading the list throws; the number of the text shows, since no resource module is there.
std::string Refusal(const QString& reply)
{
    try {
        const HostTemplateList list(reply);
        return "read";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), static_cast<int>(0x80047FFFU));
        return error.what();
    }
}

struct HostTemplateListBad : ::testing::TestWithParam<BadXml>
{
};

/// All but the one that is bad by a blank before its declaration: blanks around a reply do not count.
std::vector<BadXml> BadReplies()
{
    auto replies = BadDocuments(QStringLiteral("/nowhere"));
    std::erase_if(replies, [](const BadXml& reply) { return reply.text.startsWith(u' '); });
    return replies;
}

const char* const kAdded =
    R"(<Template pdsg="TAG" name="Copy" filename="c.xml" defaultforcategory="False" readonly="False"/>)";

} // namespace

TEST(HostTemplateList, FindsAnEntryByItsExactFileName)
{
    const char* const list = "<L><Template filename='a.xml'/><Template filename='b.xml'/></L>";
    EXPECT_TRUE(Has(list, "a.xml"));
    EXPECT_TRUE(Has(list, "b.xml"));
    EXPECT_FALSE(Has(list, "A.xml"));
    EXPECT_FALSE(Has(list, " a.xml"));
    EXPECT_FALSE(Has(list, "c.xml"));
}

TEST(HostTemplateList, FindsEntriesAtAnyDepth)
{
    EXPECT_TRUE(Has("<Template filename='a.xml'/>", "a.xml")) << "the root itself";
    EXPECT_TRUE(Has("<L><C><D><Template filename='a.xml'/></D></C></L>", "a.xml"));
    EXPECT_TRUE(Has("<L><Template filename='b'><Template filename='a.xml'/></Template></L>", "a.xml"));
}

TEST(HostTemplateList, OtherElementsAndAttributesAreNoEntries)
{
    EXPECT_FALSE(Has("<L><template filename='a.xml'/></L>", "a.xml"));
    EXPECT_FALSE(Has("<L><Template Filename='a.xml'/></L>", "a.xml"));
    EXPECT_FALSE(Has("<L xmlns='u'><Template filename='a.xml'/></L>", "a.xml"));
    EXPECT_FALSE(Has("<L xmlns:p='u'><p:Template filename='a.xml'/></L>", "a.xml"));
    EXPECT_FALSE(Has("<L xmlns:p='u'><Template p:filename='a.xml'/></L>", "a.xml"));
    EXPECT_FALSE(Has("<L><!--<Template filename='a.xml'/>--></L>", "a.xml"));
}

TEST(HostTemplateList, AnEntryWithoutFileNameIsNotThatOfTheEmptyName)
{
    EXPECT_FALSE(Has("<L><Template name='a'/></L>", ""));
    EXPECT_TRUE(Has("<L><Template filename=''/></L>", ""));
}

TEST(HostTemplateList, NamesMayHoldAnyQuotesAndWildcards)
{
    const char* const list =
        R"(<L><Template filename="it's &quot;5&quot;*?].xml"/><Template filename="Насосы.xml"/></L>)";
    EXPECT_TRUE(Has(list, R"(it's "5"*?].xml)"));
    EXPECT_TRUE(Has(list, "Насосы.xml"));
    EXPECT_FALSE(Has(list, "' or '1'='1"));
    EXPECT_FALSE(Has(list, "*"));
}

TEST(HostTemplateList, ANewEntryComesLastUnderTheRoot)
{
    EXPECT_EQ(AfterPut("<L><Template filename='a.xml'/></L>", "c.xml"),
              std::string(R"(<L><Template filename="a.xml"/>)").append(kAdded).append("</L>"));
    EXPECT_EQ(AfterPut("<L/>", "c.xml"), std::string("<L>").append(kAdded).append("</L>"));
}

TEST(HostTemplateList, ANewEntryIsFoundAfterwards)
{
    for (const char* list : {"<L/>", "<L xmlns='u'/>", "<p:L xmlns:p='u'/>", "<Template filename='a'/>"}) {
        const std::string text = AfterPut(list, R"(it's "5" & <Ж>.xml)");
        EXPECT_TRUE(Has(text.c_str(), R"(it's "5" & <Ж>.xml)")) << text;
        EXPECT_EQ(AfterPut(text.c_str(), R"(it's "5" & <Ж>.xml)"), text) << "it is not added twice";
    }
}

TEST(HostTemplateList, AnExistingEntryKeepsEverythingButItsFileName)
{
    const char* const list = R"(<L><Template readonly="-1" x="1" filename="c.xml" name="Old" pdsg="P"/></L>)";
    EXPECT_EQ(AfterPut(list, "c.xml"), list);
}

TEST(HostTemplateList, OfSeveralEntriesNoneIsAdded)
{
    const char* const list = R"(<L><Template filename="c.xml" name="1"/><Template filename="c.xml" name="2"/></L>)";
    EXPECT_EQ(AfterPut(list, "c.xml"), list);
}

TEST(HostTemplateList, AllElseStaysWhereItIs)
{
    EXPECT_EQ(AfterPut("<?xml version='1.0' encoding='windows-1251'?>\n"
                       "<!-- Ж --><L b='2' a='1'>\n"
                       "  <?host x?><Template z='' filename='a.xml'>text<Own/></Template>\n"
                       "  <Other/><![CDATA[<]]></L><!-- end -->",
                       "c.xml"),
              std::string("<?xml version=\"1.0\"?>\n"
                          "<!-- Ж -->\n<L b=\"2\" a=\"1\">\n"
                          "  <?host x?><Template z=\"\" filename=\"a.xml\">text<Own/></Template>\n"
                          "  <Other/><![CDATA[<]]>")
                  .append(kAdded)
                  .append("</L>\n<!-- end -->"));
}

TEST(HostTemplateList, ATextThatNoXmlCanHoldChangesNothing)
{
    HostTemplateList list(Text("<L/>"));
    EXPECT_THROW(list.Put(Text("c.xml"), QString(QChar(1)), {}), Error);
    EXPECT_THROW(list.Put(Text("c.xml"), {}, QString(QChar(0xD800))), Error);
    EXPECT_EQ(list.ToText(), Text("<L/>"));
}

TEST(HostTemplateList, BlanksAroundTheReplyDoNotCount)
{
    EXPECT_EQ(HostTemplateList(Text("  <?xml version='1.0'?><L/> ")).ToText(), Text("<?xml version=\"1.0\"?>\n<L/>"));
}

TEST(HostTemplateList, AReplyThatIsNoListIsTold)
{
    for (const char* reply : {"", "   ", "nonsense", "<L>", "<!-- no root -->", "-1"})
        EXPECT_EQ(Refusal(Text(reply)), "Missing: 1062") << reply;
}

TEST_P(HostTemplateListBad, IsTold)
{
    EXPECT_EQ(Refusal(GetParam().text), "Missing: 1062");
}

INSTANTIATE_TEST_SUITE_P(Replies, HostTemplateListBad, ::testing::ValuesIn(BadReplies()),
                         [](const auto& tested) { return tested.param.name; });
