#include "common/XmlDocument.h"

#include "common/Error.h"
#include "support/BadXml.h"
#include "support/ProcessorTime.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

using Kind = XmlNode::Kind;

QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

XmlDocument Parsed(const char* xml)
{
    XmlDocument document = XmlDocument::FromText(Text(xml));
    EXPECT_TRUE(document) << xml;
    return document;
}

/// The document as it is written again; "refused" when it is not read.
std::string Again(const char* xml)
{
    const XmlDocument document = XmlDocument::FromText(Text(xml));
    return document ? document.ToText().toStdString() : "refused";
}

std::string Names(const std::vector<XmlNode>& nodes)
{
    std::string names;
    for (const XmlNode& node : nodes)
        names += (names.empty() ? "" : " ") + node.Name().toStdString();
    return names;
}

std::string Selected(const XmlDocument& document, const char* xpath)
{
    return Names(document.Select(Text(xpath)));
}

struct XmlDocumentBad : ::testing::TestWithParam<BadXml>
{
};

std::string NameOf(const ::testing::TestParamInfo<BadXml>& tested)
{
    return tested.param.name;
}

} // namespace

TEST(XmlDocument, ReadsATree)
{
    const auto document = Parsed("<SCHEDULE><TABLE a='1'><TR/>x</TABLE></SCHEDULE>");
    const XmlNode root = document.Root();
    EXPECT_EQ(root.Name(), Text("SCHEDULE"));
    EXPECT_EQ(root.NodeKind(), Kind::Element);
    EXPECT_EQ(Names(root.Children()), "TABLE");
    EXPECT_EQ(root.Children()[0].Attribute(Text("a")), Text("1"));
    EXPECT_EQ(root.Parent(), document.Node());
    EXPECT_EQ(document.Node().NodeKind(), Kind::Document);
    EXPECT_FALSE(document.Node().Parent());
}

TEST(XmlDocument, ChildrenComeInOrderWithTheirKinds)
{
    const auto document = Parsed("<a>x<b/><!-- c --><?p i?><![CDATA[d]]></a>");
    std::vector<Kind> kinds;
    for (const XmlNode& child : document.Root().Children())
        kinds.push_back(child.NodeKind());
    EXPECT_EQ(kinds, (std::vector{Kind::Text, Kind::Element, Kind::Comment, Kind::Instruction, Kind::CData}));
}

TEST(XmlDocument, AByteOrderMarkAtTheStartOfAPieceBelongsToIt)
{
    const XmlDocument document = Parsed("<a b='\uFEFFc'>\uFEFFd</a>");
    EXPECT_EQ(document.Root().Attribute("b").toStdString(), "\uFEFFc");
    EXPECT_EQ(document.Root().FirstText().toStdString(), "\uFEFFd");
}

TEST(XmlDocument, WhiteSpaceAloneIsNoNode)
{
    const auto document = Parsed("<a> \n<b>  </b>\t<c> x </c>\r\n</a>");
    EXPECT_EQ(Names(document.Root().Children()), "b c");
    EXPECT_TRUE(document.SelectOne(Text("//b")).Children().empty());
    EXPECT_EQ(document.SelectOne(Text("//c")).FirstText(), Text(" x "));
}

TEST(XmlNode, TheFirstTextIsThatOfTheFirstTextChild)
{
    const auto first = [](const char* xml) { return Parsed(xml).Root().FirstText(); };
    EXPECT_EQ(first("<a>ab<!-- -->cd</a>"), Text("ab"));
    EXPECT_EQ(first("<a> <b>x</b>cd</a>"), Text("cd"));
    EXPECT_EQ(first("<a>x&amp;y&#65;</a>"), Text("x&yA"));
    EXPECT_TRUE(first("<a><b>x</b></a>").isNull());
    EXPECT_TRUE(first("<a><![CDATA[x]]></a>").isNull());
    EXPECT_TRUE(first("<a> </a>").isNull());
}

