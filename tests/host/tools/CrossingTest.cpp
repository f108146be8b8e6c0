#include "host/tools/Crossing.h"

#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

Crossing CrossingOf(const Message& message, const QString& reply = {})
{
    return {QDateTime::currentDateTime(),
            {QStringLiteral("ctlSchedule"), QStringLiteral("the <host>"), MessageKind::Request, message.Text()},
            message,
            reply,
            {}};
}

Message MessageWith(const QString& value)
{
    Message message;
    message.name = QStringLiteral("Ask");
    message.firstCode = 8;
    message.secondCode = 9;
    message.parameters.Add(ParameterType::Text, QStringLiteral("Form"), value);
    return message;
}

} // namespace

TEST(CrossingLine, HoldsEnvelopeMessageAndReply)
{
    EXPECT_EQ(
        LogLine(CrossingOf(MessageWith(QStringLiteral("ctl & co")), QStringLiteral("1 < 2"))),
        "<sent from=\"ctlSchedule\" to=\"the &lt;host&gt;\" kind=\"2\">"
        "<message name=\"Ask\" code1=\"8\" code2=\"9\"><param type=\"2\" name=\"Form\">ctl &amp; co</param></message>"
        "<reply>1 &lt; 2</reply></sent>");
}

TEST(CrossingLine, IsOneLineWhateverTheValues)
{
    const QString value = QStringLiteral("a\nb\r\nc\td %1 %2");
    const QString line = LogLine(CrossingOf(MessageWith(value), value));
    EXPECT_FALSE(line.contains(QLatin1Char('\n')) || line.contains(QLatin1Char('\r')));

    QXmlStreamReader reader(line);
    QStringList texts;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::Characters)
            texts.append(reader.text().toString());
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    EXPECT_EQ(texts, (QStringList{value, value}));
}

TEST(CrossingLine, AFailureStandsInPlaceOfTheReply)
{
    Crossing crossing = CrossingOf({});
    crossing.message.reset();
    crossing.envelope.body = QString();
    crossing.failure = QStringLiteral("no <room>");
    EXPECT_EQ(LogLine(crossing), "<sent from=\"ctlSchedule\" to=\"the &lt;host&gt;\" kind=\"2\">"
                                 "<failure>no &lt;room&gt;</failure></sent>");
}

TEST(ParameterText, IsTheValueOfTheParameterOfThatName)
{
    EXPECT_EQ(ParameterText(MessageWith(QStringLiteral("ctl")), QStringLiteral("Form")), "ctl");
    EXPECT_EQ(ParameterText(MessageWith(QStringLiteral("ctl")), QStringLiteral("form")), QString());
}

TEST(CrossingLine, ABodyThatIsNoMessageStandsThereAsText)
{
    Crossing crossing = CrossingOf({});
    crossing.message.reset();
    crossing.envelope.body = QStringLiteral("<nonsense");
    crossing.envelope.kind = MessageKind::Event;
    EXPECT_EQ(LogLine(crossing), "<sent from=\"ctlSchedule\" to=\"the &lt;host&gt;\" kind=\"1\">&lt;nonsense"
                                 "<reply></reply></sent>");
}

TEST(FailureOf, IsWhyAMessageWasNotDeliveredOrWhatItReports)
{
    Message report;
    report.name = QStringLiteral("ErrorMessage");
    report.parameters.Add(ParameterType::Text, QStringLiteral("ErrorDescription"), QStringLiteral("disk full"));
    Message other = report;
    other.name = QStringLiteral("Other");
    EXPECT_EQ(FailureOf({.message = report}), "disk full");
    EXPECT_EQ(FailureOf({.message = report, .failure = QStringLiteral("no host")}), "no host");
    EXPECT_EQ(FailureOf({.message = other}), QString());
    EXPECT_EQ(FailureOf({.message = std::nullopt, .failure = QStringLiteral("no host")}), "no host");
    EXPECT_EQ(FailureOf({}), QString());
}

} // namespace schedules::host
