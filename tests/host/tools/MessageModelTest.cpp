#include "host/tools/MessageModel.h"

#include <QAbstractItemModelTester>
#include <QTextDocumentFragment>

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

Crossing HelpCrossing(const QString& value)
{
    Message message;
    message.name = QStringLiteral("ProcessSubscriberEvent");
    message.parameters.Add(ParameterType::Text, QStringLiteral("ContextID"), QStringLiteral("20"));
    message.parameters.Add(ParameterType::Text, QStringLiteral("Form"), value);
    return {QDateTime({2024, 5, 6}, {7, 8, 9, 10}),
            {QStringLiteral("ctlSchedule"), QStringLiteral("schedhost"), MessageKind::Request, message.Text()},
            message,
            QStringLiteral("ok"),
            {}};
}

QStringList Line(const MessageModel& model, int row)
{
    QStringList fields;
    for (int field = 0; field < model.columnCount(); ++field)
        fields.append(model.index(row, field).data().toString());
    return fields;
}

} // namespace

TEST(MessageModel, ShowsTimeRouteKindNameParametersAndReply)
{
    MessageModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.Append(HelpCrossing(QStringLiteral("ctlSchedule")));
    EXPECT_EQ(Line(model, 0),
              (QStringList{"07:08:09.010", "ctlSchedule → schedhost", "Request", "ProcessSubscriberEvent",
                           "ContextID = \"20\"; Form = \"ctlSchedule\"", "ok"}));
}

TEST(MessageModel, AFailureStandsInPlaceOfTheReply)
{
    MessageModel model;
    Crossing failed = HelpCrossing({});
    failed.failure = QStringLiteral("no room");
    model.Append(failed);
    EXPECT_EQ(Line(model, 0)[MessageModel::Reply], "failed: no room");
}

TEST(MessageModel, NamesItsFields)
{
    const MessageModel model;
    QStringList titles;
    for (int field = 0; field < model.columnCount(); ++field)
        titles.append(model.headerData(field, Qt::Horizontal).toString());
    EXPECT_EQ(titles, (QStringList{"Time", "From and to", "Kind", "Message", "Parameters", "Reply"}));
}

TEST(MessageModel, KeepsMessagesInOrder)
{
    MessageModel model;
    Crossing event = HelpCrossing({});
    event.envelope.kind = MessageKind::Event;
    model.Append(HelpCrossing({}));
    model.Append(event);
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(Line(model, 0)[MessageModel::Kind], "Request");
    EXPECT_EQ(Line(model, 1)[MessageModel::Kind], "Event");
}

TEST(MessageModel, ALongValueIsCutAndItsToolTipGivesAllOfIt)
{
    MessageModel model;
    const QString value = QStringLiteral("<TABLE>\n") + QString(1000, u'x');
    model.Append(HelpCrossing(value));
    const QModelIndex index = model.index(0, MessageModel::Parameters);
    EXPECT_EQ(index.data().toString().size(), 201);
    EXPECT_FALSE(index.data().toString().contains(QLatin1Char('\n')));
    const QString tip = index.data(Qt::ToolTipRole).toString();
    EXPECT_TRUE(QTextDocumentFragment::fromHtml(tip).toPlainText().contains(value)) << tip.toStdString();
    EXPECT_EQ(model.index(0, MessageModel::Name).data(Qt::ToolTipRole), QVariant());
}

TEST(MessageModel, ABodyThatIsNoMessageIsShownAsItIs)
{
    MessageModel model;
    Crossing crossing = HelpCrossing({});
    crossing.message.reset();
    crossing.envelope.body = QStringLiteral("nonsense");
    model.Append(crossing);
    EXPECT_EQ(Line(model, 0)[MessageModel::Name], "(not a message)");
    EXPECT_EQ(Line(model, 0)[MessageModel::Parameters], "nonsense");
}

TEST(MessageModel, KeepsTheLastThousand)
{
    MessageModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int number = 1; number <= 1002; ++number)
        model.Append(HelpCrossing(QString::number(number)));
    ASSERT_EQ(model.rowCount(), 1000);
    EXPECT_EQ(Line(model, 0)[MessageModel::Parameters], "ContextID = \"20\"; Form = \"3\"");
    EXPECT_EQ(Line(model, 999)[MessageModel::Parameters], "ContextID = \"20\"; Form = \"1002\"");
}

} // namespace schedules::host
