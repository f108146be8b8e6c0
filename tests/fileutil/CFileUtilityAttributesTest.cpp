// Attributes, sizes and links.

#include "Matches.h"
#include "TestFolder.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

struct CFileUtilityAttributes : ::testing::Test
{
    /// The attributes in hexadecimal digits, and what is said of them one by one.
    std::string Told(const QString& name)
    {
        EXPECT_TRUE(file.FindFile(folder.Text(name))) << name.toStdString();
        return Drawn(file);
    }

    static std::string Drawn(const CFileUtility& file)
    {
        QStringList told{QString::number(file.GetAttributes(), 16)};
        const auto tell = [&](bool is, const char* what) {
            if (is)
                told << what;
        };
        tell(file.IsReadOnly(), "read-only");
        tell(file.IsHidden(), "hidden");
        tell(file.IsSystem(), "system");
        tell(file.IsDirectory(), "directory");
        tell(file.IsArchived(), "archived");
        tell(file.IsNormal(), "normal");
        tell(file.IsTemporary(), "temporary");
        tell(file.IsCompressed(), "compressed");
        return told.join(' ').toStdString();
    }

    TestFolder folder;
    CFileUtility file;
};

} // namespace

TEST_F(CFileUtilityAttributes, OfAPlainFileAreNormal)
{
    folder.File("a.xml");
    EXPECT_EQ(Told("a.xml"), "80 normal");
}

TEST_F(CFileUtilityAttributes, AreReadOnlyWhenTheOwnerMayNotWrite)
{
    folder.File("a.xml");
    folder.Mode("a.xml", 0466);
    EXPECT_EQ(Told("a.xml"), "1 read-only");
    folder.Mode("a.xml", 0200);
    EXPECT_EQ(Told("a.xml"), "80 normal");
}

TEST_F(CFileUtilityAttributes, AreHiddenByALeadingDot)
{
    folder.Files({".a", "b."});
    EXPECT_EQ(Told(".a"), "2 hidden");
    EXPECT_EQ(Told("b."), "80 normal");
}

TEST_F(CFileUtilityAttributes, TellFolders)
{
    folder.Folder("sub");
    EXPECT_EQ(Told("sub"), "10 directory");
}

TEST_F(CFileUtilityAttributes, AddUp)
{
    folder.Folder(".sub");
    folder.Mode(".sub", 0555);
    EXPECT_EQ(Told(".sub"), "13 read-only hidden directory");
}

TEST_F(CFileUtilityAttributes, OfDotsAreThoseOfHiddenFolders)
{
    EXPECT_EQ(Told("."), "12 hidden directory");
    EXPECT_EQ(Told("..").substr(3), "hidden directory");
}

TEST_F(CFileUtilityAttributes, MatchAMaskByAnyCommonBit)
{
    folder.Folder(".sub");
    ASSERT_TRUE(file.FindFile(folder.Text(".sub")));
    EXPECT_TRUE(file.MatchesMask(0x10));
    EXPECT_TRUE(file.MatchesMask(0x12));
    EXPECT_TRUE(file.MatchesMask(0x81 | 0x2));
    EXPECT_FALSE(file.MatchesMask(0x81));
    EXPECT_FALSE(file.MatchesMask(0));
}

TEST_F(CFileUtilityAttributes, WithoutAMatchAreNone)
{
    EXPECT_EQ(Drawn(file), "0");
    EXPECT_FALSE(file.MatchesMask(0xFFFFFFFF));
    EXPECT_FALSE(file.IsDots());
    EXPECT_EQ(file.GetLength(), 0);
    EXPECT_EQ(file.GetLength64(), 0.0);
}

TEST_F(CFileUtilityAttributes, OfALinkAreThoseOfWhatItLeadsTo)
{
    folder.File("target", "12345");
    folder.Mode("target", 0444);
    folder.Folder("sub");
    folder.Link("target", "link");
    folder.Link("link", ".link to a link");
    folder.Link("sub", "link to a folder");
    EXPECT_EQ(Told("link"), "1 read-only");
    EXPECT_EQ(file.GetLength(), 5);
    EXPECT_EQ(Told(".link to a link"), "3 read-only hidden") << "the name is its own";
    EXPECT_EQ(file.GetLength(), 5);
    EXPECT_EQ(Told("link to a folder"), "10 directory");
}

