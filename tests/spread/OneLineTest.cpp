#include "spread/OneLine.h"

#include <gtest/gtest.h>

using namespace schedules;

TEST(OneLine, HasABlankForEachCharacterThatMovesOn)
{
    for (int code = 0; code < ' '; ++code)
        EXPECT_EQ(OnOneLine(QStringLiteral("a") + QChar(code) + 'b'), "a b") << code;
    EXPECT_EQ(OnOneLine(QStringLiteral("a\u2028b\u2029c\r\nd")), "a b c  d");
}

TEST(OneLine, LeavesAllOtherCharacters)
{
    for (int code = ' '; code <= 0xFFFF; ++code) {
        const QString text{QChar(code)};
        if (code != 0x2028 && code != 0x2029) {
            EXPECT_EQ(OnOneLine(text), text) << code;
        }
    }
    EXPECT_EQ(OnOneLine(QString()), QString());
}

TEST(OneLine, CopiesNoTextThatStaysAsItIs)
{
    const QString text = QStringLiteral("centrifugal pump").repeated(2);
    EXPECT_EQ(OnOneLine(text).constData(), text.constData());
}