TEST(XmlNode, TheWholeTextIsAllTextBelow)
{
    EXPECT_EQ(Parsed("<a>x<b>y</b><![CDATA[<z>]]></a>").Root().WholeText(), Text("xy<z>"));
    EXPECT_EQ(Parsed("<a b='&lt;'/>").SelectOne(Text("a/@b")).WholeText(), Text("<"));
    EXPECT_EQ(Parsed("<a><!--note--></a>").Root().Children()[0].WholeText(), Text("note"));
}

TEST(XmlNode, NamesAreAsTheyAreWritten)
{
    const auto document = Parsed("<p:a xmlns:p='u' xmlns='v'><b p:c='1'/><?pi x?></p:a>");
    EXPECT_EQ(document.Root().Name(), Text("p:a"));
    EXPECT_EQ(Names(document.Root().Children()), "b pi");
    EXPECT_EQ(Selected(document, "//@*"), "p:c");
}

TEST(XmlNode, AttributesAreFoundByTheirNameAlone)
{
    const auto document = Parsed("<a xmlns:p='u' p:x='1' y='2' z=''/>");
    const XmlNode root = document.Root();
    EXPECT_FALSE(root.HasAttribute(Text("x"))) << "it is in a namespace";
    EXPECT_FALSE(root.HasAttribute(Text("Y")));
    EXPECT_TRUE(root.HasAttribute(Text("z")));
    EXPECT_EQ(root.Attribute(Text("y")), Text("2"));
    EXPECT_FALSE(root.Attribute(Text("z")).isNull());
    EXPECT_TRUE(root.Attribute(Text("x")).isNull());
}

TEST(XmlNode, AnEmptyHandleAnswersWithNothing)
{
    const XmlNode none;
    EXPECT_FALSE(none);
    EXPECT_EQ(none.NodeKind(), Kind::None);
    EXPECT_TRUE(none.Name().isEmpty());
    EXPECT_TRUE(none.FirstText().isNull());
    EXPECT_TRUE(none.WholeText().isNull());
    EXPECT_TRUE(none.Attribute(Text("a")).isNull());
    EXPECT_FALSE(none.HasAttribute(Text("a")));
    EXPECT_TRUE(none.Children().empty());
    EXPECT_TRUE(none.Select(Text("//a")).empty());
    EXPECT_TRUE(none.ToText().isEmpty());
    EXPECT_FALSE(none.Parent().SelectOne(Text("a")).Parent());
}

TEST(XmlNode, NodesThatAreNoElementsAnswerWithNothing)
{
    const auto document = Parsed("<a b='1'>x</a>");
    for (const XmlNode& node : {document.Node(), document.Root().Children()[0], document.SelectOne(Text("a/@b"))}) {
        EXPECT_FALSE(node.HasAttribute(Text("b")));
        EXPECT_THROW(XmlNode(node).SetAttribute(Text("b"), {}), Error);
        EXPECT_THROW(XmlNode(node).SetText({}), Error);
        EXPECT_THROW(XmlNode(node).AppendElement(Text("b")), Error);
    }
    EXPECT_TRUE(document.Node().Name().isEmpty());
}

TEST(XmlNode, ChangingWhatIsNotThereIsAnError)
{
    XmlNode none;
    EXPECT_THROW(none.SetAttribute(Text("a"), Text("1")), Error);
    EXPECT_THROW(none.SetText(Text("x")), Error);
    EXPECT_THROW(none.AppendElement(Text("a")), Error);
}

TEST(XmlDocument, SelectsInDocumentOrder)
{
    const auto document = Parsed("<T><R><H/><D n='1'/></R><R><H/><D n='2'/></R></T>");
    EXPECT_EQ(Selected(document, "//R/*"), "H D H D");
    EXPECT_EQ(Selected(document, "//D | //H | //R"), "R H D R H D");
    EXPECT_EQ(document.SelectOne(Text("//R[2]/*[2]")).Attribute(Text("n")), Text("2"));
    EXPECT_EQ(document.SelectOne(Text("//D[@n='2']/@n")).NodeKind(), Kind::Attribute);
    EXPECT_EQ(Selected(document, "//X"), "");
    EXPECT_FALSE(document.SelectOne(Text("//X")));
}

