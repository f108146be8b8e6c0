#include "fileutil/DirectorySearch.h"

#include "TestFolder.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

using namespace schedules;
using namespace schedules::testing;

TEST(DirectorySearch, TellsEachFileOnce)
{
    const TestFolder folder;
    folder.File("a.xml", "12345");
    folder.File("b.xml");
    DirectorySearch search(folder.Text(""), "*.xml");
    const auto first = search.Next();
    ASSERT_TRUE(first);
    EXPECT_EQ(first->name, "a.xml");
    EXPECT_EQ(first->size, 5U);
    EXPECT_EQ(first->attributes, kNormalFile);
    EXPECT_EQ(search.Next()->name, "b.xml");
    EXPECT_FALSE(search.Next());
    EXPECT_FALSE(search.Next());
}

TEST(DirectorySearch, OfAFolderThatIsMissingTellsNothing)
{
    const TestFolder folder;
    DirectorySearch search(folder.Text("missing/"), "*");
    EXPECT_FALSE(search.Next());
}

TEST(DirectorySearch, AloneAsksTheSystem)
{
    const QRegularExpression systemHeader("#include <(dirent|fcntl|unistd|sys/[a-z]+|filesystem)(\\.h)?>");
    QStringList files;
    QDirIterator sources(QStringLiteral(SCHEDULES_SOURCE_DIR) + "/src/fileutil", {"*.h", "*.cpp"}, QDir::Files);
    while (sources.hasNext()) {
        QFile source(sources.next());
        ASSERT_TRUE(source.open(QFile::ReadOnly));
        if (QString::fromUtf8(source.readAll()).contains(systemHeader))
            files << sources.fileName();
    }
    EXPECT_EQ(files, QStringList{"DirectorySearch.cpp"});
}

TEST(CurrentFolder, IsAbsolute)
{
    EXPECT_EQ(CurrentFolder(), QDir::currentPath());
}
