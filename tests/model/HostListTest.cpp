#include "model/HostList.h"

#include "support/BadXml.h"
#include "support/ProcessorTime.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// The entries of a list, a word each: "a=1;b=2", "-" for an attribute that is missing; "unreadable" otherwise.
std::string Read(const QString& xml)
{
    const auto entries = ReadHostList(xml, "E");
    if (!entries)
        return "unreadable";
    QStringList drawn;
    for (const HostListEntry& entry : *entries)
        drawn += QString("a=%1;b=%2").arg(entry.Attribute("a").value_or("-"), entry.Attribute("b").value_or("-"));
    return drawn.join(' ').toStdString();
}

QString ListOf(int entries)
{
    return "<L>" + Repeated("<E a='1' b='2'/>", entries) + "</L>";
}

struct HostListBad : ::testing::TestWithParam<BadXml>
{
};

} // namespace

TEST(HostList, GivesEachElementOfTheNameInDocumentOrder)
{
    EXPECT_EQ(Read("<L><E a='1' b='2'/><x><E a='3'><E a='4'/></E></x><E/></L>"), "a=1;b=2 a=3;b=- a=4;b=- a=-;b=-");
    EXPECT_EQ(Read("<E a='1'/>"), "a=1;b=-");
}

TEST(HostList, AListWithoutSuchElementsIsEmpty)
{
    EXPECT_EQ(Read("<L/>"), "");
    EXPECT_EQ(Read("<L><e a='1'/><EE a='2'/></L>"), "");
}

TEST(HostList, AttributesLoseBlanksAndNothingElse)
{
    EXPECT_EQ(Read("<E a='  1  2 ' b='&#9;3&#160;'/>"), "a=1  2;b=\t3\u00A0");
    EXPECT_EQ(Read("<E a='   ' b=''/>"), "a=;b=");
}

TEST(HostList, AttributesAreComparedExactlyAndWithoutThoseInNamespaces)
{
    EXPECT_EQ(Read("<E xmlns:p='u' A='1' p:a='2' p:b='3' b='4'/>"), "a=-;b=4");
    EXPECT_EQ(Read("<E p:a='1' a='2' xmlns:p='u'/>"), "a=2;b=-");
}

TEST(HostList, ElementsInNamespacesDoNotCount)
{
    EXPECT_EQ(Read("<L xmlns:p='u'><p:E a='1'/><x xmlns='u'><E a='2'/><E xmlns='' a='3'/></x></L>"), "a=3;b=-");
}

TEST(HostList, EntitiesAndLineBreaksAreResolved)
{
    EXPECT_EQ(Read("<E a='&lt;&amp;&#x416;&quot;' b='1\r\n2\t3'/>"), "a=<&Ж\";b=1 2 3");
}

TEST(HostList, AByteOrderMarkInsideIsACharacter)
{
    EXPECT_EQ(Read("<E a='\uFEFFx' b='&#xFEFF;'/>"), "a=\uFEFFx;b=\uFEFF");
}

TEST(HostList, AByteOrderMarkBeforeTheListIsNoText)
{
    EXPECT_EQ(Read("\uFEFF<E a='1'/>"), "a=1;b=-");
}

TEST(HostList, ADeclaredEncodingIsIgnored)
{
    for (const char* encoding : {"UTF-8", "UTF-16", "windows-1251", "nonsense"})
        EXPECT_EQ(Read(QString("<?xml version='1.0' encoding='%1'?><E a='Ж𝄞'/>").arg(encoding)), "a=Ж𝄞;b=-");
}

TEST(HostList, TextOfAMissingAttributeIsEmpty)
{
    const auto entries = ReadHostList("<E a=' 1 '/>", "E");
    ASSERT_TRUE(entries && entries->size() == 1);
    EXPECT_EQ(entries->front().Text("a"), "1");
    EXPECT_EQ(entries->front().Text("b"), "");
}

TEST(HostList, TwoHundredFiftySixLevelsAreReadAndOneMoreIsNot)
{
    const auto nested = [](int levels) { return Repeated("<E>", levels + 1) + Repeated("</E>", levels + 1); };
    EXPECT_EQ(ReadHostList(nested(256), "E").value().size(), 257U);
    EXPECT_FALSE(ReadHostList(nested(257), "E").has_value());
}

TEST(HostList, AHundredThousandEntriesAreRead)
{
    const auto entries = ReadHostList(ListOf(100'000), "E");
    ASSERT_TRUE(entries);
    EXPECT_EQ(entries->size(), 100'000U);
    EXPECT_EQ(entries->back().Text("b"), "2");
}

TEST(HostList, IsReadInLinearTime)
{
    EXPECT_LT(CostOfFourTimes(5'000, [](int entries) { EXPECT_TRUE(ReadHostList(ListOf(entries), "E")); }), kLinear);
}

TEST_P(HostListBad, IsNotRead)
{
    QString list = GetParam().text;
    EXPECT_FALSE(ReadHostList(list.replace("TABLE", "E"), "E").has_value());
}

INSTANTIATE_TEST_SUITE_P(All, HostListBad, ::testing::ValuesIn(BadDocuments("/nowhere")),
                         [](const auto& tested) { return std::string(tested.param.name); });
