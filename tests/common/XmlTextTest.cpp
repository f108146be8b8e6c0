#include "common/XmlText.h"

#include "common/Error.h"
#include "common/XmlDocument.h"

#include <gtest/gtest.h>

using namespace schedules;

namespace {

QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// As it is, while other conversions take U+FEFF at the start for a byte-order mark.
std::string Utf8Of(const std::u16string& text)
{
    return QStringView(text).toString().toStdString();
}

/// The text as content; "error N" when no XML can hold it.
std::string Content(const QString& text)
{
    try {
        std::u16string xml;
        AppendXmlText(xml, text);
        return Utf8Of(xml);
    } catch (const Error& error) {
        return "error " + std::to_string(error.Number());
    }
}

/// The text as the value of an attribute "v".
std::string Value(const QString& text)
{
    try {
        std::u16string xml;
        AppendXmlAttribute(xml, u"v", text);
        return Utf8Of(xml);
    } catch (const Error& error) {
        return "error " + std::to_string(error.Number());
    }
}

/// What a parser makes of an element with the text as its content and as its attribute.
void ExpectReadBack(const QString& text)
{
    std::u16string xml = u"<a";
    AppendXmlAttribute(xml, u"v", text);
    xml += u'>';
    AppendXmlText(xml, text);
    xml += u"</a>";
    const XmlDocument document = XmlDocument::FromText(QString::fromStdU16String(xml));
    ASSERT_TRUE(document) << Utf8Of(xml);
    EXPECT_EQ(document.Root().Attribute(QStringLiteral("v")), text);
    EXPECT_EQ(document.Root().WholeText(), text);
}

bool IsAllowed(uint codePoint)
{
    const bool isLayout = codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
    return isLayout ||
           (codePoint >= 0x20 && !QChar::isSurrogate(codePoint) && codePoint != 0xFFFE && codePoint != 0xFFFF);
}

QString TextOf(uint codePoint)
{
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(&codePoint), 1);
}

/// Whether a parser takes it for the name of an element and of an attribute.
bool IsNameForTheParser(const QString& name)
{
    return bool(XmlDocument::FromText(QStringLiteral("<") + name + QStringLiteral("/>"))) &&
           bool(XmlDocument::FromText(QStringLiteral("<a ") + name + QStringLiteral("='1'/>")));
}

} // namespace

TEST(XmlText, PlainTextStandsForItself)
{
    const QString text = Text("Насос 水 é 𝄞 P-101A, 12.5 m³/h; it's [x] #1 %");
    EXPECT_EQ(Content(text), text.toStdString());
    EXPECT_EQ(Value(text), " v=\"" + text.toStdString() + "\"");
    EXPECT_EQ(Content({}), "");
    EXPECT_EQ(Value({}), " v=\"\"");
}

TEST(XmlText, EscapesMarkup)
{
    EXPECT_EQ(Content(Text("a<b>c&d&lt;")), "a&lt;b&gt;c&amp;d&amp;lt;");
    EXPECT_EQ(Value(Text("a<b>c&d&lt;")), " v=\"a&lt;b&gt;c&amp;d&amp;lt;\"");
    EXPECT_EQ(Content(Text("]]>")), "]]&gt;");
}

TEST(XmlText, EscapesTheQuotesThatWouldEndAnAttribute)
{
    EXPECT_EQ(Content(Text("\"a'")), "\"a'");
    EXPECT_EQ(Value(Text("\"a'")), " v=\"&quot;a'\"");
}

TEST(XmlText, EscapesLineBreaksAndTabsWhereAParserWouldChangeThem)
{
    EXPECT_EQ(Content(Text("a\tb\nc\rd\r\ne")), "a\tb\nc&#13;d&#13;\ne");
    EXPECT_EQ(Value(Text("a\tb\nc\rd\r\ne")), " v=\"a&#9;b&#10;c&#13;d&#13;&#10;e\"");
}

TEST(XmlText, AppendsToWhatIsThere)
{
    std::u16string xml = u"<a";
    AppendXmlAttribute(xml, u"p:x", u"1");
    AppendXmlAttribute(xml, u"y", u"&");
    xml += u'>';
    AppendXmlText(xml, u"<");
    EXPECT_EQ(xml, u"<a p:x=\"1\" y=\"&amp;\">&lt;");
}

TEST(XmlText, RefusesEveryControlCharacterButTabAndLineBreaks)
{
    for (char16_t code = 0; code < 0x20; ++code) {
        const QString text = Text("a") + QChar(code) + Text("b");
        const bool isAllowed = IsAllowed(code);
        EXPECT_EQ(Content(text) == "error 440", !isAllowed) << int(code);
        EXPECT_EQ(Value(text) == "error 440", !isAllowed) << int(code);
    }
}

