// What a run of the host answers itself.

#include "host/tools/Session.h"

#include <gtest/gtest.h>

namespace schedules::host::testing {

namespace {

QString Module(Session& session)
{
    Message message;
    message.name = QStringLiteral("GetResourceModule");
    return session.Router().Send(
        {QStringLiteral("ctlSchedule"), QStringLiteral("schedhost"), MessageKind::Request, message.Text()});
}

} // namespace

TEST(Session, TellsTheModuleOfItsLanguageInDecimalAndTheSameToRepeats)
{
    Session session{SessionOptions()};
    const QString first = Module(session);
    EXPECT_GT(first.toInt(), 0);
    EXPECT_EQ(first, QString::number(first.toInt()));
    EXPECT_EQ(Module(session), first);
}

TEST(Session, TellsAnotherModuleForAnotherLanguage)
{
    Session session{SessionOptions()};
    const QString english = Module(session);
    session.UseLanguage(QStringLiteral("de"));
    EXPECT_GT(Module(session).toInt(), 0);
    EXPECT_NE(Module(session), english);
}

TEST(Session, TellsNoModuleForALanguageThatThereIsNot)
{
    Session session{SessionOptions()};
    session.UseLanguage(QStringLiteral("xx"));
    EXPECT_EQ(Module(session), QString());
}

} // namespace schedules::host::testing
