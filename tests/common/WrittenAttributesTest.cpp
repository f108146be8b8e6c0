#include "common/PlainXml.h"
#include "common/XmlReader.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace schedules;

namespace {

/// Writes down the attributes of each tag, a line each: "tag: name=value|name=value".
class Writing : public XmlHandler
{
public:
    explicit Writing(const QByteArray& document)
        : m_document(document.constData(), static_cast<std::size_t>(document.size()))
    {
    }

    void StartElement(const XmlStartTag& tag) override
    {
        QStringList attributes;
        for (const XmlWrittenAttribute& attribute : WrittenAttributes(m_document, tag))
            attributes += attribute.name + u'=' + attribute.value;
        lines += QString::fromUtf8(tag.name.data(), static_cast<qsizetype>(tag.name.size())) + QStringLiteral(": ") +
                 attributes.join(u'|');
    }

    void EndElement(std::size_t) override {}
    void Text(std::string_view) override {}
    void OtherNode() override {}

    QStringList lines;

private:
    std::string_view m_document;
};

std::string WrittenIn(const QByteArray& document, bool (*read)(const QByteArray&, XmlHandler&) = ReadXml)
{
    Writing handler(document);
    return read(document, handler) ? handler.lines.join(u'\n').toStdString() : "refused";
}

} // namespace

TEST(WrittenAttributes, ATagThatBreaksOffIsNotTold)
{
    for (const char* document : {"<a xmlns:p='u' b='1' \x07 c='2'/>",
                                 "<a xmlns:p='u' \x01"
                                 "b='1'>",
                                 "<a xmlns:p='u' b='1' \x1F/>"})
    {
        Writing handler(document);
        EXPECT_FALSE(ReadXml(document, handler));
        EXPECT_EQ(handler.lines.join(u'\n').toStdString(), "") << document;
    }
}

TEST(WrittenAttributes, StandInTheirOrder)
{
    EXPECT_EQ(WrittenIn("<a z='1' b='2' y='3' Z='4'/>"), "a: z=1|b=2|y=3|Z=4");
    EXPECT_EQ(WrittenIn("<a/>"), "a: ");
}

TEST(WrittenAttributes, AreTheSameOfAPlainDocument)
{
    EXPECT_EQ(WrittenIn("<a z='1' b='2'><c x='>'/></a>", ReadPlainXml), "a: z=1|b=2\nc: x=>");
}

TEST(WrittenAttributes, DeclarationsStandAmongThemInTheirOrder)
{
    EXPECT_EQ(WrittenIn("<a x='1' xmlns:q='v' y='2' xmlns='u' xmlns:p='w' z='3'/>"),
              "a: x=1|xmlns:q=v|y=2|xmlns=u|xmlns:p=w|z=3");
    EXPECT_EQ(WrittenIn("<a xmlns='u' xmlns:p='v' x='1'/>"), "a: xmlns=u|xmlns:p=v|x=1");
    EXPECT_EQ(WrittenIn("<a x='1' y='2' xmlns='u'/>"), "a: x=1|y=2|xmlns=u");
    EXPECT_EQ(WrittenIn("<a xmlns='u'/>"), "a: xmlns=u");
}

TEST(WrittenAttributes, KeepTheirPrefixes)
{
    EXPECT_EQ(WrittenIn("<a xmlns:p='u' p:x='1' x='2' xmlns:q='v' q:x='3'/>"),
              "a: xmlns:p=u|p:x=1|x=2|xmlns:q=v|q:x=3");
    EXPECT_EQ(WrittenIn("<a xmlns:p='u'><b y='1' p:x='2'/></a>"), "a: xmlns:p=u\nb: y=1|p:x=2");
    EXPECT_EQ(WrittenIn("<a p:x='1' xmlns:p='u'/>"), "a: p:x=1|xmlns:p=u") << "declared later in the same tag";
}

TEST(WrittenAttributes, TheElementsOwnPrefixIsNoPartOfThem)
{
    EXPECT_EQ(WrittenIn("<p:a xmlns:p='u' p:a='1' a='2'/>"), "a: xmlns:p=u|p:a=1|a=2");
}

TEST(WrittenAttributes, ThePrefixXmlNeedsNoDeclaration)
{
    EXPECT_EQ(WrittenIn("<a x='1' xml:lang='de' y='2'/>"), "a: x=1|xml:lang=de|y=2");
    EXPECT_EQ(WrittenIn("<a xml:space='preserve' xmlns:p='u' xml:lang='de'/>"),
              "a: xml:space=preserve|xmlns:p=u|xml:lang=de");
}

TEST(WrittenAttributes, ADeclaredPrefixXmlMixesUpNothing)
{
    const QByteArray xml = "xmlns:xml='http://www.w3.org/XML/1998/namespace'";
    EXPECT_EQ(WrittenIn("<a x='1' xmlns:p='u' " + xml + " xmlns:q='v' y='2'/>"), "a: x=1|xmlns:p=u|xmlns:q=v|y=2");
    EXPECT_EQ(WrittenIn("<a " + xml + " xmlns:p='u' x='1'/>"), "a: xmlns:p=u|x=1");
    EXPECT_EQ(WrittenIn("<a xmlns:p='u' x='1' " + xml + "/>"), "a: xmlns:p=u|x=1");
    EXPECT_EQ(WrittenIn("<a " + xml + " x='1' xmlns:p='u' y='2'/>"), "a: x=1|xmlns:p=u|y=2");
    EXPECT_EQ(WrittenIn("<a x='1' " + xml + " y='2'/>"), "a: x=1|y=2");
}

