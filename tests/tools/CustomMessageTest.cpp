#include "tools/schedule/CustomMessage.h"

#include <gtest/gtest.h>

namespace schedules {

TEST(CustomMessage, OfOneKindLeavesNothingForTheNext)
{
    CustomMessage box;
    box.Show({QStringLiteral("bold"), true, true, 2});
    box.Show({QStringLiteral("{\\rtf1 text}"), true, true, 2});
    EXPECT_FALSE(box.font().bold());
    EXPECT_FALSE(box.font().italic());
    box.Show({QStringLiteral("plain"), false, true, 0});
    EXPECT_FALSE(box.font().bold());
    EXPECT_TRUE(box.font().italic());
    box.Show({});
    EXPECT_EQ(box.toPlainText(), QString());
    EXPECT_TRUE(box.isHidden());
}

TEST(CustomMessage, IsAsHighAsItsText)
{
    CustomMessage box;
    box.resize(400, 300);
    box.Show({QStringLiteral("one")});
    const int oneLine = box.sizeHint().height();
    box.Show({QStringLiteral("one\ntwo\nthree")});
    EXPECT_EQ(box.sizeHint().height(), oneLine + 2 * box.fontMetrics().lineSpacing());
    EXPECT_EQ(box.minimumSizeHint().height(), oneLine);
}

} // namespace schedules
