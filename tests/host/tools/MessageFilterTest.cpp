#include "host/tools/MessageFilter.h"

#include "framework/Message.h"
#include "host/tools/MessageModel.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

Crossing Crossed(const char* name, MessageKind kind, const QString& failure = {})
{
    Message message;
    message.name = QLatin1String(name);
    message.parameters.Add(ParameterType::Text, QStringLiteral("ErrorDescription"), QStringLiteral("it broke"));
    return {QDateTime::currentDateTime(), {"ctlSchedule", "schedhost", kind, message.Text()}, message, {}, failure};
}

struct MessageFilterTest : ::testing::Test
{
    MessageFilterTest()
    {
        filter.setSourceModel(&model);
        model.Append(Crossed("InitializeSchedule", MessageKind::Request));
        model.Append(Crossed("ShowOptions", MessageKind::Event));
        model.Append(Crossed("ErrorMessage", MessageKind::Event));
        model.Append(Crossed("GETTEMPLATELIST", MessageKind::Request, "the server is away"));
    }

    std::string Shown() const
    {
        QStringList names;
        for (int row = 0; row < filter.rowCount(); ++row)
            names << filter.index(row, MessageModel::Name).data().toString();
        return names.join(u' ').toStdString();
    }

    MessageModel model;
    MessageFilter filter;
    QAbstractItemModelTester tester{&filter};
};

} // namespace

TEST_F(MessageFilterTest, ShowsAllAtFirst)
{
    EXPECT_EQ(Shown(), "InitializeSchedule ShowOptions ErrorMessage GETTEMPLATELIST");
}

TEST_F(MessageFilterTest, ShowsRequestsAlone)
{
    filter.ShowKind(MessageFilter::Requests);
    EXPECT_EQ(Shown(), "InitializeSchedule GETTEMPLATELIST");
}

TEST_F(MessageFilterTest, ShowsEventsAlone)
{
    filter.ShowKind(MessageFilter::Events);
    EXPECT_EQ(Shown(), "ShowOptions ErrorMessage");
}

TEST_F(MessageFilterTest, ErrorsAreErrorEventsAndFailedDeliveries)
{
    filter.ShowKind(MessageFilter::Errors);
    EXPECT_EQ(Shown(), "ErrorMessage GETTEMPLATELIST");
}

TEST_F(MessageFilterTest, WhatComesLaterIsFilteredAsWell)
{
    filter.ShowKind(MessageFilter::Events);
    model.Append(Crossed("InitializeSchedule", MessageKind::Request));
    model.Append(Crossed("UnloadSchedule", MessageKind::Event));
    EXPECT_EQ(Shown(), "ShowOptions ErrorMessage UnloadSchedule");
    filter.ShowKind(MessageFilter::All);
    EXPECT_EQ(filter.rowCount(), 6);
}

} // namespace schedules::host
