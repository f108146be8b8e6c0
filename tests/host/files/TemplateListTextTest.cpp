#include "host/files/TemplateListText.h"

#include "host/base/HostError.h"

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

const QString kList = QStringLiteral("<?xml version='1.0'?>\r\n"
                                     "<!-- <Template filename='Pumps.xml'/> in a comment -->\r\n"
                                     "<Templates owner=\"a &amp; b\">\r\n"
                                     "  <Template name='Fans' filename='Fans.xml' extra=\"&lt;kept&gt;\"/>\r\n"
                                     "  <Template name='Pümps &amp; co' filename='Pumps.xml' readonly='0'/>\r\n"
                                     "  <Template name='Valves' filename='Valves.xml'/> <!-- the last -->\r\n"
                                     "</Templates>\r\n");

QString Without(const QString& list, const QString& fileName)
{
    return WithoutEntries(list, fileName);
}

/// What is left of entries, each named by a letter, in a list on one line.
QString Left(const QString& entries, const QString& fileName)
{
    const QString list = QStringLiteral("<L>%1</L>").arg(entries);
    return WithoutEntries(list, fileName).sliced(3).chopped(4);
}

} // namespace

TEST(WithoutEntries, TakesTheEntryWithItsLineAndLeavesEveryOtherCharacter)
{
    QString expected = kList;
    expected.remove(QStringLiteral("  <Template name='Pümps &amp; co' filename='Pumps.xml' readonly='0'/>\r\n"));
    EXPECT_EQ(Without(kList, QStringLiteral("Pumps.xml")), expected);
}

TEST(WithoutEntries, LeavesALineThatHoldsSomethingElse)
{
    QString expected = kList;
    expected.remove(QStringLiteral("<Template name='Valves' filename='Valves.xml'/>"));
    EXPECT_EQ(Without(kList, QStringLiteral("Valves.xml")), expected);
}

TEST(WithoutEntries, ChangesNothingWhenThereIsNone)
{
    EXPECT_EQ(Without(kList, QStringLiteral("Motors.xml")), kList);
    EXPECT_EQ(Without(kList, QString()), kList);
}

TEST(WithoutEntries, TakesAllWithTheNameAndThoseOfOtherLetterCaseOnlyWithoutAnExactOne)
{
    const QString entries =
        QStringLiteral("<Template filename='A'/>1<Template filename='a'/>2<Template filename='A'/>3");
    EXPECT_EQ(Left(entries, QStringLiteral("A")), "1<Template filename='a'/>23");
    EXPECT_EQ(Left(entries, QStringLiteral("a")), "<Template filename='A'/>12<Template filename='A'/>3");
    EXPECT_EQ(Left(QStringLiteral("<Template filename='ÄB'/>1<Template filename='äB'/>"), QStringLiteral("äb")), "1");
}

TEST(WithoutEntries, BlanksAroundAnEntrysNameDoNotMatter)
{
    EXPECT_EQ(Left(QStringLiteral("<Template filename=' A '/>"), QStringLiteral("A")), "");
}

TEST(WithoutEntries, EntitiesInAnAttributeAreRead)
{
    EXPECT_EQ(Left(QStringLiteral("<Template filename='A &amp; &#66;>'/>x"), QStringLiteral("A & B>")), "x");
}

TEST(WithoutEntries, AnEntryWithContentGoesWithIt)
{
    EXPECT_EQ(Left(QStringLiteral("<Template filename='A'>t<x>&lt;<![CDATA[<]]></x><!-- > --></Template >y"),
                   QStringLiteral("A")),
              "y");
    EXPECT_EQ(
        Left(QStringLiteral("<Template filename='A'><Template filename='A'/><Template filename='B'/></Template>z"),
             QStringLiteral("A")),
        "z");
    EXPECT_EQ(Left(QStringLiteral("<g><Template filename='A'/></g><Template filename='B'><Template\nfilename = \"A\" >"
                                  "</Template></Template>"),
                   QStringLiteral("A")),
              "<g></g><Template filename='B'></Template>");
}

TEST(WithoutEntries, OtherElementsAndThoseOfOtherNamespacesStay)
{
    const QString others = QStringLiteral("<template filename='A'/><Group filename='A'/><Template Filename='A'/>"
                                          "<Template xmlns='urn:x' filename='A'/><Template/>");
    EXPECT_EQ(Left(others, QStringLiteral("A")), others);
}

TEST(WithoutEntries, PlacesAreThoseOfTheTextWhateverStandsBefore)
{
    const QString before = QStringLiteral("\U0001F600é&#x1F600;\r\n&amp;<!-- \r\n --><?p \r\n?>\t");
    EXPECT_EQ(Left(before + QStringLiteral("<Template filename='A'/>\r\nend"), QStringLiteral("A")),
              before + QStringLiteral("\r\nend"));
}

TEST(WithoutEntries, ALongListIsReadWhole)
{
    QString list = QStringLiteral("<L>\n");
    for (int number = 0; number < 5000; ++number)
        list += QStringLiteral(" <Template name='&lt;é' filename='T%1.xml'/>\r\n").arg(number);
    list += QStringLiteral("</L>");
    QString expected = list;
    expected.remove(QStringLiteral(" <Template name='&lt;é' filename='T4321.xml'/>\r\n"));
    EXPECT_EQ(Without(list, QStringLiteral("t4321.XML")), expected);
}

TEST(WithoutEntries, ARootThatIsTheEntryStaysAndIsTold)
{
    EXPECT_THROW(Without(QStringLiteral("<Template filename='A'/>"), QStringLiteral("A")), HostError);
}

TEST(WithoutEntries, WhatIsNoXmlThrows)
{
    for (const char* text : {"", "list", "<L><Template filename='A'/>", "<L/><L/>"})
        EXPECT_THROW(Without(QLatin1String(text), QStringLiteral("A")), HostError) << text;
}

TEST(RequireXml, TakesADocumentAndNothingElse)
{
    EXPECT_NO_THROW(RequireXml(kList));
    for (const char* text : {"", " ", "list", "<L>", "<L a=1/>", "<L/>x"})
        EXPECT_THROW(RequireXml(QLatin1String(text)), HostError) << text;
}

} // namespace schedules::host
