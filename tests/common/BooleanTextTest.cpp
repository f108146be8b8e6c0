#include "common/BooleanText.h"

#include "common/Error.h"

#include <gtest/gtest.h>

using namespace schedules;

namespace {

/// What a text means, or the number of the error that it gives.
std::string Meaning(const char* text)
{
    try {
        return BooleanOf(QString::fromUtf8(text)) ? "true" : "false";
    } catch (const Error& error) {
        return "error " + std::to_string(error.Number());
    }
}

struct Meant
{
    const char* text;
    const char* meaning;
};

void PrintTo(const Meant& meant, std::ostream* out)
{
    *out << '"' << meant.text << "\" is " << meant.meaning;
}

class BooleanOfText : public ::testing::TestWithParam<Meant>
{
};

} // namespace

TEST(BooleanText, IsTheNumberOfTheBoolean)
{
    EXPECT_EQ(BooleanText(true), QStringLiteral("-1"));
    EXPECT_EQ(BooleanText(false), QStringLiteral("0"));
}

TEST(BooleanText, IsReadBackAsTheSame)
{
    EXPECT_TRUE(BooleanOf(BooleanText(true)));
    EXPECT_FALSE(BooleanOf(BooleanText(false)));
}

TEST_P(BooleanOfText, IsWhatItSays)
{
    EXPECT_EQ(Meaning(GetParam().text), GetParam().meaning);
}

INSTANTIATE_TEST_SUITE_P(Words, BooleanOfText,
                         ::testing::Values(Meant{"True", "true"}, Meant{"true", "true"}, Meant{"TRUE", "true"},
                                           Meant{"tRuE", "true"}, Meant{"False", "false"}, Meant{"false", "false"},
                                           Meant{"FALSE", "false"}, Meant{" True ", "true"}, Meant{"   false", "false"},
                                           Meant{"Tr ue", "error 13"}, Meant{"TrueFalse", "error 13"},
                                           Meant{"T", "error 13"}, Meant{"yes", "error 13"}, Meant{"no", "error 13"},
                                           Meant{"on", "error 13"}, Meant{"wahr", "error 13"}));

INSTANTIATE_TEST_SUITE_P(Numbers, BooleanOfText,
                         ::testing::Values(Meant{"-1", "true"}, Meant{"0", "false"}, Meant{"1", "true"},
                                           Meant{"2", "true"}, Meant{"+1", "true"}, Meant{"255", "true"},
                                           Meant{"007", "true"}, Meant{"000", "false"}, Meant{"0.0", "false"},
                                           Meant{"-0", "false"}, Meant{".5", "true"}, Meant{"-.5", "true"},
                                           Meant{"0.001", "true"}, Meant{"1.", "true"}, Meant{"1e3", "true"},
                                           Meant{"1E-3", "true"}, Meant{"0e9", "false"}, Meant{"-1e+300", "true"},
                                           Meant{"12345678901234567890", "true"}, Meant{"  -1  ", "true"},
                                           Meant{" 0 ", "false"}));

INSTANTIATE_TEST_SUITE_P(NeitherWordsNorNumbers, BooleanOfText,
                         ::testing::Values(Meant{"", "error 13"}, Meant{" ", "error 13"}, Meant{"    ", "error 13"},
                                           Meant{"-", "error 13"}, Meant{".", "error 13"}, Meant{"e", "error 13"},
                                           Meant{"1e", "error 13"}, Meant{"--1", "error 13"}, Meant{"- 1", "error 13"},
                                           Meant{"-1 -1", "error 13"}, Meant{"1,000", "error 13"},
                                           Meant{"0,5", "error 13"}, Meant{"1 000", "error 13"},
                                           Meant{"1.2.3", "error 13"}, Meant{"0x1", "error 13"},
                                           Meant{"&H1", "error 13"}, Meant{"1f", "error 13"}, Meant{"inf", "error 13"},
                                           Meant{"-inf", "error 13"}, Meant{"INFINITY", "error 13"},
                                           Meant{"nan", "error 13"}, Meant{"1e400", "error 13"}, Meant{"∞", "error 13"},
                                           Meant{"١", "error 13"}, Meant{"１", "error 13"}, Meant{"½", "error 13"}));

INSTANTIATE_TEST_SUITE_P(OtherWhiteSpace, BooleanOfText,
                         ::testing::Values(Meant{"\t-1", "error 13"}, Meant{"-1\t", "error 13"},
                                           Meant{"0\n", "error 13"}, Meant{"\r\n1", "error 13"},
                                           Meant{"\u00A0"
                                                 "1",
                                                 "error 13"},
                                           Meant{"1\u2003", "error 13"}, Meant{" \t1 ", "error 13"},
                                           Meant{"\tTrue", "error 13"}, Meant{"True\n", "error 13"}));

TEST(BooleanOf, ANullCharacterIsNoEndOfTheText)
{
    EXPECT_THROW(BooleanOf(QStringLiteral("1") + QChar(0)), Error);
    EXPECT_THROW(BooleanOf(QStringLiteral("1") + QChar(0) + u'0'), Error);
    EXPECT_THROW(BooleanOf(QStringLiteral("True") + QChar(0)), Error);
}

TEST(BooleanOf, TheErrorNamesTheText)
{
    try {
        BooleanOf(QStringLiteral(" yes "));
        FAIL() << "no error";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), kTypeMismatchError);
        EXPECT_TRUE(error.Description().contains(QStringLiteral("\" yes \"")));
    }
}
