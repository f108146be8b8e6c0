#include "host/tools/ConsoleUserInterface.h"

#include <gtest/gtest.h>

namespace schedules::host {

TEST(ConsoleUserInterface, WithoutABoxNothingFailed)
{
    EXPECT_EQ(ConsoleUserInterface().TakeFailure(), std::nullopt);
}

TEST(ConsoleUserInterface, TheFirstNumberedBoxIsTheFailure)
{
    ConsoleUserInterface user;
    user.Show({.text = QStringLiteral("plain")});
    user.Show({.text = QStringLiteral("Not\nloaded."), .number = 1064});
    user.Show({.text = QStringLiteral("Not shown."), .number = 3040});
    EXPECT_EQ(user.TakeFailure(), QStringLiteral("Not loaded. (1064)"));
}

TEST(ConsoleUserInterface, APercentSignInATextIsNothingSpecial)
{
    ConsoleUserInterface user;
    user.Show({.text = QStringLiteral("50 %2"), .number = 7});
    EXPECT_EQ(user.TakeFailure(), QStringLiteral("50 %2 (7)"));
}

TEST(ConsoleUserInterface, WithoutANumberedBoxTheFirstOneIsTheFailure)
{
    ConsoleUserInterface user;
    user.Show({.text = QStringLiteral("first")});
    user.Show({.text = QStringLiteral("second")});
    EXPECT_EQ(user.TakeFailure(), QStringLiteral("first"));
}

TEST(ConsoleUserInterface, AFailureThatWasTakenIsForgotten)
{
    ConsoleUserInterface user;
    user.Show({.text = QStringLiteral("first")});
    user.TakeFailure();
    EXPECT_EQ(user.TakeFailure(), std::nullopt);
    user.Show({.text = QStringLiteral("second")});
    EXPECT_EQ(user.TakeFailure(), QStringLiteral("second"));
}

TEST(ConsoleUserInterface, EveryBoxIsAReport)
{
    ConsoleUserInterface user;
    EXPECT_EQ(user.TakeReports(), QStringList());
    user.Show({.text = QStringLiteral("Type\nmismatch")});
    user.Show({.text = QStringLiteral("50 %1"), .number = 3023, .subject = QStringLiteral("a.xml")});
    user.Show({.text = QStringLiteral("No list."), .number = 1062});
    EXPECT_EQ(user.TakeReports(), (QStringList{"Type mismatch", "a.xml: 50 %1 (3023)", "No list. (1062)"}));
    EXPECT_EQ(user.TakeReports(), QStringList());
    EXPECT_EQ(user.TakeFailure(), std::nullopt);
}

TEST(ConsoleUserInterface, QuestionsAreAnsweredWithNo)
{
    ConsoleUserInterface user;
    EXPECT_EQ(user.Show({.style = kOkOnly | kExclamation}), Answer::Ok);
    EXPECT_EQ(user.Show({.style = kYesNo | kQuestion}), Answer::No);
    EXPECT_EQ(user.Show({.style = kYesNoCancel | kQuestion}), Answer::No);
    EXPECT_EQ(user.AskSaveFileName({}), QString());
}

} // namespace schedules::host
