#include "framework/Message.h"

#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace schedules {

namespace {

Message Named(const char* name)
{
    Message message;
    message.name = QLatin1String(name);
    return message;
}

Message WithValue(const QVariant& value)
{
    Message message{QStringLiteral("Any"), 1, 2, {}};
    message.parameters.Add(ParameterType::Text, QStringLiteral("Value"), value);
    return message;
}

QVariant ValueAfterRoundTrip(const QString& value)
{
    const auto read = ParseMessage(WithValue(value).Text());
    return read ? read->parameters.Items().constFirst().value : QVariant();
}

bool Reads(const char* text)
{
    return ParseMessage(QString::fromUtf8(text)).has_value();
}

} // namespace

TEST(MessageText, IsXmlOnOneLine)
{
    Message message{QStringLiteral("UnloadSchedule"), 8, 9, {}};
    message.parameters.Add(ParameterType::Flag, QStringLiteral("Cancel"), QStringLiteral("True"));
    message.parameters.Add(ParameterType::Number, QStringLiteral("Count"), 12);

    EXPECT_EQ(message.Text(), QStringLiteral("<message name=\"UnloadSchedule\" code1=\"8\" code2=\"9\">"
                                             "<param type=\"8\" name=\"Cancel\">True</param>"
                                             "<param type=\"3\" name=\"Count\">12</param></message>"));
}

TEST(MessageText, HasCodesZeroWhereNoneAreSet)
{
    EXPECT_EQ(Named("Bare").Text(), QStringLiteral("<message name=\"Bare\" code1=\"0\" code2=\"0\"></message>"));
}

TEST(MessageText, KeepsParametersInTheOrderOfAdding)
{
    Message message = Named("Any");
    for (const char* name : {"b", "a", "b"})
        message.parameters.Add(ParameterType::Text, QLatin1String(name), {});
    const auto read = ParseMessage(message.Text());
    ASSERT_TRUE(read);
    QStringList names;
    for (const auto& parameter : read->parameters.Items())
        names += parameter.name;
    EXPECT_EQ(names.join(','), QStringLiteral("b,a,b"));
}

TEST(MessageText, WritesTruthValuesAsMinusOneAndZero)
{
    EXPECT_TRUE(WithValue(true).Text().contains(QStringLiteral(">-1<")));
    EXPECT_TRUE(WithValue(false).Text().contains(QStringLiteral(">0<")));
}

TEST(MessageText, EscapesMarkup)
{
    EXPECT_EQ(EscapedXml(u"<a b=\"c\">'&'</a>"),
              QStringLiteral("&lt;a b=&quot;c&quot;&gt;&apos;&amp;&apos;&lt;/a&gt;"));
}

TEST(MessageText, WritesWhiteSpaceOtherThanBlanksAsReferences)
{
    EXPECT_EQ(EscapedXml(u"a b\tc\nd\re\u2028f\u0085g\u00A0h"),
              QStringLiteral("a b&#9;c&#10;d&#13;e&#8232;f&#133;g&#160;h"));
}

TEST(MessageText, ReplacesWhatXmlCannotHold)
{
    const QChar broken[] = {QChar(0),      QChar(0x0B),   QChar(0x1F), QChar(0xFFFE),
                            QChar(0xFFFF), QChar(0xD800), QChar('x'),  QChar(0xDC00)};
    EXPECT_EQ(EscapedXml(QStringView(broken, 8)), QString::fromUtf16(u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDx\uFFFD"));
}

TEST(MessageText, KeepsCharactersOutsideOfTheBasicPlane)
{
    const QString text = QString::fromUcs4(U"\U0001F6B0 \U0010FFFD");
    EXPECT_EQ(EscapedXml(text), text);
}

TEST(MessageText, EscapesNamesToo)
{
    Message message = Named("a\"<b");
    message.parameters.Add(ParameterType::Text, QStringLiteral("\n'&"), QStringLiteral("v"));
    EXPECT_EQ(ParseMessage(message.Text()), message);
}

TEST(MessageRoundTrip, KeepsEveryText)
{
    const QStringList texts{QString::fromUtf8(""),
                            QStringLiteral("  leading and trailing blanks  "),
                            QStringLiteral("\"quoted\" and 'quoted'"),
                            QStringLiteral("<TABLE><TR bgColor=\"255\"/></TABLE>&amp;&#10;]]>"),
                            QStringLiteral("line\nline\r\nline\ttab"),
                            QString::fromUcs4(U"\u00B0C \u0420 \u6CF5 \U0001F6B0"),
                            QStringLiteral("\u00A0\u2028\u2029")};
    for (const QString& text : texts)
        EXPECT_EQ(ValueAfterRoundTrip(text).toString(), text);
}

TEST(MessageRoundTrip, KeepsNamesCodesAndTypes)
{
    Message message{QStringLiteral("ErrorMessage"), 20, -9, {}};
    message.parameters.Add(ParameterType::Text, QStringLiteral("T"), QStringLiteral("text"));
    message.parameters.Add(ParameterType::Number, QStringLiteral("N"), QStringLiteral("-2147483648"));
    message.parameters.Add(ParameterType::Xml, QStringLiteral("X"), QStringLiteral("<Tags/>"));
    message.parameters.Add(ParameterType::Flag, QStringLiteral("F"), QStringLiteral("True"));
    EXPECT_EQ(ParseMessage(message.Text()), message);
}

TEST(MessageParser, AcceptsIndentationDeclarationAndComments)
{
    EXPECT_TRUE(Reads("<?xml version=\"1.0\"?>\n<!-- sent -->\n<message name='a' code1='1' code2='2'>\n"
                      "  <param type='2' name='p'>v</param>\n</message>\n"));
}

TEST(MessageParser, RefusesWhatIsNoMessage)
{
    for (const char* text : {
             "",
             "text",
             "<message name='a' code1='1' code2='2'>",
             "<other name='a' code1='1' code2='2'/>",
             "<message code1='1' code2='2'/>",
             "<message name='a' code1='1'/>",
             "<message name='a' code1='x' code2='2'/>",
             "<message name='a' code1='99999999999' code2='2'/>",
             "<message name='a' code1='1' code2='2' more='3'/>",
             "<message name='a' code1='1' code2='2'>text</message>",
             "<message name='a' code1='1' code2='2'><other type='2' name='p'/></message>",
             "<message name='a' code1='1' code2='2'><param name='p'/></message>",
             "<message name='a' code1='1' code2='2'><param type='2'/></message>",
             "<message name='a' code1='1' code2='2'><param type='5' name='p'/></message>",
             "<message name='a' code1='1' code2='2'><param type='2' name='p' x=''/></message>",
             "<message name='a' code1='1' code2='2'><param type='2' name='p'><b/></param></message>",
             "<message name='a' code1='1' code2='2'><param type='2' name='p'>&nothing;</param></message>",
             "<message name='a' code1='1' code2='2'/><message name='a' code1='1' code2='2'/>",
             "<message name='a' code1='1' code2='2'/>text",
             "<!DOCTYPE message><message name='a' code1='1' code2='2'/>",
             "<message name='a' name='b' code1='1' code2='2'/>",
         })
        EXPECT_FALSE(Reads(text)) << text;
}

TEST(MessageParser, GivesValuesAsTexts)
{
    const auto read = ParseMessage(WithValue(12).Text());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->parameters.Items().constFirst().value, QVariant(QStringLiteral("12")));
}

} // namespace schedules
