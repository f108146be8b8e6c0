#include "host/tools/HostRouter.h"

#include "host/base/HostError.h"

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

Envelope EnvelopeWith(const QVariant& body)
{
    return {QStringLiteral("ctlSchedule"), QStringLiteral("schedhost"), MessageKind::Request, body};
}

Message Asked(const QString& name)
{
    Message message;
    message.name = name;
    message.parameters.Add(ParameterType::Text, QStringLiteral("Caller"), QStringLiteral("a & b"));
    return message;
}

struct HostRouterTest : ::testing::Test
{
    HostRouterTest()
    {
        QObject::connect(&router, &HostRouter::Crossed, [this](const Crossing& one) { crossings.append(one); });
    }

    HostRouter router;
    QList<Crossing> crossings;
};

} // namespace

TEST_F(HostRouterTest, AMessageGetsTheReplyOfItsAnswer)
{
    router.Answers(QStringLiteral("Ask"), [](const Message& message) {
        return QStringLiteral("heard ") + message.parameters.Items().first().value.toString();
    });
    EXPECT_EQ(router.Send(EnvelopeWith(Asked(QStringLiteral("Ask")).Text())), "heard a & b");
}

TEST_F(HostRouterTest, NamesAreComparedExactly)
{
    router.Answers(QStringLiteral("Ask"), [](const Message&) { return QStringLiteral("yes"); });
    EXPECT_EQ(router.Send(EnvelopeWith(Asked(QStringLiteral("ask")).Text())), QString());
}

TEST_F(HostRouterTest, WhatNobodyAnswersGetsAnEmptyReply)
{
    EXPECT_EQ(router.Send(EnvelopeWith(Asked(QStringLiteral("Other")).Text())), QString());
    EXPECT_EQ(router.Send(EnvelopeWith(QStringLiteral("<nonsense"))), QString());
    EXPECT_EQ(router.Send(EnvelopeWith({})), QString());
}

TEST_F(HostRouterTest, AnAnswerCanBeTakenBack)
{
    router.Answers(QStringLiteral("Ask"), [](const Message&) { return QStringLiteral("yes"); });
    router.NoLongerAnswers(QStringLiteral("Ask"));
    EXPECT_EQ(router.Send(EnvelopeWith(Asked(QStringLiteral("Ask")).Text())), QString());
}

TEST_F(HostRouterTest, AnAnswerThatFailsFailsTheSendAndIsToldOf)
{
    router.Answers(QStringLiteral("Ask"), [](const Message&) -> QString { throw HostError("no room for é"); });
    EXPECT_THROW(router.Send(EnvelopeWith(Asked(QStringLiteral("Ask")).Text())), HostError);
    ASSERT_EQ(crossings.size(), 1);
    EXPECT_EQ(crossings[0].message, Asked(QStringLiteral("Ask")));
    EXPECT_EQ(crossings[0].failure, "no room for é");
}

TEST_F(HostRouterTest, TellsOfEveryMessageWithItsReply)
{
    router.Answers(QStringLiteral("Ask"), [](const Message&) { return QStringLiteral("yes"); });
    router.Send(EnvelopeWith(Asked(QStringLiteral("Ask")).Text()));
    router.Send(EnvelopeWith(QStringLiteral("nonsense")));
    ASSERT_EQ(crossings.size(), 2);
    EXPECT_EQ(crossings[0].message, Asked(QStringLiteral("Ask")));
    EXPECT_EQ(crossings[0].envelope.sender, "ctlSchedule");
    EXPECT_EQ(crossings[0].reply, "yes");
    EXPECT_TRUE(crossings[0].time.isValid());
    EXPECT_EQ(crossings[1].message, std::nullopt);
    EXPECT_EQ(crossings[1].reply, QString());
}

} // namespace schedules::host
