#include "common/XmlBounds.h"

#include "support/BadXml.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

bool Within(const QString& xml)
{
    return WithinTagBounds(xml.toStdString());
}

} // namespace

TEST(XmlBounds, ATagMayHave4096Attributes)
{
    EXPECT_TRUE(Within(Attributed(4096)));
    EXPECT_FALSE(Within(Attributed(4097)));
}

TEST(XmlBounds, ATagMayBeOneMebibyteLong)
{
    EXPECT_TRUE(Within(WithTagOf(1 << 20)));
    EXPECT_FALSE(Within(WithTagOf((1 << 20) + 1)));
}

TEST(XmlBounds, AnyTagOfADocumentIsLookedAt)
{
    const QString ordinary = Repeated("<TR><TD a='1'>x</TD></TR>", 3000);
    EXPECT_FALSE(Within(QStringLiteral("<S>") + ordinary + Attributed(4097) + QStringLiteral("</S>")));
    EXPECT_FALSE(Within(Attributed(4097) + ordinary));
    EXPECT_FALSE(Within(ordinary + Attributed(4097)));
    EXPECT_TRUE(Within(ordinary));
}

TEST(XmlBounds, TextsMayBeOfAnyLength)
{
    EXPECT_TRUE(Within(QStringLiteral("<a>") + Repeated("x = ' ", 1'000'000) + QStringLiteral("</a>")));
    EXPECT_TRUE(Within(Repeated("=", 2'000'000)));
}

TEST(XmlBounds, SignsInAttributeValuesAreNoAttributes)
{
    EXPECT_TRUE(Within(QStringLiteral("<a b='") + Repeated("= \" > ", 10'000) + QStringLiteral("' c=\"1\"/>")));
}

TEST(XmlBounds, ABracketInAValueDoesNotEndATag)
{
    QString xml = Attributed(4097);
    xml.replace(QStringLiteral("a1=''"), QStringLiteral("a1='>'"));
    EXPECT_FALSE(Within(xml));
}

TEST(XmlBounds, WhatLooksLikeATagInsideOfOtherMarkupIsNone)
{
    const QString looksLikeOne = QStringLiteral("a < b ") + Repeated("= ' ", 500'000);
    EXPECT_TRUE(Within(QStringLiteral("<a><!-- ") + looksLikeOne + QStringLiteral("--></a>")));
    EXPECT_TRUE(Within(QStringLiteral("<a><![CDATA[") + looksLikeOne + QStringLiteral("]]></a>")));
    EXPECT_TRUE(Within(QStringLiteral("<a><?p ") + looksLikeOne + QStringLiteral("?></a>")));
    EXPECT_FALSE(Within(QStringLiteral("<a><!-- ") + looksLikeOne + QStringLiteral("-->") + Attributed(4097)));
}

TEST(XmlBounds, WhateverIsNoXmlIsLeftToTheParser)
{
    for (const char* text : {"", "x", "<", "<<<", "<!--", "<![CDATA[", "<?", "<a b='"})
        EXPECT_TRUE(WithinTagBounds(text)) << text;
}
