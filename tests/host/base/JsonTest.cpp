#include "host/base/Json.h"

#include <gtest/gtest.h>
#include <string>

namespace schedules::host {

namespace {

std::string Text(const QString& text)
{
    return JsonText(text).toStdString();
}

} // namespace

TEST(Json, ATextIsQuotedAndEscaped)
{
    EXPECT_EQ(Text({}), R"("")");
    EXPECT_EQ(Text("say \"a\\b\"\n\t\x01"), R"("say \"a\\b\"\n\t\u0001")");
}

TEST(Json, ATextMayHaveAnyCharacters)
{
    EXPECT_EQ(Text("насос 水 😀"), R"("насос 水 😀")");
    EXPECT_EQ(Text(QString(QChar(0xFEFF)) + 'a'), "\"\uFEFFa\"");
}

TEST(Json, ALoneSurrogateIsTheReplacementCharacter)
{
    EXPECT_EQ(Text(QString(QChar(0xDCFF))), "\"\uFFFD\"");
    EXPECT_EQ(Text("a" + QString(QChar(0xD83D))), "\"a\uFFFD\"") << "a first half at the end";
    EXPECT_EQ(Text(QString(QChar(0xD83D)) + "😀" + QChar(0xDE00)), "\"\uFFFD😀\uFFFD\"");
}

TEST(Json, FlagsAreWords)
{
    EXPECT_EQ(JsonFlag(true), "true");
    EXPECT_EQ(JsonFlag(false), "false");
}

TEST(Json, AnObjectKeepsTheOrderOfItsMembers)
{
    EXPECT_EQ(JsonObject({{"b", "1"}, {"a", "[2]"}}), R"({"b":1,"a":[2]})");
    EXPECT_EQ(JsonObject({}), "{}");
}

TEST(Json, AnArrayIsOnOneLine)
{
    EXPECT_EQ(JsonArray({"1", "2"}), "[1,2]");
    EXPECT_EQ(JsonArray({}), "[]");
}

TEST(Json, AnArrayMayHaveALineForEachValue)
{
    EXPECT_EQ(JsonLines({"1", "2"}), "[\n1,\n2\n]");
    EXPECT_EQ(JsonLines({}), "[]");
}

} // namespace schedules::host
