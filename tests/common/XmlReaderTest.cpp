#include "common/XmlReader.h"

#include "common/XmlRecorder.h"
#include "support/BadXml.h"
#include "support/ProcessorTime.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace schedules;
using namespace schedules::testing;

namespace {

std::string Told(const QByteArray& document)
{
    return ToldBy(ReadXml, document);
}

struct XmlReaderBad : ::testing::TestWithParam<BadXml>
{
};

/// The offending texts alone; the file that some name does not exist here.
std::vector<BadXml> Bad()
{
    return BadDocuments(QStringLiteral("/nowhere"));
}

std::string NameOf(const ::testing::TestParamInfo<BadXml>& tested)
{
    return tested.param.name;
}

} // namespace

TEST(XmlReader, TellsElementsAttributesAndTexts)
{
    EXPECT_EQ(Told("<a b='1' c=\"2\">x<d/>y</a>"), "<a b=1 c=2|x<d>|y>");
}

TEST(XmlReader, TellsThatThereAreOtherNodes)
{
    EXPECT_EQ(Told("<a><!-- c --><?p i?><![CDATA[x]]></a>"), "<a***>");
}

TEST(XmlReader, ResolvesEntitiesAndCharacterReferences)
{
    EXPECT_EQ(Told("<a b='&lt;&amp;&quot;&#65;'>&lt;&gt;&amp;&apos;&quot;&#x416;</a>"), "<a b=<&\"A|<>&'\"Ж>");
}

TEST(XmlReader, ReadsTextsOfAnyScript)
{
    EXPECT_EQ(Told("<a>Насос 水 𝄞</a>"), "<a|Насос 水 𝄞>");
}

TEST(XmlReader, NormalisesLineEndsAndAttributeBlanks)
{
    EXPECT_EQ(Told("<a b='1\t2\n3'>x\r\ny</a>"), "<a b=1 2 3|x\ny>");
}

TEST(XmlReader, TellsNamespacesApart)
{
    EXPECT_EQ(Told("<a xmlns:p='u'><p:b p:c='1' c='2'/><d xmlns='v' e='3'/></a>"), "<a<b{} c{}=1 c=2><d{} e=3>>");
    EXPECT_EQ(Told("<a xml:space='preserve'/>"), "<a space{}=preserve>");
}

namespace {

/// Writes down names as the parser tells them: of the attributes and, behind ";", of the declarations.
class Prefixes : public Recorder
{
public:
    void StartElement(const XmlStartTag& tag) override
    {
        names += std::string(tag.name) + ":" + Names(tag.attributes) + ";" + Names(tag.declarations) + "\n";
    }
    void EndElement(std::size_t) override {}

    std::string names;

private:
    static std::string Names(std::span<const XmlAttribute> attributes)
    {
        std::string names;
        for (const XmlAttribute& attribute : attributes)
            names += " " + std::string(attribute.prefix) + "|" + std::string(attribute.name) + "=" +
                     std::string(attribute.value);
        return names;
    }
};

/// Takes the text of CDATA sections apart from other nodes.
class CDataRecorder : public Recorder
{
public:
    void CData(std::string_view text) override { told += "[" + std::string(text) + "]"; }
};

std::string CDataIn(const QByteArray& document)
{
    CDataRecorder recorder;
    return ReadXml(document, recorder) ? recorder.told : "refused";
}

} // namespace

TEST(XmlReader, TellsPrefixesAndDeclarations)
{
    Prefixes handler;
    ASSERT_TRUE(ReadXml("<a xmlns='u' x='1' xmlns:p='v' p:y='2'><p:b xml:lang='de'/><c xmlns=''/><d/></a>", handler));
    EXPECT_EQ(handler.names, "a: |x=1 p|y=2; |xmlns=u xmlns|p=v\n"
                             "b: xml|lang=de;\n"
                             "c:; |xmlns=\n"
                             "d:;\n");
}

TEST(XmlReader, TellsTheTextOfCDataToThoseWhoWantIt)
{
    EXPECT_EQ(CDataIn("<a>x<![CDATA[<b>&amp;]] ]]>y<!-- c --></a>"), "<a|x[<b>&amp;]] ]y*>");
    EXPECT_EQ(CDataIn("<a><![CDATA[1]]><![CDATA[2\r\n3]]></a>"), "<a[1][2\n3]>");
    EXPECT_EQ(CDataIn("<a><![CDATA[Насос 水 𝄞]]></a>"), "<a[Насос 水 𝄞]>");
}

TEST(XmlReader, ALongCDataArrivesWhole)
{
    const QByteArray text(9'000'000, 'x');
    EXPECT_TRUE(CDataIn("<a><![CDATA[" + text + "]]></a>") == "<a[" + text.toStdString() + "]>");
}

TEST(XmlReader, AnExceptionOfTheHandlerForCDataComesOut)
{
    struct Throwing : Recorder
    {
        void CData(std::string_view) override { throw std::runtime_error("enough"); }
    };
    Throwing handler;
    EXPECT_THROW(ReadXml("<a><![CDATA[x]]></a>", handler), std::runtime_error);
}

