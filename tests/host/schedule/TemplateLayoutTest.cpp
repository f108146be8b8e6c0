#include "host/schedule/TemplateLayout.h"

#include "Drawings.h"
#include "host/base/HostError.h"

#include <gtest/gtest.h>

namespace schedules::host::testing {

namespace {

std::string Read(const QString& xml)
{
    try {
        return Drawn(ReadTemplateLayout(xml));
    } catch (const HostError& error) {
        return error.Line().toStdString();
    }
}

/// A template with one group, whose items are given.
std::string ReadItems(const char* items)
{
    return Read(QStringLiteral("<Template><Group Name='G'>%1</Group></Template>").arg(QString::fromUtf8(items)));
}

} // namespace

TEST(ReadTemplateLayout, ReadsAllThatMakesASchedule)
{
    EXPECT_EQ(Read("<Template Name='Pumps' SchedOrientation='1' AllowEdit='0'>"
                   "<Group Name='Design' DisplayName='Design data' ShowThisGroup='-1' ShowGroupName='-1' FontBold='-1'"
                   " bgColor='16115410'>"
                   "<Item Name='Flow' DisplayName='Design flow' ShowThisItem='-1' ShowUnitLabel='-1' UnitID='m³/h'"
                   " DataType='DOUBLE' DataFormat='0.0' UserDefined='0'><Location>PUMPS/Flow</Location></Item>"
                   "<Item Name='Note' ShowThisItem='0' UserDefined='-1'><Location>PUMPS/Note</Location></Item>"
                   "</Group><Group Name='Vendor' ShowThisGroup='0'/></Template>"),
              "template: tags as rows fixed\n"
              "Design data: 16115410 named bold\n"
              "  Design flow -> PUMPS/Flow: m³/h DOUBLE 0.0 unit\n"
              "  Note -> PUMPS/Note: hidden user-defined\n"
              "Vendor: hidden");
}

TEST(ReadTemplateLayout, WhatIsMissingIsShownAndHasNothingSpecial)
{
    EXPECT_EQ(Read("<Template><Group Name='G'><Item Name='I'/></Group></Template>"), "template:\n"
                                                                                     "G:\n"
                                                                                     "  I -> :");
}

TEST(ReadTemplateLayout, ACaptionIsTheDisplayNameElseTheName)
{
    EXPECT_EQ(Read("<Template><Group Name=' G ' DisplayName=''><Item Name=' I ' DisplayName=''/>"
                   "<Item Name='J' displayname='shown'/></Group></Template>"),
              "template:\n"
              "G:\n"
              "  I -> :\n"
              "  shown -> :");
}

TEST(ReadTemplateLayout, FlagsAreReadAsTheModelReadsThem)
{
    EXPECT_EQ(ReadItems("<Item Name='a' ShowThisItem='false'/><Item Name='b' ShowThisItem=' FALSE '/>"
                        "<Item Name='c' ShowThisItem='0.0'/><Item Name='d' ShowThisItem='7'/>"
                        "<Item Name='e' ShowUnitLabel='True'/><Item Name='f' SHOWTHISITEM='0'/>"),
              "template:\n"
              "G:\n"
              "  a -> : hidden\n"
              "  b -> : hidden\n"
              "  c -> : hidden\n"
              "  d -> :\n"
              "  e -> : unit\n"
              "  f -> : hidden");
}

TEST(ReadTemplateLayout, WhatIsNoFlagIsLikeAMissingOne)
{
    EXPECT_EQ(ReadItems("<Item Name='a' ShowThisItem='no' ShowUnitLabel='yes' UserDefined=''/>"), "template:\n"
                                                                                                  "G:\n"
                                                                                                  "  a -> :");
}

TEST(ReadTemplateLayout, OnlyOneMeansTagsAsRows)
{
    EXPECT_EQ(Read("<Template SchedOrientation=' 1 '/>"), "template: tags as rows");
    for (const char* other : {"0", "-1", "2", "True", ""})
        EXPECT_EQ(Read(QStringLiteral("<Template SchedOrientation='%1'/>").arg(other)), "template:") << other;
}

TEST(ReadTemplateLayout, AColorIsANumberOf32Bits)
{
    const auto read = [](const char* color) {
        return Read(QStringLiteral("<Template><Group Name='G' BGCOLOR='%1'/></Template>").arg(color));
    };
    EXPECT_EQ(read(" 255 "), "template:\nG: 255");
    EXPECT_EQ(read("-2147483633"), "template:\nG: -2147483633");
    EXPECT_EQ(read("4294967295"), "template:\nG: 4294967295");
    for (const char* none : {"", "red", "#FF0000", "4294967296", "-2147483649", "1.5"})
        EXPECT_EQ(read(none), "template:\nG:") << none;
}

TEST(ReadTemplateLayout, ANameThatIsTakenIsSkipped)
{
    EXPECT_EQ(Read("<Template><Group Name='Straße'><Item Name='flow'/><Item Name=' FLOW '/><Item Name='Head'/></Group>"
                   "<Group Name=' STRAßE'><Item Name='Lost'/><Item/></Group>"
                   "<Group Name='Other'><Item Name='Flow'/></Group></Template>"),
              "template:\n"
              "Straße:\n"
              "  flow -> :\n"
              "  Head -> :\n"
              "Other:\n"
              "  Flow -> :");
}

TEST(ReadTemplateLayout, OtherWhiteSpaceThanBlanksBelongsToAName)
{
    EXPECT_EQ(ReadItems("<Item Name='a'/><Item Name='a&#9;'/><Item Name='&#160;a'/>"), "template:\n"
                                                                                       "G:\n"
                                                                                       "  a -> :\n"
                                                                                       "  a\t -> :\n"
                                                                                       "  \u00A0a -> :");
}

TEST(ReadTemplateLayout, TheFirstTemplateAnywhereCounts)
{
    EXPECT_EQ(
        Read("<a><b><Template><x><Group Name='deep'/></x><Group Name='G'><y><Item Name='deep'/></y></Group>"
             "<Template><Group Name='inner'/></Template></Template></b><Template><Group Name='H'/></Template></a>"),
        "template:\n"
        "G:");
}

TEST(ReadTemplateLayout, ElementsInANamespaceAreOthers)
{
    EXPECT_EQ(Read("<a xmlns:x='u'><x:Template/><Template><x:Group Name='x'/><Group x:Name='x' Name='G'/>"
                   "<Group xmlns='u' Name='y'/></Template></a>"),
              "template:\n"
              "G:");
}

TEST(ReadTemplateLayout, ALocationIsTheTextOfTheFirstOneWithoutTheBlanksAroundIt)
{
    EXPECT_EQ(ReadItems("<Item Name='a'> <Location>  A/B  </Location><Location>C</Location></Item>"
                        "<Item Name='b'><Location/><Location>C</Location></Item>"
                        "<Item Name='c'><Location>A<!-- x -->\n<b>B &amp; C</b> <![CDATA[ ]]>D</Location></Item>"),
              "template:\n"
              "G:\n"
              "  a -> A/B:\n"
              "  b -> :\n"
              "  c -> AB & C D:");
}

TEST(ReadTemplateLayout, AGroupOrItemWithoutANameIsRefused)
{
    EXPECT_EQ(Read("<Template><Group name='g'/></Template>"), "a group of the template has no name");
    EXPECT_EQ(Read("<Template><Group Name='  '/></Template>"), "a group of the template has no name");
    EXPECT_EQ(ReadItems("<Item/>"), "an item of the group 'G' has no name");
}

TEST(ReadTemplateLayout, WhatIsNoTemplateIsRefusedInOneLine)
{
    EXPECT_EQ(Read("<a/>"), "the text holds no template");
    EXPECT_EQ(Read("<!DOCTYPE Template><Template/>"), "the template has a document type declaration");
    EXPECT_EQ(Read("<Template><Group Name='G'></Template>"),
              "the template is not well-formed: line 1, column 37: Opening and ending tag mismatch.");
    EXPECT_EQ(Read(QStringLiteral("<Template a='") + QChar(0xD800) + "'/>"),
              "the template is not well-formed: it has half a character");
    for (const char* text : {"", "text", "<Template>", "<Template/><Template/>", "<Template a='1' a='2'/>",
                             "<Template>&unknown;</Template>"})
        EXPECT_EQ(Read(text).find("the template is not well-formed: line 1, column "), 0U)
            << text << ": " << Read(text);
    EXPECT_NE(Read(QStringLiteral("<Template a='") + QChar(0xFFFF) + "'/>").find("not well-formed"), std::string::npos);
}

TEST(ReadTemplateLayout, AnEncodingThatIsDeclaredDoesNotMatterToAText)
{
    EXPECT_EQ(Read("<?xml version='1.0' encoding='UTF-16'?><Template><Group Name='Насосы'/></Template>"), "template:\n"
                                                                                                          "Насосы:");
}

} // namespace schedules::host::testing
