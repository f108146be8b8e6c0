#include "Matches.h"
#include "TestFolder.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

struct CFileUtilityDelete : ::testing::Test
{
    bool Deleted(const QString& name) { return file.DeleteFile(folder.Text(name)); }

    TestFolder folder;
    CFileUtility file;
};

} // namespace

TEST_F(CFileUtilityDelete, DeletesAFile)
{
    folder.Files({"a.xml", "b.xml"});
    EXPECT_TRUE(Deleted("a.xml"));
    EXPECT_EQ(NamesWithoutDots(folder.Text("*")), QStringList{"b.xml"});
}

TEST_F(CFileUtilityDelete, TakesBothSeparators)
{
    folder.Folder("sub");
    folder.File("sub/a.xml");
    EXPECT_TRUE(Deleted("sub\\a.xml"));
    EXPECT_FALSE(folder.Has("sub/a.xml"));
}

TEST_F(CFileUtilityDelete, FailsForAMissingFile)
{
    EXPECT_FALSE(Deleted("a.xml"));
    EXPECT_FALSE(Deleted("sub/a.xml"));
    EXPECT_FALSE(file.DeleteFile(""));
}

TEST_F(CFileUtilityDelete, FailsForAFolder)
{
    folder.Folder("sub");
    EXPECT_FALSE(Deleted("sub"));
    EXPECT_FALSE(Deleted("sub/"));
    EXPECT_TRUE(folder.Has("sub"));
}

TEST_F(CFileUtilityDelete, FailsForAReadOnlyFile)
{
    folder.File("a.xml");
    folder.Mode("a.xml", 0466);
    EXPECT_FALSE(Deleted("a.xml"));
    EXPECT_TRUE(folder.Has("a.xml"));
}

TEST_F(CFileUtilityDelete, FailsWhereNothingMayBeDeleted)
{
    folder.File("a.xml");
    folder.Mode("a.xml", 0666);
    const OrdinaryUser user;
    EXPECT_FALSE(Deleted("a.xml"));
    EXPECT_TRUE(folder.Has("a.xml"));
}

TEST_F(CFileUtilityDelete, DeletesALinkAndNotWhatItLeadsTo)
{
    folder.File("target");
    folder.Mode("target", 0444);
    folder.Folder("sub");
    folder.Link("target", "to a file");
    folder.Link("sub", "to a folder");
    folder.Link("nowhere", "to nowhere");
    folder.Link("to itself", "to itself");
    for (const char* link : {"to a file", "to a folder", "to nowhere", "to itself"})
        EXPECT_TRUE(Deleted(link)) << link;
    EXPECT_EQ(NamesWithoutDots(folder.Text("*")), (QStringList{"sub", "target"}));
}

TEST_F(CFileUtilityDelete, KnowsNoWildcards)
{
    folder.Files({"a.xml", "b.xml"});
    EXPECT_FALSE(Deleted("*.xml"));
    EXPECT_FALSE(Deleted("?.xml"));
    folder.File("*.xml");
    EXPECT_TRUE(Deleted("*.xml"));
    EXPECT_EQ(NamesWithoutDots(folder.Text("*")), (QStringList{"a.xml", "b.xml"}));
}

TEST_F(CFileUtilityDelete, DeletesTheVeryFileThatWasFound)
{
    const std::string names[]{"a\xFF.xml", "a\xFE.xml", "b\\c.xml",         "\xEF\xBB\xBFx.xml",
                              "x.xml",     "*?.xml",    "Насосы.xml",       "\xED\xA0\xBD\xED\xB8\x80.xml",
                              "😀.xml",     "\n.xml",    "\xF0\x9F\x98.xml", "\xC3\xA4.xml"};
    folder.Folder("b");
    folder.File("b/c.xml");
    for (const std::string& name : names) {
        folder.File(name);
        ASSERT_TRUE(file.FindFile(folder.Text("*.xml"))) << name;
        for (const std::string& other : names)
            folder.File(other);
        EXPECT_TRUE(file.DeleteFile(file.GetFilePath())) << name;
        EXPECT_FALSE(folder.Has(name)) << name;
        folder.File(name);
        EXPECT_EQ(NamesWithoutDots(folder.Text("*.xml")).size(), static_cast<qsizetype>(std::size(names))) << name;
        for (const std::string& other : names)
            folder.Remove(other);
    }
    EXPECT_TRUE(folder.Has("b/c.xml")) << "a backslash of a name is no separator";
}

TEST_F(CFileUtilityDelete, FailsForWhatNoFileIsCalled)
{
    folder.Files({"a.xml", "b"});
    EXPECT_FALSE(Deleted(QString("a.xml") + QChar(u'\0')));
    EXPECT_FALSE(Deleted(QString("b") + QChar(0xDC00)));
    EXPECT_FALSE(Deleted(QString("b") + QChar(0xD800)));
    EXPECT_EQ(NamesWithoutDots(folder.Text("*")), (QStringList{"a.xml", "b"}));
}

TEST_F(CFileUtilityDelete, LeavesTheSearchAndItsMatch)
{
    folder.Files({"a.xml", "b.xml"});
    ASSERT_TRUE(file.FindFile(folder.Text("*.xml")));
    EXPECT_TRUE(file.DeleteFile(file.GetFilePath()));
    EXPECT_EQ(file.GetFileName(), "a.xml");
    EXPECT_TRUE(file.FindNextFile());
    EXPECT_EQ(file.GetFileName(), "b.xml");
}
