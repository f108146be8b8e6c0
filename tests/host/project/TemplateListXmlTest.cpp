#include "host/project/TemplateListXml.h"

#include "StoredProject.h"

namespace schedules::host::testing {

TEST(TemplateListXml, HasAllSixAttributesAndThenTheOthers)
{
    EXPECT_EQ(TemplateListXml({{"A & \"b\"", "a.xml", "", true, "PUMPS", false, {{"owner", "<é\n>"}, {"x", ""}}},
                               {"C", "c.xml", "P", false, "", true, {}}})
                  .toStdString(),
              "<Templates><Template name=\"A &amp; &quot;b&quot;\" filename=\"a.xml\" pdsg=\"\" readonly=\"-1\" "
              "category=\"PUMPS\" defaultforcategory=\"0\" owner=\"&lt;é&#10;&gt;\" x=\"\"/>"
              "<Template name=\"C\" filename=\"c.xml\" pdsg=\"P\" readonly=\"0\" category=\"\" "
              "defaultforcategory=\"-1\"/></Templates>");
}

TEST(TemplateListXml, IsNeverEmpty)
{
    EXPECT_EQ(TemplateListXml({}), "<Templates></Templates>");
    EXPECT_EQ(CategoryListXml({}), "<Categories></Categories>");
}

TEST(TemplateListXml, ReadsWhatItWrites)
{
    const QList<TemplateEntry> entries{
        {"A & \"b\"", "a.xml", "p", true, "PUMPS", false, {{"owner", "<é\n>"}, {"x", ""}}},
        {"C", "c.xml", "", false, "", true, {}}};
    EXPECT_EQ(ReadTemplateList(TemplateListXml(entries)), entries);
    EXPECT_EQ(ReadTemplateList(TemplateListXml({})), QList<TemplateEntry>());
}

TEST(TemplateListXml, ReadsFlagsInAnyForm)
{
    for (const char* flag : {"-1", "1", "True", "TRUE", " true ", "2.5"}) {
        const auto entries =
            ReadTemplateList(QString("<T><Template name='a' filename='f' readonly='%1'/></T>").arg(flag));
        EXPECT_TRUE(entries.value(0).readOnly) << flag;
    }
    for (const char* flag : {"0", "False", "", "0.0"}) {
        const auto entries =
            ReadTemplateList(QString("<T><Template name='a' filename='f' defaultforcategory='%1'/></T>").arg(flag));
        EXPECT_FALSE(entries.value(0).defaultForCategory) << flag;
    }
}

TEST(TemplateListXml, AttributesThatAreMissingAreEmptyAndEntriesMayBeAnywhere)
{
    EXPECT_EQ(ReadTemplateList("<x><y><Template filename=' f ' name=' a '><Template name='b' filename='g'/>"
                               "</Template></y></x>"),
              (QList<TemplateEntry>{{"a", "f"}, {"b", "g"}}));
}

TEST(TemplateListXml, AnEntryWithoutNameOrFileNameFails)
{
    const std::string line = "the list of templates has an entry without a name or a file name";
    EXPECT_EQ(Failure([] { ReadTemplateList("<T><Template name='a'/></T>"); }), line);
    EXPECT_EQ(Failure([] { ReadTemplateList("<T><Template filename='a' name=' '/></T>"); }), line);
}

TEST(TemplateListXml, AFlagThatIsNoneFails)
{
    EXPECT_EQ(Failure([] { ReadTemplateList("<T><Template name='a' filename='f' readonly='yes'/></T>"); }),
              "the list of templates has a flag that is none, of a: yes");
}

TEST(TemplateListXml, WhatIsNoXmlFails)
{
    for (const char* text : {"", "<T>", "<T/><T/>", "text", "<T a=1/>"})
        EXPECT_TRUE(Failure([&] { ReadTemplateList(text); }).starts_with("the list of templates is no XML: ")) << text;
}

TEST(CategoryListXml, HasAllThreeAttributes)
{
    EXPECT_EQ(CategoryListXml({{"PUMPS", "Pumps & more", "P"}, {"FANS", "", ""}}),
              "<Categories><Category name=\"PUMPS\" displayname=\"Pumps &amp; more\" pdsg=\"P\"/>"
              "<Category name=\"FANS\" displayname=\"\" pdsg=\"\"/></Categories>");
}

} // namespace schedules::host::testing
