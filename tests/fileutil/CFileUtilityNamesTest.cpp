// Names, paths and titles of the current match.

#include "Matches.h"
#include "TestFolder.h"

#include <QDir>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct CFileUtilityNames : ::testing::Test
{
    /// Makes a file and finds it by a wildcard.
    void Find(const std::string& name)
    {
        folder.File(name);
        ASSERT_TRUE(file.FindFile(folder.Text("*")));
        while (file.IsDots() && file.FindNextFile())
            continue;
    }

    std::string Title(const std::string& name)
    {
        Find(name);
        folder.Remove(name);
        return file.GetFileTitle().toStdString();
    }

    TestFolder folder;
    CFileUtility file;
};

} // namespace

TEST_F(CFileUtilityNames, AreEmptyWithoutAMatch)
{
    EXPECT_EQ(file.GetRoot(), "");
    EXPECT_EQ(file.GetFileName(), "");
    EXPECT_EQ(file.GetFileTitle(), "");
    EXPECT_EQ(file.GetFilePath(), "");
    EXPECT_EQ(file.GetFileURL(), "");
    EXPECT_EQ(file.GetShortName(), "");
    EXPECT_EQ(file.GetShortPath(), "");
}

TEST_F(CFileUtilityNames, OfAMatch)
{
    Find("Pump data.v2.xml");
    EXPECT_EQ(file.GetFileName(), "Pump data.v2.xml");
    EXPECT_EQ(file.GetFileTitle(), "Pump data");
    EXPECT_EQ(file.GetFilePath(), folder.Text("Pump data.v2.xml"));
    EXPECT_EQ(file.GetRoot(), folder.Text(""));
    EXPECT_EQ(file.GetFileURL(), "file://" + folder.Text("Pump data.v2.xml"));
}

TEST_F(CFileUtilityNames, HaveNoShortForms)
{
    Find("A rather long name.template");
    EXPECT_EQ(file.GetShortName(), "A rather long name.template");
    EXPECT_EQ(file.GetShortPath(), folder.Text("A rather long name.template"));
}

TEST_F(CFileUtilityNames, HaveATitleUpToTheFirstDot)
{
    EXPECT_EQ(Title("a.xml"), "a");
    EXPECT_EQ(Title("a.b.c"), "a");
    EXPECT_EQ(Title("name"), "name");
    EXPECT_EQ(Title("name."), "name");
    EXPECT_EQ(Title(".profile"), "");
    EXPECT_EQ(Title("Насосы.xml"), "Насосы");
}

TEST_F(CFileUtilityNames, AreDotsForOneAndTwoDotsOnly)
{
    folder.Files({"...", ".a", "a"});
    QStringList dots;
    for (bool found = file.FindFile(folder.Text("*")); found; found = file.FindNextFile()) {
        if (file.IsDots())
            dots << file.GetFileName();
    }
    EXPECT_EQ(dots, (QStringList{".", ".."}));
}

TEST_F(CFileUtilityNames, AreTrimmedOfBlanksAlone)
{
    Find("  a b.xml ");
    EXPECT_EQ(file.GetFileName(), "a b.xml");
    EXPECT_EQ(file.GetFileTitle(), "a b");
    EXPECT_EQ(file.GetFilePath(), folder.Text("a b.xml"));
    folder.Remove("  a b.xml ");
    Find("\ta\xC2\xA0");
    EXPECT_EQ(file.GetFileName(), QString("\ta") + QChar(0xA0));
}

TEST_F(CFileUtilityNames, ThatAreDotsBetweenBlanksAreDots)
{
    folder.File(" .. ");
    ASSERT_TRUE(file.FindFile(folder.Text(" .. ")));
    EXPECT_TRUE(file.IsDots());
}

TEST_F(CFileUtilityNames, KeepTheRootAsItWasWritten)
{
    folder.Folder("sub");
    folder.File("sub/a.xml");
    const QString root = folder.Text("sub\\..//sub\\");
    ASSERT_TRUE(file.FindFile(root + "*.xml"));
    EXPECT_EQ(file.GetRoot(), root);
    EXPECT_EQ(file.GetFilePath(), root + "a.xml");
    EXPECT_EQ(file.GetFileURL(), "file://" + folder.Text("sub/a.xml"));
}

TEST_F(CFileUtilityNames, TellTheRootTrimmedAndThePathUnchanged)
{
    folder.Folder(" sub");
    folder.File(" sub/a.xml");
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.Text("")));
    EXPECT_TRUE(file.FindFile(" sub/*.xml"));
    QDir::setCurrent(before);
    EXPECT_EQ(file.GetRoot(), "sub/");
    EXPECT_EQ(file.GetFilePath(), " sub/a.xml");
    EXPECT_EQ(file.GetFileURL(), "file://" + folder.Text(" sub/a.xml"));
}

TEST_F(CFileUtilityNames, OfARelativePatternHaveAnAbsoluteUrl)
{
    folder.Folder("sub");
    folder.Files({"a.xml", "sub/b.xml"});
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.Text("sub")));
    EXPECT_TRUE(file.FindFile("*.xml"));
    EXPECT_EQ(file.GetRoot(), "");
    EXPECT_EQ(file.GetFilePath(), "b.xml");
    EXPECT_EQ(file.GetFileURL(), "file://" + folder.Text("sub/b.xml"));
    EXPECT_TRUE(file.FindFile("..\\*.xml"));
    EXPECT_EQ(file.GetRoot(), "..\\");
    EXPECT_EQ(file.GetFilePath(), "..\\a.xml");
    EXPECT_EQ(file.GetFileURL(), "file://" + folder.Text("a.xml"));
    QDir::setCurrent(before);
}

TEST_F(CFileUtilityNames, OfDotsHaveTheUrlOfTheFolder)
{
    folder.Folder("sub");
    ASSERT_TRUE(file.FindFile(folder.Text("sub/.")));
    EXPECT_EQ(file.GetFileURL(), "file://" + folder.Text("sub"));
    ASSERT_TRUE(file.FindFile(folder.Text("sub/..")));
    EXPECT_EQ(file.GetFileURL() + '/', "file://" + folder.Text(""));
    ASSERT_TRUE(file.FindFile("/.."));
    EXPECT_EQ(file.GetFileURL(), "file:///");
}

TEST_F(CFileUtilityNames, AreNotEncodedInTheUrl)
{
    Find("Отчёт 100% #1.xml");
    EXPECT_EQ(file.GetFileURL(), "file://" + folder.Text(QString::fromUtf8("Отчёт 100% #1.xml")));
}

TEST_F(CFileUtilityNames, ThatAreNoTextHaveSurrogatesInAllForms)
{
    Find("b\\\xFF.xml");
    const QString title = QString("b") + QChar(0xDC5C) + QChar(0xDCFF);
    EXPECT_EQ(file.GetFileName(), title + ".xml");
    EXPECT_EQ(file.GetFileTitle(), title);
    EXPECT_EQ(file.GetFilePath(), folder.Text(title + ".xml"));
    EXPECT_EQ(file.GetFileURL(), "file://" + folder.Text(title + ".xml"));
}
