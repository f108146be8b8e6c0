#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"
#include "tools/options/TemplateFilesTest.h"

using namespace schedules;
using namespace schedules::testing;

namespace fs = std::filesystem;

TEST_F(TemplateFilesTest, AReadOnlyFileIsNeitherReplacedNorDeleted)
{
    Write("a*.xml", "a");
    Mode("a*.xml", 0444);
    Link("a*.xml", "link.xml");
    EXPECT_EQ(Failure([&] { Folder().RequireDeletable("a*.xml"); }), "Missing: 3076");
    EXPECT_EQ(Failure([&] { Folder().RequireDeletable("link.xml"); }), "Missing: 3076");
    EXPECT_EQ(ReplaceFailure("a*.xml"), "Missing: 3076");
    EXPECT_EQ(ReplaceFailure("link.xml"), "Missing: 3076");
    EXPECT_EQ(DeleteFailure("a*.xml"), "Missing: 3076");
    EXPECT_EQ(Read("a*.xml"), "a");
    EXPECT_EQ(Names(), "a*.xml link.xml");
}

TEST_F(TemplateFilesTest, AFolderIsNeitherReplacedNorDeleted)
{
    fs::create_directory(Place("sub.xml"));
    EXPECT_EQ(Failure([&] { Folder().RequireDeletable("sub.xml"); }), "Missing: 3076");
    EXPECT_EQ(ReplaceFailure("sub.xml"), "Missing: 3076");
    EXPECT_EQ(DeleteFailure("sub.xml"), "Missing: 3076");
    EXPECT_TRUE(fs::is_directory(Place("sub.xml")));
}

TEST_F(TemplateFilesTest, AFileThatIsGoneOrWritableIsDeletable)
{
    Write("a.xml", "a");
    EXPECT_EQ(Failure([&] { Folder().RequireDeletable("a.xml"); }), "");
    EXPECT_EQ(Failure([&] { Folder().RequireDeletable("none.xml"); }), "");
    EXPECT_EQ(DeleteFailure("none.xml"), "");
    EXPECT_EQ(Read("a.xml"), "a");
}

TEST_F(TemplateFilesTest, InAReadOnlyFolderEverythingStays)
{
    Write("a.xml", "a");
    Mode("a.xml", 0666);
    Mode("../", 0755);
    Mode("", 0555);
    {
        const OrdinaryUser user;
        EXPECT_THROW(Folder().Replace("a.xml", "new"), Error);
        EXPECT_THROW(Folder().Replace("b.xml", "new"), Error);
        EXPECT_EQ(DeleteFailure("a.xml"), "Missing: 3076");
        EXPECT_EQ(DeleteFailure("b.xml"), "");
        EXPECT_EQ(Folder().Content("a.xml"), QByteArray("a"));
    }
    Mode("", 0755);
    EXPECT_EQ(Read("a.xml"), "a");
    EXPECT_EQ(Names(), "a.xml");
}

TEST_F(TemplateFilesTest, WhatCannotBeLookedAtIsNotTakenForGone)
{
    Write("a.xml", "a");
    Mode("../", 0755);
    Mode("", 0);
    {
        const OrdinaryUser user;
        EXPECT_EQ(DeleteFailure("a.xml"), "Missing: 3076");
        EXPECT_THROW(Folder().Replace("a.xml", "new"), Error);
        EXPECT_EQ(Folder().Content("a.xml"), std::nullopt);
    }
    Mode("", 0755);
    EXPECT_EQ(Read("a.xml"), "a");
}

TEST_F(TemplateFilesTest, AFileThatMayNotBeReadHasNoContent)
{
    Write("a.xml", "a");
    Mode("a.xml", 0200);
    Mode("../", 0755);
    const OrdinaryUser user;
    EXPECT_EQ(Folder().Content("a.xml"), std::nullopt);
}

TEST_F(TemplateFilesTest, OnAFullDiskTheOldFileStays)
{
    Write("a.xml", "old");
    {
        const FileSizeLimit limit(50'000);
        EXPECT_THROW(Folder().Replace("a.xml", QByteArray(60'000, 'x')), Error);
        EXPECT_THROW(Folder().Replace("b.xml", QByteArray(60'000, 'x')), Error);
    }
    EXPECT_EQ(Read("a.xml"), "old");
    EXPECT_EQ(Names(), "a.xml");
}

TEST_F(TemplateFilesTest, AFolderThatIsGoneFailsToSaveAndHasNothingToDelete)
{
    fs::remove(Place(""));
    EXPECT_THROW(Folder().Replace("a.xml", "new"), Error);
    EXPECT_EQ(DeleteFailure("a.xml"), "");
    EXPECT_FALSE(Folder().HasFile("a.xml"));
    EXPECT_EQ(Folder().Content("a.xml"), std::nullopt);
    EXPECT_FALSE(fs::exists(Place("")));
}

TEST_F(TemplateFilesTest, AFolderThatGoesBetweenTwoStepsIsNotMadeAgain)
{
    Write("a.xml", "a");
    const TemplateFiles folder = Folder();
    EXPECT_TRUE(folder.Holds("a.xml"));
    fs::remove_all(Place(""));
    EXPECT_THROW(folder.Replace("a.xml", "new"), Error);
    EXPECT_FALSE(fs::exists(Place("")));
}

TEST_F(TemplateFilesTest, AFileInPlaceOfTheFolderFails)
{
    const TemplateFiles folder(m_around.path() + "/outside.xml");
    EXPECT_THROW(folder.Replace("a.xml", "new"), Error);
    EXPECT_FALSE(folder.HasFile("a.xml"));
    EXPECT_NO_THROW(folder.Delete("a.xml"));
}
