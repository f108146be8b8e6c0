#include "webpage/HtmlText.h"

#include <gtest/gtest.h>

using namespace schedules;

TEST(HtmlText, APlainTextStaysAsItIs)
{
    EXPECT_EQ(HtmlOf(""), "");
    EXPECT_EQ(HtmlOf("P-101A 12.5 'x'"), "P-101A 12.5 'x'");
    EXPECT_EQ(HtmlOf("насос Ölpumpe 备用 m³/h °C 𝄞 �"), "насос Ölpumpe 备用 m³/h °C 𝄞 �");
    EXPECT_EQ(HtmlOf("two\r\nlines\tand a tab"), "two\r\nlines\tand a tab");
    EXPECT_EQ(HtmlOf("\uFEFFx"), "\uFEFFx") << "a byte-order mark belongs to the text";
}

TEST(HtmlText, WhatMarksUpIsEscaped)
{
    EXPECT_EQ(HtmlOf("<a href=\"x\">&amp;</a>"), "&lt;a href=&quot;x&quot;&gt;&amp;amp;&lt;/a&gt;");
    EXPECT_EQ(HtmlOf("m³ < 12 & насос"), "m³ &lt; 12 &amp; насос");
}

TEST(HtmlText, CharactersThatNoPageMayHoldAreReplaced)
{
    EXPECT_EQ(HtmlOf(std::string("a\0b", 3)), "a\uFFFDb");
    EXPECT_EQ(HtmlOf("a\x01\x1F\x7F"), "a\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(HtmlOf("a\u0085b"), "a\uFFFDb") << "a control character beyond ASCII";
    EXPECT_EQ(HtmlOf("\uFDD0\uFFFE\U0001FFFF"), "\uFFFD\uFFFD\uFFFD") << "no characters at all";
}