TEST(WrittenAttributes, ANamespaceMayBeTakenBack)
{
    EXPECT_EQ(WrittenIn("<a xmlns='u'><b x='1' xmlns='' y='2'/></a>"), "a: xmlns=u\nb: x=1|xmlns=|y=2");
}

TEST(WrittenAttributes, ANamespaceDeclaredAgainIsWrittenAgain)
{
    EXPECT_EQ(WrittenIn("<a xmlns:p='u' xmlns:q='u'><b xmlns:p='u' x='1' xmlns:q='v'/></a>"),
              "a: xmlns:p=u|xmlns:q=u\nb: xmlns:p=u|x=1|xmlns:q=v");
}

TEST(WrittenAttributes, NamesThatOnlyBeginLikeADeclarationAreNone)
{
    EXPECT_EQ(WrittenIn("<a xmlnsx='1' xmlns:xmlnsy='u' Xmlns='2' xmlns-='3'/>"),
              "a: xmlnsx=1|xmlns:xmlnsy=u|Xmlns=2|xmlns-=3");
}

TEST(WrittenAttributes, BothKindsOfQuotesMayHoldTheOther)
{
    EXPECT_EQ(WrittenIn("<a x=\"it's\" xmlns:p=\"the'u\" y='\"' z=\"'\"/>"), "a: x=it's|xmlns:p=the'u|y=\"|z='");
}

TEST(WrittenAttributes, ValuesMayHoldWhatLooksLikeMarkup)
{
    EXPECT_EQ(WrittenIn("<a x='/>' xmlns:p=\"a='b'/\" y='xmlns:q=\"v\"' z='>'/>"),
              "a: x=/>|xmlns:p=a='b'/|y=xmlns:q=\"v\"|z=>");
}

TEST(WrittenAttributes, MayStandOnLinesOfTheirOwn)
{
    EXPECT_EQ(WrittenIn("<a\n\tx='1'\r\n  xmlns:p = 'u'\n\ty\n=\n'2'\n/>"), "a: x=1|xmlns:p=u|y=2");
    EXPECT_EQ(WrittenIn("<a\nxmlns='u'\n></a\n>"), "a: xmlns=u");
    EXPECT_EQ(WrittenIn("<a xmlns='u' x='1'  ></a>"), "a: xmlns=u|x=1");
}

TEST(WrittenAttributes, EntitiesInValuesAreResolved)
{
    EXPECT_EQ(WrittenIn("<a x='&lt;&amp;&quot;&#10;' xmlns:p='u?a&amp;b' y='&#x416;'/>"),
              "a: x=<&\"\n|xmlns:p=u?a&b|y=Ж");
}

TEST(WrittenAttributes, BlanksInValuesAreAsAParserGivesThem)
{
    EXPECT_EQ(WrittenIn("<a x='1\t2\n3' xmlns:p='u' y=' 1 '/>"), "a: x=1 2 3|xmlns:p=u|y= 1 ");
}

TEST(WrittenAttributes, OfAnyScript)
{
    EXPECT_EQ(WrittenIn("\xEF\xBB\xBF<?xml version='1.0'?><!-- <x xmlns='no'> -->"
                        "<Насос Имя='水' xmlns:ж='urn:u' ж:é='𝄞'/>"),
              "Насос: Имя=水|xmlns:ж=urn:u|ж:é=𝄞");
}

TEST(WrittenAttributes, AByteOrderMarkInAValueIsACharacterLikeOthers)
{
    EXPECT_EQ(WrittenIn("<a x='\xEF\xBB\xBF' xmlns:p='u' y='\xEF\xBB\xBFz'/>"),
              "a: x=\xEF\xBB\xBF|xmlns:p=u|y=\xEF\xBB\xBFz");
}

TEST(WrittenAttributes, EachTagHasItsOwn)
{
    EXPECT_EQ(WrittenIn("<a xmlns='u' x='1'>text<!-- <z q='9'/> --><b/><c xmlns='v' y='2'>"
                        "<![CDATA[<d e='f'>]]><d e='3'/></c><?p x='1'?></a>"),
              "a: xmlns=u|x=1\nb: \nc: xmlns=v|y=2\nd: e=3");
}

TEST(WrittenAttributes, OfLongTagsAndFarInADocument)
{
    const QByteArray filler = QByteArray("<f>").append(QByteArray(300'000, 'x')).append("</f>");
    const QByteArray value(500'000, 'v');
    EXPECT_EQ(WrittenIn("<a>" + filler + "<b x='" + value + "' xmlns:p='u' y='Ж'/></a>"),
              "a: \nf: \nb: x=" + value.toStdString() + "|xmlns:p=u|y=Ж");
}

TEST(WrittenAttributes, OfManyDeclarations)
{
    QByteArray tag = "<a";
    std::string expected = "a: ";
    for (int number = 0; number < 500; ++number) {
        const QByteArray digits = QByteArray::number(number);
        tag += " xmlns:p" + digits + "='u" + digits + "' p" + digits + ":x='" + digits + "'";
        const std::string text = digits.toStdString();
        expected += (number == 0 ? "xmlns:p" : "|xmlns:p") + text + "=u" + text + "|p" + text + ":x=" + text;
    }
    EXPECT_EQ(WrittenIn(tag + "/>"), expected);
}
