// Which files a search finds, in which order, and what happens to it meanwhile.

#include "Matches.h"
#include "TestFolder.h"

#include <QDir>

#include <algorithm>
#include <filesystem>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct CFileUtilitySearch : ::testing::Test
{
    QStringList Found(const QString& pattern) const { return Names(folder.Text(pattern)); }

    TestFolder folder;
};

/// Another current folder, as long as it lives.
class CurrentFolderChange
{
public:
    explicit CurrentFolderChange(const QString& folder) : m_before(QDir::currentPath())
    {
        EXPECT_TRUE(QDir::setCurrent(folder));
    }
    ~CurrentFolderChange() { QDir::setCurrent(m_before); }
    Q_DISABLE_COPY_MOVE(CurrentFolderChange)

private:
    QString m_before;
};

std::ptrdiff_t OpenHandles()
{
    return std::ranges::distance(std::filesystem::directory_iterator("/proc/self/fd"));
}

} // namespace

TEST_F(CFileUtilitySearch, FindsEveryNameInOrderByEitherWildcardForAll)
{
    folder.Files({"b.xml", "a", "C.txt", "Ёлка.xml", ".hidden"});
    folder.Folder("sub");
    const QStringList all{".", "..", ".hidden", "C.txt", "a", "b.xml", "sub", QString::fromUtf8("Ёлка.xml")};
    EXPECT_EQ(Found("*"), all);
    EXPECT_EQ(Found("*.*"), all);
    EXPECT_EQ(Found("**"), all);
}

TEST_F(CFileUtilitySearch, FindsWhatMatchesAPattern)
{
    folder.Files({"abc.xml", "abd.xml", "axc", "ABC.XML", "[a]", "a"});
    EXPECT_EQ(Found("*.xml"), (QStringList{"abc.xml", "abd.xml"}));
    EXPECT_EQ(Found("a?c*"), (QStringList{"abc.xml", "axc"}));
    EXPECT_EQ(Found("?"), (QStringList{".", "a"}));
    EXPECT_EQ(Found("[a]"), QStringList{"[a]"});
    EXPECT_EQ(Found("*.pdf"), QStringList());
}

TEST_F(CFileUtilitySearch, FindsDotsWhereTheWildcardsMatchThem)
{
    EXPECT_EQ(Found(".*"), (QStringList{".", ".."}));
    EXPECT_EQ(Found("??"), QStringList{".."});
    EXPECT_EQ(Found("x*"), QStringList());
}

TEST_F(CFileUtilitySearch, OfANameWithoutWildcardsAsksTheFileSystem)
{
    folder.Files({"a.xml", "b.xml"});
    EXPECT_EQ(Found("a.xml"), QStringList{"a.xml"});
    EXPECT_EQ(Found("A.xml"), QStringList());
    EXPECT_EQ(Found("c.xml"), QStringList());
    EXPECT_EQ(Found(".."), QStringList{".."});
}

TEST_F(CFileUtilitySearch, OfAFolderWithSeparatorAndNoNameFindsNothing)
{
    folder.Folder("sub");
    EXPECT_EQ(Found("sub/"), QStringList());
    EXPECT_EQ(Found("sub\\"), QStringList());
    EXPECT_EQ(Found("sub"), QStringList{"sub"});
}

TEST_F(CFileUtilitySearch, TakesBothSeparators)
{
    folder.Folder("sub");
    folder.File("sub/a.xml");
    EXPECT_EQ(Found("sub/*.xml"), QStringList{"a.xml"});
    EXPECT_EQ(Found("sub\\*.xml"), QStringList{"a.xml"});
    EXPECT_EQ(Found("sub\\a.xml"), QStringList{"a.xml"});
    EXPECT_EQ(Names(folder.Text("sub\\*.xml").replace('/', '\\')), QStringList{"a.xml"});
}

