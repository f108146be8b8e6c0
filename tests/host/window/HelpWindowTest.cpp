#include "host/window/HelpWindow.h"

#include <QTextBrowser>

#include <gtest/gtest.h>

namespace schedules::host::testing {

namespace {

struct HelpWindowTest : ::testing::Test
{
    std::string FirstLineOf(const char* context)
    {
        window.Open(QLatin1String(context));
        return page.toPlainText().section(u'\n', 0, 0).toStdString();
    }

    HelpWindow window;
    const QTextBrowser& page = *window.findChild<QTextBrowser*>(QStringLiteral("helpPage"));
};

} // namespace

TEST_F(HelpWindowTest, OpensThePageOfAContext)
{
    EXPECT_EQ(FirstLineOf("20"), "The schedule");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(FirstLineOf("23"), "Picking tags");
}

TEST_F(HelpWindowTest, OpensTheFirstPageForAContextThatHasNone)
{
    EXPECT_EQ(FirstLineOf("99"), "Equipment schedules");
    EXPECT_EQ(FirstLineOf(""), "Equipment schedules");
}

TEST_F(HelpWindowTest, ComesBackWhenItWasClosed)
{
    window.Open("20");
    window.close();
    window.Open("23");
    EXPECT_TRUE(window.isVisible());
}

} // namespace schedules::host::testing