TEST_F(CFileUtilityAttributes, OfADanglingLinkAreItsOwn)
{
    folder.Link("nowhere", "link");
    EXPECT_EQ(Told("link"), "80 normal");
    EXPECT_EQ(file.GetLength(), 7) << "as long as what it says";
    folder.Link("also/nowhere", "deep");
    EXPECT_EQ(Told("deep"), "80 normal");
}

TEST_F(CFileUtilityAttributes, OfALoopOfLinksAreTheirOwn)
{
    folder.Link("two", "one");
    folder.Link("one", "two");
    folder.Link("itself", "itself");
    EXPECT_EQ(NamesWithoutDots(folder.Text("*")), (QStringList{"itself", "one", "two"}));
    EXPECT_EQ(Told("itself"), "80 normal");
    EXPECT_EQ(file.GetLength(), 6);
    EXPECT_FALSE(file.FindFile(folder.Text("one/*")));
}

TEST_F(CFileUtilityAttributes, OfALinkToWhatMayNotBeAskedAboutAreItsOwn)
{
    folder.Folder("closed");
    folder.File("closed/a.xml", "12345");
    folder.Mode("closed", 0700);
    folder.Link("closed/a.xml", "link");
    const OrdinaryUser user;
    EXPECT_EQ(Told("link"), "80 normal");
    EXPECT_EQ(file.GetLength(), 12);
}

TEST_F(CFileUtilityAttributes, OfALinkToItsOwnFolderAreAFolders)
{
    folder.Link(".", "here");
    EXPECT_EQ(Told("here"), "10 directory");
    EXPECT_EQ(NamesWithoutDots(folder.Text("here/here/here/*")), QStringList{"here"});
}

TEST_F(CFileUtilityAttributes, TellTheLength)
{
    folder.File("empty");
    folder.File("five", "12345");
    ASSERT_TRUE(file.FindFile(folder.Text("empty")));
    EXPECT_EQ(file.GetLength(), 0);
    EXPECT_EQ(file.GetLength64(), 0.0);
    ASSERT_TRUE(file.FindFile(folder.Text("five")));
    EXPECT_EQ(file.GetLength(), 5);
    EXPECT_EQ(file.GetLength64(), 5.0);
}

TEST_F(CFileUtilityAttributes, TellTheLowerHalfOfTheLengthAsASignedNumber)
{
    folder.FileOfSize("2 GiB less one", 0x7FFFFFFF);
    folder.FileOfSize("3 GiB", 0xC0000000);
    ASSERT_TRUE(file.FindFile(folder.Text("2 GiB less one")));
    EXPECT_EQ(file.GetLength(), 2147483647);
    EXPECT_EQ(file.GetLength64(), 2147483647.0);
    ASSERT_TRUE(file.FindFile(folder.Text("3 GiB")));
    EXPECT_EQ(file.GetLength(), -1073741824);
    EXPECT_EQ(file.GetLength64(), -1073741824.0);
}

TEST_F(CFileUtilityAttributes, TellTheUpperHalfOfTheLengthTimes2E32)
{
    folder.FileOfSize("4 GiB", 0x100000000);
    folder.FileOfSize("5 GiB", 0x140000000);
    folder.FileOfSize("15 GiB", 0x3C0000000);
    ASSERT_TRUE(file.FindFile(folder.Text("4 GiB")));
    EXPECT_EQ(file.GetLength(), 0);
    EXPECT_EQ(file.GetLength64(), 2E+32);
    ASSERT_TRUE(file.FindFile(folder.Text("5 GiB")));
    EXPECT_EQ(file.GetLength(), 1073741824);
    EXPECT_EQ(file.GetLength64(), 2E+32 + 1073741824.0);
    ASSERT_TRUE(file.FindFile(folder.Text("15 GiB")));
    EXPECT_EQ(file.GetLength(), -1073741824);
    EXPECT_EQ(file.GetLength64(), 3 * 2E+32 - 1073741824.0);
}
