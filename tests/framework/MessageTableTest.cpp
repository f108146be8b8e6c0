#include "framework/MessageTable.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>

namespace schedules {

namespace {

QString Drawn(const MessageForm& form)
{
    QString text = QStringLiteral("%1 kind %2, codes %3 %4, to %5")
                       .arg(QLatin1String(form.name))
                       .arg(static_cast<int>(form.kind))
                       .arg(form.firstCode)
                       .arg(form.secondCode)
                       .arg(QLatin1String(form.recipient ? form.recipient : "owner"));
    for (const auto& parameter : form.parameters)
        text += QStringLiteral(", (%1, %2)").arg(static_cast<int>(parameter.type)).arg(QLatin1String(parameter.name));
    return text;
}

} // namespace

TEST(MessageTableOf, TheComponentIsComplete)
{
    QStringList drawn;
    for (const auto& form : MessageTable())
        drawn += Drawn(form);

    EXPECT_EQ(drawn.join('\n').toStdString(),
              "ContinueButton kind 1, codes 8 9, to owner, (4, SelectedTags)\n"
              "ErrorMessage kind 1, codes 20 9, to Framework, (2, ErrorDescription), (2, ErrorSource), "
              "(3, ErrorNumber), (2, ProcName)\n"
              "GETBUILDERPATH kind 2, codes 0 0, to owner, (2, Caller)\n"
              "GETCURRENTSCHEDTEMPLATE kind 2, codes 0 0, to owner\n"
              "GetResourceModule kind 2, codes 0 3, to owner\n"
              "GETTEMPLATECATEGORIES kind 2, codes 0 0, to owner\n"
              "GETTEMPLATELIST kind 2, codes 0 0, to owner, (2, Caller)\n"
              "INITIALIZESCHEDOPTIONS kind 2, codes 0 0, to owner, (2, Caller)\n"
              "InitializeSchedule kind 2, codes 0 0, to owner, (2, Caller)\n"
              "PrintSelections kind 1, codes 8 9, to owner, (4, SelectedTags), (2, BuilderPdsg)\n"
              "ProcessSubscriberEvent kind 2, codes 8 0, to owner, (2, EventObjectName), (2, ContextID), (2, Form)\n"
              "REMOVECONFIGENTRY kind 2, codes 0 0, to owner, (2, TemplateFile)\n"
              "SETCURRENTSCHEDTEMPLATE kind 2, codes 0 0, to owner, (4, TemplateXML), (2, TemplateFile)\n"
              "ShowOptions kind 1, codes 8 9, to owner, (2, BuilderPdsg)\n"
              "UnloadSchedule kind 1, codes 8 9, to owner, (8, Cancel)\n"
              "UnloadScheduleOptions kind 1, codes 8 9, to owner, (8, Cancel)\n"
              "UPDATESCHEDCONFIG kind 2, codes 0 0, to owner, (4, ConfigXML)\n"
              "UpdateTagScheduleData kind 1, codes 8 9, to owner, (2, BuilderPdsg), (4, ScheduleXml)");
}

TEST(MessageTableOf, TheComponentIsInAlphabeticalOrderWithoutDoubles)
{
    const auto table = MessageTable();
    EXPECT_TRUE(std::ranges::is_sorted(table, std::ranges::less_equal{}, [](const MessageForm& form) {
        return QString::fromLatin1(form.name).toUpper();
    }));
}

TEST(MessageTableOf, TheComponentSaysWhenEachMessageIsSent)
{
    for (const auto& form : MessageTable())
        EXPECT_STRNE(form.sentWhen, "") << form.name;
}

TEST(MessageFormOf, FindsAFormByItsExactName)
{
    EXPECT_STREQ(MessageFormOf(u"ShowOptions").name, "ShowOptions");
    EXPECT_THROW(MessageFormOf(u"SHOWOPTIONS"), std::logic_error);
    EXPECT_THROW(MessageFormOf(u""), std::logic_error);
}

TEST(BuildMessage, GivesValuesToTheParametersInOrder)
{
    const auto message =
        BuildMessage(MessageFormOf(u"PrintSelections"), {QStringLiteral("<Tags/>"), QStringLiteral("Pumps")});
    Message expected{QStringLiteral("PrintSelections"), 8, 9, {}};
    expected.parameters.Add(ParameterType::Xml, QStringLiteral("SelectedTags"), QStringLiteral("<Tags/>"));
    expected.parameters.Add(ParameterType::Text, QStringLiteral("BuilderPdsg"), QStringLiteral("Pumps"));
    EXPECT_EQ(message, expected);
}

TEST(BuildMessage, RefusesAWrongNumberOfValues)
{
    EXPECT_THROW(BuildMessage(MessageFormOf(u"ShowOptions"), {}), std::logic_error);
    EXPECT_THROW(BuildMessage(MessageFormOf(u"GetResourceModule"), {1}), std::logic_error);
}

} // namespace schedules
