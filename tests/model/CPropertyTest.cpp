#include "model/CProperty.h"

#include "common/Error.h"

#include <gtest/gtest.h>
#include <limits>

using namespace schedules;

namespace {

std::string Text(const PropertyValue& value)
{
    return TextOf(value).toStdString();
}

/// "number description" of the error that a conversion fails with.
template <class Convert>
std::string Failure(Convert&& convert)
{
    try {
        convert();
    } catch (const Error& error) {
        return std::to_string(error.Number()) + ' ' + error.Description().toStdString();
    }
    return "none";
}

PropertyValue AnObject()
{
    return std::shared_ptr<void>(std::make_shared<int>(5));
}

} // namespace

TEST(CProperty, IsEmptyWhenItIsNew)
{
    const CProperty property;
    EXPECT_EQ(property.ID(), 0);
    EXPECT_EQ(property.Name(), "");
    EXPECT_EQ(property.Value(), PropertyValue(QString()));
}

TEST(CProperty, ItsNameLosesBlanksAtTheEnds)
{
    CProperty property;
    property.SetName("  Show  this ");
    EXPECT_EQ(property.Name(), "Show  this");
}

TEST(CProperty, OnlySpacesAreBlanks)
{
    CProperty property;
    property.SetName("\t\u00A0A\n");
    EXPECT_EQ(property.Name(), "\t\u00A0A\n");
}

TEST(CProperty, ItsTextIsKeptAsItIs)
{
    CProperty property;
    property.SetValue("  a ");
    EXPECT_EQ(property.Value(), PropertyValue("  a "));
}

TEST(CProperty, ItsIdCanBeWritten)
{
    CProperty property;
    property.SetID(-7);
    EXPECT_EQ(property.ID(), -7);
}

TEST(CProperty, GivesTheSameObjectThatItWasGiven)
{
    const auto object = std::make_shared<int>(5);
    CProperty property;
    property.SetValue(std::shared_ptr<void>(object));
    EXPECT_EQ(std::get<std::shared_ptr<void>>(property.Value()), object);
}

TEST(CProperty, KeepsItsObjectAliveAndReleasesItAtItsEnd)
{
    auto object = std::make_shared<int>(5);
    const std::weak_ptr<int> seen = object;
    {
        CProperty property;
        property.SetValue(std::shared_ptr<void>(std::move(object)));
        EXPECT_FALSE(seen.expired());
    }
    EXPECT_TRUE(seen.expired());
}

TEST(CProperty, AnotherValueReleasesTheObject)
{
    auto object = std::make_shared<int>(5);
    const std::weak_ptr<int> seen = object;
    CProperty property;
    property.SetValue(std::shared_ptr<void>(std::move(object)));
    property.SetValue("text");
    EXPECT_TRUE(seen.expired());
}

TEST(PropertyValue, ATextIsWrittenAsItIs)
{
    EXPECT_EQ(Text(" a\tb "), " a\tb ");
    EXPECT_EQ(Text(QString()), "");
}

TEST(PropertyValue, ABooleanIsWrittenAsMinusOneOrZero)
{
    EXPECT_EQ(Text(true), "-1");
    EXPECT_EQ(Text(false), "0");
}

TEST(PropertyValue, ANumberIsWrittenInDecimalWithAtMost15Digits)
{
    EXPECT_EQ(Text(5.0), "5");
    EXPECT_EQ(Text(-12.5), "-12.5");
    EXPECT_EQ(Text(0.1 + 0.2), "0.3");
    EXPECT_EQ(Text(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(Text(2147483647.0), "2147483647");
    EXPECT_EQ(Text(1e20), "1E+20");
}

TEST(PropertyValue, AnObjectIsNoText)
{
    EXPECT_EQ(Failure([] { TextOf(AnObject()); }), "13 An object is no text.");
}

TEST(PropertyValue, ATextCanBeAFlag)
{
    EXPECT_TRUE(FlagOf("-1"));
    EXPECT_TRUE(FlagOf(" tRUE "));
    EXPECT_TRUE(FlagOf("0.5"));
    EXPECT_FALSE(FlagOf("0"));
    EXPECT_FALSE(FlagOf("false"));
    EXPECT_EQ(Failure([] { FlagOf("yes"); }), "13 \"yes\" is neither true nor false.");
    EXPECT_EQ(Failure([] { FlagOf(""); }), "13 \"\" is neither true nor false.");
}

TEST(PropertyValue, ANumberIsAFlagThatIsFalseForZero)
{
    EXPECT_TRUE(FlagOf(-1.0));
    EXPECT_TRUE(FlagOf(0.25));
    EXPECT_FALSE(FlagOf(0.0));
    EXPECT_FALSE(FlagOf(-0.0));
}

TEST(PropertyValue, ABooleanIsItsOwnFlag)
{
    EXPECT_TRUE(FlagOf(true));
    EXPECT_FALSE(FlagOf(false));
}

TEST(PropertyValue, AnObjectIsNoFlag)
{
    EXPECT_EQ(Failure([] { FlagOf(AnObject()); }), "13 An object is neither true nor false.");
}
