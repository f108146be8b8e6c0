#include "tools/options/TemplateFilesTest.h"

using namespace schedules;
using namespace schedules::testing;

namespace fs = std::filesystem;

TEST_F(TemplateFilesTest, ALinkInTheFolderIsFollowed)
{
    Write("a.xml", "a");
    fs::create_directory(Place("sub"));
    Write("sub/b.xml", "b");
    Link("a.xml", "to-a.xml");
    Link("sub/b.xml", "to-b.xml");
    EXPECT_TRUE(Folder().Holds("to-a.xml"));
    EXPECT_EQ(Folder().Content("to-b.xml"), QByteArray("b"));
    Folder().Replace("to-a.xml", "new a");
    Folder().Replace("to-b.xml", "new b");
    EXPECT_EQ(Read("a.xml"), "new a");
    EXPECT_EQ(Read("sub/b.xml"), "new b");
    EXPECT_TRUE(fs::is_symlink(Place("to-a.xml")) && fs::is_symlink(Place("to-b.xml")));
}

TEST_F(TemplateFilesTest, ALinkOutOfTheFolderIsNoWayOut)
{
    fs::create_directory(Place("../templates-old"));
    Write("../templates-old/x.xml", "old");
    Link("../outside.xml", "out.xml");
    Link("out.xml", "far.xml");
    Link(Place("../outside.xml").string(), "absolute.xml");
    Link("../templates-old/x.xml", "neighbour.xml");
    for (const char* name : {"out.xml", "far.xml", "absolute.xml", "neighbour.xml"}) {
        EXPECT_FALSE(Folder().Holds(Text(name))) << name;
        EXPECT_EQ(Folder().Content(Text(name)), std::nullopt) << name;
        EXPECT_EQ(ReplaceFailure(name), kRefused) << name;
    }
    EXPECT_EQ(Read("../templates-old/x.xml"), "old");
}

TEST_F(TemplateFilesTest, AWayThatOnlyLooksAsIfItStayedInIsNone)
{
    fs::create_directories(Place("../elsewhere/deep"));
    Write("../elsewhere/a.xml", "elsewhere");
    Write("a.xml", "a");
    Link("../elsewhere/deep", "sub");
    Link("sub/../a.xml", "a-link.xml");
    EXPECT_FALSE(Folder().Holds("a-link.xml"));
    EXPECT_EQ(ReplaceFailure("a-link.xml"), kRefused);
    EXPECT_EQ(Read("../elsewhere/a.xml"), "elsewhere");
    EXPECT_EQ(Read("a.xml"), "a");
}

TEST_F(TemplateFilesTest, AWayThatOnlyLooksAsIfItLedOutStaysIn)
{
    fs::create_directories(Place("../elsewhere/deep/er"));
    Write("a.xml", "a");
    Link("../elsewhere/deep/er", "sub");
    Link("sub/../../../templates/a.xml", "a-link.xml");
    Folder().Replace("a-link.xml", "new");
    EXPECT_EQ(Read("a.xml"), "new");
}

TEST_F(TemplateFilesTest, ALinkToNothingIsNotWrittenThrough)
{
    Link("../made.xml", "dangling.xml");
    Link("loop.xml", "loop.xml");
    for (const char* name : {"dangling.xml", "loop.xml"}) {
        EXPECT_FALSE(Folder().Holds(Text(name))) << name;
        EXPECT_TRUE(Folder().HasFile(Text(name))) << name;
        EXPECT_EQ(ReplaceFailure(name), kRefused) << name;
    }
    EXPECT_FALSE(fs::exists(Place("../made.xml")));
}

TEST_F(TemplateFilesTest, DeletingALinkLeavesWhatItLeadsTo)
{
    Write("a.xml", "a");
    Link("a.xml", "near.xml");
    Link("../outside.xml", "out.xml");
    Link("nothing", "dangling.xml");
    for (const char* name : {"near.xml", "out.xml", "dangling.xml"})
        EXPECT_EQ(DeleteFailure(name), "") << name;
    EXPECT_EQ(Names(), "a.xml");
}

TEST_F(TemplateFilesTest, AFolderThatIsALinkIsTheFolder)
{
    fs::create_directory_symlink(Place(""), Place("../link"));
    const TemplateFiles folder(m_around.path() + "/link");
    folder.Replace("a.xml", "1");
    folder.Replace("a.xml", "2");
    EXPECT_EQ(Read("a.xml"), "2");
    EXPECT_EQ(folder.Content("a.xml"), QByteArray("2"));
}
