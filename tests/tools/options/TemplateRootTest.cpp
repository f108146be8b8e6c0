#include "tools/options/saving/TemplateRoot.h"

#include "model/CTemplate.h"
#include "support/ScriptedUserInterface.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// The template with "Name" = "New".
std::string Named(const char* xml)
{
    return WithRootAttributes(Text(xml), {{Text("Name"), Text("New")}}).toStdString();
}

/// What setting a value throws; the numbers of texts show, since no resource module is there.
std::string Refusal(const QString& xml, const QString& value = Text("New"))
{
    try {
        WithRootAttributes(xml, {{Text("Name"), value}});
        return "done";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), kSaveError);
        return error.what();
    }
}

/// A template as it is read from a file.
struct ReadTemplate
{
    explicit ReadTemplate(const QByteArray& xml)
    {
        QFile file(folder.filePath("t.xml"));
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(xml) == xml.size());
        file.close();
        model.SetFilePath(folder.path());
        model.SetFilename("t.xml");
        EXPECT_TRUE(model.XMLToObject());
    }

    std::string Property(const char* name) const
    {
        const auto property = model.Properties().Item(Text(name));
        return property ? TextOf(property->Value()).toStdString() : "(none)";
    }

    QTemporaryDir folder;
    ScriptedUserInterface user;
    CTemplate model{user};
};

} // namespace

TEST(TemplateRoot, AnAttributeGetsTheNewValueInItsPlace)
{
    EXPECT_EQ(Named("<Template a='1' Name='Old' b='2'/>"), R"(<Template a="1" Name="New" b="2"/>)");
}

TEST(TemplateRoot, AnAbsentAttributeComesLast)
{
    EXPECT_EQ(Named("<Template a='1' b='2'/>"), R"(<Template a="1" b="2" Name="New"/>)");
    EXPECT_EQ(Named("<Template/>"), R"(<Template Name="New"/>)");
}

TEST(TemplateRoot, SeveralAreSetInTheirOrder)
{
    EXPECT_EQ(WithRootAttributes(Text("<Template Category='c'/>"), {{Text("Name"), Text("n")},
                                                                    {Text("DisplayName"), Text("d")},
                                                                    {Text("Category"), Text("k")},
                                                                    {Text("AllowEdit"), Text("-1")}}),
              Text(R"(<Template Category="k" Name="n" DisplayName="d" AllowEdit="-1"/>)"));
}

TEST(TemplateRoot, AVariantIsRenamedInItsPlace)
{
    EXPECT_EQ(Named("<Template a='1' NAME='Old' b='2'/>"), R"(<Template a="1" Name="New" b="2"/>)");
}

TEST(TemplateRoot, FurtherVariantsStayBehindIt)
{
    EXPECT_EQ(Named("<Template name='1' x='' NAME='2'/>"), R"(<Template Name="New" x="" NAME="2"/>)");
    EXPECT_EQ(Named("<Template Name='1' NAME='2'/>"), R"(<Template Name="New" NAME="2"/>)");
}

TEST(TemplateRoot, TheExactNameBehindAVariantSwapsWithIt)
{
    EXPECT_EQ(Named("<Template name='1' x='' Name='2'/>"), R"(<Template Name="New" x="" name="2"/>)");
    EXPECT_EQ(Named("<Template name='1' NAME='2' Name='3'/>"), R"(<Template Name="New" NAME="2" name="3"/>)");
}

TEST(TemplateRoot, ReadingFindsTheNewValue)
{
    for (const char* xml : {"<Template/>", "<Template Name='1'/>", "<Template name='1' Name='2'/>",
                            "<Template NAME='1' name='2'/>", "<Template Name='1' name='2'/>"})
        EXPECT_EQ(ReadTemplate(QByteArray::fromStdString(Named(xml))).Property("Name"), "New") << xml;
}

TEST(TemplateRoot, AttributesWithAPrefixAreOthers)
{
    EXPECT_EQ(Named("<Template xmlns:p='u' p:Name='1' p:name='2'/>"),
              R"(<Template xmlns:p="u" p:Name="1" p:name="2" Name="New"/>)");
}

TEST(TemplateRoot, OnlyTheRootIsChanged)
{
    EXPECT_EQ(Named("<Template><Group Name='g'><Item name='i'/></Group><Template Name='t'/></Template>"),
              R"(<Template Name="New"><Group Name="g"><Item name="i"/></Group><Template Name="t"/></Template>)");
}

TEST(TemplateRoot, AnyTextSurvives)
{
    const QString value = Text("a\n\"b\"\r\n\t'c' & <d> Ж 𝄞  ");
    const QString xml = WithRootAttributes(Text("<Template/>"), {{Text("Name"), value}});
    EXPECT_EQ(ReadTemplate(xml.toUtf8()).Property("Name"), value.toStdString());
}

TEST(TemplateRoot, WithoutNewAttributesTheTextOfATemplateStays)
{
    const ReadTemplate read("<Template A='&lt;&quot;&#10;&#9;&#13;&gt;&amp;Ж' a.b='' xml:lang='de'>"
                            "<Group Name='g' ShowThisGroup='-1'><Item Name='i'><Location>a &lt; b &gt; \"c\" &#13;"
                            "&amp;</Location></Item><Item Name='&#x1D11E;'/></Group><Group Name=\"'\"/></Template>");
    const QString xml = read.model.ObjectToXML();
    EXPECT_EQ(WithRootAttributes(xml, {}).toStdString(), xml.toStdString());
}

TEST(TemplateRoot, NoDeclarationIsWritten)
{
    EXPECT_EQ(Named("<?xml version='1.0' encoding='UTF-16'?>\n<Template/>\n"), R"(<Template Name="New"/>)");
    EXPECT_EQ(Named("<?xml version='1.0'?><!--1--><Template/><?p 2?>"), "<!--1-->\n<Template Name=\"New\"/>\n<?p 2?>");
}

TEST(TemplateRoot, WhatIsNoXmlIsRefused)
{
    for (const char* xml : {"", "text", "<Template>", "<Template a='1' a='2'/>", "<!DOCTYPE t []><Template/>"})
        EXPECT_EQ(Refusal(Text(xml)), "Missing: 3075") << xml;
}

TEST(TemplateRoot, ARootThatIsNoTemplateIsRefused)
{
    for (const char* xml : {"<template/>", "<L><Template/></L>", "<Template xmlns='u'/>", "<p:Template xmlns:p='u'/>"})
        EXPECT_EQ(Refusal(Text(xml)), "Missing: 3075") << xml;
}

TEST(TemplateRoot, AValueThatNoXmlCanHoldIsRefused)
{
    for (const char16_t character : {char16_t{0}, char16_t{1}, char16_t{0xD800}, char16_t{0xFFFF}})
        EXPECT_EQ(Refusal(Text("<Template/>"), QString(QChar(character))),
                  "A text of the template has a character that cannot be saved.");
}
