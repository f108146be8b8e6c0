#include "host/window/MessageBar.h"

#include <QLabel>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace schedules::host::testing {

namespace {

struct MessageBarTest : ::testing::Test
{
    MessageBarTest()
    {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&bar);
        QObject::connect(&bar, &MessageBar::OfferTaken, [this] { ++taken; });
        window.show();
    }
    ~MessageBarTest() override { bar.setParent(nullptr); }
    Q_DISABLE_COPY_MOVE(MessageBarTest)

    /// Its text and its offer as they are seen.
    std::string Seen() const
    {
        if (!bar.isVisible())
            return "(hidden)";
        const auto* text = bar.findChild<QLabel*>(QStringLiteral("lblMessage"));
        return (text->text() + (Offer().isVisible() ? " [" + Offer().text() + ']' : QString())).toStdString();
    }

    QToolButton& Offer() const { return *bar.findChild<QToolButton*>(QStringLiteral("cmdOffer")); }
    QToolButton& Close() const { return *bar.findChild<QToolButton*>(QStringLiteral("cmdCloseMessage")); }

    QWidget window;
    MessageBar bar;
    int taken = 0;
};

} // namespace

TEST_F(MessageBarTest, IsHiddenWhileItHasNothingToTell)
{
    EXPECT_EQ(Seen(), "(hidden)");
}

TEST_F(MessageBarTest, TellsOneThingInPlaceOfTheOther)
{
    bar.Tell("it broke", "Mend it");
    EXPECT_EQ(Seen(), "it broke [Mend it]");
    bar.Tell("it broke again");
    EXPECT_EQ(Seen(), "it broke again");
}

TEST_F(MessageBarTest, ShowsATextAsItIs)
{
    bar.Tell("<b>5 < 6</b> & more");
    EXPECT_EQ(bar.findChild<QLabel*>(QStringLiteral("lblMessage"))->textFormat(), Qt::PlainText);
}

TEST_F(MessageBarTest, IsClosedByItsUser)
{
    bar.Tell("it broke", "Mend it");
    QTest::mouseClick(&Close(), Qt::LeftButton);
    EXPECT_EQ(Seen(), "(hidden)");
    EXPECT_EQ(taken, 0);
    bar.Tell("later");
    EXPECT_EQ(Seen(), "later");
}

TEST_F(MessageBarTest, AnOfferThatIsTakenIsToldAndClosesIt)
{
    bar.Tell("it broke", "Mend it");
    QTest::mouseClick(&Offer(), Qt::LeftButton);
    EXPECT_EQ(taken, 1);
    EXPECT_EQ(Seen(), "(hidden)");
}

} // namespace schedules::host::testing