TEST_F(CFileUtilitySearch, TakesWildcardsInTheLastPartAlone)
{
    folder.Folder("sub");
    folder.File("sub/a.xml");
    EXPECT_EQ(Found("s*/a.xml"), QStringList());
    EXPECT_EQ(Found("s?b/*"), QStringList());
    folder.Folder("s*");
    folder.File("s*/b.xml");
    EXPECT_EQ(Found("s*/*.xml"), QStringList{"b.xml"}) << "a folder may be called so";
}

TEST_F(CFileUtilitySearch, FindsNothingInWhatIsNoFolder)
{
    folder.File("file");
    EXPECT_EQ(Found("file/*"), QStringList());
    EXPECT_EQ(Found("missing/*"), QStringList());
    EXPECT_EQ(Names(QString("/") + QString(5'000, u'a') + "/*"), QStringList()) << "a path too long";
    EXPECT_EQ(Names('/' + QStringLiteral("a/").repeated(5'000) + '*'), QStringList());
}

TEST_F(CFileUtilitySearch, FindsNothingByWhatNoFileIsCalled)
{
    folder.Files({"a", "ab"});
    EXPECT_EQ(Found(QString("a") + QChar(u'\0') + 'b'), QStringList());
    EXPECT_EQ(Found(QString("*") + QChar(0xD83D)), QStringList());
    EXPECT_EQ(Found(QString("sub") + QChar(u'\0') + "/*"), QStringList());
}

TEST_F(CFileUtilitySearch, OfNothingIsOfEveryNameInTheCurrentFolder)
{
    folder.Files({"b", "a.xml"});
    const CurrentFolderChange inFolder(folder.Text(""));
    EXPECT_EQ(Names(""), (QStringList{".", "..", "a.xml", "b"}));
    EXPECT_EQ(Names("*.xml"), QStringList{"a.xml"});
    EXPECT_EQ(Names("a.xml"), QStringList{"a.xml"});
}

TEST_F(CFileUtilitySearch, OfBlanksIsOfAFileCalledSo)
{
    folder.Files({"a"});
    EXPECT_EQ(Found(" "), QStringList());
    folder.File(" ");
    EXPECT_EQ(Found(" "), QStringList{""});
    const CurrentFolderChange inFolder(folder.Text(""));
    EXPECT_EQ(Names(" "), QStringList{""}) << "and not of every name";
}

TEST_F(CFileUtilitySearch, GoesOnInItsFolderWhenTheCurrentOneChanges)
{
    folder.Files({"a.xml", "b.xml"});
    CFileUtility file;
    {
        const CurrentFolderChange inFolder(folder.Text(""));
        EXPECT_TRUE(file.FindFile("*.xml"));
    }
    EXPECT_TRUE(file.FindNextFile());
    EXPECT_EQ(file.GetFileName(), "b.xml");
    EXPECT_EQ(file.GetFileURL(), "file://" + folder.Text("b.xml"));
}

TEST_F(CFileUtilitySearch, FindsNamesOfFullLength)
{
    const std::string longest(255, 'a');
    folder.File(longest);
    folder.File(std::string(253, 'a') + "б");
    const QString text = QString::fromStdString(longest);
    EXPECT_EQ(Found("*a"), QStringList{text});
    EXPECT_EQ(Found(text), QStringList{text});
    EXPECT_EQ(Found(text + 'a'), QStringList()) << "longer than a name can be";
    EXPECT_EQ(Found(QString(254, '?')), QStringList(QString(253, u'a') + QString::fromUtf8("б")));
}

TEST_F(CFileUtilitySearch, FindsNamesThatAreNoText)
{
    folder.Files({"a\xFF.xml", "b\\c.xml", "\xE6\x97"});
    const QString first = QString("a") + QChar(0xDCFF) + ".xml";
    const QString second = QString("b") + QChar(0xDC5C) + "c.xml";
    EXPECT_EQ(Found("*.xml"), (QStringList{first, second}));
    EXPECT_EQ(Found("a?.xml"), QStringList{first});
    EXPECT_EQ(Found("b?c.xml"), QStringList{second});
    EXPECT_EQ(Found(first), QStringList{first});
    EXPECT_EQ(Found(second), QStringList{second});
    EXPECT_EQ(Found(second.left(2) + '*'), QStringList{second});
    EXPECT_EQ(Found("??"), (QStringList{"..", QString(QChar(0xDCE6)) + QChar(0xDC97)}))
        << "bytes that are no character";
}

TEST_F(CFileUtilitySearch, CountsCharactersOfAnyLengthAsOne)
{
    folder.Files({"é", "日", "😀", "ab"});
    EXPECT_EQ(Found("?"), (QStringList{".", QString::fromUtf8("é"), QString::fromUtf8("日"), QString::fromUtf8("😀")}));
}

TEST_F(CFileUtilitySearch, SearchesFoldersWhoseNamesAreNoText)
{
    folder.Folder("x\xFF\\y");
    folder.File("x\xFF\\y/a.xml");
    CFileUtility file;
    ASSERT_TRUE(file.FindFile(folder.Text("x*")));
    EXPECT_EQ(Names(file.GetFilePath() + "\\*.xml"), QStringList{"a.xml"});
}

TEST_F(CFileUtilitySearch, FindsAHundredThousandFilesInOrder)
{
    constexpr int kFiles = 100'000;
    const std::string targets[]{"a", "b", "c"};
    folder.Files({"a", "b", "c"});
    for (int number = 0; number < kFiles; ++number)
        folder.HardLink(targets[number % 3], std::to_string(1'000'000 + number * 7919LL % kFiles) + ".xml");
    const QStringList names = Found("*.xml");
    EXPECT_EQ(names.size(), kFiles);
    EXPECT_TRUE(std::ranges::is_sorted(names));
    EXPECT_EQ(names.front(), "1000000.xml");
    EXPECT_EQ(names.back(), "1099999.xml");
    EXPECT_EQ(Found("*").size(), kFiles + 5) << "with dots and what is linked";
}

TEST_F(CFileUtilitySearch, LeavesOutFilesThatVanish)
{
    folder.Files({"a", "b", "c", "d"});
    CFileUtility file;
    ASSERT_TRUE(file.FindFile(folder.Text("?")));
    EXPECT_EQ(file.GetFileName(), ".");
    folder.Remove("a");
    folder.Remove("b");
    EXPECT_TRUE(file.FindNextFile());
    EXPECT_EQ(file.GetFileName(), "c");
    folder.Remove("d");
    EXPECT_FALSE(file.FindNextFile());
    EXPECT_EQ(file.GetFileName(), "c");
}

TEST_F(CFileUtilitySearch, EndsWhenItsFolderVanishes)
{
    folder.Folder("sub");
    folder.Files({"sub/a", "sub/b"});
    CFileUtility file;
    ASSERT_TRUE(file.FindFile(folder.Text("sub/?*")));
    folder.Remove("sub/a");
    folder.Remove("sub/b");
    ASSERT_EQ(::rmdir(folder.Bytes("sub").c_str()), 0);
    while (file.FindNextFile())
        EXPECT_TRUE(file.IsDots()) << file.GetFileName().toStdString();
    EXPECT_FALSE(file.FindFile(folder.Text("sub/*")));
}

TEST_F(CFileUtilitySearch, TellsTheFilesThatWereThereWhenItBegan)
{
    folder.Files({"a.xml", "c.xml"});
    CFileUtility file;
    ASSERT_TRUE(file.FindFile(folder.Text("*.xml")));
    folder.File("b.xml");
    EXPECT_TRUE(file.FindNextFile());
    EXPECT_EQ(file.GetFileName(), "c.xml");
}

TEST_F(CFileUtilitySearch, TellsOfAFileWhatIsSoWhenItsTurnComes)
{
    folder.Files({"a.xml", "b.xml"});
    CFileUtility file;
    ASSERT_TRUE(file.FindFile(folder.Text("*.xml")));
    folder.File("b.xml", "12345");
    EXPECT_TRUE(file.FindNextFile());
    EXPECT_EQ(file.GetLength(), 5);
}

TEST_F(CFileUtilitySearch, StaysAtItsEnd)
{
    folder.Files({"a.xml"});
    CFileUtility file;
    ASSERT_TRUE(file.FindFile(folder.Text("*.xml")));
    for (int more = 0; more < 3; ++more)
        EXPECT_FALSE(file.FindNextFile());
    EXPECT_EQ(file.GetFileName(), "a.xml");
}

TEST_F(CFileUtilitySearch, HasNoNextMatchUnlessItIsOpen)
{
    folder.Files({"a.xml", "b.xml"});
    CFileUtility file;
    EXPECT_FALSE(file.FindNextFile());
    ASSERT_TRUE(file.FindFile(folder.Text("*.xml")));
    file.FindClose();
    EXPECT_FALSE(file.FindNextFile());
    EXPECT_EQ(file.GetFileName(), "a.xml");
    file.FindClose();
}

TEST_F(CFileUtilitySearch, EndsWhenAnotherOneBegins)
{
    folder.Files({"a.xml", "b.xml", "a.txt"});
    CFileUtility file;
    ASSERT_TRUE(file.FindFile(folder.Text("*.xml")));
    ASSERT_TRUE(file.FindFile(folder.Text("*.txt")));
    EXPECT_EQ(file.GetFileName(), "a.txt");
    EXPECT_FALSE(file.FindNextFile());
}

TEST_F(CFileUtilitySearch, ThatFindsNothingEndsTheOneBeforeAndLeavesItsMatch)
{
    folder.Files({"a.xml", "b.xml"});
    CFileUtility file;
    ASSERT_TRUE(file.FindFile(folder.Text("*.xml")));
    EXPECT_FALSE(file.FindFile(folder.Text("missing/*")));
    EXPECT_FALSE(file.FindNextFile());
    EXPECT_EQ(file.GetFilePath(), folder.Text("a.xml"));
    EXPECT_EQ(file.GetFileURL(), "file://" + folder.Text("a.xml"));
    EXPECT_EQ(file.GetRoot(), folder.Text("missing/")) << "the latest pattern's";
}

TEST_F(CFileUtilitySearch, LeavesNoHandleOpen)
{
    folder.Files({"a.xml", "b.xml"});
    const auto before = OpenHandles();
    {
        CFileUtility file;
        for (int again = 0; again < 20; ++again)
            EXPECT_TRUE(file.FindFile(folder.Text("*.xml")));
        EXPECT_LE(OpenHandles(), before + 1);
        file.FindClose();
        EXPECT_EQ(OpenHandles(), before) << "closed";
        EXPECT_TRUE(file.FindFile(folder.Text("a.xml")));
        EXPECT_FALSE(file.FindFile(folder.Text("*.pdf")));
        EXPECT_EQ(OpenHandles(), before) << "nothing found";
        EXPECT_FALSE(file.FindFile(folder.Text("a.xml/*")));
        EXPECT_EQ(OpenHandles(), before) << "no folder";
        EXPECT_TRUE(file.FindFile(folder.Text("*.xml")));
    }
    EXPECT_EQ(OpenHandles(), before) << "destroyed";
}

TEST_F(CFileUtilitySearch, FindsNothingInFoldersThatMayNotBeRead)
{
    folder.Folder("closed");
    folder.File("closed/a.xml");
    folder.Mode("closed", 0711);
    const OrdinaryUser user;
    EXPECT_EQ(Found("closed/*"), QStringList());
    EXPECT_EQ(Found("closed/a.xml"), QStringList{"a.xml"}) << "which may be looked up";
}

TEST_F(CFileUtilitySearch, LeavesOutFilesThatMayNotBeAskedAbout)
{
    folder.Folder("names only");
    folder.File("names only/a.xml");
    folder.Mode("names only", 0744);
    const OrdinaryUser user;
    EXPECT_EQ(Found("names only/*"), QStringList());
}

TEST_F(CFileUtilitySearch, SearchesTheRoot)
{
    EXPECT_TRUE(Names("/*").contains("tmp"));
    EXPECT_EQ(Names("/tmp"), QStringList{"tmp"});
    EXPECT_EQ(Names("/"), QStringList());
}