TEST(XmlNode, SelectsFromItself)
{
    const auto document = Parsed("<T><R><D n='1'/></R><R><D n='2'/></R></T>");
    const XmlNode second = document.SelectOne(Text("T/R[2]"));
    EXPECT_EQ(second.SelectOne(Text("D/@n")).WholeText(), Text("2"));
    EXPECT_EQ(second.SelectOne(Text("./D")).Attribute(Text("n")), Text("2"));
    EXPECT_EQ(Names(second.Select(Text("//D"))), "D D") << "from the top";
}

TEST(XmlDocument, SelectsTextsOfAnyScript)
{
    const auto document = Parsed("<T><R n='Насос 水'/></T>");
    EXPECT_TRUE(document.SelectOne(Text("//R[@n='Насос 水']")));
}

TEST(XmlDocument, ASelectionThatIsNoneIsAnError)
{
    const auto document = Parsed("<T/>");
    for (const char* xpath : {"", "//", "T[", "'x", "nothing()", "p:T", "1 + 1", "count(T)", "'text'", "T = 1"})
        EXPECT_THROW(document.Select(Text(xpath)), Error) << xpath;
    EXPECT_THROW(document.Select(QString(QChar(0xD800))), Error);
}

TEST(XmlDocument, ASelectionThatWouldNeverEndIsAnError)
{
    const auto document =
        XmlDocument::FromText(QStringLiteral("<T>") + Repeated("<a/>", 2000) + QStringLiteral("</T>"));
    EXPECT_THROW(document.Select(Text("//a[//a[//a[//a]]]")), Error);
}

TEST(XmlDocument, NamespaceDeclarationsAreNoNodes)
{
    EXPECT_TRUE(Parsed("<a xmlns:p='u'/>").Select(Text("//namespace::*")).empty());
}

TEST(XmlDocument, IsWrittenAsItWasRead)
{
    for (const char* xml : {"<a/>", "<a b=\"1\" c=\"&lt;&quot;&amp;\">x &lt; y</a>", "<a>\n  <b/>\n\t<c> x </c>\n</a>",
                            "<a>Насос 水 𝄞</a>", "<a><!-- c --><?p i?><![CDATA[<d>]]></a>",
                            "<p:a xmlns:p=\"u\" p:b=\"1\"/>", "<a b=\"&#10;\">&#13;</a>"})
        EXPECT_EQ(Again(xml), xml);
}

TEST(XmlDocument, ADeclarationIsNeitherAddedNorLost)
{
    EXPECT_EQ(Again("<?xml version=\"1.0\"?>\n<a/>"), "<?xml version=\"1.0\"?>\n<a/>");
    EXPECT_EQ(Again("<?xml version='1.0' standalone='yes'?><a/>"), "<?xml version=\"1.0\" standalone=\"yes\"?>\n<a/>");
    EXPECT_EQ(Again("<?xml version='1.0' standalone='no'?><a/>"), "<?xml version=\"1.0\" standalone=\"no\"?>\n<a/>");
    EXPECT_EQ(Again("<?xml version='1.0' encoding='ISO-8859-1'?><a>Ж</a>"), "<?xml version=\"1.0\"?>\n<a>Ж</a>");
    EXPECT_EQ(XmlDocument::FromBytes("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE9</a>").ToText(),
              Text("<?xml version=\"1.0\"?>\n<a>é</a>"));
}

TEST(XmlNode, IsWrittenAlone)
{
    const auto document = Parsed("<?xml version='1.0'?><a>x<b c='1'>y</b></a>");
    EXPECT_EQ(document.SelectOne(Text("a/b")).ToText(), Text("<b c=\"1\">y</b>"));
    EXPECT_TRUE(XmlDocument().ToText().isEmpty());
}

