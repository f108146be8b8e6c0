#include "tools/options/saving/FileNameFlaw.h"

#include <gtest/gtest.h>

namespace schedules::testing {

TEST(FileNameFlaw, NamesThatAFileCanHaveHaveNone)
{
    for (const char16_t* name : {u"a", u"a.xml", u".hidden", u"...", u"a b", u"*?<>|:\"", u"Größe", u"泵", u"~", u"-"})
        EXPECT_EQ(FileNameFlaw(QString::fromUtf16(name)), "") << QString::fromUtf16(name).toStdString();
}

TEST(FileNameFlaw, ANameIsNotBlank)
{
    for (const char* name : {"", " ", "   "})
        EXPECT_EQ(FileNameFlaw(name), "Enter a name.");
}

TEST(FileNameFlaw, FoldersThemselvesAreNoNames)
{
    for (const char* name : {".", ".."})
        EXPECT_EQ(FileNameFlaw(name), "A name cannot be one or two dots alone.");
}

TEST(FileNameFlaw, ANameDoesNotLeadElsewhere)
{
    for (const char* name : {"/", "\\", "a/b", "a\\b", "../a", "..\\a", "/a", "a/", "C:\\a", "a//b"})
        EXPECT_EQ(FileNameFlaw(name), "A name cannot contain a slash or a backslash.") << name;
}

TEST(FileNameFlaw, ControlCharactersStandInNoName)
{
    for (char16_t code = 0; code < 32; ++code)
        EXPECT_EQ(FileNameFlaw(QStringLiteral("a%1b").arg(QChar(code))),
                  "The name contains a character that no file name can have.")
            << int(code);
}

TEST(FileNameFlaw, HalvesOfCharactersStandInNoName)
{
    for (const char16_t half : {char16_t(0xD800), char16_t(0xDFFF)})
        EXPECT_EQ(FileNameFlaw(QStringLiteral("a%1").arg(QChar(half))),
                  "The name contains a character that no file name can have.");
}

TEST(FileNameFlaw, ANameHas255BytesAtMost)
{
    EXPECT_EQ(FileNameFlaw(QString(255, 'n')), "");
    EXPECT_EQ(FileNameFlaw(QString(256, 'n')), "The name is too long for a file.");
    EXPECT_EQ(FileNameFlaw(QString(127, QChar(0xE4))), "");
    EXPECT_EQ(FileNameFlaw(QString(128, QChar(0xE4))), "The name is too long for a file.");
}

} // namespace schedules::testing