TEST(XmlReader, ADeclaredEncodingOfATextInMemoryIsIgnored)
{
    for (const char* encoding : {"UTF-8", "UTF-16", "ISO-8859-1", "windows-1251", "nonsense"}) {
        const QByteArray text = QByteArray("<?xml version=\"1.0\" encoding=\"") + encoding + "\"?><a>Ж</a>";
        EXPECT_EQ(Told(text), "<a|Ж>") << encoding;
    }
}

TEST(XmlReader, AByteOrderMarkIsNoText)
{
    EXPECT_EQ(Told("\xEF\xBB\xBF<a/>"), "<a>");
    EXPECT_EQ(Told("\xEF\xBB\xBF<?xml version='1.0'?><a/>"), "<a>");
}

TEST(XmlReader, ALongTextArrivesWhole)
{
    const QByteArray text(12'000'000, 'x');
    EXPECT_EQ(Told("<a>" + text + "</a>"), "<a|" + text.toStdString() + ">");
}

TEST(XmlReader, ReadsUpToTheBounds)
{
    EXPECT_NE(Told(Nested(256).toUtf8()), "refused");
    EXPECT_NE(Told(Attributed(4096).toUtf8()), "refused");
    EXPECT_NE(Told(WithTagOf(1 << 20).toUtf8()), "refused");
}

TEST(XmlReader, RefusesMoreNamespacesInScopeThanItsBound)
{
    QByteArray declarations;
    for (int number = 0; number < 3000; ++number)
        declarations += " xmlns:p" + QByteArray::number(number) + "='u'";
    EXPECT_NE(Told("<a" + declarations + "/>"), "refused");
    EXPECT_EQ(Told("<a" + declarations + "><b" + declarations + "/></a>"), "refused");
}

TEST(XmlReader, ReadsLargeDocumentsWhateverTheyHold)
{
    const QByteArray row =
        "<TR><TH>P-101A</TH>" + QByteArray("<TD AllowEdit='-1'>12.5</TD>").repeated(1000) + "</TR>\n";
    EXPECT_NE(Told("<TABLE><!-- large -->" + row.repeated(1000) + "</TABLE>"), "refused");
}

TEST(XmlReader, RefusesBytesThatAreNotUtf8)
{
    EXPECT_EQ(Told("<a>\xE9</a>"), "refused");
    EXPECT_EQ(Told("<a>\xC0\xAF</a>"), "refused");
    EXPECT_EQ(Told("<a>\xED\xA0\x80</a>"), "refused");
    EXPECT_EQ(Told(QByteArray("<\0a\0/\0>\0", 8)), "refused");
}

TEST(XmlReader, TellsWhereElementsStand)
{
    EXPECT_EQ(ElementsBy(ReadXml,
                         "\xEF\xBB\xBF<?xml version='1.0'?>\n<a x='>'><!-- <b> --><b y = \"/>\"/>Ж<p:c xmlns:p='u' >"
                         "<![CDATA[<d>]]></p:c ></a>"),
              "<b y = \"/>\"/>\n"
              "<p:c xmlns:p='u' ><![CDATA[<d>]]></p:c >\n"
              "<a x='>'><!-- <b> --><b y = \"/>\"/>Ж<p:c xmlns:p='u' ><![CDATA[<d>]]></p:c ></a>\n");
}

TEST(XmlReader, AnExceptionOfTheHandlerComesOut)
{
    struct Throwing : Recorder
    {
        void OtherNode() override { throw std::runtime_error("enough"); }
        void EndElement(std::size_t) override { ++ended; }
        int ended = 0;
    };
    Throwing handler;
    EXPECT_THROW(ReadXml("<a><b/><!-- --><c/></a>", handler), std::runtime_error);
    EXPECT_EQ(handler.ended, 1) << "nothing is told after the exception";
}

TEST_P(XmlReaderBad, IsRefusedSoonerThanALargeOneIsRead)
{
    const auto isRead = [](const QString& text) {
        Recorder recorder;
        const auto utf8 = XmlUtf8(text);
        return utf8 && ReadXml(*utf8, recorder);
    };
    static const double large = ProcessorTime([&] { EXPECT_TRUE(isRead(LargeDocument())); });
    EXPECT_LT(ProcessorTime([&] { EXPECT_FALSE(isRead(GetParam().text)); }), large);
}

INSTANTIATE_TEST_SUITE_P(Documents, XmlReaderBad, ::testing::ValuesIn(Bad()), NameOf);

TEST(XmlUtf8, EncodesAnyText)
{
    EXPECT_EQ(XmlUtf8(QStringLiteral("Ж水𝄞")), QByteArray("Ж水𝄞"));
    EXPECT_EQ(XmlUtf8({}), QByteArray());
}

TEST(XmlUtf8, GivesNothingForWhatIsNoText)
{
    EXPECT_EQ(XmlUtf8(QStringLiteral("a") + QChar(0xD800)), std::nullopt);
    EXPECT_EQ(XmlUtf8(QChar(0xDC00) + QStringLiteral("a")), std::nullopt);
    EXPECT_EQ(XmlUtf8(QStringLiteral("a") + QChar(0)), std::nullopt);
}