TEST(XmlText, RefusesWhatIsNoCharacter)
{
    const QString high(QChar(0xD83D));
    const QString low(QChar(0xDE42));
    for (const QString& text :
         {QString(QChar(0xFFFE)), QString(QChar(0xFFFF)), high, low, high + u'a', low + high, high + high + low,
          high + low + low, Text("a") + high, Text("a") + low + u'b', high + QChar(0xE000), QChar(0xD7FF) + low})
    {
        EXPECT_EQ(Content(text), "error 440");
        EXPECT_EQ(Value(text), "error 440");
    }
}

TEST(XmlText, TakesWhatStandsBesideThat)
{
    for (const char* text : {"\uFFFD", "\uD7FF", "\uE000", "\U00010000", "\U0001F642", "\U0001FFFE", "\U0010FFFF",
                             "\u007F", "\u0085", "\u009F", "\u2028", "\uFDD0"})
    {
        EXPECT_EQ(Content(Text(text)), text);
        ExpectReadBack(Text(text));
    }
}

TEST(XmlText, AByteOrderMarkIsACharacterLikeOthers)
{
    const QString mark(QChar(0xFEFF));
    EXPECT_EQ(Content(mark + u'x'), (mark + u'x').toStdString());
    EXPECT_EQ(Value(mark), " v=\"" + mark.toStdString() + "\"");
}

TEST(XmlText, IsReadBackAsItWas)
{
    for (const char* text : {"",
                             " ",
                             "  a  b ",
                             "\t",
                             "\n",
                             "\r",
                             "\r\n",
                             "\n\r\n",
                             " \t\n",
                             "a]]>b",
                             "]]",
                             "]>",
                             "<![CDATA[x]]>",
                             "<!-- x -->",
                             "&amp;",
                             "&#10;",
                             "&#x416;",
                             "&nbsp;",
                             "\"'",
                             "'\"<>&\t\r\n",
                             "<?xml?>",
                             "𝄞<🙂>水"})
        ExpectReadBack(Text(text));
}

TEST(XmlText, IsReadBackForEveryCharacter)
{
    for (uint start = 0; start < 0x10000; start += 256) {
        QString block;
        for (uint code = start; code < start + 256; ++code) {
            if (IsAllowed(code))
                block += TextOf(code);
        }
        ExpectReadBack(block);
        ASSERT_FALSE(HasFailure()) << start;
    }
    for (uint start = 0x10000; start < 0x110000; start += 4096) {
        QString block;
        for (uint code = start; code < start + 4096; ++code)
            block += TextOf(code);
        ExpectReadBack(block);
        ASSERT_FALSE(HasFailure()) << start;
    }
}

TEST(XmlText, TakesLongTexts)
{
    ExpectReadBack(Text("Насос <\"&\"> 𝄞\r\n").repeated(20'000));
}

TEST(IsXmlName, TakesNamesWithoutAPrefix)
{
    for (const char* name : {"a", "Name", "_x", "a-1.b_c", "Насос", "水", "é", "a\u00B7", "a\u0301"})
        EXPECT_TRUE(IsXmlName(Text(name))) << name;
}

TEST(IsXmlName, RefusesWhatIsNone)
{
    for (const char* name : {"",    " ",   " a",  "a ",      "a b",    "1",      "1a",     "-a", ".a",
                             "p:a", ":a",  "a:",  "a=",      "a'",     "a\"",    "a<",     "a>", "a/",
                             "a&",  "a\t", "a\n", "a\u00A0", "\u00B7", "\u0301", "\u00D7", "←"})
        EXPECT_FALSE(IsXmlName(Text(name))) << name;
    EXPECT_FALSE(IsXmlName(Text("a") + QChar(0)));
    EXPECT_FALSE(IsXmlName(Text("a") + QChar(0) + u'b'));
}

TEST(IsXmlName, RefusesHalvesOfPairsAndWhatIsNoCharacter)
{
    for (const uint code : {0xD800, 0xDC00, 0xDFFF, 0xFFFE, 0xFFFF}) {
        EXPECT_FALSE(IsXmlName(QString(QChar(char16_t(code))))) << int(code);
        EXPECT_FALSE(IsXmlName(Text("a") + QChar(char16_t(code)))) << int(code);
    }
}

TEST(IsXmlName, IsWhatAParserTakesForOneWhateverTheCharacter)
{
    std::string differing;
    // Every character of the first plane, and enough of those beyond.
    for (uint code = 1; code < 0x110000; code += code < 0x10000 ? 1 : 211) {
        if (QChar::isSurrogate(code) || code == ':' || code == '/' || code == '>' || code <= ' ')
            continue;
        const QString character = TextOf(code);
        for (const QString& name : {character, u'a' + character}) {
            if (IsXmlName(name) != IsNameForTheParser(name))
                differing.append(QString::number(code, 16).toStdString()).append(name.size() > 1 ? " " : "! ");
        }
    }
    EXPECT_EQ(differing.substr(0, 400), "");
}