TEST(XmlNode, SetsTextsAndAttributes)
{
    const auto document = Parsed("<T><D>12<b/></D><D/></T>");
    document.SelectOne(Text("//D[1]")).SetText(Text("a < b & c ]]> Ж"));
    document.SelectOne(Text("//D[1]")).SetAttribute(Text("Dirty"), Text("-1"));
    document.SelectOne(Text("//D[1]")).SetAttribute(Text("Dirty"), Text("\"<0>\""));
    document.SelectOne(Text("//D[2]")).SetText({});
    const QString text = document.ToText();
    EXPECT_EQ(text, Text("<T><D Dirty=\"&quot;&lt;0&gt;&quot;\">a &lt; b &amp; c ]]&gt; Ж</D><D/></T>"));
    EXPECT_EQ(XmlDocument::FromText(text).SelectOne(Text("//D[1]")).WholeText(), Text("a < b & c ]]> Ж"));
}

TEST(XmlNode, TextsAndNamesThatNoXmlCanHoldAreErrors)
{
    const auto document = Parsed("<T a='1'>x</T>");
    XmlNode root = document.Root();
    for (const QString& text : {QString(QChar(0)), QString(QChar(0xD800)), QString(QChar(1)), QString(QChar(0xFFFE))}) {
        EXPECT_THROW(root.SetText(text), Error);
        EXPECT_THROW(root.SetAttribute(Text("a"), text), Error);
    }
    for (const char* name : {"", " ", "1a", "a b", "p:a", "<"}) {
        EXPECT_THROW(root.SetAttribute(Text(name), {}), Error) << name;
        EXPECT_THROW(root.AppendElement(Text(name)), Error) << name;
        EXPECT_THROW(XmlDocument::WithRoot(Text(name)), Error) << name;
    }
    EXPECT_EQ(document.ToText(), Text("<T a=\"1\">x</T>")) << "nothing has changed";
}

TEST(XmlDocument, IsBuiltFromNothing)
{
    const auto document = XmlDocument::WithRoot(Text("Template"));
    XmlNode group = document.Root().AppendElement(Text("Group"));
    group.SetAttribute(Text("Name"), Text("Entwurf & Größe"));
    group.AppendElement(Text("Item")).AppendElement(Text("Location")).SetText(Text("x"));
    group.AppendElement(Text("Item"));
    EXPECT_EQ(document.ToText(), Text("<Template><Group Name=\"Entwurf &amp; Größe\"><Item><Location>x</Location>"
                                      "</Item><Item/></Group></Template>"));
}

TEST(XmlNode, ARenamedAttributeStaysInItsPlace)
{
    const auto document = Parsed("<T xmlns:p='u' a='1' name='x' p:b='2'>y</T>");
    document.SelectOne(Text("T/@name")).Rename(Text("Name"));
    document.SelectOne(Text("T/@*[3]")).Rename(Text("c"));
    EXPECT_EQ(document.ToText(), Text("<T xmlns:p=\"u\" a=\"1\" Name=\"x\" p:c=\"2\">y</T>"));
    EXPECT_EQ(document.Root().Attribute(Text("Name")), Text("x"));
    EXPECT_FALSE(document.Root().HasAttribute(Text("name")));
}

TEST(XmlNode, OnlyAttributesAreRenamedAndOnlyToNames)
{
    const auto document = Parsed("<T a='1'>x</T>");
    for (const char* name : {"", "1a", "a b", "p:a"})
        EXPECT_THROW(document.SelectOne(Text("T/@a")).Rename(Text(name)), Error) << name;
    EXPECT_THROW(document.Root().Rename(Text("b")), Error);
    EXPECT_THROW(document.Root().Children()[0].Rename(Text("b")), Error);
    EXPECT_THROW(XmlNode().Rename(Text("b")), Error);
    EXPECT_EQ(document.ToText(), Text("<T a=\"1\">x</T>")) << "nothing has changed";
}

TEST(XmlNode, AnElementIsAppendedWithItsAttributes)
{
    const auto document = Parsed("<T> <a/> </T>");
    document.Root().AppendElement(Text("b"), {{Text("y"), Text("\"<\n")}, {Text("x"), {}}});
    EXPECT_EQ(document.ToText(), Text("<T> <a/> <b y=\"&quot;&lt;&#10;\" x=\"\"/></T>"));
}

TEST(XmlNode, AnElementIsNotAppendedWithoutAllOfItsAttributes)
{
    const auto document = Parsed("<T/>");
    EXPECT_THROW(document.Root().AppendElement(Text("b"), {{Text("x"), {}}, {Text("y"), QString(QChar(1))}}), Error);
    EXPECT_THROW(document.Root().AppendElement(Text("b"), {{Text("x"), {}}, {Text("1"), {}}}), Error);
    EXPECT_EQ(document.ToText(), Text("<T/>"));
}

TEST(XmlNode, AnAppendedElementIsInNoNamespaceAlsoAfterReading)
{
    const auto appended = [](const char* xml) {
        const auto document = Parsed(xml);
        document.SelectOne(Text("//*[last()]")).AppendElement(Text("b"));
        return document.ToText().toStdString();
    };
    EXPECT_EQ(appended("<a xmlns='u'/>"), "<a xmlns=\"u\"><b xmlns=\"\"/></a>");
    EXPECT_EQ(appended("<p:a xmlns:p='u'/>"), "<p:a xmlns:p=\"u\"><b/></p:a>");
    EXPECT_EQ(Selected(Parsed(appended("<a xmlns='u'/>").c_str()), "//b"), "b");
    const auto nested = Parsed("<a xmlns='u'><c xmlns=''/></a>");
    nested.SelectOne(Text("//c")).AppendElement(Text("b"));
    EXPECT_EQ(nested.ToText(), Text("<a xmlns=\"u\"><c xmlns=\"\"><b/></c></a>"));
}

TEST(XmlDocument, IsReadFromAFile)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(Text("Ж.xml")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<a>x</a>");
    file.close();
    EXPECT_EQ(XmlDocument::FromFile(file.fileName()).ToText(), Text("<a>x</a>"));
    EXPECT_FALSE(XmlDocument::FromFile(folder.filePath(Text("none.xml"))));
    EXPECT_FALSE(XmlDocument::FromFile(folder.path()));
}

TEST(XmlDocument, OneThatCouldNotBeReadIsEmpty)
{
    const XmlDocument none = XmlDocument::FromText(Text("<a>"));
    EXPECT_FALSE(none);
    EXPECT_FALSE(none.Root());
    EXPECT_FALSE(none.Node());
    EXPECT_TRUE(none.Select(Text("//a")).empty());
    EXPECT_FALSE(none.SelectOne(Text("//a")));
}

TEST(XmlDocument, ReadsUpToTheBounds)
{
    EXPECT_TRUE(XmlDocument::FromText(Nested(255)));
    EXPECT_TRUE(XmlDocument::FromText(Attributed(4096)));
    EXPECT_TRUE(XmlDocument::FromText(WithTagOf(1 << 20)));
}

TEST_P(XmlDocumentBad, IsRefusedAsTextAndAsBytesSoonerThanALargeOneIsRead)
{
    static const double large = ProcessorTime([] { EXPECT_TRUE(XmlDocument::FromText(LargeDocument())); });
    EXPECT_LT(ProcessorTime([] { EXPECT_FALSE(XmlDocument::FromText(GetParam().text)); }), large);
    if (!GetParam().text.isValidUtf16())
        return;
    EXPECT_LT(ProcessorTime([] { EXPECT_FALSE(XmlDocument::FromBytes(GetParam().text.toUtf8())); }), large);
}

INSTANTIATE_TEST_SUITE_P(Documents, XmlDocumentBad, ::testing::ValuesIn(BadDocuments(QStringLiteral("/nowhere"))),
                         NameOf);
